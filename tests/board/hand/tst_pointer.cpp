// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/files.h"
#include "support/columns.h"
#include "support/registry.h"
#include "support/test_hand.h"
#include "widgets/alpha_panel.h"
#include "widgets/dropper.h"
#include "widgets/finger.h"
#include "widgets/floating_tile.h"
#include "widgets/store_list.h"

#include <QApplication>
#include <QPointingDevice>
#include <QtTest>

using namespace Qt::StringLiterals;

namespace {

constexpr auto left = Qt::LeftButton;
constexpr auto right = Qt::RightButton;

/// A board whose window is shown, for keys and focus.
struct ShownHand : TestHand
{
    ShownHand()
    {
        form.show();
        form.activateWindow();
        picFocus();
    }
    void picFocus()
    {
        form.setFocus();
        QApplication::processEvents();
    }
    void key(Qt::Key code, Qt::KeyboardModifiers shift = Qt::NoModifier)
    {
        QWidget *focus = form.focusWidget();
        QTest::keyClick(focus != nullptr ? focus : &form, code, shift);
    }
    /// The middle of the word field, in pixels of the board.
    QPoint fieldOnBoard() const
    {
        const Dropper &field = *controls.Dropper1;
        return controls.picCanvas->mapFromGlobal(field.mapToGlobal(field.rect().center()));
    }
};

} // namespace

class PointerTest : public QObject
{
    Q_OBJECT

private slots:
    void heldTileFollowsThePointer()
    {
        TestHand hand;
        hand.lay(wortel, 100, 100, u"fahr"_s);
        hand.lay(prefix, 300, 100, u"ver"_s);
        hand.press({110, 110});
        QVERIFY(!hand.controls.BtnMove1->isHidden());
        QVERIFY(hand.pointer.TileMoved());
        const qint64 picture = hand.controls.picCanvas->image().cacheKey();
        const int yields = hand.t.pump.yields;
        for (int i = 0; i < 50; ++i)
            hand.drag({150 + i, 160 + i});
        QCOMPARE(hand.controls.picCanvas->image().cacheKey(), picture); // no move paints the board
        QCOMPARE(hand.t.pump.yields, yields);
        QCOMPARE(hand.controls.BtnMove1->pos(), QPoint(199, 209));
        hand.release({199, 209});
        QVERIFY(hand.controls.BtnMove1->isHidden());
        QVERIFY(hand.store->current() == nullptr);
        QCOMPARE(hand.described(), (QStringList{u"199,209 fahr"_s, u"300,100 ver"_s})); // order stays
        QCOMPARE(hand.pixel(201, 232), QColor(Qt::red));
        QCOMPARE(hand.pixel(102, 123), QColor(0, 128, 192));
        QVERIFY(!hand.store->tiles().front()->Selected);
        QCOMPARE(hand.commits, 0);
    }

    void limitsOfMoving_data()
    {
        columns<QPoint, QPoint>("to", "expected");
        QTest::newRow("left of the board") << QPoint(-40, 60) << QPoint(0, 60);
        QTest::newRow("above the board") << QPoint(60, -3) << QPoint(60, 0);
        QTest::newRow("last column") << QPoint(602, 60) << QPoint(602, 60);
        QTest::newRow("past the right margin") << QPoint(603, 60) << QPoint(100, 100);
        QTest::newRow("last row") << QPoint(60, 459) << QPoint(60, 459);
        QTest::newRow("into the band") << QPoint(60, 460) << QPoint(100, 100);
    }
    void limitsOfMoving()
    {
        QFETCH(QPoint, to);
        QFETCH(QPoint, expected);
        TestHand hand;
        hand.lay(wortel, 100, 100, u"fahr"_s);
        hand.press({110, 110});
        hand.drag(to);
        hand.release(to);
        const cWortel &tile = *hand.store->tiles().front();
        QCOMPARE(QPoint(tile.xLeft(), tile.yTop()), expected);
    }

