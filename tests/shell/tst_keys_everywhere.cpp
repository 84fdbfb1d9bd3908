// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/columns.h"
#include "support/registry.h"
#include "support/test_board.h"
#include "widgets/alpha_panel.h"

#include <QMenu>
#include <QtTest>

using namespace Qt::StringLiterals;

namespace {

/// The house in front of a player who has only keys.
struct KeyedHouse : TestBoard
{
    const MainControls &c = controls;
    std::optional<Work> work;

    KeyedHouse()
    {
        t.writeFile(u"lextip.ini"_s, u"[Tipp]\r\nhauptbausteine=Suche den Stamm.\r\n"_s);
        lists.CorrectWordList.addAll({u"Haus"_s, u"laufen"_s});
        lay(wortel, 200, 100, u"halt"_s);
        r.undo.ClearCollBuffer();
        form.show();
        form.activateWindow();
        settle();
        c.picCanvas->setFocus();
    }
    void send(QEvent::Type type, int key, Qt::KeyboardModifiers shift, const QString &text, bool repeats)
    {
        QKeyEvent event(type, key, shift, text, repeats);
        QWidget *focus = form.focusWidget();
        QApplication::sendEvent(focus != nullptr ? focus : &form, &event);
    }
    /// Three repeats of a key that is held, before it is let go.
    void held(int key, Qt::KeyboardModifiers shift = {}, const QString &text = {})
    {
        for (int i = 0; i < 4; ++i)
            send(QEvent::KeyPress, key, shift, text, i > 0);
        send(QEvent::KeyRelease, key, shift, text, false);
        settle();
    }
    void letter(const QString &text, Qt::KeyboardModifiers shift = {})
    {
        send(QEvent::KeyPress, 0, shift, text, false);
        settle();
    }
    void composed(const QString &text)
    {
        QInputMethodEvent event;
        event.setCommitString(text);
        QApplication::sendEvent(form.focusWidget(), &event);
    }
    void dropInField(const QPoint &from)
    {
        c.Option1[0]->setChecked(true);
        press(from);
        release(c.picCanvas->mapFromGlobal(c.Dropper1->mapToGlobal(QPoint(9, 9))));
    }
    QString focusName() const
    {
        const QWidget *focus = form.focusWidget();
        return focus == nullptr ? QString() : focus->objectName();
    }
    /// What a press can change.
    QString state() const
    {
        QStringList open;
        for (QWidget *widget : form.findChildren<QWidget *>())
            if (!widget->isHidden() && widget->parentWidget() == &form)
                open << widget->objectName();
        open.sort();
        QStringList asked;
        for (const auto &box : t.boxes.asked)
            asked << box.text;
        return u"%1 %2 %3 %4 %5 %6"_s.arg(r.optTypes.selected())
            .arg(r.store.count())
            .arg(menu.shown)
            .arg(play.RetypeActive() ? u"retypes"_s
                 : play.GameActive() ? u"plays"_s
                                     : u"free"_s,
                 open.join(u','), asked.join(u',') + c.Dropper1->Caption());
    }
};

using Act = void (*)(KeyedHouse &);
using Tool = QWidget *(*)(const MainControls &);

/// Letters, and the word, the search box and what has the keyboard after them.
struct Typing
{
    const char *name;
    Act act;
    const char16_t *outcome;
};

// clang-format off
#define ACT(...) [](KeyedHouse &h) { __VA_ARGS__; }
const Typing typings[] = {
    {"board", ACT(h.letter(u"ä"_s), h.letter(u"ß"_s)), u"äß||lblprefix"},
    {"tool", ACT(h.c.Command6->setFocus(), h.letter(u"x"_s)), u"x||lblprefix"},
    {"checked tool", ACT(h.c.OptType[3]->setFocus(), h.letter(u"x"_s)), u"x||lblprefix"},
    {"bulb", ACT(h.c.Image1->setFocus(), h.letter(u"x"_s)), u"x||lblprefix"},
    {"window", ACT(h.form.setFocus(), h.letter(u"x"_s)), u"x||lblprefix"},
    {"nothing", ACT(h.c.picCanvas->clearFocus(), h.letter(u"x"_s)), u"x||lblprefix"},
    {"right Alt", ACT(h.letter(u"@"_s, Qt::ControlModifier | Qt::AltModifier)), u"@||lblprefix"},
    {"Alt", ACT(h.letter(u"x"_s, Qt::AltModifier)), u"||picCanvas"},
    {"blank", ACT(h.letter(u" "_s)), u"||picCanvas"},
    {"composed", ACT(h.composed(u"é"_s)), u"é||lblprefix"},
    {"behind the word", ACT(h.c.Dropper1->setCaption(u"ver"_s), h.letter(u"x"_s)), u"verx||lblprefix"},
    {"number", ACT(h.c.Text1->setText({}), h.c.Text1->setFocus(), h.letter(u"7"_s)), u"||Text1"},
    {"list", ACT(h.r.morphemeLists.ToggleAllMorphemeLists(), h.c.WortelList->setFocus(), h.letter(u"x"_s)), u"||WortelList"},
    {"dictionary", ACT(h.r.dictionary.toggle(), h.c.picCanvas->setFocus(), h.letter(u"x"_s)), u"|x|Text2"},
    {"retyping", ACT(h.tool(h.c.Check4), h.c.picCanvas->setFocus(), h.letter(u"x"_s)), u"x||lblprefix"},
    {"building", ACT(h.tool(h.c.Check3), h.letter(u"x"_s)), u"||picCanvas"},
    {"in a work", ACT(h.work.emplace(h.t.ground, WorkPlan{}), h.letter(u"x"_s), h.letter(u"y"_s), h.work.reset(), h.settle()), u"xy||lblprefix"},
    {"a tile dropped", ACT(h.dropInField({210, 110})), u"halt||lblprefix"},
    {"tool pressed by hand", ACT(h.c.Command6->setFocus(), h.tool(h.c.OptType[1])), u"||picCanvas"},
    {"tool pressed while typing", ACT(h.c.Dropper1->takeFocus(), h.tool(h.c.OptType[1])), u"||lblprefix"},
    {"tip pressed", ACT(h.c.Dropper1->takeFocus(), h.r.tips.mnuShowTip_Click(), QTest::mouseClick(h.c.PicAlpha, Qt::LeftButton)), u"||lblprefix"},
    {"strip pressed", ACT(h.tool(h.c.Check4), QTest::mouseClick(h.c.Scroller, Qt::LeftButton)), u"||lblprefix"},
    {"F6", ACT(h.held(Qt::Key_F6)), u"||picCanvas"}, // there and back, twice
};

struct Pressing
{
    const char *name;
    Tool tool;
    bool right;
};
using C = MainControls;
const Pressing pressings[] = {
    {"filter", tool<&C::OptType, 1>, false}, {"list", tool<&C::OptType, 0>, true},
    {"all lists", tool<&C::OptType, 3>, true}, {"new stems", tool<&C::Check2>, false},
    {"check", tool<&C::Command2>, false},    {"search", tool<&C::Command2>, true},
    {"capitals", tool<&C::Command5>, true},  {"words", tool<&C::Command4>, false},
    {"retype", tool<&C::Check4>, false},     {"game", tool<&C::Check3>, false},
    {"tip", tool<&C::Image1>, false},
};
// clang-format on

} // namespace

