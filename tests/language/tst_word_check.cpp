// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "language/word_window.h"
#include "support/test_board.h"
#include "support/test_class.h"
#include "widgets/accessible_tools.h"
#include "widgets/control_sheet.h"

#include <QLabel>

/// The check of the entered word in all its branches.
class WordCheckTest : public QObject
{
    Q_OBJECT

private slots:
    void rightWord()
    {
        WordWindow w;
        w.t.options.setBox(Setting::CaseCheck, 0);
        w.enter(u" haus "_s);
        QCOMPARE(w.reports,
                 QStringList(u"Richtig !|Das gesuchte Wort|\"Haus\"|ist richtig.|1 bold smiley"_s));
        QCOMPARE(w.t.sound.resources, QList<int>{101});
        QCOMPARE(w.lists.CorrectWordList.rows(), QStringList(u"haus"_s)); // the learner's spelling
        QCOMPARE(w.entry(), QString());
        w.enter(u"HAUS"_s);
        QCOMPARE(w.reports.size(), 2);
        QCOMPARE(w.lists.CorrectWordList.count(), 1);
        QVERIFY(w.lists.GameCollectedList.isEmpty());
    }

    void wrongWord_data()
    {
        columns<QString, int, int, QString>("typed", "caseRule", "trims", "asked");
        QTest::newRow("not in the dictionary") << u"Hauß"_s << 0 << 1 << u"Hauß"_s;
        QTest::newRow("wrong case") << u"haus"_s << 1 << 1 << u"haus"_s;
        QTest::newRow("blanks kept") << u"Haus "_s << 1 << 0 << u"Haus "_s;
        QTest::newRow("third state") << u"Haus"_s << 2 << 1 << u"Haus"_s;
    }
    void wrongWord()
    {
        QFETCH(QString, typed);
        QFETCH(int, caseRule);
        QFETCH(int, trims);
        QFETCH(QString, asked);
        WordWindow w;
        w.t.options.setBox(Setting::CaseCheck, caseRule);
        w.t.options.setBox(Setting::TrimEnteredWords, trims);
        w.t.store.SaveSetting(u"Settings"_s, u"VerifyWinTime"_s, u"2.9"_s);
        w.enter(typed);
        QCOMPARE(w.reports, QStringList(u"Wort nicht gefunden|Das gesuchte Wort|\""_s + asked +
                                        u"\"|steht nicht im Wörterbuch.|2"_s));
        QCOMPARE(w.t.sound.resources, QList<int>{102});
        QCOMPARE(w.entry(), asked);
        QVERIFY(w.entrySelected());
        QVERIFY(w.lists.CorrectWordList.isEmpty());
    }

    /// A word that is wrong only in its capitals: the letters that stand out in the report's second line,
    /// which begins with a quotation mark.
    void marksCapitals_data()
    {
        columns<QString, int, QList<int>>("typed", "caseRule", "marked");
        QTest::newRow("right") << u"Haus"_s << 0 << QList<int>{};
        QTest::newRow("small") << u"haus"_s << 0 << QList{1};
        QTest::newRow("upside down") << u"hAUS"_s << 0 << QList{1};
        QTest::newRow("a capital too much") << u"Laufen"_s << 0 << QList{1};
        QTest::newRow("umlaut") << u"lÄUFEr"_s << 0 << QList{1};
        QTest::newRow("refused for it") << u"haus"_s << 1 << QList{1};
        QTest::newRow("another word") << u"hauß"_s << 0 << QList<int>{};
    }
    void marksCapitals()
    {
        QFETCH(QString, typed);
        QFETCH(int, caseRule);
        WordWindow w;
        w.t.options.setBox(Setting::CaseCheck, caseRule);
        w.enter(typed);
        QTEST(w.form.findChild<WordLine *>()->marked(), "marked");
    }

    void nothingEntered()
    {
        for (const Qt::MouseButton button : {Qt::LeftButton, Qt::RightButton}) {
            WordWindow w;
            w.t.boxes.willBeRead();
            w.tool(w.c.Command2, button);
            QCOMPARE(w.t.boxes.asked.first().title, u"Wortel-Meister: Wortkontrolle"_s);
            QCOMPARE(w.t.boxes.asked.first().text, u"Gib bitte ein Wort ein"_s);
            QCOMPARE(w.t.boxes.asked.first().style, u"WRITE"_s);
            QVERIFY(!w.r.dictionary.isOpen());
        }
    }