    void backupAfterAMove_data()
    {
        columns<QString, bool, int>("useBackup", "onTile", "backups");
        QTest::newRow("moved") << u"1"_s << true << 1;
        QTest::newRow("setting off") << u"0"_s << true << 0;
        QTest::newRow("empty spot") << u"1"_s << false << 0;
    }
    void backupAfterAMove()
    {
        QFETCH(QString, useBackup);
        QFETCH(bool, onTile);
        TestHand hand;
        hand.t.store.SaveSetting(u"Settings"_s, u"UseBackup"_s, useBackup);
        hand.lay(wortel, 100, 100, u"fahr"_s);
        hand.press(onTile ? QPoint(110, 110) : QPoint(300, 300));
        hand.drag({200, 200});
        hand.release({200, 200});
        QTEST(hand.backups, "backups");
        QCOMPARE(hand.commits, 0);
    }

    void filterOnPressAndMove()
    {
        TestHand hand;
        hand.lay(wortel, 100, 100, u"fahr"_s);
        hand.lay(prefix, 100, 100, u"ver"_s);
        hand.optTypes->select(1);
        hand.press({110, 110});
        QCOMPARE(hand.controls.BtnMove1->Caption(), u"ver "_s); // the hidden tile is passed over
        hand.drag({200, 200});
        hand.optTypes->select(2); // the filter changes under the held tile
        hand.drag({250, 250});
        QCOMPARE(hand.store->current()->xLeft(), 200);
        hand.t.options.setBox(Setting::MoveableInFilter, 0);
        hand.drag({260, 260});
        QCOMPARE(hand.store->current()->xLeft(), 260);
        hand.release({260, 260});
    }

    void frozenBoardIgnoresPresses()
    {
        TestHand hand;
        hand.lay(wortel, 100, 100, u"fahr"_s);
        const QString file = hand.t.AppFolder + u"errors.log"_s;
        hand.modes.MoveAllowed = false;
        hand.t.log.enable(file);
        hand.press({110, 110});
        hand.press({110, 110}, right);
        QVERIFY(!QFile::exists(nativePath(file)));
        QVERIFY(hand.controls.BtnMove1->isHidden());
        QCOMPARE(hand.popup.shown, 0);
    }

    void insertingWithShiftKeys_data()
    {
        // kind: index of the inserted kind, -1 for none
        columns<Qt::KeyboardModifiers, int, int>("shift", "filter", "kind");
        const Qt::KeyboardModifiers shift = Qt::ShiftModifier;
        const Qt::KeyboardModifiers ctrl = Qt::ControlModifier;
        const Qt::KeyboardModifiers alt = Qt::AltModifier;
        QTest::newRow("none") << Qt::KeyboardModifiers() << 3 << -1;
        QTest::newRow("shift") << shift << 3 << 1;
        QTest::newRow("shift, prefixes shown") << shift << 1 << 1;
        QTest::newRow("shift, suffixes shown") << shift << 2 << -1;
        QTest::newRow("ctrl") << ctrl << 3 << 0;
        QTest::newRow("ctrl, prefixes shown") << ctrl << 1 << -1;
        QTest::newRow("alt") << alt << 3 << 2;
        QTest::newRow("alt and shift") << (alt | shift) << 2 << 2;
        QTest::newRow("shift and ctrl") << (shift | ctrl) << 3 << -1;
    }
    void insertingWithShiftKeys()
    {
        QFETCH(Qt::KeyboardModifiers, shift);
        QFETCH(int, filter);
        QFETCH(int, kind);
        TestHand hand;
        hand.optTypes->select(filter);
        if (kind >= 0)
            hand.t.boxes.willType(u"neu"_s);
        hand.click({200, 150}, left, shift);
        QVERIFY(hand.t.ok());
        QCOMPARE(hand.store->count(), kind >= 0 ? 1 : 0);
        QCOMPARE(hand.optTypes->selected(), filter);
        QCOMPARE(hand.commits, kind >= 0 ? 1 : 0);
        if (kind < 0)
            return;
        QCOMPARE(hand.described(), QStringList{u"220,170 neu"_s});
        QCOMPARE(hand.store->tiles().front()->BGColor, tileKinds[static_cast<std::size_t>(kind)].back);
        QVERIFY(hand.countersEqualTiles());
        QCOMPARE(hand.t.sound.resources, QList<int>{123});
        const Question &asked = hand.t.boxes.asked.first();
        QCOMPARE(asked.code, tileKinds[static_cast<std::size_t>(kind)].boxCode);
    }

