// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "board/tiles/places.h"
#include "support/columns.h"
#include "support/registry.h"
#include "support/test_board.h"
#include "widgets/click_label.h"
#include "widgets/progress_bar.h"

#include <QtTest>

using namespace Qt::StringLiterals;

namespace {

bool anyTwoOverlap(const TileStore &store)
{
    for (const auto &a : store.tiles())
        for (const auto &b : store.tiles())
            if (a != b && std::abs(a->xLeft() - b->xLeft()) < 38 && std::abs(a->yTop() - b->yTop()) < 25)
                return true;
    return false;
}

} // namespace

class PlacementTest : public QObject
{
    Q_OBJECT

private slots:
    void limitFollowsTheSetting_data()
    {
        columns<QString, int>("setting", "limit");
        QTest::newRow("3") << u"3"_s << 3000;
        QTest::newRow("0") << u"0"_s << 0;
        QTest::newRow("no number is repaired") << u"abc"_s << 1000000;
        QTest::newRow("beyond 32 bits keeps the old limit") << u"99999999"_s << 1000;
    }
    void limitFollowsTheSetting()
    {
        QFETCH(QString, setting);
        TestBoard b;
        QCOMPARE(b.placement->tryLimit(), 1000);
        b.t.options.setText(Setting::MaxTriesToPlace, setting);
        QCOMPARE(b.placement->tryLimit(), 1000);
        b.t.options.ApplySettings();
        QTEST(b.placement->tryLimit(), "limit");
    }

    void listOrderAndItsEnd()
    {
        TestBoard b;
        b.controls.Check1->setChecked(true);
        b.placement->PlaceWortelFree(5);
        QCOMPARE(b.texts(), (QStringList{u"halt"_s, u"fahr"_s, u"spiel"_s, QString(), QString()}));
        QCOMPARE(b.store->tiles().back()->Extent(), 10);
    }

    void aFullBoardEndsInSilence()
    {
        TestBoard b(1, {200, 300});
        b.placement->PlaceWortelFree(500);
        QVERIFY(b.store->count() > 3 && b.store->count() < 60);
        QVERIFY(!anyTwoOverlap(*b.store));
        QCOMPARE(b.optTypes->value(0), b.store->count());
        QVERIFY(!b.modes.PlacingBusy && b.controls.Label4->isHidden());
    }

    void withoutLimitTheCancelIsOffered()
    {
        TestBoard b(1, {200, 300});
        b.placement->setTryLimit(0);
        b.t.pump.waiting = true;
        bool offered = false;
        b.t.pump.onYield = [&] {
            offered = !b.controls.Label4->isHidden();
            if (offered)
                b.placement->stop();
        };
        b.placement->PlaceWortelFree(500);
        QVERIFY(offered);
        QVERIFY(!b.modes.PlacingBusy && !b.modes.StopPlacing && b.controls.Label4->isHidden());
    }

    void aSecondPlacementReturnsAtOnce()
    {
        TestBoard b;
        b.lay(wortel, 0, 0, u"a"_s);
        b.modes.PlacingBusy = true;
        b.placement->PlaceWortelFree(3);
        b.placement->NoWortelCollision2(1, u"x"_s);
        QVERIFY(!b.placement->MorphemeCollision(1, u"x"_s, prefix.back, prefix.text));
        b.arrangement->SpreadMorpheme(wortel.back);
        b.arrangement->SpreadAllMorpheme(false);
        QCOMPARE(b.described(), QStringList{u"0,0 a"_s});
        QCOMPARE(b.optTypes->value(0), 1);
        QVERIFY(b.modes.PlacingBusy);
    }

    void atTheLimitItAsks_data()
    {
        using Answer = Boxes::Answer;
        columns<Answer, bool>("answer", "givenUp");
        QTest::newRow("no") << Answer::No << true;
        QTest::newRow("cancel") << Answer::Cancel << true;
        QTest::newRow("yes, then the X") << Answer::Yes << true;
        QTest::newRow("yes, then room") << Answer::Yes << false;
    }
    void atTheLimitItAsks()
    {
        QFETCH(Boxes::Answer, answer);
        QFETCH(bool, givenUp);
        TestBoard b(1, {60, 120});
        for (const int y : {0, 40, 80})
            for (const int x : {0, 40})
                b.lay(wortel, x, y, u"a"_s);
        b.placement->setTryLimit(50);
        b.t.boxes.willAnswer(answer);
        b.t.boxes.whileOpen = [&](const Question &) { b.t.pump.waiting = answer == Boxes::Answer::Yes; };
        b.t.pump.onYield = [&] {
            if (b.t.boxes.asked.isEmpty() || b.controls.Label4->isHidden())
                return;
            if (givenUp)
                b.placement->stop();
            else
                b.store->ClearCanvas();
        };
        QCOMPARE(b.placement->MorphemeCollision(1, u"neu"_s, suffix.back, suffix.text), givenUp);
        QVERIFY(b.t.ok());
        QVERIFY(b.t.boxes.asked.first().text.startsWith(u"Ich habe 6 Morpheme"_s));
        QCOMPARE(b.t.boxes.asked.size(), 1);
        QCOMPARE(b.texts().contains(u"neu"_s), !givenUp);
        QVERIFY(!b.modes.PlacingBusy);
    }

