// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "games/kernling/workshop.h"

#include <QLabel>
#include <QMenu>
#include <QScrollBar>

namespace {

using Button = PressButton *KernlingControls::*;

} // namespace

/// The workshop's controls: lists and their sources, marking and its verdict, search, options.
class FrmKernlingTest : public QObject
{
    Q_OBJECT

private slots:
    void commandsWithoutWordsOrText_data()
    {
        columns<Button, QString>("button", "told");
        using C = KernlingControls;
        QTest::newRow("all into the text") << &C::Command11 << u"Die Liste ist leer"_s;
        QTest::newRow("some into the text") << &C::Command12 << u"Die Liste ist leer"_s;
        QTest::newRow("clear the list") << &C::Command13 << u"Die Liste ist leer !"_s;
        QTest::newRow("select none") << &C::Command14 << u"Die Liste ist leer"_s;
        QTest::newRow("shuffle") << &C::Command9 << u"Die Liste ist leer !"_s;
        QTest::newRow("random words") << &C::Command7 << u"Die Liste ist leer !"_s;
        QTest::newRow("clear the text") << &C::Command4 << u"Der Text ist leer"_s;
        QTest::newRow("search") << &C::Command8 << u"Der Text ist leer"_s;
        QTest::newRow("check a stem") << &C::Check7 << u"Bitte markiere erst einen Wortstamm !"_s;
    }
    void commandsWithoutWordsOrText()
    {
        QFETCH(Button, button);
        QFETCH(QString, told);
        Workshop w;
        w.c().OptManualHighlight->click();
        w.t.boxes.willBeRead();
        w.press(w.c().*button);
        QCOMPARE(w.lastBox(), u"Wortel-Meister|"_s + told);
        QVERIFY(w.t.ok());
    }

    void sources_data()
    {
        columns<int, QString, QString>("source", "words", "told");
        QTest::newRow("word list") << 0 << u"Abend Zebra"_s << QString();
        QTest::newRow("dictionary") << 1 << u"Haus laufen Läufer"_s << QString();
        QTest::newRow("nonsense") << 2 << u"2 words"_s << QString();
        QTest::newRow("letter mix") << 3 << u"3 words"_s << QString();
        QTest::newRow("letter mix, wrong list")
            << -3 << QString() << u"Mit dieser Wortel-Liste geht das leider nicht"_s;
        QTest::newRow("scramble, wrong list")
            << -4 << QString() << u"Mit dieser Wortel-Liste geht das leider nicht"_s;
        QTest::newRow("scramble") << 4 << u"1 words"_s << QString();
        QTest::newRow("board") << 5 << u"laufen"_s << QString();
        QTest::newRow("empty board") << -5 << QString() << u"Es sind keine Wortele auf dem Bildschirm"_s;
    }
    void sources()
    {
        QFETCH(int, source);
        QFETCH(QString, words);
        QFETCH(QString, told);
        Workshop w;
        w.t.pump.waiting = true;
        w.lists.CorrectWordList.addAll({u"Zebra"_s, u"Abend"_s});
        if (source != -5) {
            w.lay(wortelKind, 10, 50, u"lauf"_s);
            w.lay(suffixKind, 10, 90, u"en"_s);
        }
        w.controls.ChkVokal[0]->setChecked(source == 1);
        w.t.options.setText(Setting::KernlingNumPseudoWords, u"2"_s);
        w.t.options.setText(Setting::KernlingNumLetterMixWords, u"3"_s);
        w.t.options.setText(Setting::KernlingNumScrambleWords, u"1"_s);
        w.t.options.setText(Setting::KernlingNumRandomWords, u"1"_s);
        if (source == -3)
            w.lists.CurrentWortelFile = u"x\\Ig oder lich.txt"_s;
        if (source == -4)
            w.lists.CurrentWortelFile = u"x\\UNG HEIT KEIT SCHAFT NIS TUM.Txt"_s;
        if (source == 2)
            for (const QString &stem : {u"kind"_s, u"wand"_s, u"fisch"_s})
                w.lay(wortelKind, 10, 10, stem);
        if (!told.isEmpty())
            w.t.boxes.willBeRead();
        w.c().OptFilltype[static_cast<std::size_t>(std::abs(source))]->click();
        w.press(w.c().Command3);
        const QString found =
            words.endsWith(u" words"_s) ? u"%1 words"_s.arg(w.words().size()) : w.words().join(u' ');
        QCOMPARE(found, words);
        QCOMPARE(w.lastBox(), told.isEmpty() ? QString() : u"Wortel-Meister|"_s + told);
        QVERIFY(!w.controls.ChkVokal[0]->isChecked());
        QVERIFY(w.c().FillProgress->isHidden() && w.c().Label9->isHidden());
        QCOMPARE(w.trouble(), QString());
        QVERIFY(w.t.ok());
    }

