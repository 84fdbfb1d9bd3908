// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/test_class.h"
#include "support/test_house.h"
#include "widgets/gradient.h"
#include "widgets/short_note.h"

using command::From;

namespace {

using Act = void (*)(TestHouse &);

/// An empty board, an empty word list, an empty word field.
struct House : TestHouse
{
    House()
    {
        t.store.SaveSetting(u"Settings"_s, u"UseUndo"_s, u"1"_s);
        r.undo.ClearCollBuffer();
        form.show();
        settle();
        t.told.clear();
    }
};

void say(const char *name, Act act, const QString &note) { QTest::newRow(name) << act << note; }

void entry(TestHouse &house, const char *name)
{
    house.form.findChild<QAction *>(QLatin1String(name))->trigger();
}

void playGame(TestHouse &house) { house.r.game.Check3_MouseDown(Qt::LeftButton); }

void retype(TestHouse &house)
{
    house.lists.CorrectWordList.addAll({u"Haus"_s, u"laufen"_s});
    house.r.retype.Check4_MouseDown(Qt::LeftButton, {});
}

} // namespace

/// What was done, or what an action without effect was missing, is told in one line.
class NotesTest : public QObject
{
    Q_OBJECT

private slots:
    // clang-format off
    void actionsWithoutEffect_data()
    {
        columns<Act, QString>("act", "note");
        const QString noWords = u"Deine Wörterliste ist noch leer"_s;
        const QString inGame = u"Das geht erst, wenn das Spiel zu Ende ist"_s;
        const QString inRetype = u"Das geht erst, wenn das Abschreiben zu Ende ist"_s;
        const QString noTile = u"Hier liegt kein Baustein"_s;
        const QString unmarked = u"Klicke zuerst auf ein Wort in der Liste"_s;
        const QString noUndo = u"Es gibt nichts rückgängig zu machen"_s;
        say("filter of an empty kind", [](TestHouse &h) { h.tool(h.controls.OptType[1]); }, u"Auf dem Spielfeld liegen keine Präfixe"_s);
        say("the same by menu", [](TestHouse &h) { h.run(From::MainMenu, 302); }, u"Auf dem Spielfeld liegen keine Suffixe"_s);
        say("all of an empty board", [](TestHouse &h) { h.run(From::MainMenu, 1502); }, u"Das Spielfeld ist leer"_s);
        say("an empty list", [](TestHouse &h) { h.lists.SuffixList.clear(); h.tool(h.controls.OptType[2], Qt::RightButton); }, u"Die Suffix-Liste ist leer"_s);
        say("a new tile behind a filter", [](TestHouse &h) { h.r.optTypes.select(0); h.press(QPoint(300, 200), Qt::LeftButton, Qt::AltModifier); }, u"Zeige zuerst die Suffixe"_s);
        say("copy of nothing", [](TestHouse &h) { h.press(QPoint(300, 200), Qt::RightButton, Qt::ShiftModifier); }, noTile);
        say("removal of nothing", [](TestHouse &h) { h.press(QPoint(300, 200), Qt::RightButton, Qt::ControlModifier); }, noTile);
        say("no Wortel wanted", [](TestHouse &h) { h.controls.Text1->setText(u"0"_s); h.tool(h.controls.Check2); }, u"In dem Feld \"Anzahl Wortel\" steht 0"_s);
        say("undo", [](TestHouse &h) { h.run(From::MainMenu, 2801); }, noUndo);
        say("redo", [](TestHouse &h) { h.run(From::Key, 10); }, u"Es gibt nichts zu wiederholen"_s);
        say("undo is off", [](TestHouse &h) { h.t.store.SaveSetting(u"Settings"_s, u"UseUndo"_s, u"0"_s); h.run(From::MainMenu, 2802); }, u"Rückgängig ist in den Optionen ausgeschaltet"_s);
        say("word list", [](TestHouse &h) { h.tool(h.controls.Command4); }, noWords);
        say("retyping it", [](TestHouse &h) { h.tool(h.controls.Check4); }, noWords);
        say("copying broken off", [](TestHouse &h) { retype(h); h.r.retype.wordCopied(u"Haus"_s); h.t.told.clear(); QTest::keyClick(h.form.focusWidget(), Qt::Key_Escape); QCOMPARE(h.lists.CorrectWordList.count(), 2); }, u"Alle Wörter sind wieder in deiner Liste"_s);
        say("letters while words are built", [](TestHouse &h) { playGame(h); h.t.told.clear(); h.controls.picCanvas->setFocus(); QTest::keyClick(h.controls.picCanvas, 'x'); }, u"Jetzt baust du Wörter auf dem Spielfeld. Schreiben kommt danach"_s);
        say("retyping unknown words", [](TestHouse &h) { h.lists.CorrectWordList.add(u"Quark"_s); h.tool(h.controls.Check4); }, u"Kein Wort deiner Wörterliste steht im Wörterbuch"_s);
        say("removing no word", [](TestHouse &h) { h.lists.CorrectWordList.add(u"Haus"_s); entry(h, "mnuDeleteWord"); }, unmarked);
        say("keeping no word", [](TestHouse &h) { entry(h, "mnuAddToRetypeList"); }, unmarked);
        say("up from the first", [](TestHouse &h) { h.lists.CorrectWordList.add(u"Haus"_s); h.controls.CorrectWordList->setListIndex(0); entry(h, "mnuMoveUp"); }, u"Das ist schon das erste Wort"_s);
        say("an empty dictionary", [](TestHouse &h) { h.lists.LexiconList.clear(); h.run(From::MainMenu, 401); }, u"Das Wörterbuch ist leer"_s);
        say("no such word", [](TestHouse &h) { h.r.dictionary.toggle(); h.controls.Text2->setText(u"<b>x"_s); }, u"Kein Wort im Wörterbuch beginnt mit \"<b>x\""_s);
        say("an empty field", [](TestHouse &h) { h.tool(h.controls.Command5); }, u"Das Wortfeld ist schon leer"_s);
        say("the tip twice", [](TestHouse &h) { h.run(From::MainMenu, 275); h.run(From::MainMenu, 275); }, u"Der Tipp ist schon zu sehen"_s);
        say("search in the game", [](TestHouse &h) { playGame(h); h.tool(h.controls.Check3, Qt::RightButton); }, inGame);
        say("a grey tool in the game", [](TestHouse &h) { playGame(h); h.tool(h.controls.Command4); }, inGame);
        say("search while retyping", [](TestHouse &h) { retype(h); h.tool(h.controls.Command2, Qt::RightButton); }, inRetype);
        say("a vowel game while retyping", [](TestHouse &h) { retype(h); h.run(From::MainMenu, 1702); }, inRetype);
        say("word check in the dictionary", [](TestHouse &h) { h.r.dictionary.toggle(); h.tool(h.controls.Command2); }, u"Schließe zuerst das Wörterbuch"_s);
        say("random words with vowels", [](TestHouse &h) { h.controls.ChkVokal[0]->setChecked(true); h.tool(h.controls.Check4, Qt::RightButton); }, u"Das geht nicht, solange \"kurz\" oder \"lang\" an ist"_s);
        say("right press on the options", [](TestHouse &h) { h.tool(h.controls.Command6, Qt::RightButton); }, u"Diese Taste hat nur einen Linksklick"_s);
    }
    // clang-format on
    void actionsWithoutEffect()
    {
        QFETCH(Act, act);
        House house;
        act(house);
        QTEST(house.t.told.value(house.t.told.size() - 1), "note");
    }

