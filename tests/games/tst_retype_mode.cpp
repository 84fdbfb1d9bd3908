// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "board/canvas.h"
#include "board/canvas_surface.h"
#include "board/opt_types.h"
#include "games/retype_mode.h"
#include "games/strip_control.h"
#include "generators/word_maker.h"
#include "language/dictionary_panel.h"
#include "language/word_check.h"
#include "language/word_tests.h"
#include "platform/modes.h"
#include "platform/report_popup.h"
#include "platform/word_lists.h"
#include "support/registry.h"
#include "support/test_ground.h"
#include "widgets/click_label.h"
#include "widgets/dropper.h"
#include "widgets/gradient.h"
#include "widgets/main_controls.h"
#include "widgets/msg_scroller.h"
#include "widgets/picture_box.h"
#include "widgets/press_button.h"
#include "widgets/progress_bar.h"
#include "widgets/store_list.h"

#include <QLabel>
#include <QLineEdit>
#include <QtTest>

using namespace Qt::StringLiterals;

namespace {

/// Keeps what was reported.
class Reports : public ReportPopup
{
public:
    QStringList titles;
    void Display(const QString &title, const QString &, const QString &, const QString &, int, int, bool,
                 bool) override
    {
        titles << title;
    }
};

/// The rooms around retype mode on a real form, wired as the main window does it.
struct Desk
{
    TestGround test;
    QWidget form;
    MainControls controls = makeMainControls(&form);
    WordLists lists;
    Modes modes;
    Reports reports;
    OptTypes optTypes{controls};
    FormMeasures measures{controls};
    CanvasSurface surface{*controls.picCanvas};
    TileStore tiles{test.ground, optTypes, optTypes, surface, measures};
    Canvas canvas{test.ground, controls, modes, tiles, surface, optTypes};
    WordTests tests{lists, test.options};
    DictionaryPanel dictionary{test.ground, controls, lists};
    WordCheck check{test.ground, controls, lists, modes, tests, dictionary, reports};
    WordMaker words{test.ground, controls, lists, modes, tests, tiles};
    StripControl strip{test.ground, controls};
    RetypeMode retype{test.ground, controls, lists, modes, {strip, words, check, tests, dictionary, canvas}};
    int menusBuilt = 0;

    Desk()
    {
        form.resize(853, 480);
        layOutMainControls(controls, 853, 480);
        form.show();
        controls.CorrectWordList->show(&lists.CorrectWordList);
        controls.LexiconList->show(&lists.LexiconList);
        QObject::connect(&check, &WordCheck::retypeWordFound, &retype, &RetypeMode::wordCopied);
        QObject::connect(&retype, &RetypeMode::menusChanged, &form, [this] { ++menusBuilt; });
        QObject::connect(controls.Check4, &PressButton::mouseDown, &retype, &RetypeMode::Check4_MouseDown);
        test.options.setOption(Setting::ScrollerLeftUpPos);
        test.options.setBox(Setting::ShowCorrectListAfterReType, 0);
        lists.LexiconList.addAll({u"Haus"_s, u"Maus"_s, u"laufen"_s, u"verlaufen"_s, u"belaufen"_s});
        lists.CurrentWortelFile = u"text\\Hauptbausteine.Txt"_s;
    }

    void fillList() { lists.CorrectWordList.addAll({u"haus"_s, u"laufen"_s, u"maus"_s}); }
    void fillVowels()
    {
        lists.kurzvokalList.addAll({u"bild"_s, u"hand"_s});
        lists.langvokalList.addAll({u"bad"_s, u"tag"_s});
        lists.CorrectWordList.addAll({u"bad"_s, u"bild"_s, u"hand"_s, u"tag"_s});
    }
    void layTiles()
    {
        for (const QString &text : {u"ver"_s, u"be"_s})
            tiles.CanvasDrawWortel(10, 10, text, colours::prefixBack, colours::prefixText);
        for (const QString &text : {u"lauf"_s, u"kind"_s, u"wand"_s})
            tiles.CanvasDrawWortel(10, 50, text, colours::wortelBack, colours::wortelText);
        for (const QString &text : {u"en"_s, u"ung"_s, u"bar"_s})
            tiles.CanvasDrawWortel(10, 90, text, colours::suffixBack, colours::suffixText);
        controls.OptType[0]->setText(u"3"_s);
        test.options.setText(Setting::NumReTypeWords, u"2"_s);
        test.options.setText(Setting::NumPseudoReTypeWords, u"2"_s);
    }

