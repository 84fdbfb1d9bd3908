// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "board/tiles/places.h"
#include "board/tiles/random_array.h"
#include "board/tiles/tile_sort.h"
#include "platform/rnd.h"
#include "support/columns.h"
#include "support/error_of.h"
#include "support/registry.h"

#include <QtTest>

#include <numeric>

using namespace Qt::StringLiterals;

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

    /// Both corners are reached or nearly so.
    void randomPlacesStayInTheirRange()
    {
        for (const auto &[draw, top, corner] : {std::tuple{&places::freeWortel, 35, QPoint(532, 422)},
                                                {&places::spreadWortel, 35, QPoint(532, 452)},
                                                {&places::spreadMorpheme, -2, QPoint(592, 470)},
                                                {&places::refilledWortel, 65, QPoint(532, 437)},
                                                {&places::addedWortel, 80, QPoint(532, 379)}}) {
            Rnd rnd(7);
            QRect seen;
            for (int i = 0; i < 20000; ++i) {
                const auto [x, y] = draw(rnd, 632, 573);
                seen |= QRect(x, y, 1, 1);
            }
            QCOMPARE(seen.topLeft(), QPoint(0, top));
            QVERIFY(QRect(seen.bottomRight(), QSize(4, 4)).translated(-1, -1).contains(corner));
        }
    }

    void probeWidths()
    {
        for (const auto &[kind, text, width] : {std::tuple{prefixKind, u"be"_s, 30},
                                                {prefixKind, u"ver"_s, 37},
                                                {suffixKind, u"en"_s, 29},
                                                {suffixKind, u"ung"_s, 37},
                                                {wortelKind, u"spiel"_s, 37},
                                                {wortelKind, u"sprech"_s, 39}})
            QCOMPARE(places::probeWidth(kind.back, text), width);
    }

    void lineUpPlacesBeyondTheNumbers()
    {
        QCOMPARE(errorOf([] { places::GetLeft(1, 0, 100); }), int(RuntimeError::DivisionByZero));
        QCOMPARE(errorOf([] { places::GetTop(32000, 2, 100); }), int(RuntimeError::Overflow));
    }

    void limitQuestionCountsAsCalculated()
    {
        const QString first = places::limitQuestion(false, 12, 5000);
        QVERIFY(first.startsWith(u"Ich habe 12 Morpheme ohne Überdeckung platziert.\n\nEs ist schwierig, "));
        QVERIFY(first.endsWith(u"die restlichen Morpheme (-7) anzuordnen?"));
        QVERIFY(places::limitQuestion(true, 3, 5000)
                    .startsWith(u"Ich habe noch einmal probiert.\n\nIch habe jetzt 3 Morpheme ohne "));
    }

    void randomArrayPermutes()
    {
        for (const std::size_t count : {0U, 1U, 2U, 500U}) {
            std::vector<int> source(count);
            std::iota(source.begin(), source.end(), 1);
            std::vector<int> out;
            Rnd rnd(3);
            RandomArray(source, out, rnd);
            QVERIFY(count < 500 || out != source);
            std::sort(out.begin(), out.end());
            QCOMPARE(out, source);
        }
    }
    void randomArrayFavoursTheLastPlace()
    {
        // Rnd * 4 + 1 rounded: 1 from half a unit, 2 and 3 from one, 4 from one and a half.
        std::array<int, 5> seen{};
        Rnd rnd(5);
        std::vector<int> out;
        for (int i = 0; i < 8000; ++i) {
            RandomArray({1, 2, 3, 4}, out, rnd);
            ++seen[static_cast<std::size_t>(out.front())];
        }
        const std::array wanted{0, 1000, 2000, 2000, 3000};
        for (std::size_t i = 1; i < seen.size(); ++i)
            QVERIFY(std::abs(seen[i] - wanted[i]) < 200);
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
