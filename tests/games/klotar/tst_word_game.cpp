// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "games/klotar/game_desk.h"
#include "games/klotar/game_words.h"
#include "platform/files.h"
#include "support/test_class.h"
#include "support/tool_states.h"
#include "widgets/gradient.h"

namespace {

using Desk = GameDesk;
using Way = void (*)(Desk &);

} // namespace

class WordGameTest : public QObject
{
    Q_OBJECT

private slots:
    void levels_data()
    {
        columns<int, QString, QString, int, bool>("level", "caption", "sign", "dragMode", "entersWords");
        QTest::newRow("1") << 1 << u"2 Minuten zum Wortbau"_s << u"Bauen: noch 2 Minuten"_s << 1 << false;
        QTest::newRow("2") << 2 << u"3 Minuten zum Eingeben"_s << u"Eingeben: noch 3 Minuten"_s << 0 << true;
        QTest::newRow("3") << 3 << u"3 Minuten zum Schreiben"_s << u"Schreiben: noch 3 Minuten"_s << 1
                           << true;
    }
    void levels()
    {
        QFETCH(int, level);
        QFETCH(int, dragMode);
        QFETCH(bool, entersWords);
        Desk desk;
        desk.lists.CorrectWordList.add(u"Haus"_s);
        desk.start(level);
        QCOMPARE(desk.play.GameLevel(), level);
        QTEST(desk.caption(), "caption");
        QTEST(desk.sign(), "sign");
        QVERIFY(desk.controls.Option1[static_cast<std::size_t>(dragMode)]->isChecked());
        QCOMPARE(desk.controls.Dropper1->isEnabled(), entersWords);
        QCOMPARE(desk.controls.Command2->isEnabled(), entersWords);
        QVERIFY(desk.lists.CorrectWordList.isEmpty());
        QCOMPARE(desk.t.sound.resources, QList<int>{119});
        QCOMPARE(desk.trouble(), QString());
    }

    void captions()
    {
        Desk desk;
        QStringList seen;
        desk.t.boxes.willBeRead();
        desk.t.boxes.whileOpen = [&](const Question &) { desk.minutes(1); }; // nothing ticks behind it
        desk.start(1);
        for (int minute = 1; minute <= 4; ++minute) {
            desk.minutes(1);
            seen << desk.caption() + u" / "_s + desk.sign();
        }
        QCOMPARE(seen, (QStringList{u"1 Minuten zum Wortbau / Bauen: letzte Minute"_s,
                                    u"3 Minuten zum Eingeben / Eingeben: noch 3 Minuten"_s,
                                    u"2 Minute übrig / Eingeben: noch 2 Minuten"_s,
                                    u"1 Minuten übrig / Eingeben: letzte Minute"_s}));
        QCOMPARE(desk.t.sound.resources, (QList<int>{119, 103}));
        QVERIFY(desk.controls.Option1[0]->isChecked());
        QCOMPARE(desk.trouble(), QString());
    }

    void oddTimes_data()
    {
        columns<QString, QString, bool>("minutes", "caption", "endsWithTheFirst");
        QTest::newRow("0") << u"0"_s << u"1 Minute zum Eingeben"_s << true;
        QTest::newRow("1") << u"1"_s << u"1 Minute zum Eingeben"_s << true;
        QTest::newRow("32767") << u"32767"_s << u"32767 Minuten zum Eingeben"_s << false;
        QTest::newRow("past 16 bits") << u"99999"_s << u"7 Minuten zum Eingeben"_s << false;
    }
    void oddTimes()
    {
        QFETCH(QString, minutes);
        QFETCH(bool, endsWithTheFirst);
        Desk desk;
        desk.t.options.setText(Setting::GameTimeOut, minutes);
        desk.start(2);
        QTEST(desk.caption(), "caption");
        if (endsWithTheFirst)
            desk.t.boxes.willCloseScores();
        desk.minutes(1);
        QCOMPARE(desk.play.GameActive(), !endsWithTheFirst);
    }