    void left() { retype.Check4_MouseDown(Qt::LeftButton, {}); }
    void right(Qt::KeyboardModifiers keys = {}) { retype.Check4_MouseDown(Qt::RightButton, keys); }
    void nonsense() { right(Qt::ShiftModifier); }
    void type(const QString &word)
    {
        controls.Dropper1->setCaption(word);
        check.Command2_MouseDown(Qt::LeftButton);
    }
    void copyAll()
    {
        for (int round = 0; modes.RetypeActive && round < 10; ++round)
            type(controls.Scroller->List(1));
    }
    QStringList shown() const
    {
        QStringList texts;
        for (int index = 1; index <= controls.Scroller->ListCount(); ++index)
            texts << controls.Scroller->List(index);
        return texts;
    }
    QString caption() const { return controls.GameProgress->Caption(); }

    /// Acts at yield number `number` of the preparation.
    void atYield(int number, const std::function<void()> &action)
    {
        test.pump.waiting = true;
        test.pump.onYield = [this, number, action, seen = 0]() mutable {
            if (retype.isPreparing() && ++seen == number)
                action();
        };
    }

    /// How every control of the window stands, but for the words in lists and fields.
    QMap<QString, QString> states() const
    {
        QMap<QString, QString> result;
        for (const QWidget *widget : form.findChildren<QWidget *>()) {
            if (widget->objectName().isEmpty() || widget->objectName().startsWith(u"qt_"))
                continue;
            QString state =
                u"%1 %2 '%3'"_s.arg(widget->isHidden() ? u"hidden"_s : u"shown"_s,
                                    widget->isEnabled() ? u"enabled"_s : u"disabled"_s, widget->toolTip());
            if (const auto *button = qobject_cast<const PressButton *>(widget))
                state += u' ' + button->faceColour().name() + u' ' + button->text();
            result.insert(widget->objectName() + u'/' + widget->parentWidget()->objectName(), state);
        }
        result.insert(u"strip runs"_s, QString::number(controls.Scroller->isTimerOn()));
        result.insert(u"bar"_s, caption());
        result.insert(u"pointer"_s,
                      QGuiApplication::overrideCursor() == nullptr ? u"normal"_s : u"hourglass"_s);
        result.insert(u"flags"_s, u"%1%2%3%4%5%6%7%8"_s.arg(modes.RetypeActive)
                                      .arg(modes.RetypeUserWords)
                                      .arg(modes.RetypeRandomWords)
                                      .arg(modes.RetypePseudoWords)
                                      .arg(modes.RetypeChosenWords)
                                      .arg(modes.KurzVokalMode)
                                      .arg(modes.LangVokalMode)
                                      .arg(modes.CancelPreparing));
        return result;
    }
};

/// A way through the mode, from off to off.
struct Way
{
    const char *name;
    void (*go)(Desk &);
};

const Way ways[] = {
    {"empty list", [](Desk &d) { d.left(); }},
    {"word list, stopped",
     [](Desk &d) {
         d.fillList();
         d.left();
         QVERIFY(d.modes.RetypeActive);
         d.left();
     }},
    {"word list, stopped with the right button",
     [](Desk &d) {
         d.fillList();
         d.left();
         d.right();
     }},
    {"word list, all copied",
     [](Desk &d) {
         d.fillList();
         d.test.boxes.willBeRead();
         d.left();
         d.copyAll();
     }},
    {"word list, praise closed with Esc",
     [](Desk &d) {
         d.fillList();
         d.test.boxes.willBeRead(1);
         d.left();
         d.copyAll();
     }},
    {"word list, X at the first word",
     [](Desk &d) {
         d.fillList();
         d.atYield(1, [&d] { d.modes.CancelPreparing = true; });
         d.left();
         QVERIFY(d.lists.CorrectWordList.isEmpty());
     }},
    {"word list, X at the last word",
     [](Desk &d) {
         d.fillList();
         d.atYield(3, [&d] { d.modes.CancelPreparing = true; });
         d.left();
         QVERIFY(d.lists.CorrectWordList.isEmpty());
     }},
    {"word list, window closed while preparing",
     [](Desk &d) {
         d.fillList();
         d.atYield(2, [&d] { d.modes.Closing = true; });
         d.left();
     }},
    {"word list, button while preparing",
     [](Desk &d) {
         d.fillList();
         d.atYield(2, [&d] { d.left(); });
         d.left();
     }},
    {"word list, both buttons while preparing",
     [](Desk &d) {
         d.fillList();
         d.atYield(1, [&d] {
             d.left();
             d.nonsense();
             d.left();
         });
         d.left();
     }},
    {"word list, none in the dictionary",
     [](Desk &d) {
         d.lists.CorrectWordList.addAll({u"xxx"_s, u"yyy"_s});
         d.left();
     }},
    {"short vowels, stopped",
     [](Desk &d) {
         d.fillVowels();
         d.controls.ChkVokal[0]->setChecked(true);
         d.left();
         QVERIFY(d.modes.RetypeActive);
         d.left();
     }},
    {"long vowels, all copied",
     [](Desk &d) {
         d.fillVowels();
         d.controls.ChkVokal[1]->setChecked(true);
         d.test.boxes.willBeRead();
         d.left();
         d.copyAll();
     }},
    {"short vowels, none in the list",
     [](Desk &d) {
         d.fillVowels();
         d.lists.kurzvokalList.clear();
         d.controls.ChkVokal[0]->setChecked(true);
         d.left();
     }},
    {"vowels, right button does nothing",
     [](Desk &d) {
         d.layTiles();
         d.controls.ChkVokal[0]->setChecked(true);
         d.right();
         d.modes.KurzVokalMode = false;
     }},
    {"board, no tiles",
     [](Desk &d) {
         d.test.boxes.willBeRead();
         d.right();
         QCOMPARE(d.test.boxes.asked.last().text, u"Es sind keine Wortele auf dem Bildschirm"_s);
     }},
    {"board, stopped",
     [](Desk &d) {
         d.layTiles();
         d.right();
         QVERIFY(d.modes.RetypeActive);
         d.right();
     }},
    {"board, all copied",
     [](Desk &d) {
         d.layTiles();
         d.test.boxes.willBeRead();
         d.right();
         d.copyAll();
     }},
    {"board, no dictionary, X",
     [](Desk &d) {
         d.layTiles();
         d.lists.LexiconList.clear();
         d.atYield(50, [&d] { d.modes.CancelPreparing = true; });
         d.right();
     }},
    {"board, no dictionary, button",
     [](Desk &d) {
         d.layTiles();
         d.lists.LexiconList.clear();
         d.atYield(50, [&d] { d.right(); });
         d.right();
     }},
    {"board, no words asked for",
     [](Desk &d) {
         d.layTiles();
         d.test.options.setText(Setting::NumReTypeWords, u"0"_s);
         d.right();
     }},
    {"board, more than 16 bits",
     [](Desk &d) {
         d.layTiles();
         d.test.options.setText(Setting::NumReTypeWords, u"99999"_s);
         d.right();
     }},
    {"nonsense, list without any",
     [](Desk &d) {
         d.layTiles();
         d.lists.CurrentWortelFile = u"text\\ig oder lich.txt"_s;
         d.test.boxes.willBeRead();
         d.nonsense();
         QCOMPARE(d.test.boxes.asked.last().text, u"Zu dieser Wortel-Liste gibt es keine Unsinnswörter"_s);
     }},
    {"nonsense, stopped",
     [](Desk &d) {
         d.layTiles();
         d.nonsense();
         QVERIFY(d.modes.RetypeActive);
         d.left();
     }},
    {"nonsense, all copied",
     [](Desk &d) {
         d.layTiles();
         d.test.boxes.willBeRead();
         d.nonsense();
         d.copyAll();
     }},
    {"nonsense, button while preparing",
     [](Desk &d) {
         d.layTiles();
         d.test.options.setText(Setting::NumPseudoReTypeWords, u"1000"_s);
         d.atYield(60, [&d] { d.nonsense(); });
         d.nonsense();
     }},
    {"nonsense, X before the first word",
     [](Desk &d) {
         d.layTiles();
         d.atYield(1, [&d] { d.modes.CancelPreparing = true; });
         d.nonsense();
     }},
    {"menu, each entry twice",
     [](Desk &d) {
         d.layTiles();
         for (const int id : {1600, 1601, 1607}) {
             if (d.lists.CorrectWordList.isEmpty())
                 d.fillList();
             d.retype.command(id);
             QVERIFY(d.modes.RetypeActive);
             d.retype.command(id);
         }
     }},
};

constexpr int wayCount = static_cast<int>(std::size(ways));

/// How the window may stand before the mode begins.
struct Start
{
    const char *name;
    void (*make)(Desk &);
};

const Start starts[] = {
    {"plain", [](Desk &) {}},
    {"all stems asked for", [](Desk &d) { d.controls.Check1->setChecked(true); }},
    {"word list open", [](Desk &d) { d.controls.CorrectWordList->QWidget::show(); }},
    {"dictionary open", [](Desk &d) { d.dictionary.toggle(); }},
};

} // namespace