    void aGameCountsEachWordOnce()
    {
        WordWindow w;
        w.t.options.setBox(Setting::CaseCheck, 0);
        w.play.startGame(PlayState::Phase::Playing, Vowels::None);
        QSignalSpy collected(&w.r.check, &WordCheck::gameWordCollected);
        for (const QString &word : {u"Haus"_s, u"haus"_s, u"laufen"_s})
            w.enter(word);
        QCOMPARE(w.reports.size(), 3);
        QCOMPARE(w.lists.GameCollectedList.rows(), QStringList({u"Haus"_s, u"laufen"_s}));
        QCOMPARE(spokenCount(*w.c.Label1), u"Gesammelte Wörter: 2"_s);
        QCOMPARE(collected.size(), 2);
    }

    void nonsenseWords_data()
    {
        columns<QString, QString, int>("word", "report", "left");
        QTest::newRow("right")
            << u"behausung"_s
            << u"Richtig !|Das Unsinnswort|\"behausung\"|ist richtig abgeschrieben.|1 bold "
               u"smiley"_s
            << 1;
        QTest::newRow("a real word")
            << u"Haus"_s
            << u"Wort nicht gefunden|Das Unsinnswort|\"Haus\"|steht nicht in der Wörterliste.|1"_s << 2;
    }
    void nonsenseWords()
    {
        QFETCH(QString, word);
        QFETCH(int, left);
        WordWindow w;
        for (const char *stem : {"haus", "halt"})
            w.lay(wortelKind, 10, 10, QLatin1String(stem));
        w.lay(prefixKind, 10, 50, u"be"_s);
        w.lay(suffixKind, 10, 90, u"ung"_s);
        w.t.options.setText(Setting::NumPseudoReTypeWords, u"2"_s);
        w.r.retype.StartTheRetyping(WordSource::PseudoWords);
        w.lists.PseudoWordList.clear();
        w.lists.PseudoWordList.addAll({u"behausung"_s, u"behaltung"_s});
        w.play.setCheckedVowels(Vowels::Short); // nonsense wins
        w.enter(word);
        QCOMPARE(w.reports.size(), 1);
        QTEST(w.reports.first(), "report");
        QCOMPARE(w.lists.PseudoWordList.count(), left);
        QCOMPARE(w.entrySelected(), left == 2);
        QVERIFY(w.lists.CorrectWordList.isEmpty());
    }

    void vowelModes_data()
    {
        columns<int, QString, bool, QList<int>, bool>("box", "word", "right", "sounds", "asksForAStem");
        QTest::newRow("short, right") << 0 << u"BALL"_s << true << QList<int>() << false;
        QTest::newRow("short, other group") << 0 << u"bahn"_s << false << QList<int>{124} << false;
        QTest::newRow("long, right") << 1 << u"bahn"_s << true << QList<int>() << false;
        QTest::newRow("long, other group") << 1 << u"ball"_s << false << QList<int>{124} << false;
        QTest::newRow("in neither") << 1 << u"Haus"_s << false << QList<int>() << true;
    }
    void vowelModes()
    {
        QFETCH(int, box);
        QFETCH(QString, word);
        QFETCH(bool, right);
        QFETCH(bool, asksForAStem);
        WordWindow w;
        w.c.ChkVokal[static_cast<std::size_t>(box)]->setChecked(true);
        if (asksForAStem)
            w.t.boxes.willBeRead();
        QSignalSpy spoken(&w.r.check, &WordCheck::vowelWordFound);
        w.enter(word);
        QVERIFY(w.reports.isEmpty());
        QCOMPARE(spoken.size(), right ? 1 : 0);
        QTEST(w.t.sound.resources, "sounds");
        QCOMPARE(w.lists.CorrectWordList.count(), right ? 1 : 0);
        QCOMPARE(w.entrySelected(), !right);
        if (asksForAStem)
            QCOMPARE(w.t.boxes.asked.first().text, u"Bitte schreibe einen Wortstamm"_s);
    }

