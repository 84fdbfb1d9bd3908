// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "board/tiles/places.h"
#include "board/tiles/tile_sort.h"
#include "platform/rnd.h"
#include "support/test_class.h"

namespace {

/// "Mhaus Pver": kind and text of each tile.
TileList makeTiles(const QString &described)
{
    TileList tiles;
    for (const QString &one : described.split(u' ', Qt::SkipEmptyParts)) {
        tiles.push_back(std::make_unique<cWortel>());
        for (const TileKind &kind : tileKinds)
            if (one.front().toLatin1() == kind.backupLetter)
                tiles.back()->BGColor = kind.back;
        tiles.back()->txt = one.mid(1);
    }
    return tiles;
}

QString describe(const TileList &tiles)
{
    QStringList described;
    for (const auto &tile : tiles)
        described.append(QLatin1Char(kindOfColour(tile->BGColor)->backupLetter) + tile->txt);
    return described.join(u' ');
}

bool isWortel(const cWortel &tile) { return tile.BGColor == colours::wortelBack; }
bool isAny(const cWortel &) { return true; }

} // namespace

class BoardRulesTest : public QObject
{
    Q_OBJECT

private slots:
    /// The tile lies at 100, 100 and counts as 38 by 25, one pixel wider and higher, whatever its text.
    void overlap()
    {
        TileList tiles = makeTiles(u"MDonaudampfschiff"_s);
        cWortel &tile = *tiles.front();
        tile.setExtent(200);
        const auto overlaps = [&](int x, int y) {
            return places::checkOverlapInList(tiles, x, y, x + places::boxWidth, y + places::boxHeight);
        };
        tile.setXLeft(100);
        tile.setYTop(100);
        for (const auto &[shared, free] : {std::pair{QPoint(62, 100), QPoint(61, 100)}, // left
                                           {QPoint(138, 100), QPoint(139, 100)},        // right
                                           {QPoint(100, 75), QPoint(100, 74)},          // above
                                           {QPoint(100, 125), QPoint(100, 126)}}) {     // below
            QVERIFY(overlaps(shared.x(), shared.y()));
            QVERIFY(!overlaps(free.x(), free.y()));
        }
        tile.setXLeft(std::numeric_limits<int>::max());
        tile.setYTop(std::numeric_limits<int>::min());
        QVERIFY(!overlaps(100, 100));
    }

    void limitQuestionCountsAsCalculated()
    {
        const QString first = places::limitQuestion(false, 12, 5000);
        QVERIFY(first.startsWith(u"Ich habe 12 Morpheme ohne Überdeckung platziert.\n\nEs ist schwierig, "));
        QVERIFY(first.endsWith(u"die restlichen Morpheme (-7) anzuordnen?"));
        QVERIFY(places::limitQuestion(true, 3, 5000)
                    .startsWith(u"Ich habe noch einmal probiert.\n\nIch habe jetzt 3 Morpheme ohne "));
    }
    void sorting()
    {
        for (const auto &[tiles, everyKind, removeDuplicates, sorted] :
             {std::tuple{u"Mspiel Pver Mfahr Sung Mhalt"_s, false, false, u"Mfahr Pver Mhalt Sung Mspiel"_s},
              {u"Mspiel Pver Sab"_s, true, false, u"Mab Pspiel Sver"_s},
              {u"Mäpfel Mzahl Mapfel MZahl"_s, false, false, u"MZahl Mapfel Mzahl Mäpfel"_s}, // by codes
              {u"Mhaus Phaus MHaus Phaus Mhaus"_s, false, true, u"MHaus Phaus Phaus"_s},
              {u"Mab Pab Sauf"_s, true, true, u"Mab Sauf"_s},
              {u""_s, true, true, u""_s}}) {
            TileList list = makeTiles(tiles);
            tile_sort::sortTexts(list, everyKind ? isAny : isWortel, removeDuplicates);
            QCOMPARE(describe(list), sorted);
        }
    }
};

WORTEL_TEST(BoardRulesTest)
#include "tst_board_rules.moc"
