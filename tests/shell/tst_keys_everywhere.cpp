// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/keyed_hand.h"
#include "support/test_class.h"
#include "support/tool_states.h"
#include "widgets/alpha_panel.h"

#include <array>

namespace {

struct KeyedHouse : KeyedHand
{
    const MainControls &c = controls;
    std::optional<Work> work;

    KeyedHouse()
    {
        t.writeFile(u"lextip.ini"_s, u"[Tipp]\r\nhauptbausteine=Suche den Stamm.\r\n"_s);
        lists.CorrectWordList.addAll({u"Haus"_s, u"laufen"_s});
        lay(wortel, 200, 100, u"halt"_s);
    }
    void composed(const QString &text)
    {
        QInputMethodEvent event;
        event.setCommitString(text);
        QApplication::sendEvent(form.focusWidget(), &event);
    }
    QString focusName() const
    {
        const QWidget *focus = form.focusWidget();
        return focus == nullptr ? QString() : focus->objectName();
    }
    QString state() const
    {
        return toolStates(*this).join(u'\n') +
               u"%1 %2 %3"_s.arg(r.optTypes.selected()).arg(r.store.count()).arg(t.boxes.asked.size()) +
               c.Dropper1->Caption();
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
    {"tool", ACT(h.c.OptType[3]->setFocus(), h.letter(u"x"_s)), u"x||lblprefix"},
    {"window", ACT(h.form.setFocus(), h.letter(u"x"_s)), u"x||lblprefix"},
    {"nothing", ACT(h.c.picCanvas->clearFocus(), h.letter(u"x"_s)), u"x||lblprefix"},
    {"right Alt", ACT(h.letter(u"@"_s, Qt::ControlModifier | Qt::AltModifier)), u"@||lblprefix"},
    {"Alt", ACT(h.letter(u"x"_s, Qt::AltModifier)), u"||picCanvas"},
    {"blank", ACT(h.letter(u" "_s)), u"||picCanvas"},
    {"composed", ACT(h.composed(u"é"_s)), u"é||lblprefix"},
    {"number", ACT(h.c.Text1->setText({}), h.c.Text1->setFocus(), h.letter(u"7"_s)), u"||Text1"},
    {"list", ACT(h.r.morphemeLists.ToggleAllMorphemeLists(), h.c.WortelList->setFocus(), h.letter(u"x"_s)), u"||WortelList"},
    {"list in a hand", ACT(h.r.morphemeLists.ToggleAllMorphemeLists(), QTest::mouseClick(h.c.WortelList->viewport(), Qt::LeftButton, {}, {5, 5}), h.keys(u"Shift"_s), h.letter(u"X"_s)), u"X||lblprefix"},
    {"list in a hand, then by keys", ACT(h.r.morphemeLists.ToggleAllMorphemeLists(), QTest::mouseClick(h.c.WortelList->viewport(), Qt::LeftButton, {}, {5, 5}), h.keys(u"Down"_s), h.letter(u"x"_s)), u"||WortelList"},
    {"dictionary", ACT(h.r.dictionary.toggle(), h.c.picCanvas->setFocus(), h.letter(u"x"_s)), u"|x|Text2"},
    {"found in the dictionary", ACT(h.r.dictionary.toggle(), h.keys(u"Down"_s)), u"||LexiconList"},
    {"retyping", ACT(h.tool(h.c.Check4), h.c.picCanvas->setFocus(), h.letter(u"x"_s)), u"x||lblprefix"},
    {"building", ACT(h.tool(h.c.Check3), h.letter(u"x"_s)), u"||picCanvas"},
    {"a word left from before the game", ACT(h.c.Dropper1->setCaption(u"qz"_s), h.tool(h.c.Option2[2]), h.tool(h.c.Check3), h.letter(u"x"_s)), u"x||lblprefix"},
    {"in a work", ACT(h.work.emplace(h.t.ground, WorkPlan{}), h.letter(u"x"_s), h.letter(u"y"_s), h.work.reset(), h.settle()), u"xy||lblprefix"},
    {"a tile dropped", ACT(h.c.Option1[0]->setChecked(true), h.press({210, 110}), h.release(h.c.picCanvas->mapFromGlobal(h.c.Dropper1->mapToGlobal(QPoint(9, 9))))), u"halt||lblprefix"},
    {"tool pressed by hand", ACT(h.c.Command6->setFocus(), h.tool(h.c.OptType[1])), u"||picCanvas"},
    {"tool pressed while typing", ACT(h.c.Dropper1->takeFocus(), h.tool(h.c.OptType[1])), u"||lblprefix"},
    {"tip pressed", ACT(h.c.Dropper1->takeFocus(), h.r.tips.mnuShowTip_Click(), QTest::mouseClick(h.c.PicAlpha, Qt::LeftButton)), u"||lblprefix"},
    {"strip pressed", ACT(h.tool(h.c.Check4), QTest::mouseClick(h.c.Scroller, Qt::LeftButton)), u"||lblprefix"},
    {"F6", ACT(h.keys(u"*F6"_s)), u"||lblprefix"},
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
        do {
            order << house.focusName();
            QTest::keyClick(house.form.focusWidget(), Qt::Key_Tab);
        } while (house.focusName() != u"picCanvas" && order.size() < 40);
        QCOMPARE(order.join(u' '),
                 u"picCanvas OptType(1) OptType(0) OptType(2) OptType(3) Check1 Text1 Check2 Option1(0) "
                 "Option1(1) Command6 Command1 CmdMenu lblprefix Command2 Command5 Command3 Command4 Check3 "
                 "Option2(0) "
                 "Option2(1) Option2(2) Image1 Check4 ChkVokal(0) ChkVokal(1) Label2"_s);
    }

