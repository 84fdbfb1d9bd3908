// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "games/retype/retype_desk.h"
#include "support/columns.h"
#include "support/registry.h"
#include "widgets/gradient.h"

#include <QSignalSpy>
#include <QtTest>

namespace {

/// The first of `controls` that does not stand as asked, or nothing.
QString firstOther(const QList<QWidget *> &controls, bool (*isRight)(const QWidget &))
{
    for (const QWidget *control : controls) {
        if (!isRight(*control))
            return control->objectName();
    }
    return {};
}

bool isHidden(const QWidget &control) { return control.isHidden(); }
bool isDisabled(const QWidget &control) { return !control.isEnabled(); }

/// True if the picture of the widget holds a point of that colour.
bool shows(QWidget *widget, QRgb colour)
{
    const QImage picture = widget->grab().toImage().convertToFormat(QImage::Format_RGB32);
    for (int y = 0; y < picture.height(); ++y)
        for (int x = 0; x < picture.width(); ++x)
            if (picture.pixel(x, y) == colour)
                return true;
    return false;
}

} // namespace

/// What happens in the mode "Abschreiben" from its start to the praise.
class RetypeModeTest : public QObject
{
    Q_OBJECT

private slots:
    void preparesWithTheToolsAtRest()
    {
        Desk desk;
        desk.fillList();
        int looked = 0;
        desk.atYield(2, [&] {
            ++looked;
            const MainControls &c = desk.controls;
            QCOMPARE(desk.caption(), u"2 Wörter vorbereitet"_s);
            QVERIFY(c.Label4->isVisible() && c.GameProgress->isVisible() && c.Check4->isEnabled());
            QVERIFY(QGuiApplication::overrideCursor() != nullptr);
            QCOMPARE(firstOther({c.Check2, c.Command2, c.Command3, c.Command4, c.Command5, c.Dropper1,
                                 c.Check3, c.Option1[1]},
                                isDisabled),
                     QString());
        });
        desk.left();
        QCOMPARE(looked, 1);
        QVERIFY(desk.controls.Command2->isEnabled() && desk.controls.Command5->isEnabled());
    }

    void theBoardIsSwitchedToTyping()
    {
        Desk desk;
        QVERIFY(QTest::qWaitForWindowActive(&desk.form));
        const MainControls &c = desk.controls;
        desk.fillList();
        desk.lay(wortelKind, 300, 100, u"halt"_s);
        desk.tool(c.Option1[0]);
        desk.left();
        QCOMPARE(c.GameProgress->maximum(), 3);
        QVERIFY(c.Scroller->isVisible() && c.Scroller->isEnabled() && c.Scroller->isTimerOn());
        QVERIFY(c.Dropper1->isEnabled() && c.Dropper1->isVisible() && c.Dropper1->isActiveControl());
        QCOMPARE(c.Check4->toolTip(), u"Abschreiben abbrechen"_s);
        QVERIFY(c.Check4->isEnabled() && c.Check4->isVisible());
        QCOMPARE(firstOther({c.Text1, c.Command6, c.Check1, c.Check2, c.Label3, c.Label6, c.Label4,
                             c.CorrectWordList},
                            isHidden),
                 QString());
        desk.press({305, 105}); // no tile is dragged to the field
        QVERIFY(c.Option1[1]->isChecked() && desk.r.pointer.isHolding() && !desk.r.pointer.isDragging());
        desk.release({305, 105});

        desk.type(u"Laus"_s);
        QCOMPARE(desk.shown().size(), 3);
        desk.type(u"laufen"_s);
        QCOMPARE(desk.reports, (QStringList{u"Wort nicht gefunden"_s, u"Richtig !"_s}));
        QVERIFY2(c.Scroller->isTimerOn() && c.Scroller->isEnabled(), "the words that are left run on");
        QCOMPARE(c.Dropper1->Caption(), QString());
        // All of this rests to the end, also after a report has gone.
        QCOMPARE(firstOther({c.Check3, c.Option2[0], c.Option2[1], c.Option2[2], c.ChkVokal[0], c.ChkVokal[1],
                             c.Command3, c.Command4, c.Option1[0]},
                            isDisabled),
                 QString());
        QVERIFY(desk.t.ok());
    }