    void rightPress_data()
    {
        columns<QPoint, Qt::KeyboardModifiers, QStringList, int>("point", "shift", "tiles", "commits");
        const QStringList before{u"100,100 fahr"_s};
        QTest::newRow("shift on a tile") << QPoint(110, 110) << Qt::KeyboardModifiers(Qt::ShiftModifier)
                                         << before + QStringList{u"130,110 fahr"_s} << 1;
        QTest::newRow("shift on nothing")
            << QPoint(300, 300) << Qt::KeyboardModifiers(Qt::ShiftModifier) << before << 1;
        QTest::newRow("ctrl on a tile")
            << QPoint(110, 110) << Qt::KeyboardModifiers(Qt::ControlModifier) << QStringList() << 1;
        QTest::newRow("ctrl on nothing")
            << QPoint(300, 300) << Qt::KeyboardModifiers(Qt::ControlModifier) << before << 0;
        QTest::newRow("shift and ctrl")
            << QPoint(110, 110) << (Qt::ShiftModifier | Qt::ControlModifier) << before << 0;
    }
    void rightPress()
    {
        QFETCH(QPoint, point);
        QFETCH(Qt::KeyboardModifiers, shift);
        TestHand hand;
        hand.t.options.setBox(Setting::ConfirmBeforeErase, 0);
        hand.lay(wortel, 100, 100, u"fahr"_s);
        hand.click(point, right, shift);
        QTEST(hand.described(), "tiles");
        QTEST(hand.commits, "commits");
        QCOMPARE(hand.popup.shown, 0);
        QCOMPARE(hand.store->countOf(wortel.back), hand.optTypes->value(0));
    }

    void menuUnderThePointer_data()
    {
        columns<QPoint, int, int>("point", "filter", "menu");
        QTest::newRow("prefix") << QPoint(110, 110) << 3 << static_cast<int>(MenuName::PrefixMenu);
        QTest::newRow("Wortel") << QPoint(210, 110) << 3 << static_cast<int>(MenuName::WortelMenu);
        QTest::newRow("suffix") << QPoint(310, 110) << 2 << static_cast<int>(MenuName::SuffixMenu);
        QTest::newRow("empty spot") << QPoint(10, 310) << 3 << static_cast<int>(MenuName::MainMenu);
        QTest::newRow("hidden tile") << QPoint(110, 110) << 0 << static_cast<int>(MenuName::MainMenu);
    }
    void menuUnderThePointer()
    {
        QFETCH(QPoint, point);
        QFETCH(int, filter);
        QFETCH(int, menu);
        TestHand hand;
        hand.lay(prefix, 100, 100, u"ver"_s);
        hand.lay(wortel, 200, 100, u"fahr"_s);
        hand.lay(suffix, 300, 100, u"ung"_s);
        hand.optTypes->select(filter);
        hand.click(point, right);
        QCOMPARE(static_cast<int>(*hand.popup.lastName), menu);
        QCOMPARE(hand.popup.lastPosition, hand.controls.picCanvas->mapToGlobal(point));
        QCOMPARE(hand.commits, 0);
        QVERIFY(hand.store->current() == nullptr);
    }

    void menuChoicesAreCarriedOut()
    {
        TestHand hand;
        hand.lay(prefix, 100, 100, u"ver"_s);
        hand.popup.choose = 106;
        hand.click({110, 110}, right);
        QCOMPARE(hand.texts(), QStringList{u"Ver"_s});
        // On an empty spot 105 means all prefixes, on a tile the tile.
        hand.popup.choose = 105;
        hand.click({300, 300}, right);
        QCOMPARE(hand.texts(), QStringList{u"Ver"_s});
        hand.t.boxes.willPress(0);
        hand.click({110, 110}, right);
        QVERIFY(hand.store->isEmpty());
        QVERIFY(hand.t.ok());
    }

    void staleStopEndsWithTheNextPress()
    {
        TestHand hand;
        hand.lay(wortel, 100, 100, u"fahr"_s);
        hand.modes.StopPlacing = true;
        hand.press({110, 110});
        hand.release({110, 110});
        QVERIFY(!hand.modes.StopPlacing);
        QVERIFY(hand.controls.BtnMove1->isHidden());

        hand.press({110, 110});
        hand.modes.StopPlacing = true; // asked to stop while a tile is held
        hand.release({110, 110});
        QVERIFY(!hand.controls.BtnMove1->isHidden());
        hand.press({400, 400}, right); // any press lets it go
        QVERIFY(hand.controls.BtnMove1->isHidden());
        QVERIFY(!hand.store->tiles().front()->Selected);
    }