class KeysEverywhereTest : public QObject
{
    Q_OBJECT

private slots:
    void lettersFindTheWord_data()
    {
        columns<Act, QString>("act", "outcome");
        for (const Typing &row : typings)
            QTest::newRow(row.name) << row.act << QString::fromUtf16(row.outcome);
    }
    void lettersFindTheWord()
    {
        QFETCH(Act, act);
        QFETCH(QString, outcome);
        KeyedHouse house;
        act(house);
        QCOMPARE(house.c.Dropper1->Caption() + u'|' + house.c.Text2->text() + u'|' + house.focusName(),
                 outcome);
        QCOMPARE(house.trouble(), QString());
    }

    void toolsAreReachedInTheirOrder()
    {
        KeyedHouse house;
        QStringList order;
        for (int i = 0; i < 40 && (i == 0 || house.focusName() != u"picCanvas"); ++i) {
            order << house.focusName();
            QTest::keyClick(house.form.focusWidget(), Qt::Key_Tab);
        }
        QCOMPARE(
            order.join(u' '),
            u"picCanvas OptType(1) OptType(0) OptType(2) OptType(3) Check1 Text1 Check2 Option1(0) "
            "Option1(1) Command6 Command1 lblprefix Command2 Command5 Command3 Command4 Check3 Option2(0) "
            "Option2(1) Option2(2) Image1 Check4 ChkVokal(0) ChkVokal(1) Label2"_s);
    }