    void vowelBoxesThinOutTheList()
    {
        WordWindow w;
        w.lists.kurzvokalList.add(u"fall"_s);
        w.lists.CorrectWordList.addAll({u"bahn"_s, u"ball"_s, u"fall"_s, u"tal"_s, u"tor"_s});
        w.c.ChkVokal[0]->setChecked(true);
        w.r.check.ChkVokal_Click();
        QVERIFY(w.play.KurzVokalMode());
        // "bahn" goes, "ball" is passed over, and of the rejected neighbours "tal", "tor" the second stays.
        QCOMPARE(w.lists.CorrectWordList.rows(), QStringList({u"ball"_s, u"fall"_s, u"tor"_s}));

        QSignalSpy off(&w.r.check, &WordCheck::vowelsSwitchedOff);
        w.r.check.clearVowelBoxes();
        QVERIFY(!w.play.KurzVokalMode());
        QVERIFY(w.lists.CorrectWordList.isEmpty());
        QCOMPARE(off.size(), 1);

        w.c.ChkVokal[1]->setChecked(true);
        w.r.check.readVowelBoxes();
        w.c.ChkVokal[0]->setChecked(true);
        w.r.check.readVowelBoxes();
        QVERIFY2(w.play.LangVokalMode(), "both leave the flags");
    }

    void clearingAndCapitals()
    {
        WordWindow w;
        w.c.Dropper1->setCaption(u"übERMUT"_s);
        w.tool(w.c.Command5, Qt::RightButton);
        QCOMPARE(w.entry(), u"Übermut"_s);
        w.tool(w.c.Command5, Qt::LeftButton);
        QCOMPARE(w.entry(), QString());
        QCOMPARE(w.t.sound.resources, QList<int>({111, 105}));
        w.t.options.setBox(Setting::SoundOnAllReTyped, 0); // the boxes of another purpose that they answer to
        w.t.options.setBox(Setting::GameSoundOnTimeOut, 0);
        w.c.Dropper1->setCaption(u"mut"_s);
        w.tool(w.c.Command5, Qt::RightButton);
        w.tool(w.c.Command5, Qt::LeftButton);
        QCOMPARE(w.t.sound.resources.size(), 2);
        w.t.boxes.willBeRead();
        w.tool(w.c.Command5, Qt::RightButton);
        QCOMPARE(w.t.boxes.asked.last().text, u"Gib bitte ein Wort ein"_s);
    }

    void enterChecksOnlyFromTheField()
    {
        WordWindow w;
        w.form.show();
        QVERIFY(QTest::qWaitForWindowActive(&w.form));
        w.t.sound.resources.clear();
        w.tool(w.c.Option1[0]); // dragging to the field leaves typing alone
        w.c.Dropper1->takeFocus();
        auto *field = w.c.Dropper1->findChild<QLineEdit *>(u"lblprefix"_s);
        QTest::keyClicks(field, u"Haus"_s);
        QCOMPARE(w.t.sound.resources, QList<int>({106, 106, 106, 106}));
        QTest::keyClick(field, Qt::Key_Return);
        QCOMPARE(w.t.sound.resources, QList<int>({106, 106, 106, 106, 101})); // Enter itself plays nothing
        w.c.Dropper1->setCaption(u"Haus"_s);
        QTest::keyClick(field, Qt::Key_Return); // the report stands: "Command5" rests
        QCOMPARE(takeReports(w).size(), 1);
        w.c.Text1->setFocus();
        emit w.c.Dropper1->EnterPress();
        QCOMPARE(takeReports(w).size(), 0);
        w.c.Dropper1->takeFocus();
        QTest::keyClick(field, Qt::Key_Return);
        QCOMPARE(takeReports(w).size(), 1);
        QVERIFY(w.c.Option1[0]->isChecked());
    }

    void aLockedFieldTakesNoTile_data()
    {
        columns<bool>("locked");
        QTest::newRow("open") << false;
        QTest::newRow("locked") << true;
    }
    void aLockedFieldTakesNoTile()
    {
        QFETCH(bool, locked);
        WordWindow w;
        w.form.show();
        w.lay(wortelKind, 100, 100, u"haus"_s);
        w.tool(w.c.Option1[0]);
        const QPoint field =
            w.c.picCanvas->mapFromGlobal(w.c.Dropper1->mapToGlobal(w.c.Dropper1->rect().center()));
        w.press({105, 105});
        if (locked)
            w.form.sheet().lay(Reason::Work, lockedField);
        w.drag(field);
        QCOMPARE(w.c.Dropper1->isHighlighted(), !locked);
        w.release(field);
        w.form.sheet().takeOff(Reason::Work);
        QCOMPARE(w.entry(), locked ? QString() : u"haus"_s);
        QCOMPARE(w.described(), QStringList(u"100,100 haus"_s));
        QCOMPARE(w.trouble(), QString());
    }

private:
    static constexpr SheetRow lockedField[] = {
        {[](const MainControls &c) -> QWidget * { return c.Dropper1; }, SheetRow::Disabled}};
};

WORTEL_TEST(WordCheckTest)
#include "tst_word_check.moc"