    /// Each way through the game leaves every control of the window as it found it.
    void everyToolComesBack_data()
    {
        columns<Way>("way");
        const auto way = [](const char *name, Way act) { QTest::newRow(name) << act; };
        way("cancelled while building", [](Desk &d) { d.start(1), d.tool(d.controls.Check3); });
        way("cancelled while playing", [](Desk &d) { d.start(3), d.tool(d.controls.Check3); });
        way("cancelled by the menu", [](Desk &d) {
            d.start(2);
            d.run(command::From::MainMenu, 701);
        });
        way("time is up", [](Desk &d) {
            d.t.boxes.willCloseScores();
            d.start(2), d.minutes(3);
        });
        way("all of level 1, with a name", [](Desk &d) {
            d.t.boxes.willBeRead();
            d.t.boxes.willEnterName(u"Ada"_s);
            d.t.boxes.willCloseScores();
            d.start(1), d.minutes(2), d.type(u"Haus"_s), d.minutes(3);
        });
        way("copying afterwards, stopped", [](Desk &d) {
            d.t.options.setBox(Setting::ReTypeAfterGame, 1);
            d.t.boxes.willEnterName(u"Ada"_s);
            d.t.boxes.willCloseScores();
            d.start(2), d.type(u"laufen"_s), d.minutes(3);
            QCOMPARE(d.controls.Scroller->List(1), u"laufen"_s);
            d.tool(d.controls.Check4);
        });
        way("vowels, time is up", [](Desk &d) {
            d.t.boxes.willBeRead();
            d.t.boxes.willEnterName({});
            d.t.boxes.willCloseScores();
            d.tool(d.controls.Option2[0]);
            d.run(command::From::MainMenu, 1702);
            d.minutes(2), d.type(u"ball"_s), d.minutes(3);
            QCOMPARE(d.t.boxes.asked.last().text.section(u'\n', 0, 1),
                     u"Punkte: 4\n(1 richtige Vokale). Sehr gut !"_s);
            QCOMPARE(d.lists.WortelList.at(0), u"halt"_s); // the board's stems have come back
        });
    }
    void everyToolComesBack()
    {
        QFETCH(Way, way);
        Desk desk;
        desk.tool(desk.controls.Option2[1]); // a level is not what a way puts back
        const QStringList before = toolStates(desk);
        way(desk);
        desk.tool(desk.controls.Option2[1]);
        QTRY_COMPARE(firstDifference(before, toolStates(desk)), QString());
        QCOMPARE(desk.trouble(), QString());
    }

    void collecting()
    {
        Desk desk;
        desk.start(3);
        for (const QString &word : {u"Haus"_s, u"haus"_s, u"laufen"_s, u"falsch"_s, u"Haus"_s}) {
            desk.t.options.setBox(Setting::CaseCheck, 0);
            desk.type(word);
        }
        QCOMPARE(desk.controls.Label1->text(), u"2"_s);
        desk.t.options.setBox(Setting::ShowCorrectListAfterGame, 1);
        desk.t.options.setBox(Setting::ShowCorrectListAfterReType, 0);
        desk.t.boxes.willEnterName(u"Ada"_s);
        desk.t.boxes.willCloseScores();
        desk.minutes(3);
        QVERIFY(desk.t.boxes.asked.last().text.startsWith(
            u"Punkte: 10\n(2 richtige Wörter). Sehr gut !\nAda 10\nWortel 10\n"_s));
        QCOMPARE(desk.lists.CorrectWordList.rows(), (QStringList{u"Haus"_s, u"laufen"_s}));
        QVERIFY(desk.controls.CorrectWordList->isVisible());
        QCOMPARE(desk.controls.CorrectWordList->geometry().bottom() + 1, desk.controls.Picture1->y());
        QCOMPARE(desk.t.sound.resources.last(), 108);
    }

    void nothingTicksBehindWhatStands()
    {
        Desk desk;
        desk.lay(wortelKind, 100, 100, u"halt"_s);
        desk.start(2);
        desk.t.boxes.willBeRead();
        desk.t.boxes.whileOpen = [&](const Question &question) {
            if (question.kind == u"ShowInfoBox"_s) {
                desk.minutes(5);
                QVERIFY(desk.play.GameActive());
            }
        };
        desk.t.boxes.willCloseScores();
        desk.type({}); // "Gib bitte ein Wort ein"
        QVERIFY2(!desk.play.GameActive(), "the time is up as soon as the question is answered");

        desk.start(3);
        desk.press({105, 105});
        desk.drag({300, 205});
        desk.t.boxes.willCloseScores();
        desk.minutes(3);
        QVERIFY(!desk.play.GameActive());
        QCOMPARE(desk.trouble(), QString());
    }