    void keysPressAsAHandDoes_data()
    {
        columns<Tool, bool>("tool", "right");
        using C = MainControls;
        QTest::newRow("filter") << &tool<&C::OptType, 1> << false;
        QTest::newRow("list") << &tool<&C::OptType, 0> << true;
        QTest::newRow("check") << &tool<&C::Command2> << false;
        QTest::newRow("search") << &tool<&C::Command2> << true;
        QTest::newRow("retype") << &tool<&C::Check4> << false;
        QTest::newRow("game") << &tool<&C::Check3> << false;
        QTest::newRow("tip") << &tool<&C::Image1> << false;
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
        for (const QString &key :
             right ? QStringList{u"*Menu"_s, u"*Shift+F10"_s} : QStringList{u"*Space"_s, u"*Return"_s}) {
            KeyedHouse house;
            house.c.Dropper1->setCaption(u"haus"_s);
            const QString before = house.state();
            tool(house.c)->setFocus(Qt::TabFocusReason);
            house.keys(key);
            QCOMPARE(house.state(), wanted);
            QVERIFY(house.state() != before);
        }
    }

    /// The word's own steps first; after a drop or a check there are none, and held keys stop there.
    void undoLeavesTheWordField_data()
    {
        columns<QString, QString, int, QString>("letters", "keys", "tiles", "word");
        QTest::newRow("nothing typed") << QString() << u"Ctrl+Z"_s << 1 << QString();
        QTest::newRow("and on again") << QString() << u"Ctrl+Z Ctrl+Y"_s << 2 << QString();
        QTest::newRow("a letter typed") << u"x"_s << u"Ctrl+Z"_s << 2 << QString();
        QTest::newRow("written again") << u"x"_s << u"Ctrl+Z Ctrl+Y"_s << 2 << u"x"_s;
        QTest::newRow("that is gone") << u"x"_s << u"Ctrl+Z Ctrl+Z"_s << 1 << QString();
        QTest::newRow("held down") << u"x"_s << u"*Ctrl+Z"_s << 2 << QString();
    }
    void undoLeavesTheWordField()
    {
        QFETCH(QString, letters);
        QFETCH(QString, keys);
        KeyedHouse house;
        house.t.store.SaveSetting(u"Settings"_s, u"UseUndo"_s, u"1"_s);
        house.r.undo.ClearCollBuffer();
        house.lay(wortel, 300, 200, u"bau"_s);
        house.r.news.Commit();
        house.c.Dropper1->takeFocus();
        if (!letters.isEmpty())
            house.letter(letters);
        house.keys(keys);
        QTEST(house.r.store.count(), "tiles");
        QTEST(house.c.Dropper1->Caption(), "word");
    }

    void listsByKeys()
    {
        KeyedHouse house;
        house.c.OptType[0]->setFocus(Qt::TabFocusReason);
        house.keys(u"*Menu"_s);
        QCOMPARE(house.focusName(), u"WortelList"_s); // a key has opened it
        house.keys(u"Home Down *Return Escape"_s);
        QCOMPARE(house.texts(), (QStringList{u"halt"_s, house.lists.WortelList.at(1)}));
        QVERIFY(house.c.WortelList->isHidden());
    }

    void escClosesWhatLiesOnTop()
    {
        KeyedHouse house;
        house.tool(house.c.Check4);
        house.tool(house.c.OptType[0], Qt::RightButton);
        house.r.wordList.Show_Result();
        house.r.tips.mnuShowTip_Click();
        const std::array<QWidget *, 4> open{house.c.PicAlpha, house.c.CorrectWordList, house.c.WortelList,
                                            house.c.Scroller};
        for (std::size_t closed = 0; closed <= open.size(); ++closed) {
            for (std::size_t i = 0; i < open.size(); ++i)
                QCOMPARE(open[i]->isHidden(), i < closed);
            house.keys(u"*Escape"_s);
        }
        QCOMPARE(house.focusName(), u"picCanvas"_s);
        QCOMPARE(house.trouble(), QString());
    }
};

WORTEL_TEST(KeysEverywhereTest)
#include "tst_keys_everywhere.moc"
