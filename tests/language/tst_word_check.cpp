// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "language/word_window.h"
#include "support/columns.h"
#include "support/registry.h"

#include <QLabel>
#include <QSignalSpy>
#include <QtTest>

using namespace Qt::StringLiterals;

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
        QCOMPARE(w.popup.shown,
                 QStringList(u"Richtig !|Das gesuchte Wort \n\"Haus\"\nist richtig.|1s 101 bold smiley"_s));
        QCOMPARE(w.lists.CorrectWordList.rows(), QStringList(u"haus"_s)); // the learner's spelling
        QCOMPARE(w.entry(), QString());
        w.enter(u"HAUS"_s);
        QCOMPARE(w.popup.shown.size(), 2);
        QCOMPARE(w.lists.CorrectWordList.count(), 1);
        QVERIFY(w.lists.GameCollectedList.isEmpty());
        QVERIFY(w.t.ok());
    }

    void wrongWord_data()
    {
        columns<QString, int, int, QString>("typed", "caseRule", "trims", "asked");
        QTest::newRow("not in the dictionary") << u"Hauß"_s << 0 << 1 << u"Hauß"_s;
        QTest::newRow("wrong case") << u"haus"_s << 1 << 1 << u"haus"_s;
        QTest::newRow("blanks kept") << u"Haus "_s << 1 << 0 << u"Haus "_s;
        QTest::newRow("only the ends are trimmed") << u" Ha us "_s << 0 << 1 << u"Ha us"_s;
        QTest::newRow("third state") << u"Haus"_s << 2 << 1 << u"Haus"_s;
        QTest::newRow("markup") << u"<b>Haus</b>"_s << 0 << 1 << u"<b>Haus</b>"_s;
        QTest::newRow("500 letters") << QString(500, u'x') << 0 << 1 << QString(500, u'x');
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
        QCOMPARE(w.popup.shown, QStringList(u"Wort nicht gefunden|Das gesuchte Wort \n\""_s + asked +
                                            u"\"\n steht nicht im Wörterbuch.|2s 102"_s));
        QCOMPARE(w.entry(), asked);
        QVERIFY(w.entrySelected());
        QVERIFY(w.lists.CorrectWordList.isEmpty());
        QVERIFY(w.t.ok());
    }

    void nothingEntered()
    {
        for (const Qt::MouseButton button : {Qt::LeftButton, Qt::RightButton}) {
            WordWindow w;
            w.t.boxes.willBeRead();
            w.check.Command2_MouseDown(button);
            QCOMPARE(w.t.boxes.asked.first().title, u"Wortel-Meister: Wortkontrolle"_s);
            QCOMPARE(w.t.boxes.asked.first().text, u"Gib bitte ein Wort ein"_s);
            QCOMPARE(w.t.boxes.asked.first().style, u"WRITE"_s);
            QVERIFY(!w.dictionary.isOpen());
            QVERIFY(w.t.ok());
        }
    }

    void aGameCountsEachWordOnce()
    {
        WordWindow w;
        w.t.options.setBox(Setting::CaseCheck, 0);
        w.modes.GameActive = true;
        QSignalSpy collected(&w.check, &WordCheck::gameWordCollected);
        for (const QString &word : {u"Haus"_s, u"haus"_s, u"laufen"_s})
            w.enter(word);
        QCOMPARE(w.popup.shown.size(), 3);
        QCOMPARE(w.lists.GameCollectedList.rows(), QStringList({u"Haus"_s, u"laufen"_s}));
        QCOMPARE(w.c.Label1->text(), u"2"_s);
        QCOMPARE(collected.size(), 2);
    }

    void retypeModeTakesTheWord_data()
    {
        columns<QString, QString, QString>("word", "mode", "popup");
        QTest::newRow("dictionary")
            << u"Haus"_s << u"CORRECT_WORDS"_s
            << u"Richtig !|Das gesuchte Wort \n\"Haus\"\nist richtig.|1s 101 bold smiley"_s;
        QTest::newRow("nonsense")
            << u"behausung"_s << u"PSEUDO_WORDS"_s
            << u"Richtig !|Das Unsinnswort \n\"behausung\"ist richtig abgeschrieben.|1s 101 "
               u"bold smiley"_s;
        QTest::newRow("short") << u"ball"_s << u"KURZVOKAL"_s << QString();
        QTest::newRow("long") << u"bahn"_s << u"LANGVOKAL"_s << QString();
    }
    void retypeModeTakesTheWord()
    {
        QFETCH(QString, word);
        QFETCH(QString, mode);
        QFETCH(QString, popup);
        WordWindow w;
        w.modes.RetypeActive = true;
        w.modes.RetypePseudoWords = mode == u"PSEUDO_WORDS"_s;
        w.lists.PseudoWordList.add(u"behausung"_s);
        w.c.ChkVokal[0]->setChecked(mode == u"KURZVOKAL"_s);
        w.c.ChkVokal[1]->setChecked(mode == u"LANGVOKAL"_s);
        QSignalSpy found(&w.check, &WordCheck::retypeWordFound);
        QSignalSpy spoken(&w.check, &WordCheck::vowelWordFound);
        w.enter(word);
        QCOMPARE(found.size(), 1);
        QCOMPARE(found.first(), QVariantList({word, mode}));
        QCOMPARE(w.popup.shown.join(u"\n"_s), popup);
        QCOMPARE(spoken.size(), popup.isEmpty() ? 1 : 0);
        QVERIFY(w.lists.CorrectWordList.isEmpty());
        QCOMPARE(w.entry(), QString());
        QVERIFY(w.t.ok());
    }

    void nonsenseWinsOverTheVowels()
    {
        WordWindow w;
        w.modes.RetypePseudoWords = true;
        w.c.ChkVokal[0]->setChecked(true);
        w.enter(u"Haus"_s);
        QCOMPARE(
            w.popup.shown,
            QStringList(
                u"Wort nicht gefunden|Das Unsinnswort \n\"Haus\" steht nicht in der Wörterliste.|1s 102"_s));
        QVERIFY(w.entrySelected());
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
        QFETCH(QList<int>, sounds);
        QFETCH(bool, asksForAStem);
        WordWindow w;
        w.c.ChkVokal[static_cast<std::size_t>(box)]->setChecked(true);
        if (asksForAStem)
            w.t.boxes.willBeRead();
        w.enter(word);
        QVERIFY(w.popup.shown.isEmpty());
        QCOMPARE(w.t.sound.resources, sounds);
        QCOMPARE(w.lists.CorrectWordList.count(), right ? 1 : 0);
        QCOMPARE(w.entrySelected(), !right);
        if (asksForAStem)
            QCOMPARE(w.t.boxes.asked.first().text, u"Bitte schreibe einen Wortstamm"_s);
        QVERIFY(w.t.ok());
    }

    void vowelBoxesThinOutTheList()
    {
        WordWindow w;
        w.lists.kurzvokalList.add(u"fall"_s);
        w.lists.CorrectWordList.addAll({u"bahn"_s, u"ball"_s, u"fall"_s, u"tal"_s, u"tor"_s});
        w.c.ChkVokal[0]->setChecked(true);
        w.check.ChkVokal_Click();
        QVERIFY(w.modes.KurzVokalMode);
        // "bahn" goes, "ball" is passed over, and of the rejected neighbours "tal", "tor" the second stays.
        QCOMPARE(w.lists.CorrectWordList.rows(), QStringList({u"ball"_s, u"fall"_s, u"tor"_s}));

        QSignalSpy off(&w.check, &WordCheck::vowelsSwitchedOff);
        w.c.ChkVokal[0]->setChecked(false);
        w.check.ChkVokal_Click();
        QVERIFY(!w.modes.KurzVokalMode);
        QVERIFY(w.lists.CorrectWordList.isEmpty());
        QCOMPARE(off.size(), 1);

        w.modes.LangVokalMode = true;
        for (PressButton *both : w.c.ChkVokal)
            both->setChecked(true);
        w.check.readVowelBoxes();
        QVERIFY2(w.modes.LangVokalMode && !w.modes.KurzVokalMode, "both leave the flags");
    }

    void clearingAndCapitals()
    {
        WordWindow w;
        w.c.Dropper1->setCaption(u"übERMUT"_s);
        w.check.Command5_MouseDown(Qt::RightButton);
        QCOMPARE(w.entry(), u"Übermut"_s);
        w.check.Command5_MouseDown(Qt::LeftButton);
        QCOMPARE(w.entry(), QString());
        QCOMPARE(w.t.sound.resources, QList<int>({111, 105}));
        w.t.options.setBox(Setting::SoundOnAllReTyped, 0); // the boxes of another purpose that they answer to
        w.t.options.setBox(Setting::GameSoundOnTimeOut, 0);
        w.c.Dropper1->setCaption(u"mut"_s);
        w.check.Command5_MouseDown(Qt::RightButton);
        w.check.Command5_MouseDown(Qt::LeftButton);
        QCOMPARE(w.t.sound.resources.size(), 2);
        w.t.boxes.willBeRead();
        w.check.Command5_MouseDown(Qt::RightButton);
        QCOMPARE(w.t.boxes.asked.last().text, u"Gib bitte ein Wort ein"_s);
        QVERIFY(w.t.ok());
    }

    void enterChecksOnlyFromTheField()
    {
        WordWindow w;
        w.form.show();
        QVERIFY(QTest::qWaitForWindowActive(&w.form));
        connect(w.c.Dropper1, &Dropper::EnterPress, &w.check, &WordCheck::Dropper1_EnterPress);
        connect(w.c.Dropper1, &Dropper::keyTyped, &w.check, &WordCheck::Dropper1_KeyPress);
        w.c.Dropper1->takeFocus();
        auto *field = w.c.Dropper1->findChild<QLineEdit *>(u"lblprefix"_s);
        QTest::keyClicks(field, u"Haus"_s);
        QCOMPARE(w.t.sound.resources, QList<int>({106, 106, 106, 106}));
        w.c.Command5->setEnabled(false);
        QTest::keyClick(field, Qt::Key_Return);
        QVERIFY(w.popup.shown.isEmpty());
        w.c.Command5->setEnabled(true);
        QTest::keyClick(field, Qt::Key_Return);
        QCOMPARE(w.popup.shown.size(), 1);
        QCOMPARE(w.t.sound.resources.size(), 4); // Enter plays nothing
        w.c.Dropper1->setCaption(u"Haus"_s);
        w.c.Text1->setFocus();
        w.check.Dropper1_EnterPress();
        QCOMPARE(w.popup.shown.size(), 1);
    }
};

WORTEL_TEST(WordCheckTest)
#include "tst_word_check.moc"