class RetypeModeTest : public QObject
{
    Q_OBJECT

private slots:
    void everyWayGivesTheToolsBack_data();
    void everyWayGivesTheToolsBack();
    void runsFromTheWordList();
    void aChildCopiesAllWords();
    void preparesWithTheToolsAtRest();
    void copiesWithoutRegardToCase();
    void equalNeighbours();
    void praises_data();
    void praises();
    void keepsTheWords_data();
    void keepsTheWords();
    void vowelModes();
    void wordsFromTheBoard();
    void nonsenseIsRed();
    void menuEntryForTheChooser();
    void notInAGame();
    void limits_data();
    void limits();
    void oddStripsAreCopied_data();
    void oddStripsAreCopied();
};

void RetypeModeTest::everyWayGivesTheToolsBack_data()
{
    QTest::addColumn<int>("way");
    QTest::addColumn<int>("start");
    for (int start = 0; start < static_cast<int>(std::size(starts)); ++start) {
        for (int way = 0; way < wayCount; ++way)
            QTest::addRow("%s: %s", starts[start].name, ways[way].name) << way << start;
    }
}

void RetypeModeTest::everyWayGivesTheToolsBack()
{
    QFETCH(int, way);
    QFETCH(int, start);
    Desk desk;
    // A tile counter belongs to the board, not to the mode.
    const auto compared = [&desk] {
        auto states = desk.states();
        states.removeIf([](const auto &state) { return state.key().startsWith(u"OptType"); });
        return states;
    };
    starts[start].make(desk);
    const auto before = compared();
    ways[way].go(desk);
    if (QTest::currentTestFailed())
        return;
    const auto after = compared();
    for (auto state = before.cbegin(); state != before.cend(); ++state)
        QVERIFY2(after.value(state.key()) == state.value(),
                 qPrintable(
                     u"%1: before %2, after %3"_s.arg(state.key(), state.value(), after.value(state.key()))));
    QCOMPARE(after.size(), before.size());
    QVERIFY(desk.controls.Option1[1]->isChecked());
    QVERIFY(!desk.retype.isPreparing());
    QVERIFY(desk.test.ok());
}

