// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/test_class.h"
#include "support/test_hand.h"
#include "widgets/gradient.h"

#include <algorithm>

namespace {

using Act = std::function<void(TestHand &)>;

bool anyTwoOverlap(const TileStore &store)
{
    for (const auto &a : store.tiles())
        for (const auto &b : store.tiles())
            if (a != b && std::abs(a->xLeft() - b->xLeft()) < 38 && std::abs(a->yTop() - b->yTop()) < 25)
                return true;
    return false;
}

/// Every work of the board, on a board of twenty tiles.
void addWorks()
{
    QTest::addColumn<Act>("act");
    const auto menu = [](const char *name, int id) {
        QTest::newRow(name) << Act([id](TestHand &h) { h.run(command::From::MainMenu, id); });
    };
    const auto refill = [](const char *name, bool overlaps) {
        QTest::newRow(name) << Act([overlaps](TestHand &h) {
            h.t.options.setBox(Setting::NoOverlapOnStart, overlaps ? 0 : 1);
            h.controls.Text1->setText(u"30"_s);
            h.tool(h.controls.Check2);
        });
    };
    refill("refill", false);
    refill("refill, overlapping", true);
    menu("fill", 212);
    menu("spread all", 1505);
    menu("spread all, sorted", 1522);
    menu("spread Wortel", 241);
    QTest::newRow("one more") << Act([](TestHand &h) { h.run(command::From::Key, 1); });
}

std::unique_ptr<TestHand> twentyTiles(const QSize &size = {800, 600})
{
    auto hand = std::make_unique<TestHand>(1, size);
    for (int i = 0; i < 20; ++i)
        hand->lay(kindAt(i % 3), 3 * i, 0, u"t%1"_s.arg(i));
    hand->t.options.setBox(Setting::FillAffix, 0);
    hand->t.pump.waiting = true;
    hand->t.boxes.willPress(0);
    hand->t.mayLeaveAnswers = true;
    return hand;
}

} // namespace

class PlacementTest : public QObject
{
    Q_OBJECT

private slots:
    /// It is bounded by the tries, or by the "X" that is offered if they have no bound.
    void aFullBoardEndsInSilence()
    {
        for (const int limit : {1000, 0}) {
            TestBoard b(1, {200, 300});
            b.placement->setTryLimit(limit);
            b.t.pump.waiting = true;
            bool offered = false;
            b.t.pump.onServe = [&] {
                offered = offered || !b.controls.Label4->isHidden();
                if (offered)
                    QTest::mouseClick(b.controls.Label4, Qt::LeftButton);
            };
            b.placement->PlaceWortelFree(500);
            QCOMPARE(offered, limit == 0);
            QVERIFY(b.store->count() > 3 && b.store->count() < 60);
            QVERIFY(!anyTwoOverlap(*b.store));
            b.optTypes->updateTotal();
            QCOMPARE(b.trouble(), QString());
        }
    }

    /// Nothing lies under the band or beyond an edge, however long its text, however high the band.
    void placesStayOnTheBoard_data()
    {
        addWorks();
        const auto row = [](const char *name, const Act &act) { QTest::newRow(name) << act; };
        row("add", [](TestHand &h) { h.run(command::From::MainMenu, 222); });
        row("insert", [](TestHand &h) {
            h.t.boxes.willType(u"Donaudampfschifffahrt"_s);
            h.click({h.form.width() - 5, h.measures->BandTop() - 2}, Qt::LeftButton, Qt::ControlModifier);
        });
        row("copy", [](TestHand &h) {
            const QPoint corner(h.form.width() - 40, h.measures->BandTop() - 27);
            h.lay(suffix, corner.x(), corner.y(), u"ung"_s);
            h.click(corner + QPoint(20, 24), Qt::RightButton, Qt::ShiftModifier);
        });
    }
    void placesStayOnTheBoard()
    {
        QFETCH(Act, act);
        for (const QSize size : {QSize(853, 480), QSize(330, 400), QSize(1920, 1080)})
            for (const int band : {88, 260}) {
                const auto hand = twentyTiles(size);
                hand->controls.Picture1->setGeometry(0, size.height() - band, size.width(), band);
                hand->placement->setTryLimit(0);
                hand->lists.WortelList.add(u"Donaudampfschifffahrt"_s);
                for (AffixHome &home : hand->homes.suffixes)
                    home.y = size.height() - 20; // behind the band
                int serves = 0;
                hand->t.pump.onServe = [&] {
                    if (++serves > 20000)
                        hand->gate.cancelWork(); // the small boards are full
                };
                act(*hand);
                for (const auto &tile : hand->store->tiles())
                    QVERIFY(tile->xLeft() >= 0 && tile->right() < size.width() && tile->yTop() >= -2 &&
                            tile->bottom() < size.height() - band);
            }
    }