    void sources_data()
    {
        // strip: nothing: what the generator made; left: when the first word was copied
        columns<QString, QStringList, QString, QString, bool>("way", "strip", "caption", "left", "red");
        QTest::newRow("word list") << u"words"_s << QStringList{u"Haus"_s, u"laufen"_s, u"Maus"_s}
                                   << u"3 Wörter zum Abschreiben"_s << u"2 Wörter übrig zum Abschreiben"_s
                                   << false;
        QTest::newRow("board") << u"board"_s << QStringList{u"belaufen"_s, u"verlaufen"_s}
                               << u"2 Wörter zum Abschreiben"_s << u"1 Wörter übrig zum Abschreiben"_s
                               << false;
        QTest::newRow("nonsense") << u"nonsense"_s << QStringList() << u"2 Unsinnswörter zum Abschreiben"_s
                                  << u"1 Wörter übrig zum Abschreiben"_s << true;
        QTest::newRow("short") << u"short"_s << QStringList{u"bild"_s, u"hand"_s}
                               << u"Noch 4 Wortele mit kurzem Vokal"_s << u"3 Wortele mit kurzem Vokal"_s
                               << false;
        QTest::newRow("long") << u"long"_s << QStringList{u"bad"_s, u"tag"_s}
                              << u"Noch 4 Wortele mit langem Vokal"_s << u"3 Wortele mit langem Vokal"_s
                              << false;
    }
    void sources()
    {
        QFETCH(QString, way);
        QFETCH(QStringList, strip);
        QFETCH(bool, red);
        Desk desk;
        desk.start(way);
        QCOMPARE(desk.shown(), strip.isEmpty() ? desk.lists.PseudoWordList.rows() : strip);
        QTEST(desk.caption(), "caption");
        const auto redLetters = [&] {
            desk.controls.Dropper1->setCaption(u"M"_s);
            while (desk.controls.Scroller->Offset() < 50)
                desk.controls.Scroller->tick();
            return shows(desk.controls.Scroller, 0xFFFF0000) && shows(desk.controls.Dropper1, 0xFFFF0000);
        };
        QCOMPARE(redLetters(), red);
        desk.type(desk.shown().first());
        QTEST(desk.caption(), "left");
        desk.left();
        for (PressButton *box : desk.controls.ChkVokal)
            box->setChecked(false);
        desk.start(u"words"_s);
        QVERIFY(desk.play.RetypeUserWords() && !redLetters());
    }

    void copiedWordsLeave_data()
    {
        columns<QStringList, QStringList, QStringList>("words", "typed", "left");
        QTest::newRow("case ignored")
            << QStringList{u"haus"_s, u"laufen"_s} << QStringList{u"HAUS"_s} << QStringList{u"laufen"_s};
        // The row that moves up into the gap is passed over.
        QTest::newRow("equal neighbours") << QStringList{u"Haus"_s, u"Haus"_s, u"Haus"_s, u"Maus"_s}
                                          << QStringList{u"Haus"_s} << QStringList{u"Haus"_s, u"Maus"_s};
        QTest::newRow("and the second time") << QStringList{u"Haus"_s, u"Haus"_s, u"Haus"_s, u"Maus"_s}
                                             << QStringList{u"Haus"_s, u"Haus"_s} << QStringList{u"Maus"_s};
    }
    void copiedWordsLeave()
    {
        QFETCH(QStringList, words);
        QFETCH(QStringList, typed);
        Desk desk;
        desk.t.options.setBox(Setting::CaseCheck, 0);
        desk.lists.CorrectWordList.addAll(words);
        desk.left();
        for (const QString &word : typed)
            desk.type(word);
        QTEST(desk.shown(), "left");
    }

    void praises_data()
    {
        columns<QString, QString, QString, QString>("mode", "copied", "style", "caption");
        const QString words = u"0 Wörter übrig zum Abschreiben"_s;
        QTest::newRow("words") << u"words"_s << u"alle Wörter"_s << u"SMILEY"_s << words;
        QTest::newRow("nonsense") << u"nonsense"_s << u"alle Wörter"_s << u"SMILEY"_s << words;
        QTest::newRow("short") << u"short"_s << u"alle Wortele mit kurzem Vokal"_s << QString()
                               << u"0 Wortele mit kurzem Vokal"_s;
        QTest::newRow("long") << u"long"_s << u"alle Wortele mit langem Vokal"_s << QString()
                              << u"0 Wortele mit langem Vokal"_s;
    }
    void praises()
    {
        QFETCH(QString, mode);
        QFETCH(QString, copied);
        Desk desk;
        desk.start(mode);
        QVERIFY(desk.play.RetypeActive());
        desk.t.boxes.willBeRead();
        desk.t.boxes.whileOpen = [&](const Question &) {
            QTEST(desk.caption(), "caption");
            QVERIFY(desk.controls.Scroller->isHidden());
        };
        desk.t.options.setBox(Setting::UseSounds, 0);
        desk.t.sound.resources.clear();
        desk.copyAll();
        QVERIFY(!desk.play.RetypeActive());
        QCOMPARE(desk.t.boxes.asked.size(), 1);
        QCOMPARE(desk.lastBox(), u"Prima !\nDu hast jetzt "_s + copied + u" richtig abgeschrieben !"_s);
        QTEST(desk.t.boxes.asked.first().style, "style");
        QCOMPARE(desk.t.boxes.asked.first().title, u"Abschreiben: Fertig"_s);
        QCOMPARE(desk.t.sound.resources, QList<int>{103});
        QVERIFY(!desk.controls.ChkVokal[0]->isChecked() && !desk.controls.ChkVokal[1]->isChecked());
        QVERIFY(desk.lists.PseudoWordList.isEmpty());
        QVERIFY(desk.t.ok());
    }