void RetypeModeTest::runsFromTheWordList()
{
    Desk desk;
    desk.form.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&desk.form));
    desk.fillList();
    desk.left();
    QVERIFY(desk.modes.RetypeActive);
    QVERIFY(desk.modes.RetypeUserWords);
    QCOMPARE(desk.menusBuilt, 1);
    QCOMPARE(desk.shown(), (QStringList{u"Haus"_s, u"laufen"_s, u"Maus"_s}));
    QCOMPARE(desk.caption(), u"3 Wörter zum Abschreiben"_s);
    QCOMPARE(desk.controls.GameProgress->maximum(), 3);

    const MainControls &c = desk.controls;
    QVERIFY(c.Scroller->isVisible() && c.Scroller->isEnabled() && c.Scroller->isTimerOn());
    QVERIFY(c.Dropper1->isEnabled() && c.Dropper1->isVisible() && c.Dropper1->isActiveControl());
    QCOMPARE(c.Check4->toolTip(), u"Abschreiben abbrechen"_s);
    QVERIFY(c.Check4->isEnabled() && c.Check4->isVisible());
    const QList<QWidget *> hidden{c.Text1,  c.Command6, c.Check1, c.Check2,
                                  c.Label3, c.Label6,   c.Label4, c.CorrectWordList};
    for (const QWidget *control : hidden)
        QVERIFY2(control->isHidden(), qPrintable(control->objectName()));
    const QList<QWidget *> disabled{c.Check3,      c.Option2[0], c.Option2[1], c.Option2[2], c.ChkVokal[0],
                                    c.ChkVokal[1], c.Check1,     c.Check2,     c.Label3,     c.Label6,
                                    c.Command3,    c.Command4,   c.Text1,      c.Option1[0]};
    for (const QWidget *control : disabled)
        QVERIFY2(!control->isEnabled(), qPrintable(control->objectName()));

    desk.type(u"Laus"_s);
    QCOMPARE(desk.reports.titles.last(), u"Wort nicht gefunden"_s);
    QCOMPARE(desk.shown().size(), 3);
    desk.type(u"laufen"_s);
    QCOMPARE(desk.shown(), (QStringList{u"Haus"_s, u"Maus"_s}));
    QCOMPARE(desk.caption(), u"2 Wörter übrig zum Abschreiben"_s);
    QVERIFY2(c.Scroller->isTimerOn() && c.Scroller->isEnabled(), "the words that are left run on");
    QCOMPARE(c.Dropper1->Caption(), QString());
    QVERIFY(desk.test.ok());
}