    /// While a work runs the store keeps the old board whole; after the "X" the counters say what lies there.
    void earlyEnds_data() { addWorks(); }
    void earlyEnds()
    {
        QFETCH(Act, act);
        const auto hand = twentyTiles();
        const QStringList before = hand->described();
        int serves = 0;
        hand->t.pump.onServe = [&] {
            QCOMPARE(hand->described(), before);
            if (++serves == 5)
                hand->gate.cancelWork();
        };
        act(*hand);
        QVERIFY(serves > 0);
        QCOMPARE(hand->trouble(), QString());
    }

    void atTheLimitItAsks()
    {
        for (const auto answer : {Boxes::Answer::No, Boxes::Answer::Cancel, Boxes::Answer::Yes}) {
            TestHand b(1, {160, 200});
            for (int i = 0; i < 40; ++i)
                b.lay(wortel, 0, 0, u"a"_s);
            b.t.pump.waiting = true;
            b.t.boxes.willAnswer(answer);
            b.t.boxes.whileOpen = [&](const Question &question) {
                QCOMPARE(b.store->count(), 40); // whole until the answer
                QVERIFY(!b.surface->isLocked());
                QVERIFY(question.text.startsWith(u"Ich habe %1 Morpheme"_s.arg(b.counters().first())));
            };
            b.t.pump.onServe = [&] {
                if (!b.t.boxes.asked.isEmpty()) // after a Yes only the "X" ends it
                    QTest::mouseClick(b.controls.Label4, Qt::LeftButton);
            };
            b.run(command::From::MainMenu, 1505);
            QVERIFY(b.store->count() > 2 && b.store->count() < 40);
            QCOMPARE(b.t.boxes.asked.size(), 1);
            QCOMPARE(b.commits, 1);
            QCOMPARE(b.trouble(), QString());
        }
    }

    void spreadingAll()
    {
        const auto b = twentyTiles();
        b->lay(suffix, 0, 300, u"T1"_s);
        b->optTypes->select(1);
        b->arrangement->SpreadMorpheme(wortel.back);
        QCOMPARE(b->described().last(), u"0,300 T1"_s); // of one kind: the others stay
        QCOMPARE(b->described().filter(QRegularExpression(u"^\\d+,0 "_s)).size(), 13);
        b->arrangement->SpreadAllMorpheme(false);
        QCOMPARE(b->counters(), (QStringList{u"7"_s, u"7"_s, u"7"_s, u"21"_s}));
        QVERIFY(!anyTwoOverlap(*b->store));
        QCOMPARE(b->optTypes->selected(), 1);
        b->arrangement->SpreadAllMorpheme(true);
        QCOMPARE(b->store->count(), 20);
        const QStringList texts = b->texts();
        QVERIFY(std::is_sorted(texts.cbegin(), texts.cend()));
        QCOMPARE(b->trouble(), QString());
    }

    /// The status line is painted with each count, and the "X" stops at the one that was seen.
    void theXEndsSpreading()
    {
        const auto b = twentyTiles();
        b->form.show();
        QStringList painted;
        const PaintWatch watch(b->controls.GameProgress,
                               [&] { painted << b->controls.GameProgress->Caption(); });
        b->t.pump.onServe = [&] {
            QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
            if (painted.contains(u"5 ...Morpheme platziert (20)"_s))
                QTest::mouseClick(b->controls.Label4, Qt::LeftButton);
        };
        b->arrangement->SpreadAllMorpheme(false);
        QVERIFY(painted.contains(u"4 ...Morpheme platziert (20)"_s));
        QCOMPARE(b->store->count(), 5);
        QCOMPARE(b->trouble(), QString());
    }

    void liningUp()
    {
        for (const auto &[columns, sort, removeDuplicates, tiles] :
             {std::tuple{u"2"_s, true, false, u"0,50 a 7,7 ver 60,50 b 0,80 c 60,80 c"_s},
              {u"2"_s, true, true, u"0,50 a 7,7 ver 60,50 b 0,80 c"_s},
              {u"9"_s, false, false, u"0,50 c 7,7 ver 60,50 b 120,50 a 180,50 c"_s},
              {u"0"_s, false, false, u"0,50 c 7,7 ver 0,50 b 0,50 a 0,50 c"_s}}) {
            TestBoard b;
            b.lay(wortel, 300, 300, u"c"_s);
            b.lay(prefix, 7, 7, u"ver"_s);
            for (const QString &letter : {u"b"_s, u"a"_s, u"c"_s})
                b.lay(wortel, 200, 200, letter);
            b.t.options.setText(Setting::ColumnsOnLineUp, columns);
            b.t.options.setText(Setting::HorizSpaceOnLineUp, u"60"_s);
            b.t.options.setText(Setting::VertSpaceOnLineUp, u"30"_s);
            b.t.options.setText(Setting::StartPosTopOnLineUp, u"50"_s);
            b.arrangement->LineUpWorteles(sort, removeDuplicates);
            QCOMPARE(b.described().join(u' '), tiles);
            QCOMPARE(b.trouble(), QString());
        }
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
