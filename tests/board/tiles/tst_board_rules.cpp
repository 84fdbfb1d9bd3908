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

TileList makeTiles(const QStringList &described)
{
    TileList tiles;
    for (const QString &one : described) {
        auto tile = std::make_unique<cWortel>();
        const TileKind *kind = nullptr;
        for (const TileKind &row : tileKinds)
            if (one.front().toLatin1() == row.backupLetter)
                kind = &row;
        tile->BGColor = kind->back;
        tile->txt = one.mid(1);
        tiles.push_back(std::move(tile));
    }
    return tiles;
}

QStringList describe(const TileList &tiles)
{
    QStringList described;
    for (const auto &tile : tiles)
        described.append(QLatin1Char(kindOfColour(tile->BGColor)->backupLetter) + tile->txt);
    return described;
}

bool isWortel(const cWortel &tile) { return tile.BGColor == colours::wortelBack; }
bool isAny(const cWortel &) { return true; }

} // namespace

class BoardRulesTest : public QObject
{
    Q_OBJECT

private slots:
    void overlap_data()
    {
        columns<QPoint, bool>("probe", "overlaps");
        // The tile lies at 100, 100 and counts as 38 by 25, one pixel wider and higher.
        QTest::newRow("same place") << QPoint(100, 100) << true;
        QTest::newRow("left, last pixel shared") << QPoint(62, 100) << true;
        QTest::newRow("left, free") << QPoint(61, 100) << false;
        QTest::newRow("right, last pixel shared") << QPoint(138, 100) << true;
        QTest::newRow("right, free, though the tile is wider") << QPoint(139, 100) << false;
        QTest::newRow("above, shared") << QPoint(100, 75) << true;
        QTest::newRow("above, free") << QPoint(100, 74) << false;
        QTest::newRow("below, shared") << QPoint(100, 125) << true;
        QTest::newRow("below, free") << QPoint(100, 126) << false;
    }
    void overlap()
    {
        QFETCH(QPoint, probe);
        TileList tiles = makeTiles({u"MDonaudampfschiff"_s});
        tiles.front()->setXLeft(100);
        tiles.front()->setYTop(100);
        tiles.front()->setExtent(200);
        QTEST(places::checkOverlapInList(tiles, probe.x(), probe.y(), probe.x() + places::boxWidth,
                                         probe.y() + places::boxHeight),
              "overlaps");
        tiles.front()->setXLeft(std::numeric_limits<int>::max());
        tiles.front()->setYTop(std::numeric_limits<int>::min());
        QVERIFY(!places::checkOverlapInList(tiles, probe.x(), probe.y(), probe.x() + 38, probe.y() + 25));
    }

    void randomPlacesStayInTheirRange_data()
    {
        using Draw = places::Place (*)(Rnd &, int, int);
        // range: both corners are reached or nearly so
        columns<Draw, QRect>("draw", "range");
        QTest::newRow("PlaceWortelFree")
            << Draw(places::freeWortel) << QRect(QPoint(0, 35), QPoint(532, 422));
        QTest::newRow("NoWortelCollision2")
            << Draw(places::spreadWortel) << QRect(QPoint(0, 35), QPoint(532, 452));
        QTest::newRow("MorphemeCollision")
            << Draw(places::spreadMorpheme) << QRect(QPoint(0, -2), QPoint(592, 470));
        QTest::newRow("Refill") << Draw(places::refilledWortel) << QRect(QPoint(0, 65), QPoint(532, 437));
        QTest::newRow("AddRandomWortel")
            << Draw(places::addedWortel) << QRect(QPoint(0, 80), QPoint(532, 379));
    }
    void randomPlacesStayInTheirRange()
    {
        using Draw = places::Place (*)(Rnd &, int, int);
        QFETCH(Draw, draw);
        QFETCH(QRect, range);
        Rnd rnd(7);
        QRect seen;
        for (int i = 0; i < 20000; ++i) {
            const auto [x, y] = draw(rnd, 632, 573);
            seen |= QRect(x, y, 1, 1);
        }
        QCOMPARE(seen.topLeft(), range.topLeft());
        QVERIFY(range.adjusted(0, 0, 1, 1).contains(seen));
        QVERIFY(seen.right() >= range.right() - 2 && seen.bottom() >= range.bottom() - 2);
    }

    void probeWidths_data()
    {
        columns<int, QString, int>("kind", "text", "width");
        QTest::newRow("short prefix") << 1 << u"be"_s << 30;
        QTest::newRow("long prefix") << 1 << u"ver"_s << 37;
        QTest::newRow("short suffix") << 2 << u"en"_s << 29;
        QTest::newRow("long suffix") << 2 << u"ung"_s << 37;
        QTest::newRow("Wortel of 5") << 0 << u"spiel"_s << 37;
        QTest::newRow("Wortel of 6") << 0 << u"sprech"_s << 39;
    }
    void probeWidths()
    {
        QFETCH(int, kind);
        QFETCH(QString, text);
        QTEST(places::probeWidth(tileKinds.at(static_cast<std::size_t>(kind)).back, text), "width");
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
        QVERIFY(std::abs(seen[1] - 1000) < 150);
        QVERIFY(std::abs(seen[2] - 2000) < 200);
        QVERIFY(std::abs(seen[3] - 2000) < 200);
        QVERIFY(std::abs(seen[4] - 3000) < 250);
    }

    void sorting_data()
    {
        columns<QStringList, bool, bool, QStringList>("tiles", "everyKind", "removeDuplicates", "sorted");
        QTest::newRow("Wortel texts run over Wortel tiles")
            << QStringList{u"Mspiel"_s, u"Pver"_s, u"Mfahr"_s, u"Sung"_s, u"Mhalt"_s} << false << false
            << QStringList{u"Mfahr"_s, u"Pver"_s, u"Mhalt"_s, u"Sung"_s, u"Mspiel"_s};
        QTest::newRow("all kinds in one list") << QStringList{u"Mspiel"_s, u"Pver"_s, u"Sab"_s} << true
                                               << false << QStringList{u"Mab"_s, u"Pspiel"_s, u"Sver"_s};
        QTest::newRow("codes, not the alphabet")
            << QStringList{u"Mäpfel"_s, u"Mzahl"_s, u"Mapfel"_s, u"MZahl"_s} << false << false
            << QStringList{u"MZahl"_s, u"Mapfel"_s, u"Mzahl"_s, u"Mäpfel"_s};
        QTest::newRow("duplicates go, case ignored, affixes stay")
            << QStringList{u"Mhaus"_s, u"Phaus"_s, u"MHaus"_s, u"Phaus"_s, u"Mhaus"_s} << false << true
            << QStringList{u"MHaus"_s, u"Phaus"_s, u"Phaus"_s};
        QTest::newRow("duplicates over all kinds")
            << QStringList{u"Mab"_s, u"Pab"_s, u"Sauf"_s} << true << true << QStringList{u"Mab"_s, u"Sauf"_s};
        QTest::newRow("none") << QStringList{} << true << true << QStringList{};
    }
    void sorting()
    {
        QFETCH(QStringList, tiles);
        QFETCH(bool, everyKind);
        QFETCH(bool, removeDuplicates);
        TileList list = makeTiles(tiles);
        tile_sort::sortTexts(list, everyKind ? isAny : isWortel, removeDuplicates);
        QTEST(describe(list), "sorted");
    }
};

WORTEL_TEST(BoardRulesTest)
#include "tst_board_rules.moc"