    void wordCheckDrag_data()
    {
        columns<int, int, QList<int>>("soundOnTimeOut", "filter", "sounds");
        QTest::newRow("with sound") << 1 << 3 << QList<int>{107};
        QTest::newRow("silent, filtered") << 0 << 0 << QList<int>();
    }
    void wordCheckDrag()
    {
        QFETCH(int, soundOnTimeOut);
        QFETCH(int, filter);
        ShownHand hand;
        hand.t.options.setBox(Setting::GameSoundOnTimeOut, soundOnTimeOut);
        hand.t.options.setBox(Setting::SoundOnActions, 0); // the drop sound does not ask for it
        hand.lay(wortel, 100, 100, u"fahr"_s);
        hand.lay(wortel, 200, 100, u" ung "_s);
        hand.optTypes->select(filter);
        hand.controls.Option1[0]->setChecked(true);
        Dropper &field = *hand.controls.Dropper1;
        field.setEnabled(true);
        field.setCaption(u" ver"_s);
        for (const QPoint &tile : {QPoint(110, 110), QPoint(210, 110)}) {
            hand.press(tile);
            QVERIFY(hand.pointer.isDragging());
            hand.drag({300, 300});
            QVERIFY(!field.isHighlighted());
            hand.drag(hand.fieldOnBoard());
            QVERIFY(field.isHighlighted());
            hand.drag({300, 300});
            QVERIFY(!field.isHighlighted());
            hand.drag(hand.fieldOnBoard());
            hand.release(hand.fieldOnBoard());
            QVERIFY(!field.isHighlighted());
            QVERIFY(!hand.pointer.isDragging());
            QVERIFY(hand.modes.WordCheckDrag);
        }
        QCOMPARE(field.Caption(), u"verfahrung"_s);
        QCOMPARE(hand.described(), (QStringList{u"100,100 fahr"_s, u"200,100  ung "_s}));
        QCOMPARE(hand.optTypes->selected(), filter);
        QFETCH(QList<int>, sounds);
        QCOMPARE(hand.t.sound.resources, sounds + sounds); // once for each drop
    }

    void dropElsewhereDropsNothing()
    {
        for (const bool escape : {false, true}) {
            ShownHand hand;
            hand.lay(wortel, 100, 100, u"fahr"_s);
            hand.controls.Option1[0]->setChecked(true);
            const QPoint end = escape ? hand.fieldOnBoard() : QPoint(300, 200);
            hand.press({110, 110});
            hand.drag(end);
            if (escape)
                hand.key(Qt::Key_Escape);
            hand.release(end);
            QCOMPARE(hand.controls.Dropper1->Caption(), QString());
            QVERIFY(!hand.controls.Dropper1->isHighlighted());
            QVERIFY(hand.controls.BtnMove1->isHidden());
            QCOMPARE(hand.described(), QStringList{u"100,100 fahr"_s});
            QCOMPARE(hand.backups, 0);
        }
    }

    void fingerDragsAndLongPressIsTheRightButton()
    {
        ShownHand hand;
        hand.lay(wortel, 100, 100, u"fahr"_s);
        const std::unique_ptr<QPointingDevice> screen(QTest::createTouchDevice());
        QWidget *board = hand.controls.picCanvas;
        QTest::touchEvent(board, screen.get()).press(1, {110, 110});
        QTest::touchEvent(board, screen.get()).move(1, {114, 112}); // a trembling finger moves nothing
        QCOMPARE(hand.store->tiles().front()->xLeft(), 100);
        QTest::touchEvent(board, screen.get()).move(1, {200, 220});
        QTest::touchEvent(board, screen.get()).release(1, {200, 220});
        QCOMPARE(hand.described(), QStringList{u"200,220 fahr"_s});
        QTest::qWait(finger::longPressTime + 100);
        QCOMPARE(hand.popup.shown, 0);

        QTest::touchEvent(board, screen.get()).press(1, {210, 230});
        QTRY_COMPARE(hand.popup.shown, 1);
        QCOMPARE(static_cast<int>(*hand.popup.lastName), static_cast<int>(MenuName::WortelMenu));
        QVERIFY(hand.controls.BtnMove1->isHidden());
        QTest::touchEvent(board, screen.get()).release(1, {210, 230});
        QCOMPARE(hand.described(), QStringList{u"200,220 fahr"_s});
    }