    void numbersThatGoNowhere()
    {
        for (const QString &number : {QString(), u"0"_s, u"99999"_s}) {
            Workshop w;
            w.lay(wortelKind, 10, 50, u"lauf"_s);
            w.t.options.setText(Setting::KernlingNumRandomWords, number);
            w.t.options.setText(Setting::KernlingGameTime, number);
            w.c().OptFilltype[5]->click();
            w.t.boxes.willBeRead();
            w.press(w.c().Command3);
            QVERIFY(w.lastBox().contains(u"1 bis 32767"_s));
            w.t.boxes.willBeRead();
            w.press(w.c().Command10);
            QVERIFY(w.lastBox().contains(u"1 bis 86400 Sekunden"_s));
            QVERIFY(w.t.ok());
        }
    }

    void theListFillsUp()
    {
        Workshop w;
        QStringList many;
        for (int word = 0; word < 20000; ++word)
            many << QString::number(word);
        w.lists.CorrectWordList.addAll(many);
        w.press(w.c().Command3);
        w.t.boxes.willBeRead();
        w.press(w.c().Command3);
        QCOMPARE(w.words().size(), 32767);
        QVERIFY(w.t.ok());
    }

    void wordsMoveIntoTheText()
    {
        Workshop w;
        w.lists.CorrectWordList.addAll({u"a"_s, u"b"_s, u"c"_s, u"d"_s});
        w.press(w.c().Command3);
        w.press(w.c().Command11);
        QCOMPARE(w.text().text(), u"a\nb\nc\nd"_s);
        w.t.boxes.willBeRead();
        w.press(w.c().Command12);
        QCOMPARE(w.lastBox(), u"Wortel-Meister|Es wurden keine Wörter ausgewählt"_s);
        w.c().List1->selectRows({1, 3});
        w.press(w.c().Command12);
        QCOMPARE(w.text().text(), u"b\nd"_s);
        w.text().undo();
        QCOMPARE(w.text().text(), u"a\nb\nc\nd"_s);
        w.c().List1->selectRows({1});
        w.press(w.c().cmdUp);
        w.press(w.c().cmdUp); // is the first already
        QCOMPARE(w.words().join(QString()), u"bacd"_s);
        w.press(w.c().cmdDown);
        w.press(w.c().cmdDown);
        QCOMPARE(w.words().join(QString()), u"acbd"_s);
        QCOMPARE(w.c().List1->selectedWords(), QStringList{u"b"_s});
        w.press(w.c().Command14);
        QVERIFY(w.c().List1->selectedRows().isEmpty());
        w.c().Text3->setText(u"3"_s);
        w.press(w.c().Command7);
        QCOMPARE(w.c().List1->selectedRows().size(), 3);
        w.press(w.c().Command9);
        QStringList shuffled = w.words();
        shuffled.sort();
        QCOMPARE(shuffled.join(QString()), u"abcd"_s);
        w.press(w.c().Command13);
        QVERIFY(w.words().isEmpty());
        for (const int answer : {1, 0}) {
            w.t.boxes.willPress(answer);
            w.press(w.c().Command15);
            QCOMPARE(w.lastBox(), u"Wortel - Bestätigen|Wortliste von Klotar löschen ?"_s);
            QCOMPARE(w.lists.CorrectWordList.isEmpty(), answer == 0);
        }
        QVERIFY(w.t.ok());
    }

