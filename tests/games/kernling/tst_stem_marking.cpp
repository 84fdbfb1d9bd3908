// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "games/kernling/workshop.h"

#include <QLabel>
#include <QScrollBar>

/// Letters that are marked: the verdict, the counts, and the paint in the text.
class StemMarkingTest : public QObject
{
    Q_OBJECT

private slots:
    void verdicts_data()
    {
        columns<QString, QString, QString, QString>("word", "answer", "state", "paint");
        // the stem shown, the smiley, right, wrong, the sounds
        QTest::newRow("stem") << u"Wirk"_s << u"ist ein Wortstamm"_s << u"Wirk 1 1 0 112"_s
                              << u"...rrrr....................."_s;
        QTest::newRow("prefix") << u"ver"_s << u"ver\nist kein Wortstamm\nsondern ein Präfix"_s << u" 0 0 1"_s
                                << QString(28, u'.');
        QTest::newRow("none, a word")
            << u"Haus"_s << u"Haus\nsteht nicht in der Wortstamm-Liste\nHaus\nist ein Wort im Wörterbuch"_s
            << u" 0 0 1"_s << QString(28, u'.');
    }
    void verdicts()
    {
        QFETCH(QString, word);
        Workshop w;
        w.t.options.setBox(Setting::KernlingShowFalse, 1);
        w.write(u"verWirkung\nverrennend Haus ."_s);
        w.markWord(word);
        QTEST(w.answer().trimmed(), "answer");
        QStringList now{w.c().Text1->text(), w.c().Image1->isHidden() ? u"0"_s : u"1"_s, w.c().Label3->text(),
                        w.c().Label14->text()};
        for (const int sound : w.t.sound.resources)
            now << QString::number(sound);
        QTEST(now.join(u' '), "state");
        QCOMPARE(w.rows(w.c().UserFoundWortelList).size(), w.c().Label3->text().toInt());
        QCOMPARE(w.rows(w.c().UserFalseWortelList).size(), w.c().Label14->text().toInt());
        QTEST(w.paint(), "paint");
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

    void paintLeavesTheViewWhereItIs()
    {
        for (const double place : {0.0, 0.5, 1.0}) {
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
            w.text().undo();
            QCOMPARE(w.paint().count(u'r'), 12000);
            w.text().undo(); // the search is one step
            QVERIFY(!w.paint().contains(u'r'));
        }
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

    void lettersTypedInPlaceOfPaintHaveNone()
    {
        Workshop w;
        w.write(u"halt wirk"_s);
        w.markWord(u"halt"_s);
        w.text().select({0, 4});
        QTest::keyClicks(&w.text(), u"ab"_s);
        QCOMPARE(w.paint(), u"......."_s);
        w.text().undo();
        w.text().undo();
        QCOMPARE(w.paint(), u"rrrr....."_s);
    }

    void aSearchWithoutHits()
    {
        Workshop w;
        w.write(u"wirken "_s.repeated(50000));
        w.c().wortellist->selectRows({0, 2});
        auto *search = w.k.findChild<QAction *>(u"mnuSearch"_s);
        w.atServe([&w] { QTest::keyClick(&w.k, Qt::Key_Escape); });
        search->trigger(); // is cancelled, so it says nothing
        w.t.boxes.willBeRead();
        search->trigger();
        QCOMPARE(w.lastBox().section(u'|', 1), u"Von diesen Wortstämmen steht keiner als Wort im Text"_s);
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
    }
};

WORTEL_TEST(StemMarkingTest)
#include "tst_stem_marking.moc"