    void keysOfTheBoard_data()
    {
        columns<Qt::Key, Qt::KeyboardModifiers, bool, int, QList<int>>("code", "shift", "inField", "commits",
                                                                       "chosen");
        const Qt::KeyboardModifiers ctrl = Qt::ControlModifier;
        const QList<int> none;
        QTest::newRow("Ctrl+A") << Qt::Key_A << ctrl << false << 1 << none;
        QTest::newRow("Ctrl+A in the field") << Qt::Key_A << ctrl << true << 0 << none;
        QTest::newRow("Ctrl+Alt+A") << Qt::Key_A << (ctrl | Qt::AltModifier) << false << 0 << none;
        QTest::newRow("A") << Qt::Key_A << Qt::KeyboardModifiers() << false << 0 << none;
        QTest::newRow("Ctrl+F") << Qt::Key_F << ctrl << false << 1 << none;
        QTest::newRow("Ctrl+H") << Qt::Key_H << ctrl << false << 0 << QList<int>{275};
        QTest::newRow("Ctrl+I") << Qt::Key_I << ctrl << false << 0 << QList<int>{2801};
        QTest::newRow("Ctrl+J") << Qt::Key_J << ctrl << false << 0 << QList<int>{2802};
        QTest::newRow("F1") << Qt::Key_F1 << Qt::KeyboardModifiers() << false << 0 << QList<int>{1001};
        QTest::newRow("F1 in the field")
            << Qt::Key_F1 << Qt::KeyboardModifiers() << true << 0 << QList<int>{1001};
    }
    void keysOfTheBoard()
    {
        QFETCH(Qt::Key, code);
        QFETCH(Qt::KeyboardModifiers, shift);
        QFETCH(bool, inField);
        ShownHand hand;
        hand.lay(wortel, 100, 100, u"fahr"_s);
        hand.modes.CanUndo = hand.modes.CanRedo = true;
        if (inField)
            hand.controls.Dropper1->takeFocus();
        hand.key(code, shift);
        QTEST(hand.commits, "commits");
        QTEST(hand.chosen, "chosen");
        QVERIFY(hand.countersEqualTiles());
    }

    void tipKeyOnlyWithoutATip()
    {
        ShownHand hand;
        hand.controls.PicAlpha->show();
        hand.key(Qt::Key_H, Qt::ControlModifier);
        QVERIFY(hand.chosen.isEmpty());
    }

    void escapeAsksWhileWordsArePrepared_data()
    {
        // answer: -1: no question
        columns<bool, bool, int, bool>("retype", "inField", "answer", "stops");
        QTest::newRow("yes") << true << false << 0 << true;
        QTest::newRow("no") << true << false << 1 << false;
        QTest::newRow("in the field") << true << true << -1 << false;
        QTest::newRow("no retype") << false << false << -1 << false;
    }
    void escapeAsksWhileWordsArePrepared()
    {
        QFETCH(bool, retype);
        QFETCH(bool, inField);
        QFETCH(int, answer);
        ShownHand hand;
        hand.modes.RetypeActive = retype;
        if (inField)
            hand.controls.Dropper1->takeFocus();
        if (answer >= 0)
            hand.t.boxes.willPress(answer);
        hand.key(Qt::Key_Escape);
        QVERIFY(hand.t.ok());
        QTEST(hand.modes.StopPlacing, "stops");
        if (answer >= 0)
            QCOMPARE(hand.t.boxes.asked.first().text,
                     u"Es werden gerade noch einige Wörter vorbereitet...\n\nWillst du wirklich aufhören?"_s);
    }

    void menuKeyShowsTheMainMenu()
    {
        ShownHand hand;
        hand.popup.choose = 1501;
        hand.key(Qt::Key_Menu);
        QCOMPARE(hand.popup.shown, 1);
        const QSize rest = (hand.form.screen()->size() - hand.controls.picCanvas->size()) / 2;
        QCOMPARE(hand.popup.lastPosition, QPoint(rest.width(), rest.height()));
        QVERIFY(hand.controls.WortelList->isHidden()); // the choice is not acted on
        hand.controls.Dropper1->takeFocus();
        hand.key(Qt::Key_Menu);
        QCOMPARE(hand.popup.shown, 1);
    }
};

WORTEL_TEST(PointerTest)
#include "tst_pointer.moc"
