// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "games/kernling/workshop.h"

#include "platform/files.h"

#include <QAction>
#include <QLabel>

namespace {

using Button = PressButton *KernlingControls::*;

} // namespace

/// The workshop's controls: lists and their sources, works, options, closing.
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
    }

    void wordsMoveIntoTheText()
    {
        Workshop w;
        w.lists.CorrectWordList.addAll({u"a"_s, u"b"_s, u"c"_s, u"d"_s});
        w.press(w.c().Command3);
        w.c().textGroup->setTitle(u"Text: a.txt"_s);
        w.press(w.c().Command11);
        QCOMPARE(w.text().text(), u"a\nb\nc\nd"_s);
        QCOMPARE(w.c().textGroup->title(), u"Text"_s);
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
    }

    void aWorkKeepsEverythingElseOut_data()
    {
        columns<int, bool>("work", "byKey");
        QTest::newRow("a search, Esc") << 0 << true;
        QTest::newRow("a search, the X") << 0 << false;
        QTest::newRow("words of the board") << 1 << true;
        QTest::newRow("a page") << 2 << false;
        QTest::newRow("words of a text") << 3 << true;
    }
    void aWorkKeepsEverythingElseOut()
    {
        QFETCH(int, work);
        QFETCH(bool, byKey);
        Workshop w;
        w.lay(wortelKind, 10, 50, u"quatsch"_s);
        w.write(u"wirk\n"_s.repeated(3000));
        w.c().wortellist->selectRows({0, 2});
        w.c().OptFilltype[5]->click();
        w.c().Check8->setChecked(work == 3);
        const QString page =
            w.t.writeFile(u"a.html"_s, u"<body>"_s + u"Wort "_s.repeated(5000) + u"</body>"_s);
        const QString file = work == 2 ? page : w.t.writeFile(u"a.txt"_s, w.text().text());
        if (work > 1)
            w.t.fileDialogs.willOpen({file});
        w.atServe([&] {
            QVERIFY(w.text().isLocked() && !w.c().Label9->isHidden());
            for (PressButton *button : w.k.findChildren<PressButton *>()) {
                w.press(button);
                w.press(button, Qt::RightButton);
            }
            for (QAction *action : w.k.findChildren<QAction *>())
                action->trigger();
            QTest::keyClicks(&w.text(), u"x"_s);
            QTest::keyClick(&w.k, Qt::Key_Return, Qt::ControlModifier);
            w.mark(0, 4);
            if (byKey)
                QTest::keyClick(&w.k, Qt::Key_Escape);
            else
                QTest::mouseClick(w.c().Label9, Qt::LeftButton);
        });
        if (work == 0)
            w.k.findChild<QAction *>(u"mnuSearch"_s)->trigger();
        else
            w.press(work == 1 ? w.c().Command3 : w.c().Command5);
        QCOMPARE(w.text().text(), u"wirk\n"_s.repeated(3000));
        QVERIFY(!w.paint().contains(u'r') && w.words().isEmpty() && w.answer().isEmpty());
        QVERIFY(!w.text().isLocked() && w.c().Command11->isEnabled() && w.c().Label9->isHidden());
        QCOMPARE(w.trouble(), QString());
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
    }

    void theStemListOpens()
    {
        Workshop w;
        QVERIFY(w.c().stemPanel->isHidden());
        w.press(w.c().Check1);
        QVERIFY(!w.c().stemPanel->isHidden());
        QVERIFY(w.k.width() <= 853);
    }

    void closingBeforeTheEnd_data()
    {
        columns<int>("moment");
        QTest::newRow("the window, in a work") << 0;
        QTest::newRow("the program, in a work") << 1;
        QTest::newRow("the program, in the options") << 2;
        QTest::newRow("the program, in a game") << 3;
        QTest::newRow("the program, in the name's entry") << 4;
    }
    void closingBeforeTheEnd()
    {
        QFETCH(int, moment);
        Workshop w;
        const auto close = [&] {
            if (moment == 0)
                w.k.close();
            else
                w.gate.requestClose();
        };
        if (moment <= 1) {
            w.lay(wortelKind, 10, 50, u"quatsch"_s);
            w.c().OptFilltype[5]->click();
            w.atServe(close);
            w.press(w.c().Command3); // would go on for ever
        } else if (moment == 2) {
            QTimer::singleShot(0, &w.k, [&] {
                w.k.findChild<QLineEdit *>(u"Text12"_s)->setText(u"7"_s);
                close();
            });
            w.press(w.c().Command6);
        } else {
            w.write(u"wirk"_s);
            w.press(w.c().Command10);
            w.mark(0, 4);
            if (moment == 3) {
                close();
            } else {
                w.t.boxes.willEnterName(u"Ada"_s);
                w.t.boxes.whileOpen = [&](const Question &) { close(); };
            }
            emit w.k.findChild<QTimer *>(u"LocateGameTimer"_s)->timeout({});
        }
        Workshop::settle();
        QVERIFY(!w.k.isVisible() && w.words().isEmpty());
        const QString scores = w.t.AppFolder + u"ScoresKernling.lst"_s;
        QVERIFY(!IsTextFile(scores) || !ReadWholeFile(scores).contains("Ada"));
        QCOMPARE(w.t.store.GetSetting(u"Settings"_s, u"KernlingGameTime"_s, u"none"_s), u"none"_s);
    }
};

WORTEL_TEST(FrmKernlingTest)
#include "tst_frm_kernling.moc"