    void keepsTheWords_data()
    {
        columns<int, int>("option", "answer");
        QTest::newRow("shown") << 1 << 0;
        QTest::newRow("shown after Esc, too") << 1 << 1;
        QTest::newRow("not asked for") << 0 << 0;
    }
    void keepsTheWords()
    {
        QFETCH(int, option);
        QFETCH(int, answer);
        Desk desk;
        desk.fillList();
        desk.t.options.setBox(Setting::ShowCorrectListAfterReType, option);
        desk.left();
        desk.t.boxes.willBeRead(answer);
        desk.copyAll();
        QCOMPARE(desk.lists.CorrectWordList.rows(),
                 option == 1 ? (QStringList{u"Haus"_s, u"laufen"_s, u"Maus"_s}) : QStringList{});
        QCOMPARE(desk.controls.CorrectWordList->isVisible(), option == 1);
        if (option == 1)
            QCOMPARE(desk.controls.CorrectWordList->geometry().bottom() + 1, desk.controls.Picture1->y());
        // A new start keeps its own words.
        desk.lists.CorrectWordList.clear();
        desk.lists.CorrectWordList.add(u"maus"_s);
        desk.left();
        QCOMPARE(desk.r.retype.KeptWords(), option == 1 ? QStringList{u"Maus"_s} : QStringList{});
    }

    void aCopiedStemLeavesTheBoard()
    {
        Desk desk;
        desk.lay(wortelKind, 10, 50, u"Bild"_s);
        desk.lay(wortelKind, 90, 50, u"hand"_s);
        desk.tool(desk.controls.ChkVokal[0]);
        desk.right();
        QVERIFY2(!desk.play.RetypeActive(), "the right button knows no vowels");
        desk.fillVowels();
        desk.left();
        QVERIFY(desk.controls.Text1->isVisible() && desk.controls.Command6->isVisible());
        desk.type(u"tag"_s);
        QCOMPARE(desk.shown().size(), 2);
        desk.type(u"bild"_s);
        QCOMPARE(desk.described(), QStringList{u"90,50 hand"_s});
        QCOMPARE(desk.counters(), (QStringList{u"1"_s, u"0"_s, u"0"_s, u"1"_s}));
        desk.left();
        QVERIFY2(desk.controls.ChkVokal[0]->isChecked(), "the vowel board stays when the mode is stopped");
    }

    void menuEntryForTheChooser()
    {
        Desk desk;
        QSignalSpy wanted(&desk.r.retype, &RetypeMode::chooserWanted);
        desk.tool(desk.controls.Command3);
        desk.t.boxes.willBeRead();
        desk.run(command::From::MainMenu, 1608);
        QCOMPARE(wanted.value(0),
                 (QVariantList{u"Abschreiben: Alle Wörter"_s, u"Abschreiben: Ausgewählte Wörter"_s}));
        QVERIFY(!desk.r.dictionary.isOpen() && !desk.play.RetypeActive());

        desk.fillList();
        desk.r.retype.RetypeWithChoosenWortel();
        QVERIFY(desk.play.RetypeActive() && desk.play.RetypeChosenWords() && !desk.play.RetypeUserWords());
        desk.run(command::From::MainMenu, 1608);
        QVERIFY(!desk.play.RetypeActive() && !desk.play.RetypeChosenWords());

        desk.play.setCheckedVowels(Vowels::Short);
        desk.run(command::From::MainMenu, 1608);
        QCOMPARE(wanted.size(), 1);
    }