void RetypeModeTest::aChildCopiesAllWords()
{
    Desk desk;
    desk.form.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&desk.form));
    connect(desk.controls.Dropper1, &Dropper::EnterPress, &desk.check, &WordCheck::Dropper1_EnterPress);
    desk.fillList();
    desk.test.boxes.willBeRead();
    QTest::mouseClick(desk.controls.Check4, Qt::LeftButton);
    QVERIFY(desk.modes.RetypeActive);
    QTest::keyClicks(QApplication::focusWidget(), u"Hause"_s);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
    // The wrong word is selected whole, so that the next key replaces it.
    for (const QString &word : {u"Haus"_s, u"Maus"_s, u"laufen"_s}) {
        QVERIFY(desk.modes.RetypeActive);
        QTest::keyClicks(QApplication::focusWidget(), word);
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
    }
    QCOMPARE(desk.reports.titles,
             (QStringList{u"Wort nicht gefunden"_s, u"Richtig !"_s, u"Richtig !"_s, u"Richtig !"_s}));
    QVERIFY(!desk.modes.RetypeActive);
    QVERIFY(desk.test.ok());
}

void RetypeModeTest::preparesWithTheToolsAtRest()
{
    Desk desk;
    desk.fillList();
    QStringList captions;
    desk.atYield(2, [&] {
        captions << desk.caption();
        const MainControls &c = desk.controls;
        QVERIFY(c.Label4->isVisible());
        QVERIFY(c.GameProgress->isVisible());
        QVERIFY(QGuiApplication::overrideCursor() != nullptr);
        const QList<QWidget *> disabled{c.Check2, c.Command2, c.Command5, c.Dropper1, c.Check3, c.Option1[1]};
        for (const QWidget *control : disabled)
            QVERIFY2(!control->isEnabled(), qPrintable(control->objectName()));
    });
    desk.left();
    QCOMPARE(captions, QStringList{u"2 Wörter vorbereitet"_s});
    QVERIFY(desk.controls.Command2->isEnabled() && desk.controls.Command5->isEnabled());
}

void RetypeModeTest::copiesWithoutRegardToCase()
{
    Desk desk;
    desk.fillList();
    desk.test.options.setBox(Setting::CaseCheck, 0);
    desk.left();
    desk.type(u"HAUS"_s);
    QCOMPARE(desk.shown(), (QStringList{u"laufen"_s, u"Maus"_s}));
}

