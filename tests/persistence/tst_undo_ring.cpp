// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "persistence/undo_ring.h"
#include "support/test_board.h"
#include "support/test_class.h"

class UndoRingTest : public QObject
{
    Q_OBJECT

private:
    struct Rig : TestBoard
    {
        UndoRing &undo = r.undo;

        void change(int number)
        {
            lay(wortel, number, number, QString::number(number));
            undo.SetCollBuffer();
        }
    };

private slots:
    // Each letter is an action: c a change, u undo, r redo, x restart. `count` is that of the tiles, which
    // grows by one with each change.
    void walks_data()
    {
        columns<QString, int, bool, bool>("actions", "count", "canUndo", "canRedo");
        QTest::newRow("start") << u"x"_s << 0 << false << false;
        QTest::newRow("back to the start") << u"xcu"_s << 0 << false << true;
        QTest::newRow("five steps reach the start") << u"xcccccuuuuu"_s << 0 << false << true;
        QTest::newRow("six changes, five steps") << u"xccccccuuuuu"_s << 1 << false << true;
        QTest::newRow("round the ring and forward") << u"xcccccccccuuuuurrrrr"_s << 9 << true << false;
        QTest::newRow("a change drops what could be redone") << u"xcccuuc"_s << 2 << true << false;
        QTest::newRow("restart") << u"xcccx"_s << 3 << false << false;
        QTest::newRow("steps back and changes many times") << u"xccccccucucucucuuuu"_s << 2 << true << true;
        QTest::newRow("stray steps: empty slots, round the ring") << u"xcuuurrr"_s << 1 << true << false;
    }
    void walks()
    {
        QFETCH(QString, actions);
        Rig rig;
        for (const QChar action : actions) {
            if (action == u'c')
                rig.change(rig.store->count() + 1);
            else if (action == u'u')
                rig.undo.UndoAction();
            else if (action == u'r')
                rig.undo.RedoAction();
            else
                rig.undo.ClearCollBuffer();
        }
        QTEST(rig.store->count(), "count");
        QTEST(rig.undo.CanUndo(), "canUndo");
        QTEST(rig.undo.CanRedo(), "canRedo");
        QCOMPARE(rig.counters().first(), QString::number(rig.store->count()));
        QCOMPARE(rig.counters().last(), QString::number(rig.store->count()));
    }

    void tilesComeBackWhole()
    {
        Rig rig;
        rig.lay(prefix, 10, 20, u"ver"_s);
        rig.lay(suffix, 300, 100, u"lich"_s);
        rig.undo.ClearCollBuffer();
        rig.canvas->CanvasRedrawAll();
        const QImage before = rig.controls.picCanvas->image();
        const QStringList tiles = rig.described();
        rig.bulk->RefillWithSpecNum(0);
        rig.undo.SetCollBuffer();
        rig.undo.UndoAction();
        QCOMPARE(rig.described(), tiles);
        QCOMPARE(rig.store->tiles().back()->Extent(), rig.store->extentOf(u"lich"_s));
        QCOMPARE(rig.store->tiles().back()->TxtColor, colours::suffixText);
        QCOMPARE(rig.counters(), QStringList({u"0"_s, u"1"_s, u"1"_s, u"2"_s}));
        QCOMPARE(rig.controls.picCanvas->image(), before);
        QVERIFY(!rig.surface->isLocked());
        // What is on the board is a copy: moving it leaves the snapshot alone.
        rig.store->tiles().front()->setXLeft(99);
        rig.undo.RedoAction();
        rig.undo.UndoAction();
        QCOMPARE(rig.described(), tiles);
    }
};

WORTEL_TEST(UndoRingTest)
#include "tst_undo_ring.moc"