    void keysPressAsAHandDoes_data()
    {
        columns<Tool, bool>("tool", "right");
        for (const Pressing &row : pressings)
            QTest::newRow(row.name) << row.tool << row.right;
    }
    /// Also a key that is held presses once.
    void keysPressAsAHandDoes()
    {
        QFETCH(Tool, tool);
        QFETCH(bool, right);
        KeyedHouse byHand;
        byHand.c.Dropper1->setCaption(u"haus"_s);
        QTest::mouseClick(tool(byHand.c), right ? Qt::RightButton : Qt::LeftButton);
        const QString wanted = byHand.state();
        byHand.form.hide();
        for (const auto &[key, shift] :
             {std::pair{right ? Qt::Key_Menu : Qt::Key_Space, Qt::NoModifier},
              {right ? Qt::Key_F10 : Qt::Key_Return, right ? Qt::ShiftModifier : Qt::NoModifier}}) {
            KeyedHouse house;
            house.c.Dropper1->setCaption(u"haus"_s);
            const QString before = house.state();
            tool(house.c)->setFocus(Qt::TabFocusReason);
            house.held(key, shift);
            QCOMPARE(house.state(), wanted);
            QVERIFY(house.state() != before);
            QVERIFY(house.t.ok());
        }
    }

    void listsByKeys()
    {
        KeyedHouse house;
        house.c.OptType[0]->setFocus(Qt::TabFocusReason);
        house.held(Qt::Key_Menu);
        QCOMPARE(house.focusName(), u"WortelList"_s); // a key has opened it
        QTest::keyClick(house.c.WortelList, Qt::Key_Home);
        QTest::keyClick(house.c.WortelList, Qt::Key_Down);
        house.held(Qt::Key_Return);
        QCOMPARE(house.texts(), (QStringList{u"halt"_s, house.lists.WortelList.at(1)}));
        house.held(Qt::Key_Escape);
        QVERIFY(house.c.WortelList->isHidden());
        house.c.Command4->setFocus(Qt::TabFocusReason);
        house.held(Qt::Key_Return);
        house.held(Qt::Key_Menu);
        auto *menu = house.form.findChild<QMenu *>(u"mnuTest"_s);
        QVERIFY(menu->isVisible());
        menu->close();
    }

    void escClosesWhatLiesOnTop()
    {
        KeyedHouse house;
        const auto open = [&house] {
            QStringList names;
            for (const QString &name :
                 {u"PicAlpha"_s, u"CorrectWordList"_s, u"WortelList"_s, u"MsgScroller"_s})
                if (!house.form.findChild<QWidget *>(name)->isHidden())
                    names << name;
            return names.join(u' ');
        };
        house.tool(house.c.Check4);
        house.tool(house.c.OptType[0], Qt::RightButton);
        house.r.wordList.Show_Result();
        house.r.tips.mnuShowTip_Click();
        for (const char16_t *left :
             {u"PicAlpha CorrectWordList WortelList MsgScroller", u"CorrectWordList WortelList MsgScroller",
              u"WortelList MsgScroller", u"MsgScroller", u""}) {
            QCOMPARE(open(), QString::fromUtf16(left));
            QTest::keyClick(house.form.focusWidget(), Qt::Key_Escape);
        }
        QCOMPARE(house.focusName(), u"picCanvas"_s);
        QCOMPARE(house.trouble(), QString());
    }
};

WORTEL_TEST(KeysEverywhereTest)
#include "tst_keys_everywhere.moc"
