// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "games/kernling/workshop.h"

#include "games/kernling/time_sign.h"
#include "platform/files.h"

#include <QLabel>
#include <QTimer>

/// The game against the clock: what it changes on the window, its score, its end at an awkward moment.
class LocateGameTest : public QObject
{
    Q_OBJECT

private slots:
    void aGameChangesTheWindowAndItsEndChangesItBack()
    {
        Workshop w;
        w.write(u"halt wirk"_s);
        w.markWord(u"wirk"_s);
        w.c().OptManualHighlight->click();
        w.c().Check5->setChecked(false);
        QCOMPARE(state(w),
                 u"manual check7 Label3=1 Label14=0 Image1 wirk Command4 Command5 Command8 Command11 "
                 u"Command12 cmdResetColors Frame1 free"_s);
        w.press(w.c().Command10);
        QCOMPARE(state(w), u"auto Label8=0 Check5 Picture2 locked Spiel abbrechen"_s);
        QCOMPARE(w.paint(), QString(9, u'.'));
        QVERIFY(w.rows(w.c().UserFoundWortelList).isEmpty());
        QVERIFY(w.answer().isEmpty());
        QCOMPARE(timer(w)->interval(), 40000);
        w.press(w.c().Command10);
        QCOMPARE(state(w), u"manual check7 Label3=0 Label14=0 Check5 Command4 Command5 Command8 "
                           u"Command11 Command12 cmdResetColors Frame1 free"_s);
        QVERIFY(!timer(w)->isActive());
    }

    void stemsArePointsAndTheTimeEndsInTheList()
    {
        Workshop w;
        w.t.options.setBox(Setting::KernlingShowFalse, 1);
        w.write(u"halt wirk quatsch wirk"_s);
        w.press(w.c().Command10);
        w.mark(5, 9);
        w.mark(0, 4);
        w.mark(18, 22); // found already
        w.mark(10, 17);
        QCOMPARE(w.c().Label8->text(), u"2"_s);
        w.t.boxes.willEnterName(u"Ada"_s);
        w.t.boxes.willCloseScores();
        emit timer(w)->timeout({});
        Workshop::settle();
        QCOMPARE(w.t.boxes.asked.last().title, u"Bestenliste - Kernling"_s);
        QCOMPARE(w.t.boxes.asked.last().text.section(u'\n', 0, 1),
                 u"Punkte: 2\n(1 falsche Wortele). Sehr gut !"_s);
        QVERIFY(ReadWholeFile(w.t.AppFolder + u"ScoresKernling.lst"_s).contains("Ada:2\r\n"));
        QVERIFY(!w.text().isLocked() && !w.c().Label3->isHidden() && w.c().OptManualHighlight->isChecked());
        QTest::keyClicks(&w.text(), u"x"_s); // replaces nothing
        QCOMPARE(w.text().text(), u"halt wirk quatschx wirk"_s);
        emit timer(w)->timeout({}); // a late one
        Workshop::settle();
        w.t.boxes.willCloseScores();
        w.press(w.c().Command10, Qt::RightButton);
        QVERIFY(!w.text().isLocked());
    }