    void verdicts_data()
    {
        columns<QString, QString, QString, QString>("word", "answer", "state", "paint");
        // the stem shown, the smiley, right, wrong, the sounds
        QTest::newRow("stem") << u"Wirk"_s << u"ist ein Wortstamm"_s << u"Wirk 1 1 0 112"_s
                              << u"...rrrr....................."_s;
        QTest::newRow("looks like another")
            << u"renn"_s
            << u"ist ein Wortstamm\naber prüfe selbst, ob renn\nhier nicht zu einem anderen Stamm gehört, wie z.B.:\nbrenn, trenn"_s
            << u"renn 1 1 0 112"_s << u"..............rrrr.........."_s;
        QTest::newRow("prefix") << u"ver"_s << u"ver\nist kein Wortstamm\nsondern ein Präfix"_s << u" 0 0 1"_s
                                << QString(28, u'.');
        QTest::newRow("suffix") << u"ung"_s << u"ung\nist kein Wortstamm\nsondern ein Suffix"_s << u" 0 0 1"_s
                                << QString(28, u'.');
        QTest::newRow("none, a word")
            << u"Haus"_s << u"Haus\nsteht nicht in der Wortstamm-Liste\nHaus\nist ein Wort im Wörterbuch"_s
            << u" 0 0 1"_s << QString(28, u'.');
        QTest::newRow("over a line's end")
            << u"ung\nver"_s << u"ung ver\nsteht nicht in der Wortstamm-Liste"_s << u" 0 0 1"_s
            << QString(28, u'.');
    }
    void verdicts()
    {
        QFETCH(QString, word);
        QFETCH(QString, answer);
        QFETCH(QString, state);
        QFETCH(QString, paint);
        Workshop w;
        w.t.options.setBox(Setting::KernlingShowFalse, 1);
        w.write(u"verWirkung\nverrennend Haus ."_s);
        w.markWord(word);
        QCOMPARE(w.answer().trimmed(), answer);
        QStringList now{w.c().Text1->text(), w.c().Image1->isHidden() ? u"0"_s : u"1"_s, w.c().Label3->text(),
                        w.c().Label14->text()};
        for (const int sound : w.t.sound.resources)
            now << QString::number(sound);
        QCOMPARE(now.join(u' '), state);
        QCOMPARE(w.rows(w.c().UserFoundWortelList).size(), w.c().Label3->text().toInt());
        QCOMPARE(w.rows(w.c().UserFalseWortelList).size(), w.c().Label14->text().toInt());
        QCOMPARE(w.paint(), paint);
        QCOMPARE(w.text().selection().length == 0, !now.first().isEmpty());
    }

    void aVerdictInManualWay()
    {
        Workshop w;
        QVERIFY(w.c().Check7->isHidden());
        w.c().OptManualHighlight->click();
        QVERIFY(!w.c().Check7->isHidden());
        w.write(u"wirkung"_s);
        w.markWord(u"wirk"_s);
        QCOMPARE(w.answer(), QString());
        w.press(w.c().Check7);
        QCOMPARE(w.answer(), u"ist ein Wortstamm\n"_s);
        QCOMPARE(w.paint(), u"rrrr..."_s);
    }

    void keysMarkAsWell()
    {
        Workshop w;
        w.write(u"wirkung"_s);
        w.text().moveCursor(QTextCursor::Start);
        const auto key = [&w](QEvent::Type type, int code) {
            QKeyEvent event(type, code, Qt::ShiftModifier);
            QCoreApplication::sendEvent(&w.text(), &event);
        };
        key(QEvent::KeyPress, Qt::Key_Shift);
        for (int letter = 0; letter < 4; ++letter)
            key(QEvent::KeyPress, Qt::Key_Right);
        QCOMPARE(w.answer(), QString());
        key(QEvent::KeyRelease, Qt::Key_Shift);
        QCOMPARE(w.answer(), u"ist ein Wortstamm\n"_s);
        QTest::keyClick(&w.text(), Qt::Key_Shift); // nothing was marked
        QCOMPARE(w.t.sound.resources.size(), 1);
    }

    void paintKeepsWhatLiesBeside()
    {
        Workshop w;
        w.write(u"renn halt wirk"_s);
        w.text().paintRuns({{8, 5}}, Qt::green);
        w.markWord(u"halt"_s);
        QCOMPARE(w.paint(), u".....rrrr????."_s);
        w.markWord(u"renn"_s);
        w.text().select({2, 5});
        w.press(w.c().cmdUnHighlight);
        QCOMPARE(w.paint(), u"rr.....rr????."_s);
        QTextCursor cursor(w.text().document());
        cursor.setPosition(4);
        QVERIFY(cursor.charFormat().foreground().style() == Qt::NoBrush); // no white letters on white
        w.press(w.c().cmdResetColors);
        QCOMPARE(w.paint(), QString(14, u'.'));
        w.text().undo();
        QCOMPARE(w.paint(), u"rr.....rr????."_s);
    }