    // clang-format off
    void whatWasDone_data()
    {
        columns<Act, QString>("act", "note");
        say("a session is saved", [](TestHouse &h) { h.t.fileDialogs.willSave(h.t.AppFolder + u"Stunde 1.wlx"_s); h.run(From::MainMenu, 1903); }, u"Gespeichert: Stunde 1"_s);
        say("with letters of other languages", [](TestHouse &h) { h.lay(wortelKind, 10, 10, u"złoty😀ł"_s); h.t.fileDialogs.willSave(h.t.AppFolder + u"Stunde 1.wlx"_s); h.run(From::MainMenu, 1903); }, u"Gespeichert: Stunde 1. Andere Programme kennen vielleicht nicht: ł 😀"_s);
        say("a session is opened", [](TestHouse &h) { h.r.sessions.SaveObjects(h.t.AppFolder + u"Stunde 1.wlx"_s); h.t.fileDialogs.willOpen({h.t.AppFolder + u"Stunde 1.wlx"_s}); h.run(From::MainMenu, 1901); }, u"Geladen: Stunde 1"_s);
        say("a list is saved", [](TestHouse &h) { h.lists.CorrectWordList.add(u"Haus"_s); h.t.fileDialogs.willSave(h.t.AppFolder + u"Meine.Liste.txt"_s); h.tool(h.controls.Command4, Qt::RightButton); }, u"Gespeichert: Meine.Liste"_s);
        say("one word is copied", [](TestHouse &h) { h.lists.CorrectWordList.add(u"Haus"_s); h.run(From::MainMenu, 502); }, u"1 Wort kopiert"_s);
        say("two words are copied", [](TestHouse &h) { h.lists.CorrectWordList.addAll({u"Haus"_s, u"laufen"_s}); h.run(From::MainMenu, 502); }, u"2 Wörter kopiert"_s);
        say("a word is kept", [](TestHouse &h) { h.controls.LexiconList->setListIndex(1); entry(h, "mnuAddToRetypeList"); }, u"In deiner Wörterliste: laufen"_s);
        say("the list is emptied", [](TestHouse &h) { h.lists.CorrectWordList.add(u"Haus"_s); entry(h, "mnuClearRetypeList"); }, u"Deine Wörterliste ist jetzt leer"_s);
        say("dictionaries are loaded", [](TestHouse &h) { h.t.fileDialogs.willOpen( {h.t.writeFile(u"a.lex"_s, u"Wald\r\n"_s), h.t.writeFile(u"b.lex"_s, u"Feld\r\n"_s)}); h.tool(h.controls.Command3, Qt::RightButton); }, u"Geladen: a, b"_s);
        say("the words are printed", [](TestHouse &h) { h.lists.CorrectWordList.add(u"Haus"_s); h.run(From::MainMenu, 504); }, u"Gedruckt: Wörterliste"_s);
        say("a board is recovered", [](TestHouse &h) { h.r.backup.SaveMyObjects(Backup::file(h.t.ground)); h.r.backup.RestoreMyObjects(Backup::file(h.t.ground)); }, u"Dein Spielfeld ist wieder da"_s);
        say("the backup has not all letters", [](TestHouse &h) { h.lay(wortelKind, 10, 10, u"ő"_s); h.r.backup.SaveMyObjects(Backup::file(h.t.ground)); }, u"Die Sicherung kennt diese Buchstaben nicht: ő"_s);
    }
    // clang-format on
    void whatWasDone() { actionsWithoutEffect(); }

