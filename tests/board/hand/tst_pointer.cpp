// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/test_class.h"
#include "support/test_hand.h"

#include <QStyleHints>

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

    void aPressPassesOverTheHiddenTile()
    {
        TestHand hand;
        hand.lay(wortel, 100, 100, u"fahr"_s);
        hand.lay(prefix, 100, 100, u"ver"_s);
        hand.optTypes->select(1);
        hand.press({110, 110});
        QCOMPARE(hand.controls.BtnMove1->Caption(), u"ver "_s);
        hand.release({110, 110});
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
        row("the menu key", [](TestHand &h) { QTest::keyClick(h.form.focusWidget(), Qt::Key_Menu); });
        row("another press", [](TestHand &h) { h.press({400, 400}, Qt::MiddleButton); });
        row("a key of the board", [](TestHand &h) { h.TestHouse::key(Qt::Key_I); });
        row("Esc", [](TestHand &h) { QTest::keyClick(h.form.focusWidget(), Qt::Key_Escape); });
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
        }
    }

    void insertingWithShiftKeys()
    {
        // kind: index of the inserted kind, -1 for none
        for (const auto &[keys, filter, kind] : {std::tuple{plain, 3, -1},
                                                 {shift, 3, 1},
                                                 {shift, 2, -1}, // suffixes shown
                                                 {ctrl, 3, 0},
                                                 {ctrl, 1, -1}, // prefixes shown
                                                 {alt | shift, 2, 2},
                                                 {shift | ctrl, 3, -1}}) {
            TestHand hand;
            hand.optTypes->select(filter);
            hand.t.boxes.willType(u"neu"_s);
            hand.t.mayLeaveAnswers = kind < 0;
            hand.click({200, 150}, left, keys);
            QCOMPARE(hand.described(), kind >= 0 ? QStringList{u"220,170 neu"_s} : QStringList());
            QCOMPARE(hand.optTypes->selected(), filter);
            QCOMPARE(hand.trouble(), QString());
            if (kind < 0)
                continue;
            QCOMPARE(hand.store->tiles().front()->BGColor, kindAt(kind).back);
            QCOMPARE(hand.t.sound.resources, QList<int>{123});
            QCOMPARE(hand.t.boxes.asked.first().code, kind == 0 ? 2 : kind == 1 ? 1 : 3);
        }
    }

    void rightPress()
    {
        const QStringList one{u"100,100 fahr"_s};
        const QStringList copied{u"100,100 fahr"_s, u"130,110 fahr"_s};
        const QPoint tile(110, 110);
        const QPoint nothing(300, 300);
        for (const auto &[point, keys, tiles] : {std::tuple{tile, shift, copied},
                                                 {nothing, shift, one},
                                                 {nothing, ctrl, one},
                                                 {tile, shift | ctrl, one}}) {
            TestHand hand;
            hand.t.options.setBox(Setting::ConfirmBeforeErase, 0);
            hand.lay(wortel, 100, 100, u"fahr"_s);
            hand.click(point, right, keys);
            QCOMPARE(hand.described(), tiles);
            QCOMPARE(hand.popup.shown, 0);
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
        QTest::qWait(QGuiApplication::styleHints()->mousePressAndHoldInterval() +
                     100); // it has moved: it does not rest
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
        for (const auto &[code, modifiers, inField, tiles] : {std::tuple{Qt::Key_A, ctrl, false, 3},
                                                              {Qt::Key_A, ctrl, true, 2},
                                                              {Qt::Key_A, ctrl | alt, false, 2},
                                                              {Qt::Key_I, ctrl, false, 1}}) {
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

    void menuKeyShowsTheMainMenu()
    {
        ShownHand hand;
        hand.popup.choose = 1501;
        hand.key(Qt::Key_Menu);
        QCOMPARE(hand.popup.shown, 1);
        const QSize rest = (hand.form.screen()->size() - hand.controls.picCanvas->size()) / 2;
        QCOMPARE(hand.popup.lastPosition, QPoint(rest.width(), rest.height()));
        QVERIFY(!hand.controls.WortelList->isHidden());
        hand.controls.Dropper1->takeFocus();
        hand.key(Qt::Key_Menu);
        QCOMPARE(hand.popup.shown, 1);
    }
};

WORTEL_TEST(PointerTest)
#include "tst_pointer.moc"