    void spreadingAll()
    {
        TestBoard b(1, {800, 600});
        for (int i = 0; i < 20; ++i)
            b.lay(tileKinds.at(static_cast<std::size_t>(i % 3)), 0, 0, u"t%1"_s.arg(i % 10));
        b.optTypes->select(1);
        b.arrangement->SpreadAllMorpheme(false);
        QCOMPARE(b.counters(), (QStringList{u"7"_s, u"7"_s, u"6"_s, u"20"_s}));
        QVERIFY(!anyTwoOverlap(*b.store));
        QCOMPARE(b.optTypes->selected(), 1);
        QVERIFY(b.controls.GameProgress->isHidden() && b.controls.Label4->isHidden());
        QVERIFY(b.controls.Check2->isEnabled() && !b.controls.Check3->isHidden());
        b.controls.Check1->setChecked(true);
        b.arrangement->SpreadAllMorpheme(true);
        QVERIFY(!b.controls.Text1->isEnabled()); // "Alle" still takes it away
        QCOMPARE(b.store->count(), 10);
        const QStringList texts = b.texts();
        QVERIFY(std::is_sorted(texts.cbegin(), texts.cend()));
        QVERIFY(b.t.ok());
    }

    void theXEndsSpreading()
    {
        TestBoard b(1, {800, 600});
        for (int i = 0; i < 20; ++i)
            b.lay(wortel, 0, 0, u"t"_s);
        b.t.pump.waiting = true;
        b.t.pump.onYield = [&] {
            if (b.store->count() == 5 && !b.controls.Label4->isHidden())
                QTest::mouseClick(b.controls.Label4, Qt::LeftButton);
        };
        b.arrangement->SpreadAllMorpheme(false);
        QCOMPARE(b.store->count(), 5);
        QCOMPARE(b.counters().first(), u"5"_s);
        QVERIFY(!b.modes.StopPlacing && !b.modes.PlacingBusy && !b.surface->isLocked());
    }

    void spreadingOneKind()
    {
        TestBoard b;
        b.lay(prefix, 0, 5, u"ver"_s);
        for (int i = 0; i < 10; ++i)
            b.lay(wortel, 0, 0, u"t%1"_s.arg(i));
        b.arrangement->SpreadMorpheme(wortel.back);
        QCOMPARE(b.described().first(), u"0,5 ver"_s);
        QCOMPARE(b.counters(), (QStringList{u"10"_s, u"1"_s, u"0"_s, u"11"_s}));
        QVERIFY(!anyTwoOverlap(*b.store));
    }

    void liningUp_data()
    {
        columns<QString, bool, bool, QStringList>("columns", "sort", "removeDuplicates", "tiles");
        QTest::newRow("two columns, sorted")
            << u"2"_s << true << false
            << QStringList{u"0,50 a"_s, u"7,7 ver"_s, u"60,50 b"_s, u"0,80 c"_s, u"60,80 c"_s};
        QTest::newRow("duplicates go")
            << u"2"_s << true << true << QStringList{u"0,50 a"_s, u"7,7 ver"_s, u"60,50 b"_s, u"0,80 c"_s};
        QTest::newRow("as they lie") << u"9"_s << false << false
                                     << QStringList{u"0,50 c"_s, u"7,7 ver"_s, u"60,50 b"_s, u"120,50 a"_s,
                                                    u"180,50 c"_s};
        QTest::newRow("no columns: all in the corner")
            << u"0"_s << false << false
            << QStringList{u"0,50 c"_s, u"7,7 ver"_s, u"0,50 b"_s, u"0,50 a"_s, u"0,50 c"_s};
    }
    void liningUp()
    {
        QFETCH(QString, columns);
        QFETCH(bool, sort);
        QFETCH(bool, removeDuplicates);
        TestBoard b;
        b.lay(wortel, 300, 300, u"c"_s);
        b.lay(prefix, 7, 7, u"ver"_s);
        for (const char16_t letter : {u'b', u'a', u'c'})
            b.lay(wortel, 200, 200, QString(QChar(letter)));
        b.t.options.setText(Setting::ColumnsOnLineUp, columns);
        b.t.options.setText(Setting::HorizSpaceOnLineUp, u"60"_s);
        b.t.options.setText(Setting::VertSpaceOnLineUp, u"30"_s);
        b.t.options.setText(Setting::StartPosTopOnLineUp, u"50"_s);
        b.arrangement->LineUpWorteles(sort, removeDuplicates);
        QTEST(b.described(), "tiles");
        QCOMPARE(b.optTypes->value(0), b.store->countOf(wortel.back));
        QCOMPARE(b.optTypes->value(3), b.store->count());
    }

    void lineUpBeyondTheBoardLosesNothing()
    {
        TestBoard b;
        for (int i = 0; i < 20; ++i)
            b.lay(wortel, 0, 0, u"a"_s);
        b.t.options.setText(Setting::VertSpaceOnLineUp, u"30000"_s);
        b.t.options.setText(Setting::StartPosTopOnLineUp, u"9999999"_s);
        b.arrangement->LineUpWorteles(false, false);
        QCOMPARE(b.store->count(), 20);
    }
};

WORTEL_TEST(PlacementTest)
#include "tst_placement.moc"