    void refusals_data()
    {
        columns<QString, int, QString>("way", "count", "notice");
        QTest::newRow("none") << u"list"_s << 0 << u"Es gibt keine Wörter zum Abschreiben"_s;
        QTest::newRow("1023") << u"list"_s << 1023 << QString();
        QTest::newRow("1024") << u"list"_s << 1024 << u"Es können max. 1024 Wörter benutzt werden"_s;
        QTest::newRow("no tiles") << u"board"_s << 0 << u"Es sind keine Wortele auf dem Bildschirm"_s;
        QTest::newRow("no nonsense") << u"nonsense"_s << 0
                                     << u"Zu dieser Wortel-Liste gibt es keine Unsinnswörter"_s;
        QTest::newRow("game") << u"game"_s << 0 << QString();
    }
    void refusals()
    {
        QFETCH(QString, way);
        QFETCH(int, count);
        QFETCH(QString, notice);
        Desk desk;
        QStringList words;
        for (int word = 0; word < count; ++word)
            words << u"wort%1"_s.arg(word);
        desk.lists.LexiconList.addAll(words);
        desk.lists.CorrectWordList.addAll(words);
        desk.tool(desk.controls.Command3);
        if (!notice.isEmpty())
            desk.t.boxes.willBeRead();
        if (way == u"list"_s) {
            desk.form.findChild<QAction *>(u"mnuStartRetypeFromList"_s)->trigger();
            QVERIFY(!desk.r.dictionary.isOpen());
        } else if (way == u"board"_s) {
            desk.right();
        } else if (way == u"game"_s) {
            desk.play.startGame(PlayState::Phase::Playing, Vowels::None);
            desk.layTiles();
            desk.fillList();
            desk.left();
            desk.right();
            desk.run(command::From::MainMenu, 1600);
        } else {
            desk.layTiles();
            desk.lists.CurrentWortelFile = u"text\\ig oder lich.txt"_s;
            desk.nonsense();
        }
        QCOMPARE(desk.play.RetypeActive(), count == 1023);
        QCOMPARE(desk.controls.Scroller->ListCount(), count == 1023 ? count : 0);
        QCOMPARE(desk.lastBox(), notice);
        QVERIFY(desk.t.ok());
    }

    void theListEditedInARun_data()
    {
        columns<bool, QString, QStringList>("nonsense", "entry",
                                            "strip"); // an empty strip: the run has ended
        const QStringList all{u"Haus"_s, u"laufen"_s, u"Maus"_s};
        const QStringList two{u"laufen"_s, u"maus"_s};
        QTest::newRow("a word more") << false << u"mnuAddWord"_s
                                     << QStringList{u"belaufen"_s, u"haus"_s, u"laufen"_s, u"maus"_s};
        QTest::newRow("a word less") << false << u"mnuDeleteWord"_s << two;
        QTest::newRow("emptied") << false << u"mnuDeleteAllWords"_s << QStringList();
        QTest::newRow("a word more, nonsense") << true << u"mnuAddWord"_s << QStringList(u"-"_s);
        QTest::newRow("emptied, nonsense") << true << u"mnuDeleteAllWords"_s << QStringList(u"-"_s);
    }
    void theListEditedInARun()
    {
        QFETCH(bool, nonsense);
        QFETCH(QString, entry);
        QFETCH(QStringList, strip);
        Desk desk;
        desk.fillList();
        if (nonsense)
            desk.layTiles();
        nonsense ? desk.nonsense() : desk.left();
        const QStringList before = desk.shown();
        desk.controls.CorrectWordList->setListIndex(0);
        if (entry == u"mnuAddWord"_s)
            desk.t.boxes.willTypeWord(u"belaufen"_s);
        if (entry == u"mnuDeleteAllWords"_s)
            desk.t.boxes.willPress(0);
        desk.form.findChild<QAction *>(entry)->trigger();
        QCOMPARE(desk.shown(), nonsense ? before : strip.isEmpty() ? before : strip);
        QCOMPARE(desk.play.RetypeActive(), !strip.isEmpty());
        QCOMPARE(desk.trouble(), QString());
        QVERIFY2(desk.t.ok(), "there is no praise");
    }