    /// What could not be done is no success: a full disk, a cancelled dialog, a file that is none.
    void noFalseSuccess()
    {
        House house;
        house.t.fileDialogs.willSave({});
        house.run(From::MainMenu, 1903);
        house.t.boxes.willAnswer(Boxes::Answer::Ok);
        house.r.sessions.SaveObjects(house.t.AppFolder + u"kein Ordner\\x.wlx"_s);
        QCOMPARE(house.t.told, QStringList());
    }

    /// The window shows each note over the band, where it is in nobody's way.
    void isShown()
    {
        House house;
        const auto *note = house.form.findChild<ShortNote *>();
        house.controls.Dropper1->takeFocus();
        house.tool(house.controls.Command5);
        house.run(From::MainMenu, 2801);
        QVERIFY(note->isVisible());
        QCOMPARE(note->text(), u"Es gibt nichts rückgängig zu machen"_s);
        QVERIFY(house.controls.Dropper1->isActiveControl());
        const int toBand = house.controls.Picture1->y() - note->geometry().bottom();
        QVERIFY(toBand > 0 && toBand < 20);
        house.form.resize(853, 480);
        TestHouse::settle();
        QCOMPARE(house.controls.Picture1->y() - note->geometry().bottom(), toBand);
        house.tool(house.controls.Command4); // the list opens, and the note makes room
        QVERIFY(!note->geometry().intersects(house.controls.CorrectWordList->geometry()));
        house.r.morphemeLists.ToggleAllMorphemeLists();
        house.form.resize(640, 573);
        TestHouse::settle();
        for (const StoreList *list : {house.controls.CorrectWordList, house.controls.PrefixList})
            QCOMPARE(list->geometry().bottom() + 1, house.controls.Picture1->y());
        QTRY_VERIFY(!note->isVisible());
    }
};

WORTEL_TEST(NotesTest)
#include "tst_notes.moc"