void RetypeModeTest::equalNeighbours()
{
    Desk desk;
    desk.lists.CorrectWordList.addAll({u"Haus"_s, u"Haus"_s, u"Haus"_s, u"Maus"_s});
    desk.left();
    QCOMPARE(desk.shown(), (QStringList{u"Haus"_s, u"Maus"_s}));
    desk.type(u"Haus"_s);
    // The row that moved up into the gap was passed over.
    QCOMPARE(desk.shown(), (QStringList{u"Haus"_s, u"Maus"_s}));
    desk.type(u"Haus"_s);
    QCOMPARE(desk.shown(), QStringList{u"Maus"_s});
}

void RetypeModeTest::praises_data()
{
    QTest::addColumn<QString>("mode");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("style");
    QTest::newRow("words") << u"USERWORDS"_s
                           << u"Prima !\nDu hast jetzt alle Wörter richtig abgeschrieben !"_s << u"SMILEY"_s;
    QTest::newRow("nonsense") << u"PSEUDOWORDSFROMSCREEN"_s
                              << u"Prima !\nDu hast jetzt alle Wörter richtig abgeschrieben !"_s
                              << u"SMILEY"_s;
    QTest::newRow("short")
        << u"KURZVOKAL"_s << u"Prima !\nDu hast jetzt alle Wortele mit kurzem Vokal richtig abgeschrieben !"_s
        << QString();
    QTest::newRow("long") << u"LANGVOKAL"_s
                          << u"Prima !\nDu hast jetzt alle Wortele mit langem Vokal richtig abgeschrieben !"_s
                          << QString();
}

void RetypeModeTest::praises()
{
    QFETCH(QString, mode);
    Desk desk;
    if (mode == u"USERWORDS"_s) {
        desk.fillList();
        desk.left();
    } else if (mode == u"PSEUDOWORDSFROMSCREEN"_s) {
        desk.layTiles();
        desk.nonsense();
    } else {
        desk.fillVowels();
        desk.controls.ChkVokal[mode == u"KURZVOKAL"_s ? 0 : 1]->setChecked(true);
        desk.left();
    }
    QVERIFY(desk.modes.RetypeActive);
    desk.test.boxes.willBeRead();
    desk.test.boxes.whileOpen = [&](const Question &) {
        QVERIFY(desk.caption().startsWith(u"0 Wört"_s) || desk.caption().startsWith(u"0 Wortele mit"_s));
        QVERIFY(desk.controls.Scroller->isHidden());
    };
    desk.copyAll();
    QVERIFY(!desk.modes.RetypeActive);
    QCOMPARE(desk.test.boxes.asked.size(), 1);
    QTEST(desk.test.boxes.asked.first().text, "text");
    QTEST(desk.test.boxes.asked.first().style, "style");
    QCOMPARE(desk.test.boxes.asked.first().title, u"Abschreiben: Fertig"_s);
    QCOMPARE(desk.test.sound.resources, QList<int>{103});
    QVERIFY(!desk.controls.ChkVokal[0]->isChecked() && !desk.controls.ChkVokal[1]->isChecked());
    QVERIFY(desk.lists.PseudoWordList.isEmpty());
    QVERIFY(desk.test.ok());
}

void RetypeModeTest::keepsTheWords_data()
{
    QTest::addColumn<int>("option");
    QTest::addColumn<int>("answer");
    QTest::addColumn<QStringList>("words");
    QTest::newRow("shown") << 1 << 0 << QStringList{u"Haus"_s, u"laufen"_s, u"Maus"_s};
    QTest::newRow("shown after Esc, too") << 1 << 1 << QStringList{u"Haus"_s, u"laufen"_s, u"Maus"_s};
    QTest::newRow("not asked for") << 0 << 0 << QStringList{};
}

