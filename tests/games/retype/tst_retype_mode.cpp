// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "games/retype/retype_desk.h"
#include "support/columns.h"
#include "support/registry.h"
#include "widgets/click_label.h"
#include "widgets/gradient.h"

#include <QLineEdit>
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
            QVERIFY(c.Label4->isVisible() && c.GameProgress->isVisible());
            QVERIFY(QGuiApplication::overrideCursor() != nullptr);
            QCOMPARE(firstOther({c.Check2, c.Command2, c.Command5, c.Dropper1, c.Check3, c.Option1[1]},
                                isDisabled),
                     QString());
        });
        desk.left();
        QCOMPARE(looked, 1);
        QVERIFY(desk.controls.Command2->isEnabled() && desk.controls.Command5->isEnabled());
    }

    void runsFromTheWordList()
    {
        Desk desk;
        desk.form.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&desk.form));
        desk.fillList();
        desk.left();
        QVERIFY(desk.modes.RetypeActive && desk.modes.RetypeUserWords);
        QCOMPARE(desk.menusBuilt, 1);
        QCOMPARE(desk.shown(), (QStringList{u"Haus"_s, u"laufen"_s, u"Maus"_s}));
        QCOMPARE(desk.caption(), u"3 Wörter zum Abschreiben"_s);
        QCOMPARE(desk.controls.GameProgress->maximum(), 3);

        const MainControls &c = desk.controls;
        QVERIFY(c.Scroller->isVisible() && c.Scroller->isEnabled() && c.Scroller->isTimerOn());
        QVERIFY(c.Dropper1->isEnabled() && c.Dropper1->isVisible() && c.Dropper1->isActiveControl());
        QCOMPARE(c.Check4->toolTip(), u"Abschreiben abbrechen"_s);
        QVERIFY(c.Check4->isEnabled() && c.Check4->isVisible());
        QCOMPARE(firstOther({c.Text1, c.Command6, c.Check1, c.Check2, c.Label3, c.Label6, c.Label4,
                             c.CorrectWordList},
                            isHidden),
                 QString());
        QCOMPARE(firstOther({c.Check3, c.Option2[0], c.Option2[1], c.Option2[2], c.ChkVokal[0], c.ChkVokal[1],
                             c.Check1, c.Check2, c.Label3, c.Label6, c.Command3, c.Command4, c.Text1,
                             c.Option1[0]},
                            isDisabled),
                 QString());

        desk.type(u"Laus"_s);
        QCOMPARE(desk.shown().size(), 3);
        desk.type(u"laufen"_s);
        QCOMPARE(desk.reports.titles, (QStringList{u"Wort nicht gefunden"_s, u"Richtig !"_s}));
        QCOMPARE(desk.shown(), (QStringList{u"Haus"_s, u"Maus"_s}));
        QCOMPARE(desk.caption(), u"2 Wörter übrig zum Abschreiben"_s);
        QVERIFY2(c.Scroller->isTimerOn() && c.Scroller->isEnabled(), "the words that are left run on");
        QCOMPARE(c.Dropper1->Caption(), QString());
        QVERIFY(desk.test.ok());
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
        desk.test.options.setBox(Setting::CaseCheck, 0);
        desk.lists.CorrectWordList.addAll(words);
        desk.left();
        for (const QString &word : typed)
            desk.type(word);
        QTEST(desk.shown(), "left");
    }

    void aChildCopiesAllWords()
    {
        Desk desk;
        desk.form.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&desk.form));
        connect(desk.controls.Dropper1, &Dropper::EnterPress, &desk.check, &WordCheck::Dropper1_EnterPress);
        desk.fillList();
        desk.test.boxes.willBeRead();
        QTest::mouseClick(desk.controls.Check4, Qt::LeftButton);
        // The wrong word is selected whole, so that the next key replaces it.
        for (const QString &word : {u"Hause"_s, u"Haus"_s, u"Maus"_s, u"laufen"_s}) {
            QVERIFY(desk.modes.RetypeActive);
            QTest::keyClicks(QApplication::focusWidget(), word);
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
        }
        QCOMPARE(desk.reports.titles.size(), 4);
        QVERIFY(!desk.modes.RetypeActive);
        QVERIFY(desk.test.ok());
    }

    void praises_data()
    {
        columns<QString, QString, QString, QString>("mode", "copied", "style", "caption");
        const QString words = u"0 Wörter übrig zum Abschreiben"_s;
        QTest::newRow("words") << u"USERWORDS"_s << u"alle Wörter"_s << u"SMILEY"_s << words;
        QTest::newRow("nonsense") << u"PSEUDOWORDSFROMSCREEN"_s << u"alle Wörter"_s << u"SMILEY"_s << words;
        QTest::newRow("short") << u"KURZVOKAL"_s << u"alle Wortele mit kurzem Vokal"_s << QString()
                               << u"0 Wortele mit kurzem Vokal"_s;
        QTest::newRow("long") << u"LANGVOKAL"_s << u"alle Wortele mit langem Vokal"_s << QString()
                              << u"0 Wortele mit langem Vokal"_s;
    }
    void praises()
    {
        QFETCH(QString, mode);
        QFETCH(QString, copied);
        Desk desk;
        if (mode == u"USERWORDS"_s)
            desk.fillList();
        else if (mode == u"PSEUDOWORDSFROMSCREEN"_s)
            desk.layTiles();
        else
            desk.fillVowels();
        desk.controls.ChkVokal[0]->setChecked(mode == u"KURZVOKAL"_s);
        desk.controls.ChkVokal[1]->setChecked(mode == u"LANGVOKAL"_s);
        mode == u"PSEUDOWORDSFROMSCREEN"_s ? desk.nonsense() : desk.left();
        QVERIFY(desk.modes.RetypeActive);
        desk.test.boxes.willBeRead();
        desk.test.boxes.whileOpen = [&](const Question &) {
            QTEST(desk.caption(), "caption");
            QVERIFY(desk.controls.Scroller->isHidden());
        };
        desk.copyAll();
        QVERIFY(!desk.modes.RetypeActive);
        QCOMPARE(desk.test.boxes.asked.size(), 1);
        QCOMPARE(desk.test.boxes.asked.first().text,
                 u"Prima !\nDu hast jetzt "_s + copied + u" richtig abgeschrieben !"_s);
        QTEST(desk.test.boxes.asked.first().style, "style");
        QCOMPARE(desk.test.boxes.asked.first().title, u"Abschreiben: Fertig"_s);
        QCOMPARE(desk.test.sound.resources, QList<int>{103});
        QVERIFY(!desk.controls.ChkVokal[0]->isChecked() && !desk.controls.ChkVokal[1]->isChecked());
        QVERIFY(desk.lists.PseudoWordList.isEmpty());
        QVERIFY(desk.test.ok());
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
        desk.test.options.setBox(Setting::ShowCorrectListAfterReType, option);
        desk.left();
        desk.test.boxes.willBeRead(answer);
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
        QCOMPARE(desk.retype.KeptWords(), option == 1 ? QStringList{u"Maus"_s} : QStringList{});
    }

    void vowelModes()
    {
        Desk desk;
        desk.fillVowels();
        desk.tiles.CanvasDrawWortel(10, 50, u"Bild"_s, colours::wortelBack, colours::wortelText);
        desk.tiles.CanvasDrawWortel(90, 50, u"hand"_s, colours::wortelBack, colours::wortelText);
        desk.controls.OptType[0]->setText(u"2"_s);
        desk.controls.ChkVokal[0]->setChecked(true);
        desk.right();
        QVERIFY2(!desk.modes.RetypeActive, "the right button knows no vowels");
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

    void wordsFromTheBoard()
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

    void nonsenseIsRed()
    {
        Desk desk;
        desk.layTiles();
        desk.lists.CorrectWordList.add(u"Haus"_s);
        desk.nonsense();
        QVERIFY(desk.modes.RetypePseudoWords && !desk.modes.RetypeChosenWords);
        QCOMPARE(desk.shown(), desk.lists.PseudoWordList.rows());
        QCOMPARE(desk.caption(), u"2 Unsinnswörter zum Abschreiben"_s);
        QCOMPARE(desk.controls.Scroller->ForeColor(), QColor(Qt::red));
        desk.type(desk.shown().first());
        QCOMPARE(desk.caption(), u"1 Wörter übrig zum Abschreiben"_s);
        desk.left();
        QCOMPARE(desk.controls.Scroller->ForeColor(), QColor(Qt::black));
        QCOMPARE(desk.lists.CorrectWordList.rows(), QStringList{u"Haus"_s});
    }

    void boardsWithoutWordsAreRefused()
    {
        Desk desk;
        desk.test.boxes.willBeRead();
        desk.right();
        QCOMPARE(desk.test.boxes.asked.last().text, u"Es sind keine Wortele auf dem Bildschirm"_s);
        desk.layTiles();
        desk.lists.CurrentWortelFile = u"text\\ig oder lich.txt"_s;
        desk.test.boxes.willBeRead();
        desk.nonsense();
        QCOMPARE(desk.test.boxes.asked.last().text, u"Zu dieser Wortel-Liste gibt es keine Unsinnswörter"_s);
        QVERIFY(!desk.modes.RetypeActive && !desk.modes.RetypePseudoWords);
    }

    void menuEntriesStartAndStop()
    {
        Desk desk;
        desk.layTiles();
        for (const int id : {1600, 1601, 1607}) {
            if (desk.lists.CorrectWordList.isEmpty())
                desk.fillList();
            desk.retype.command(id);
            QVERIFY(desk.modes.RetypeActive);
            desk.retype.command(id);
            QVERIFY(!desk.modes.RetypeActive);
        }
    }

    void menuEntryForTheChooser()
    {
        Desk desk;
        QSignalSpy wanted(&desk.retype, &RetypeMode::chooserWanted);
        desk.dictionary.toggle();
        desk.modes.RetypeRandomWords = true;
        desk.retype.command(1608);
        QCOMPARE(wanted.size(), 1);
        QCOMPARE(wanted.at(0),
                 (QVariantList{u"Abschreiben: Alle Wörter"_s, u"Abschreiben: Ausgewählte Wörter"_s}));
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

    void restsInAGameAndUnderAReport_data()
    {
        QTest::addColumn<bool>("game");
        QTest::newRow("game") << true;
        QTest::newRow("report") << false;
    }
    void restsInAGameAndUnderAReport()
    {
        QFETCH(bool, game);
        Desk desk;
        desk.fillList();
        desk.layTiles();
        (game ? desk.modes.GameActive : desk.modes.CheckButtonsAct) = game;
        for (const int id : {1600, 1601, 1607})
            desk.retype.command(id);
        QVERIFY(!desk.modes.RetypeActive);
        QCOMPARE(desk.menusBuilt, 0);
    }

    void limits_data()
    {
        columns<int, QString>("count", "notice");
        QTest::newRow("none") << 0 << u"Es gibt keine Wörter zum Abschreiben"_s;
        QTest::newRow("1023") << 1023 << QString();
        QTest::newRow("1024") << 1024 << u"Es können max. 1024 Wörter benutzt werden"_s;
    }
    void limits()
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

    void oddStripsAreCopied_data()
    {
        columns<QString, int, int>("separator", "interval", "length");
        QTest::newRow("500 letters") << QString(36, u' ') << 125 << 500;
        QTest::newRow("10,000 blanks") << QString(10000, u' ') << 125 << 5;
        QTest::newRow("interval 0") << QString(36, u' ') << 0 << 5;
    }
    void oddStripsAreCopied()
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
};

WORTEL_TEST(RetypeModeTest)
#include "tst_retype_mode.moc"