    void paintLeavesTheViewWhereItIs_data()
    {
        columns<double>("place");
        QTest::newRow("at the start") << 0.0;
        QTest::newRow("in the middle") << 0.5;
        QTest::newRow("at the end") << 1.0;
    }
    void paintLeavesTheViewWhereItIs()
    {
        QFETCH(double, place);
        Workshop w;
        w.write(u"mehr wirk und\n"_s.repeated(3000));
        QScrollBar *bar = w.text().verticalScrollBar();
        QTRY_VERIFY(bar->maximum() > 3000 * 10);
        const auto seen = static_cast<int>(bar->maximum() * place);
        bar->setValue(seen);
        w.t.boxes.willType(u"wirk"_s);
        w.press(w.c().Command8);
        Workshop::settle();
        QCOMPARE(bar->value(), seen);
        QCOMPARE(w.paint().count(u'r'), 12000);
        w.press(w.c().cmdResetColors);
        Workshop::settle();
        QCOMPARE(bar->value(), seen);
        QVERIFY(!w.paint().contains(u'r'));
    }

    void lettersTypedBehindPaintHaveNone()
    {
        Workshop w;
        w.write(u"wirk"_s);
        w.markWord(u"wirk"_s);
        w.text().moveCursor(QTextCursor::End);
        QTest::keyClicks(&w.text(), u"en"_s);
        QCOMPARE(w.paint(), u"rrrr.."_s);
    }

    void theWholeTextIsNoStem()
    {
        Workshop w;
        w.t.options.setBox(Setting::KernlingShowFalse, 1);
        w.write(u"Unsinn "_s.repeated(20000));
        w.text().selectAll();
        emit w.text().marked();
        QVERIFY(w.answer().size() < 600 && w.answer().contains(u"steht nicht in der Wortstamm-Liste"_s));
        QVERIFY(w.rows(w.c().UserFalseWortelList).first().size() < 510);
    }

    void stemsAreCountedOnceOrEachTime_data()
    {
        columns<int, QString>("noDup", "count");
        QTest::newRow("once") << 1 << u"1"_s;
        QTest::newRow("each time") << 0 << u"3"_s;
    }
    void stemsAreCountedOnceOrEachTime()
    {
        QFETCH(int, noDup);
        QFETCH(QString, count);
        Workshop w;
        w.t.options.setBox(Setting::KernlingShowNoDup, noDup);
        w.write(u"wirk, Wirkung, WIRK, verwirk; wirk"_s);
        w.t.boxes.willType(u"wirk"_s);
        w.press(w.c().Command8);
        QCOMPARE(w.t.boxes.asked.last().style, u"wirk"_s); // suggested
        QCOMPARE(w.paint(), u"rrrr...........rrrr...........rrrr"_s);
        QCOMPARE(w.c().Label3->text(), count);
        QCOMPARE(w.rows(w.c().UserFoundWortelList).size(), count.toInt());
        QCOMPARE(w.t.sound.resources, QList<int>{112});
        w.press(w.c().Command1);
        QCOMPARE(w.c().Label3->text(), u"0"_s);
        w.t.boxes.willType(u"quatsch"_s);
        w.t.boxes.willBeRead();
        w.press(w.c().Command8);
        QCOMPARE(w.lastBox(), u"Wortel-Meister|quatsch ist kein Wortstamm"_s);
        QVERIFY(w.t.ok());
    }

    void aSearchIsCancelledAndKeepsTheTextFromTheHand()
    {
        for (const bool byKey : {true, false}) {
            Workshop w;
            w.write(u"wirk "_s.repeated(3000));
            w.c().wortellist->selectRows({0, 2});
            w.atServe([&] {
                QVERIFY(w.text().isLocked() && !w.c().Command11->isEnabled());
                w.press(w.c().Command4);
                w.markWord(u"wirk"_s);
                if (byKey)
                    QTest::keyClick(&w.k, Qt::Key_Escape);
                else
                    QTest::mouseClick(w.c().Label9, Qt::LeftButton);
            });
            w.k.findChild<QAction *>(u"mnuSearch"_s)->trigger();
            QVERIFY(!w.paint().contains(u'r'));
            QVERIFY(!w.text().isLocked() && w.c().Command11->isEnabled());
            w.t.pump.waiting = false;
            w.k.findChild<QAction *>(u"mnuSearch"_s)->trigger();
            QCOMPARE(w.paint().count(u'r'), 12000);
            w.text().undo();
            QVERIFY(!w.paint().contains(u'r')); // one step
            QCOMPARE(w.trouble(), QString());
        }
    }