    void closing_data()
    {
        columns<QString>("box");
        for (const char *box : {"ShowInfoBox", "ShowEnterName", "ShowHighScores"})
            QTest::newRow(box) << QString::fromLatin1(box);
    }
    void closing()
    {
        QFETCH(QString, box);
        Desk desk;
        desk.t.boxes.willBeRead();
        if (box != u"ShowInfoBox"_s)
            desk.t.boxes.willEnterName(u"Ada"_s);
        if (box == u"ShowHighScores"_s)
            desk.t.boxes.willCloseScores();
        desk.t.boxes.whileOpen = [&](const Question &question) {
            if (question.kind == box)
                desk.form.close();
        };
        desk.start(1);
        desk.minutes(2);
        if (!desk.gate.isClosing()) {
            desk.type(u"Haus"_s);
            desk.minutes(3);
        }
        QTRY_VERIFY(desk.form.isHidden());
        const QString scores = desk.t.AppFolder + u"scores.lst"_s;
        const bool isWritten = IsTextFile(scores) && ReadWholeFile(scores).contains("Ada");
        QCOMPARE(isWritten, box == u"ShowHighScores"_s);
    }

    void hints()
    {
        Desk desk;
        QLabel *hint = desk.controls.TxtWordHint;
        desk.start(3);
        QCOMPARE(hint->text(), QString()); // a thousand tries on an empty board
        desk.r.game.ShowGameWordHint();
        QVERIFY(hint->isHidden());
        desk.tool(desk.controls.Check3);

        desk.lay(wortelKind, 100, 100, u"lauf"_s);
        desk.lay(suffixKind, 200, 100, u"en"_s);
        desk.start(3);
        QCOMPARE(hint->text(), u"laufen"_s);
        QVERIFY(hint->isHidden());
        QTimer *due = desk.r.game.findChild<QTimer *>(u"GameWordHintTimer"_s);
        QVERIFY(due->isActive());
        {
            const Gate::Passage box = desk.gate.stay(); // it falls due behind a box, and comes afterwards
            due->start(0);
            QTest::qWait(20);
            QVERIFY(hint->isHidden());
        }
        QTRY_VERIFY(hint->isVisible());
        desk.tool(desk.controls.Check3);
        QVERIFY(hint->isHidden());
        desk.t.options.setBox(Setting::GameShowWordHint, 0);
        desk.start(3);
        QCOMPARE(hint->text(), QString());
    }

    void theRightPress()
    {
        Desk desk;
        desk.r.optTypes.select(1);
        desk.t.boxes.willCloseScores();
        desk.tool(desk.controls.Check3, Qt::RightButton);
        QCOMPARE(desk.t.boxes.asked.last().style, u"Klotar"_s);
        QCOMPARE(desk.r.optTypes.selected(), 3);
        desk.tool(desk.controls.ChkVokal[1]);
        desk.t.boxes.willCloseScores();
        desk.tool(desk.controls.Check3, Qt::RightButton);
        QCOMPARE(desk.t.boxes.asked.last().style, u"Tonarin"_s);
        desk.start(2);
        desk.tool(desk.controls.Check3, Qt::RightButton);
    }

    /// A clock that is set, or minutes of a game that was cancelled, do not end the next one.
    void staleMinutes()
    {
        Desk desk;
        desk.start(2);
        desk.minutes(2);
        desk.tool(desk.controls.Check3);
        desk.start(2);
        QCOMPARE(desk.caption(), u"3 Minuten zum Eingeben"_s);
        desk.minutes(2);
        QVERIFY(desk.play.GameActive());
        desk.t.clock.moment = desk.t.clock.moment.addSecs(59);
        desk.minutes(0);
        QVERIFY(desk.play.GameActive());
    }
};

WORTEL_TEST(WordGameTest)
#include "tst_word_game.moc"