void RetypeModeTest::keepsTheWords()
{
    QFETCH(int, option);
    QFETCH(int, answer);
    QFETCH(QStringList, words);
    Desk desk;
    desk.fillList();
    desk.test.options.setBox(Setting::ShowCorrectListAfterReType, option);
    desk.left();
    desk.test.boxes.willBeRead(answer);
    desk.copyAll();
    QCOMPARE(desk.lists.CorrectWordList.rows(), words);
    QCOMPARE(desk.controls.CorrectWordList->isVisible(), !words.isEmpty());
    if (!words.isEmpty())
        QCOMPARE(desk.controls.CorrectWordList->geometry().bottom() + 1, desk.controls.Picture1->y());
    // A new start keeps its own words.
    desk.lists.CorrectWordList.clear();
    desk.lists.CorrectWordList.add(u"maus"_s);
    desk.left();
    QCOMPARE(desk.retype.KeptWords(), option == 1 ? QStringList{u"Maus"_s} : QStringList{});
}

void RetypeModeTest::vowelModes()
{
    Desk desk;
    desk.fillVowels();
    desk.tiles.CanvasDrawWortel(10, 50, u"Bild"_s, colours::wortelBack, colours::wortelText);
    desk.tiles.CanvasDrawWortel(90, 50, u"hand"_s, colours::wortelBack, colours::wortelText);
    desk.controls.OptType[0]->setText(u"2"_s);
    desk.controls.ChkVokal[0]->setChecked(true);
    desk.left();
    QVERIFY(desk.modes.KurzVokalMode && desk.modes.RetypeUserWords);
    QCOMPARE(desk.shown(), (QStringList{u"bild"_s, u"hand"_s}));
    QCOMPARE(desk.caption(), u"Noch 4 Wortele mit kurzem Vokal"_s);
    QVERIFY(desk.controls.Text1->isVisible() && desk.controls.Command6->isVisible());

    desk.type(u"tag"_s);
    QCOMPARE(desk.shown().size(), 2);
    desk.type(u"bild"_s);
    QCOMPARE(desk.shown(), QStringList{u"hand"_s});
    QCOMPARE(desk.caption(), u"3 Wortele mit kurzem Vokal"_s);
    QCOMPARE(desk.tiles.count(), 1);
    QCOMPARE(desk.tiles.tiles().front()->txt, u"hand"_s);
    QCOMPARE(desk.controls.OptType[0]->text(), u"1"_s);

    desk.left();
    QVERIFY2(desk.controls.ChkVokal[0]->isChecked(), "the vowel board stays when the mode is stopped");
}

void RetypeModeTest::wordsFromTheBoard()
{
    Desk desk;
    desk.layTiles();
    bool panelHidden = false;
    desk.atYield(2, [&] { panelHidden = desk.controls.Picture3->isHidden(); });
    desk.right();
    QVERIFY(panelHidden);
    QVERIFY(desk.modes.RetypeRandomWords && desk.modes.RetypeChosenWords && !desk.modes.RetypeUserWords);
    QCOMPARE(desk.shown(), (QStringList{u"belaufen"_s, u"verlaufen"_s}));
    QCOMPARE(desk.caption(), u"2 Wörter zum Abschreiben"_s);
    QVERIFY2(desk.controls.Check4->isVisible(), "the mode can be left with its button");
}

void RetypeModeTest::nonsenseIsRed()
{
    Desk desk;
    desk.layTiles();
    desk.lists.CorrectWordList.add(u"Haus"_s);
    desk.nonsense();
    QVERIFY(desk.modes.RetypePseudoWords && !desk.modes.RetypeChosenWords);
    QCOMPARE(desk.shown(), desk.lists.PseudoWordList.rows());
    QCOMPARE(desk.shown().size(), 2);
    QCOMPARE(desk.caption(), u"2 Unsinnswörter zum Abschreiben"_s);
    QCOMPARE(desk.controls.Scroller->ForeColor(), QColor(Qt::red));
    desk.type(desk.shown().first());
    QCOMPARE(desk.caption(), u"1 Wörter übrig zum Abschreiben"_s);
    desk.left();
    QCOMPARE(desk.controls.Scroller->ForeColor(), QColor(Qt::black));
    QCOMPARE(desk.lists.CorrectWordList.rows(), QStringList{u"Haus"_s});
}

