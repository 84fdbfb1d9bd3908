// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "persistence/backup.h"
#include "platform/files.h"
#include "platform/work.h"
#include "support/columns.h"
#include "support/registry.h"
#include "support/test_hand.h"
#include "widgets/finger.h"

using namespace Qt::StringLiterals;

namespace {

constexpr auto left = Qt::LeftButton;
constexpr auto right = Qt::RightButton;
constexpr Qt::KeyboardModifiers plain = Qt::NoModifier;
constexpr Qt::KeyboardModifiers shift = Qt::ShiftModifier;
constexpr Qt::KeyboardModifiers ctrl = Qt::ControlModifier;
constexpr Qt::KeyboardModifiers alt = Qt::AltModifier;

/// A board whose window is shown, for keys and focus, with one tile.
struct ShownHand : TestHand
{
    ShownHand()
    {
        form.show();
        form.activateWindow();
        form.setFocus();
        QApplication::processEvents();
        lay(wortel, 100, 100, u"fahr"_s);
    }
    void key(Qt::Key code, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
    {
        QWidget *focus = form.focusWidget();
        QTest::keyClick(focus != nullptr ? focus : &form, code, modifiers);
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
        const qint64 picture = hand.controls.picCanvas->image().cacheKey();
        const int yields = hand.t.pump.yields;
        for (int i = 0; i < 50; ++i)
            hand.drag({150 + i, 160 + i});
        QCOMPARE(hand.controls.picCanvas->image().cacheKey(), picture); // no move paints the board
        QCOMPARE(hand.t.pump.yields, yields);
        QCOMPARE(hand.controls.BtnMove1->pos(), QPoint(199, 209));
        hand.release({199, 209});
        QCOMPARE(hand.trouble(), QString());
        QCOMPARE(hand.described(), (QStringList{u"199,209 fahr"_s, u"300,100 ver"_s})); // order stays
        QCOMPARE(hand.pixel(201, 232), QColor(Qt::red));
        QCOMPARE(hand.pixel(102, 123), QColor(0, 128, 192));
    }

    void limitsOfMoving()
    {
        const QPoint start(100, 100);
        for (const auto &[to, end] : {std::pair{QPoint(-40, 60), QPoint(0, 60)},
                                      {QPoint(60, -3), QPoint(60, 0)},
                                      {QPoint(602, 60), QPoint(602, 60)},
                                      {QPoint(603, 60), start}, // the right margin
                                      {QPoint(60, 459), QPoint(60, 459)},
                                      {QPoint(60, 460), start}}) { // the band
            TestHand hand;
            hand.lay(wortel, start.x(), start.y(), u"fahr"_s);
            hand.press({110, 110});
            hand.drag(to);
            hand.release(to);
            QCOMPARE(hand.described(), QStringList{u"%1,%2 fahr"_s.arg(end.x()).arg(end.y())});
        }
    }

    /// A move is kept by undo and backup, but is no step of its own.
    void backupAfterAMove()
    {
        for (const bool useBackup : {false, true})
            for (const bool onTile : {false, true}) {
                TestHand hand;
                hand.t.store.SaveSetting(u"Settings"_s, u"UseBackup"_s, useBackup ? u"1"_s : u"0"_s);
                hand.lay(wortel, 100, 100, u"fahr"_s);
                hand.press(onTile ? QPoint(110, 110) : QPoint(300, 300));
                hand.drag({200, 200});
                hand.release({200, 200});
                QCOMPARE(QFile::exists(nativePath(Backup::file(hand.t.ground))), useBackup && onTile);
                QVERIFY(hand.commits == 0 && hand.moves == (onTile ? 1 : 0) && !hand.r.undo.CanUndo());
            }
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

    void heldTileIsLetGo_data()
    {
        using Act = std::function<void(TestHand &)>;
        QTest::addColumn<Act>("act");
        const auto row = [](const char *name, const Act &act) { QTest::newRow(name) << act; };
        row("a box", [](TestHand &h) {
            h.t.boxes.willBeRead();
            h.t.ground.boxes.ShowInfoBox({}, {}, {});
        });
        row("a file dialog", [](TestHand &h) {
            h.t.fileDialogs.willOpen({});
            h.t.ground.fileDialogs.openFiles({}, {}, {}, true);
        });
        row("a menu", [](TestHand &h) { h.press({400, 400}, right); });
        row("the menu key", [](TestHand &h) { QTest::keyClick(&h.form, Qt::Key_Menu); });
        row("another press", [](TestHand &h) { h.press({400, 400}, Qt::MiddleButton); });
        row("a key of the board", [](TestHand &h) { QTest::keyClick(&h.form, Qt::Key_I, ctrl); });
        row("Esc", [](TestHand &h) { QTest::keyClick(&h.form, Qt::Key_Escape); });
        row("another window", [](TestHand &h) {
            QWidget other;
            other.show();
            other.activateWindow();
            h.settle();
        });
    }
    /// It stays where it was moved to, and no later move of the same press takes it along.
    void heldTileIsLetGo()
    {
        QFETCH(std::function<void(TestHand &)>, act);
        for (const bool toField : {false, true}) {
            ShownHand hand;
            hand.controls.Option1[toField ? 0 : 1]->setChecked(true);
            const QPoint to = toField ? hand.fieldOnBoard() : QPoint(200, 200);
            hand.press({110, 110});
            hand.drag(to);
            act(hand);
            QCOMPARE(hand.trouble(), QString());
            hand.drag({300, 300});
            hand.release(to);
            QCOMPARE(hand.described(), QStringList{toField ? u"100,100 fahr"_s : u"200,200 fahr"_s});
            QCOMPARE(hand.pixel(to.x() + 3, to.y() + 22) == QColor(Qt::red), !toField);
            QCOMPARE(hand.controls.Dropper1->Caption(), QString());
            QCOMPARE(hand.moves, 1);
            QVERIFY(hand.t.ok());
        }
    }

    void insertingWithShiftKeys_data()
    {
        // kind: index of the inserted kind, -1 for none
        columns<Qt::KeyboardModifiers, int, int>("keys", "filter", "kind");
        QTest::newRow("none") << plain << 3 << -1;
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
        QFETCH(Qt::KeyboardModifiers, keys);
        QFETCH(int, filter);
        QFETCH(int, kind);
        const bool inserts = kind >= 0;
        TestHand hand;
        hand.optTypes->select(filter);
        if (inserts)
            hand.t.boxes.willType(u"neu"_s);
        hand.click({200, 150}, left, keys);
        QVERIFY(hand.t.ok());
        QCOMPARE(hand.described(), inserts ? QStringList{u"220,170 neu"_s} : QStringList());
        QCOMPARE(hand.optTypes->selected(), filter);
        QCOMPARE(hand.commits, inserts ? 1 : 0);
        QCOMPARE(hand.trouble(), QString());
        if (!inserts)
            return;
        QCOMPARE(hand.store->tiles().front()->BGColor, kindAt(kind).back);
        QCOMPARE(hand.t.sound.resources, QList<int>{123});
        QCOMPARE(hand.t.boxes.asked.first().code, kind == 0 ? 2 : kind == 1 ? 1 : 3);
    }

    void rightPress()
    {
        const QStringList one{u"100,100 fahr"_s};
        const QStringList copied{u"100,100 fahr"_s, u"130,110 fahr"_s};
        const QPoint tile(110, 110);
        const QPoint nothing(300, 300);
        for (const auto &[point, keys, tiles, commits] : {std::tuple{tile, shift, copied, 1},
                                                          {nothing, shift, one, 1},
                                                          {tile, ctrl, QStringList(), 1},
                                                          {nothing, ctrl, one, 0},
                                                          {tile, shift | ctrl, one, 0}}) {
            TestHand hand;
            hand.t.options.setBox(Setting::ConfirmBeforeErase, 0);
            hand.lay(wortel, 100, 100, u"fahr"_s);
            hand.click(point, right, keys);
            QCOMPARE(hand.described(), tiles);
            QCOMPARE(hand.commits, commits);
            QCOMPARE(hand.popup.shown, 0);
            QCOMPARE(hand.trouble(), QString());
        }
    }

    void menuUnderThePointer()
    {
        TestHand hand;
        hand.lay(prefix, 100, 100, u"ver"_s);
        hand.lay(wortel, 200, 100, u"fahr"_s);
        hand.lay(suffix, 300, 100, u"ung"_s);
        for (const auto &[point, filter, menu] : {std::tuple{QPoint(110, 110), 3, MenuName::PrefixMenu},
                                                  {{210, 110}, 3, MenuName::WortelMenu},
                                                  {{310, 110}, 2, MenuName::SuffixMenu},
                                                  {{10, 310}, 3, MenuName::MainMenu},
                                                  {{110, 110}, 0, MenuName::MainMenu}}) { // a hidden tile
            hand.optTypes->select(filter);
            hand.click(point, right);
            QVERIFY(hand.popup.lastName == menu);
            QCOMPARE(hand.popup.lastPosition, hand.controls.picCanvas->mapToGlobal(point));
        }
        QCOMPARE(hand.popup.shown, 5);
        QCOMPARE(hand.commits, 0);
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

    void wordCheckDrag()
    {
        ShownHand hand;
        hand.t.options.setBox(Setting::SoundOnActions, 0); // the drop sound does not ask for it
        hand.lay(wortel, 200, 100, u" ung "_s);
        hand.lay(wortel, 300, 100, u"lich"_s);
        hand.optTypes->select(0);
        hand.controls.Option1[0]->setChecked(true);
        Dropper &field = *hand.controls.Dropper1;
        field.setCaption(u" ver"_s);
        const QPoint onField = hand.fieldOnBoard();
        for (const auto &[tile, end] : {std::pair{QPoint(110, 110), onField},
                                        {QPoint(210, 110), onField},
                                        {QPoint(310, 110), QPoint(300, 200)}}) { // dropped elsewhere
            hand.t.options.setBox(Setting::GameSoundOnTimeOut, tile.x() == 110 ? 1 : 0);
            hand.press(tile);
            QVERIFY(hand.pointer.isDragging());
            for (const QPoint &point : {QPoint(300, 300), onField, QPoint(300, 300), end}) {
                hand.drag(point);
                QCOMPARE(field.isHighlighted(), point == onField);
            }
            hand.release(end);
            QCOMPARE(hand.trouble(), QString());
            QVERIFY(hand.canvas->WordCheckDrag());
        }
        QCOMPARE(field.Caption(), u"verfahrung"_s);
        QCOMPARE(hand.described(), (QStringList{u"100,100 fahr"_s, u"200,100  ung "_s, u"300,100 lich"_s}));
        QCOMPARE(hand.optTypes->selected(), 0);
        QCOMPARE(hand.t.sound.resources, QList<int>{107});
        QCOMPARE(hand.moves, 0);
    }

    void fingerDragsAndLongPressIsTheRightButton()
    {
        ShownHand hand;
        const std::unique_ptr<QPointingDevice> screen(QTest::createTouchDevice());
        QWidget *board = hand.controls.picCanvas;
        QTest::touchEvent(board, screen.get()).press(1, {110, 110});
        QTest::touchEvent(board, screen.get()).move(1, {114, 112}); // a trembling finger moves nothing
        QCOMPARE(hand.store->tiles().front()->xLeft(), 100);
        QTest::touchEvent(board, screen.get()).move(1, {200, 220});
        QTest::qWait(finger::longPressTime + 100); // it has moved: it does not rest
        QCOMPARE(hand.popup.shown, 0);
        QTest::touchEvent(board, screen.get()).release(1, {200, 220});
        QCOMPARE(hand.described(), QStringList{u"200,220 fahr"_s});

        QTest::touchEvent(board, screen.get()).press(1, {210, 230});
        QTest::touchEvent(board, screen.get()).move(1, {214, 232});
        QTRY_COMPARE(hand.popup.shown, 1);
        QVERIFY(hand.popup.lastName == MenuName::WortelMenu);
        QTest::touchEvent(board, screen.get()).move(1, {300, 300});
        QTest::touchEvent(board, screen.get()).release(1, {300, 300});
        QCOMPARE(hand.described(), QStringList{u"200,220 fahr"_s});
        QCOMPARE(hand.trouble(), QString());
    }

    void keysOfTheBoard()
    {
        for (const auto &[code, modifiers, inField, tiles] :
             {std::tuple{Qt::Key_A, ctrl, false, 3},
              {Qt::Key_A, ctrl, true, 2},
              {Qt::Key_A, ctrl | alt, false, 2},
              {Qt::Key_A, plain, false, 2},
              {Qt::Key_I, ctrl, false, 1},
              {Qt::Key_I, ctrl, true, 2},
              {Qt::Key_J, ctrl, false, 2}}) { // nothing to redo
            ShownHand hand;
            hand.r.undo.ClearCollBuffer();
            hand.run(command::From::MainMenu, 216);
            if (inField)
                hand.controls.Dropper1->takeFocus();
            hand.key(code, modifiers);
            QCOMPARE(hand.store->count(), tiles);
            QCOMPARE(hand.trouble(), QString());
        }
    }

    void escapeCancelsAWork()
    {
        // answer: -1 if nothing is asked, by the setting or because no words are prepared
        for (const auto &[words, asks, answer, cancels] : {std::tuple{true, true, 0, true},
                                                           {true, true, 1, false},
                                                           {true, false, -1, true},
                                                           {false, true, -1, true}}) {
            ShownHand hand;
            hand.t.options.setBox(Setting::ConfirmBeforeErase, asks ? 1 : 0);
            hand.key(Qt::Key_Escape); // nothing to cancel
            const Work work(hand.t.ground, {words ? WorkPlan::Words : WorkPlan::Plain});
            hand.controls.Dropper1->takeFocus();
            if (answer >= 0)
                hand.t.boxes.willPress(answer);
            hand.key(Qt::Key_Escape);
            QVERIFY(hand.t.ok());
            QCOMPARE(work.isCancelled(), cancels);
            if (answer >= 0)
                QCOMPARE(
                    hand.t.boxes.asked.first().text,
                    u"Es werden gerade noch einige Wörter vorbereitet...\n\nWillst du wirklich aufhören?"_s);
        }
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
