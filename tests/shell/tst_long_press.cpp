// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "language/chooser/frm_choose_wortel.h"
#include "language/chooser/mark_list.h"
#include "support/registry.h"
#include "support/test_house.h"

#include <QMenu>
#include <QPointingDevice>
#include <QStyleHints>
#include <QtTest>

using namespace Qt::StringLiterals;

namespace {

constexpr int holdTime = 120; ///< milliseconds

bool hasMenu() { return qobject_cast<QMenu *>(QApplication::activePopupWidget()) != nullptr; }

/// Something that is pressed, and whether its right and its left action have come. Without a right action a
/// slow press is the left one.
struct Target
{
    QWidget *widget;
    QPoint at;
    std::function<bool()> right;
    std::function<bool()> left;
};

struct PressHouse : TestHouse
{
    PressHouse()
    {
        form.show();
        lay(wortelKind, 100, 100, u"fahr"_s);
        lists.CorrectWordList.addAll({u"Haus"_s, u"renne"_s});
        chooser.show();
        for (QWidget *shown :
             {static_cast<QWidget *>(controls.CorrectWordList), static_cast<QWidget *>(controls.Scroller)}) {
            shown->show();
            shown->raise();
        }
        controls.Scroller->setEnabled(true);
        controls.Scroller->AddItem(u"fahren"_s);
        controls.Scroller->setScroll(true);
        controls.Scroller->move(0, 0);
        controls.CorrectWordList->move(200, 200);
        QObject::connect(controls.Scroller, &MsgScroller::clicked, &form, [this] { ++clicks; });
        QObject::connect(controls.Scroller, &MsgScroller::mouseDown, &form,
                         [this](const QMouseEvent *event) { rights += event->button() == Qt::RightButton; });
        QObject::connect(controls.Image1, &ClickLabel::clicked, &form, [this] { ++clicks; });
        t.fileDialogs.willOpen({});
        settle();
    }

    Target target(const QString &name)
    {
        const auto shown = [this] { return menu.shown == 1; };
        if (name == u"tile"_s)
            return {controls.picCanvas, {110, 110}, shown, [this] { return r.pointer.isHolding(); }};
        if (name == u"filter"_s)
            return {controls.OptType[1],
                    {9, 9},
                    [this] { return controls.PrefixList->isVisible(); },
                    [this] { return controls.OptType[1]->isChecked(); }};
        if (name == u"tool"_s)
            return {controls.Command3,
                    {9, 9},
                    [this] { return t.fileDialogs.asked.size() == 1; },
                    [this] { return controls.LexiconList->isVisible(); }};
        if (name == u"tool of one use"_s)
            return {controls.Option2[2], {9, 9}, {}, [this] { return controls.Option2[2]->isChecked(); }};
        if (name == u"label"_s)
            return {controls.Image1, {9, 9}, {}, [this] { return clicks == 1; }};
        if (name == u"word list"_s)
            return {controls.CorrectWordList->viewport(), {9, 30}, hasMenu, {}};
        if (name == u"strip"_s)
            return {
                controls.Scroller, {9, 9}, [this] { return rights == 1; }, [this] { return clicks == 1; }};
        MarkList *stems = chooser.controls().morphemes[ChooserControls::Stem].list;
        return {stems->viewport(), {9, 9}, hasMenu, [stems] { return stems->markedCount() == 1; }};
    }
    void hand(QTest::MouseAction action, const Target &on, bool finger, const QPoint &way = {})
    {
        const QPoint at = on.at + way;
        if (!finger)
            return QTest::mouseEvent(action, on.widget, Qt::LeftButton, {}, at);
        auto touch = QTest::touchEvent(on.widget, screen.get());
        if (action == QTest::MousePress)
            touch.hand(QTest::MousePress, 1, at, on.widget);
        else if (action == QTest::MouseMove)
            touch.hand(QTest::MouseMove, 1, at, on.widget);
        else
            touch.hand(QTest::MouseRelease, 1, at, on.widget);
    }

    std::unique_ptr<QPointingDevice> screen{QTest::createTouchDevice()};
    frmChooseWortel chooser{t.ground, lists, r.loader};
    int clicks = 0;
    int rights = 0; ///< presses of the strip
};

} // namespace

class LongPressTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { QGuiApplication::styleHints()->setMousePressAndHoldInterval(holdTime); }
    void cleanupTestCase() { QGuiApplication::styleHints()->setMousePressAndHoldInterval(-1); }

    void aPressIs_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<bool>("finger");
        QTest::addColumn<bool>("option");
        QTest::addColumn<bool>("held");
        for (const char *name :
             {"tile", "filter", "tool", "tool of one use", "label", "word list", "strip", "chooser"})
            for (int way = 0; way < 8; ++way)
                QTest::addRow("%s %d", name, way) << name << !(way & 1) << !(way & 2) << !(way & 4);
    }

    /// The right press comes while the hand still holds, and the release does nothing more.
    void aPressIs()
    {
        QFETCH(QString, name);
        QFETCH(bool, finger);
        QFETCH(bool, option);
        QFETCH(bool, held);
        PressHouse h;
        h.t.options.setBox(Setting::LongPressIsRight, option);
        const Target on = h.target(name);
        const bool isRight = held && (finger || option) && on.right;
        h.hand(QTest::MousePress, on, finger);
        QTest::qWait(held ? 3 * holdTime : 0);
        QVERIFY(!on.right || on.right() == isRight);
        if (QWidget *popup = QApplication::activePopupWidget())
            popup->close();
        if (name != u"tile"_s)
            h.hand(QTest::MouseRelease, on, finger);
        QVERIFY(!on.left || on.left() == !isRight);
        QVERIFY(h.t.fileDialogs.asked.size() < 2);
    }

    void aHandThatMovesDragsAndOneThatTremblesDoesNot()
    {
        for (const bool finger : {true, false}) {
            PressHouse h;
            h.t.options.setBox(Setting::LongPressIsRight, 1);
            const Target tile = h.target(u"tile"_s);
            const QStringList tiles = h.described();
            h.hand(QTest::MousePress, tile, finger);
            h.hand(QTest::MouseMove, tile, finger, {4, 3});
            QTest::qWait(3 * holdTime);
            h.hand(QTest::MouseMove, tile, finger, {120, 90});
            h.hand(QTest::MouseRelease, tile, finger);
            QCOMPARE(h.menu.shown, 1);
            QCOMPARE(h.described(), tiles);
            h.hand(QTest::MousePress, tile, finger);
            h.hand(QTest::MouseMove, tile, finger, {90, 90});
            QTest::qWait(3 * holdTime);
            QVERIFY(h.r.pointer.isHolding());
            h.hand(QTest::MouseRelease, tile, finger);
            QCOMPARE(h.menu.shown, 1);
            QVERIFY(h.described() != tiles);
        }
    }

    /// Neither a command nor a work is entered; a press that outlasts the command still counts.
    void whatRunsIsNotEntered()
    {
        PressHouse h;
        const Target tile = h.target(u"tile"_s);
        for (const bool letsGo : {true, false}) {
            h.hand(QTest::MousePress, tile, true);
            auto command = std::make_unique<Gate::Passage>(h.gate.stay());
            QTest::qWait(3 * holdTime);
            command.reset();
            if (letsGo)
                h.hand(QTest::MouseRelease, tile, true);
            QTest::qWait(3 * holdTime);
            QCOMPARE(h.menu.shown, letsGo ? 0 : 1);
        }
        h.hand(QTest::MouseRelease, tile, true);
        h.t.boxes.willPress(0);
        h.t.pump.waiting = true;
        int works = 0;
        h.t.pump.onServe = [&] {
            if (h.gate.work() == nullptr || works++ > 0)
                return;
            for (const QString &name : {u"tile"_s, u"tool"_s}) {
                h.hand(QTest::MousePress, h.target(name), true);
                QTest::qWait(3 * holdTime);
                h.hand(QTest::MouseRelease, h.target(name), true);
            }
        };
        h.tool(h.controls.Check2);
        QVERIFY(works > 0);
        QCOMPARE(h.menu.shown, 1);
        QVERIFY(h.t.fileDialogs.asked.isEmpty());
    }

    void onlyTheFirstFingerCounts()
    {
        PressHouse h;
        const Target tile = h.target(u"tile"_s);
        h.hand(QTest::MousePress, tile, true);
        QTest::touchEvent(tile.widget, h.screen.get()).stationary(1).press(2, {400, 100}, tile.widget);
        QTest::qWait(3 * holdTime);
        QCOMPARE(h.menu.lastPosition, tile.widget->mapToGlobal(tile.at));
        QTest::touchEvent(tile.widget, h.screen.get()).stationary(1).release(2, {400, 100}, tile.widget);
        h.hand(QTest::MouseRelease, tile, true);
        QCOMPARE(h.menu.shown, 1);
    }

    void theBandHasAMenu()
    {
        PressHouse h;
        h.menu.choose = 216;
        h.tool(h.controls.CmdMenu);
        QVERIFY(h.menu.shown == 1 && h.menu.lastName == MenuName::MainMenu);
        QVERIFY(h.texts().size() > 1); // what was chosen was done
        QTest::keyClick(&h.form, Qt::Key_F10);
        QCOMPARE(h.menu.shown, 2);
    }
};

WORTEL_TEST(LongPressTest)
#include "tst_long_press.moc"