void RetypeModeTest::menuEntryForTheChooser()
{
    Desk desk;
    QSignalSpy wanted(&desk.retype, &RetypeMode::chooserWanted);
    desk.dictionary.toggle();
    desk.modes.RetypeRandomWords = true;
    desk.retype.command(1608);
    QCOMPARE(wanted.size(), 1);
    QCOMPARE(wanted.at(0).at(0).toString(), u"Abschreiben: Alle Wörter"_s);
    QCOMPARE(wanted.at(0).at(1).toString(), u"Abschreiben: Ausgewählte Wörter"_s);
    QVERIFY(!desk.dictionary.isOpen());
    QVERIFY(desk.modes.RetypeChosenWords && !desk.modes.RetypeRandomWords && !desk.modes.RetypeActive);

    desk.fillList();
    desk.retype.RetypeWithChoosenWortel();
    QVERIFY(desk.modes.RetypeActive && desk.modes.RetypeChosenWords && !desk.modes.RetypeUserWords);
    desk.retype.command(1608);
    QVERIFY(!desk.modes.RetypeActive && !desk.modes.RetypeChosenWords);

    desk.modes.KurzVokalMode = true;
    desk.retype.command(1608);
    QCOMPARE(wanted.size(), 1);
}

void RetypeModeTest::notInAGame()
{
    Desk desk;
    desk.fillList();
    desk.layTiles();
    desk.modes.GameActive = true;
    for (const int id : {1600, 1601, 1607, 1608})
        desk.retype.command(id);
    QVERIFY(!desk.modes.RetypeActive && !desk.modes.RetypeChosenWords);
    QCOMPARE(desk.menusBuilt, 0);
}

void RetypeModeTest::limits_data()
{
    QTest::addColumn<int>("count");
    QTest::addColumn<QString>("notice");
    QTest::newRow("none") << 0 << u"Es gibt keine Wörter zum Abschreiben"_s;
    QTest::newRow("1023") << 1023 << QString();
    QTest::newRow("1024") << 1024 << u"Es können max. 1024 Wörter benutzt werden"_s;
}

void RetypeModeTest::limits()
{
    QFETCH(int, count);
    QFETCH(QString, notice);
    Desk desk;
    QStringList words;
    for (int word = 0; word < count; ++word)
        words << u"wort%1"_s.arg(word);
    desk.lists.LexiconList.addAll(words);
    desk.lists.CorrectWordList.addAll(words);
    desk.dictionary.toggle();
    if (!notice.isEmpty())
        desk.test.boxes.willBeRead();
    desk.retype.mnuStartRetypeFromList();
    QVERIFY(!desk.dictionary.isOpen());
    QCOMPARE(desk.modes.RetypeActive, notice.isEmpty());
    QCOMPARE(desk.controls.Scroller->ListCount(), notice.isEmpty() ? count : 0);
    if (!notice.isEmpty())
        QCOMPARE(desk.test.boxes.asked.first().text, notice);
    QVERIFY(desk.test.ok());
}

void RetypeModeTest::oddStripsAreCopied_data()
{
    QTest::addColumn<QString>("separator");
    QTest::addColumn<int>("interval");
    QTest::addColumn<int>("length");
    QTest::newRow("500 letters") << QString(36, u' ') << 125 << 500;
    QTest::newRow("10,000 blanks") << QString(10000, u' ') << 125 << 5;
    QTest::newRow("interval 0") << QString(36, u' ') << 0 << 5;
}

void RetypeModeTest::oddStripsAreCopied()
{
    QFETCH(QString, separator);
    QFETCH(int, interval);
    QFETCH(int, length);
    Desk desk;
    desk.controls.Scroller->setSeperator(separator);
    desk.controls.Scroller->setScrollInterval(interval);
    for (const QChar letter : {u'a', u'b'}) {
        desk.lists.LexiconList.add(QString(length, letter));
        desk.lists.CorrectWordList.add(QString(length, letter));
    }
    desk.left();
    for (int tick = 0; tick < 200; ++tick)
        desk.controls.Scroller->tick();
    QVERIFY(!desk.controls.Scroller->grab().isNull());
    desk.test.boxes.willBeRead();
    desk.copyAll();
    QVERIFY(!desk.modes.RetypeActive);
    QVERIFY(desk.test.ok());
}

WORTEL_TEST(RetypeModeTest)
#include "tst_retype_mode.moc"