    void theTimeEndsInTheMiddle_data()
    {
        columns<int>("moment");
        QTest::newRow("of a box") << 0;
        QTest::newRow("of a work") << 1;
        QTest::newRow("of the options") << 2;
        QTest::newRow("of a marking") << 3;
    }
    void theTimeEndsInTheMiddle()
    {
        QFETCH(int, moment);
        Workshop w;
        w.write(u"halt wirk"_s);
        w.press(w.c().Command10);
        bool ranOn = false;
        const auto timeOut = [&] {
            emit timer(w)->timeout({});
            Workshop::settle();
            ranOn = w.text().isLocked();
        };
        w.t.boxes.whileOpen = [&](const Question &question) {
            if (question.kind == u"ShowMBox"_s)
                timeOut();
        };
        if (moment == 0) {
            w.t.boxes.willPress(1);
            w.press(w.c().Command15);
        } else if (moment == 1) {
            w.lay(wortelKind, 10, 50, u"quatsch"_s);
            w.c().OptFilltype[5]->click();
            w.atServe([&] {
                timeOut();
                QTest::keyClick(&w.k, Qt::Key_Escape);
            });
            w.press(w.c().Command3);
        } else if (moment == 2) {
            QTimer::singleShot(0, &w.k, [&] {
                timeOut();
                auto *window = w.k.findChild<frmKernlingOptions *>();
                QVERIFY(!window->Frame1()->isEnabled());
                window->findChild<QAbstractButton *>(u"cmdCancel"_s)->click();
            });
            w.press(w.c().Command6);
        } else {
            QMouseEvent press(QEvent::MouseButtonPress, w.placeOf(0), w.text().mapToGlobal(w.placeOf(0)),
                              Qt::LeftButton, Qt::LeftButton, Qt::NoModifier);
            QCoreApplication::sendEvent(w.text().viewport(), &press);
            emit timer(w)->timeout({});
            ranOn = w.text().isLocked();
        }
        QVERIFY(ranOn);
        w.t.boxes.willCloseScores(); // no place for 0 points
        Workshop::settle();
        QVERIFY(!w.text().isLocked());
    }

    void noMenuAndNoUndoInAGame()
    {
        Workshop w;
        w.write(QString());
        w.text().textCursor().insertText(u"halt wirk"_s);
        w.press(w.c().Command10);
        QTest::mouseClick(w.text().viewport(), Qt::RightButton);
        QTest::mouseClick(w.c().wortellist->viewport(), Qt::RightButton);
        QVERIFY(QApplication::activePopupWidget() == nullptr);
        QTest::keyClick(&w.text(), Qt::Key_Z, Qt::ControlModifier);
        QTest::keyClicks(&w.text(), u"abc"_s);
        QCOMPARE(w.text().text(), u"halt wirk"_s);
        QCOMPARE(w.text().cursorWidth() > 0, true); // who uses keys sees where
        w.mark(0, 2);
        QCOMPARE(w.text().cursorWidth(), 0);
        w.press(w.c().Command10);
        QVERIFY(w.text().cursorWidth() > 0);
        QTest::keyClick(&w.text(), Qt::Key_Z, Qt::ControlModifier);
        QCOMPARE(w.text().text(), QString());
    }

private:
    static QTimer *timer(Workshop &w) { return w.k.findChild<QTimer *>(u"LocateGameTimer"_s); }

    static QString state(Workshop &w)
    {
        const KernlingControls &c = w.c();
        QStringList now{c.OptManualHighlight->isChecked() ? u"manual"_s : u"auto"_s};
        const auto add = [&now](bool holds, const QString &word) {
            if (holds)
                now << word;
        };
        add(!c.Check7->isHidden(), u"check7"_s);
        add(!c.Label3->isHidden(), u"Label3="_s + c.Label3->text());
        add(!c.Label14->isHidden(), u"Label14="_s + c.Label14->text());
        add(!c.Label8->isHidden() && !c.Label13->isHidden(), u"Label8="_s + c.Label8->text());
        add(c.Check5->isChecked(), u"Check5"_s);
        add(c.Picture2->isVisible(), u"Picture2"_s);
        add(!c.Image1->isHidden() || !c.Text1->text().isEmpty(), u"Image1 "_s + c.Text1->text());
        for (PressButton *one :
             {c.Command4, c.Command5, c.Command8, c.Command11, c.Command12, c.cmdResetColors})
            add(one->isEnabled(), one->objectName());
        add(w.k.findChild<frmKernlingOptions *>()->Frame1()->isEnabled(), u"Frame1"_s);
        now << (w.text().isLocked() ? u"locked"_s : u"free"_s);
        add(c.Command10->toolTip() != u"Spiel starten / Bestenliste zeigen"_s, c.Command10->toolTip());
        return now.join(u' ');
    }
};

WORTEL_TEST(LocateGameTest)
#include "tst_locate_game.moc"