    void otherListsEndTheRun_data()
    {
        columns<QString, int>("way", "atYield");
        QTest::newRow("menu") << u"201"_s << 0;
        QTest::newRow("session") << u"session"_s << 0;
        QTest::newRow("session while words are prepared") << u"session"_s << 2;
    }
    void otherListsEndTheRun()
    {
        QFETCH(QString, way);
        QFETCH(int, atYield);
        Desk desk;
        desk.fillList();
        const QString list = desk.t.writeFile(u"text\\Wald.txt"_s, u"baum\r\n"_s);
        desk.t.writeFile(u"facit\\Wald.lex"_s, u"Baum\r\n"_s);
        const QString session = desk.t.writeFile(u"a.wlx"_s, u"[Name]\r\nLexiconInUse=Wald\r\n"_s);
        if (atYield > 0)
            desk.atYield(atYield, [&] { desk.form.HiddenText_Change(session); });
        desk.left();
        QVERIFY(desk.play.RetypeActive());
        if (way == u"201"_s) {
            desk.t.fileDialogs.willOpen({list});
            desk.run(command::From::MainMenu, 201);
        } else if (atYield == 0) {
            desk.form.HiddenText_Change(session);
        }
        TestHouse::settle();
        QVERIFY(!desk.play.RetypeActive());
        QCOMPARE(desk.lists.LexiconList.rows(), QStringList(u"Baum"_s));
        QVERIFY(desk.controls.Scroller->isHidden());
        QCOMPARE(desk.trouble(), QString());
        QVERIFY(desk.t.ok());
    }

    /// Asked while words are prepared, wherever the focus is; not when nothing is, and not by another work.
    void escapeAsks_data()
    {
        // answer: -1: not asked
        columns<QString, QString, int, bool>("way", "focus", "answer", "cancelled");
        QTest::newRow("word list") << u"words"_s << u"picCanvas"_s << 0 << true;
        QTest::newRow("board") << u"board"_s << u"lblprefix"_s << 0 << true;
        QTest::newRow("nonsense") << u"nonsense"_s << u"Text1"_s << 0 << true;
        QTest::newRow("went on") << u"words"_s << u"lblprefix"_s << 1 << false;
        QTest::newRow("by the option") << u"without"_s << u"lblprefix"_s << -1 << true;
        QTest::newRow("nothing is prepared") << u"running"_s << u"picCanvas"_s << -1 << false;
        QTest::newRow("another work") << u"work"_s << u"picCanvas"_s << -1 << true;
    }
    void escapeAsks()
    {
        QFETCH(QString, way);
        QFETCH(QString, focus);
        QFETCH(int, answer);
        QFETCH(bool, cancelled);
        Desk desk;
        desk.layTiles();
        desk.fillList();
        desk.t.options.setText(Setting::NumReTypeWords, u"1000"_s);
        desk.t.options.setText(Setting::NumPseudoReTypeWords, u"1000"_s);
        desk.t.options.setBox(Setting::ConfirmBeforeErase, way == u"without"_s ? 0 : 1);
        if (answer >= 0)
            desk.t.boxes.willPress(answer);
        desk.form.findChild<QWidget *>(focus)->setFocus();
        const auto escape = [&] {
            QWidget *to = desk.form.focusWidget();
            QTest::keyClick(to != nullptr ? to : &desk.form, Qt::Key_Escape);
        };
        if (way == u"work"_s) {
            const Work work(desk.t.ground);
            escape();
            QCOMPARE(work.isCancelled(), cancelled);
            return;
        }
        if (way != u"running"_s)
            desk.atYield(3, escape);
        way == u"board"_s ? desk.right() : way == u"nonsense"_s ? desk.nonsense() : desk.left();
        if (way == u"running"_s)
            escape();
        // The nonsense words that were made so far are used.
        QCOMPARE(desk.play.RetypeActive(), !cancelled || way == u"nonsense"_s);
        if (answer >= 0) {
            QCOMPARE(desk.lastBox(), u"Es werden gerade noch einige Wörter vorbereitet...\n\n"
                                     u"Willst du wirklich aufhören?"_s);
            QCOMPARE(desk.t.boxes.asked.last().title + desk.t.boxes.asked.last().style,
                     u"BestätigenCONFIRM"_s);
        }
        QVERIFY(desk.t.ok());
    }

    void theStripStandsWhereTheListWill()
    {
        Desk desk;
        desk.t.options.setOption(Setting::ScrollerLeftDownPos);
        desk.fillList();
        desk.left();
        const QPoint foot = desk.controls.Scroller->geometry().bottomLeft();
        desk.left();
        desk.tool(desk.controls.Command4);
        QCOMPARE(foot, QPoint(desk.controls.CorrectWordList->x(), desk.controls.Picture1->y() - 1));
        QVERIFY(foot.x() > 0);
    }
};

WORTEL_TEST(RetypeModeTest)
#include "tst_retype_mode.moc"