    void wordsAreLookedUp()
    {
        Workshop w;
        w.write(u"Haus quatsch"_s);
        const std::tuple<QString, QString, QString> rows[] = {
            {QString(), u"Wortel-Meister|Bitte Text markieren !"_s, u"INFO"_s},
            {u"Haus "_s, u"Richtig !|Das gesuchte Wort \"Haus\"\nist richtig."_s, u"SMILEY"_s},
            {u"quatsch"_s,
             u"Wort nicht gefunden !|Das gesuchte Wort \"quatsch\" steht nicht im Wörterbuch."_s, u"INFO"_s}};
        for (const auto &[word, told, sign] : rows) {
            w.text().select({static_cast<int>(w.text().text().indexOf(word)), static_cast<int>(word.size())});
            w.t.boxes.willBeRead();
            w.k.findChild<QAction *>(u"mnuCheckWord"_s)->trigger();
            QCOMPARE(w.lastBox(), told);
            QCOMPARE(w.t.boxes.asked.last().style, sign);
        }
        QVERIFY(w.t.ok());
    }

    void optionsAreConfirmed_data()
    {
        columns<int, bool, QString>("answer", "edited", "kept");
        QTest::newRow("confirmed") << 0 << true << u"7"_s;
        QTest::newRow("refused") << 1 << true << u"20"_s;
        QTest::newRow("unchanged") << -1 << false << u"20"_s;
        QTest::newRow("cancelled") << -2 << true << u"20"_s;
    }
    void optionsAreConfirmed()
    {
        QFETCH(int, answer);
        QFETCH(bool, edited);
        QFETCH(QString, kept);
        Workshop w;
        QCOMPARE(w.text().toolTip(), u"Rechtsklick: Menü zeigen"_s);
        QVERIFY(w.c().UserFoundWortelList->isHidden());
        if (answer >= 0)
            w.t.boxes.willPress(answer);
        QTimer::singleShot(0, &w.k, [&] {
            auto *window = w.k.findChild<frmKernlingOptions *>();
            if (edited) {
                window->findChild<QLineEdit *>(u"Text8"_s)->setText(u"x7"_s);
                window->findChild<QCheckBox *>(u"Check7"_s)->click();
                window->findChild<QCheckBox *>(u"Check6"_s)->click();
            }
            window->findChild<QAbstractButton *>(answer == -2 ? u"cmdCancel"_s : u"cmdOK"_s)->click();
        });
        w.press(w.c().Command6);
        if (answer >= 0)
            QCOMPARE(w.lastBox(), u"Wortel - Bestätigen|Willst du die Änderungen bestätigen?"_s);
        QCOMPARE(w.t.options.text(Setting::KernlingNumRandomWords), kept);
        QCOMPARE(w.t.store.GetSetting(u"Settings"_s, u"KernlingNumRandomWords"_s, u"20"_s), kept);
        QCOMPARE(w.text().toolTip().isEmpty(), answer == 0);
        QCOMPARE(w.c().List1->toolTip().isEmpty(), answer == 0);
        QCOMPARE(w.c().UserFoundWortelList->isHidden(), answer != 0);
        QVERIFY(w.t.ok());
    }

    void theStemListOpens()
    {
        Workshop w;
        QVERIFY(w.c().stemPanel->isHidden());
        QCOMPARE(w.c().Check1->text(), u"<"_s);
        w.press(w.c().Check1);
        QVERIFY(!w.c().stemPanel->isHidden());
        QCOMPARE(w.c().Check1->text(), u">"_s);
        QCOMPARE(w.rows(w.c().wortellist), (QStringList{u"halt"_s, u"renn"_s, u"wirk"_s}));
        QCOMPARE(w.c().Label16->text(), u"Hauptbausteine"_s);
        QVERIFY(w.k.width() <= 853);
    }

    void closingBeforeTheEnd_data()
    {
        columns<bool>("program");
        QTest::newRow("the window") << false;
        QTest::newRow("the program") << true;
    }
    void closingBeforeTheEnd()
    {
        QFETCH(bool, program);
        Workshop w;
        w.lay(wortelKind, 10, 50, u"quatsch"_s);
        w.c().OptFilltype[5]->click();
        w.atServe([&] {
            if (program)
                w.gate.requestClose();
            else
                w.k.close();
        });
        w.press(w.c().Command3); // would go on for ever
        QVERIFY(w.words().isEmpty());
        Workshop::settle();
        QVERIFY(!w.k.isVisible());
        QVERIFY(w.t.ok());
    }

    void theMenuOpensTheWindow()
    {
        TestHouse house;
        bool modal = false;
        QTimer::singleShot(0, &house.form, [&] {
            modal = QApplication::activeModalWidget() == &house.r.kernling && !house.gate.isFree();
            house.r.kernling.close();
        });
        house.run(command::From::MainMenu, 1701);
        QVERIFY(modal);
        QCOMPARE(house.trouble(), QString());
    }
};

WORTEL_TEST(FrmKernlingTest)
#include "tst_frm_kernling.moc"
