// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "dialogs/msn_style.h"
#include "platform/modes.h"
#include "support/columns.h"
#include "support/registry.h"
#include "support/test_ground.h"
#include "widgets/gradient.h"
#include "widgets/main_controls.h"
#include "widgets/press_button.h"

#include <QLabel>
#include <QTimer>
#include <QToolButton>
#include <QtTest>

#include <limits>

using namespace Qt::StringLiterals;

namespace {

struct Desk
{
    Desk()
    {
        form.resize(853, 480);
        controls = makeMainControls(&form);
        layOutMainControls(controls, form.width(), form.height());
        popup = new frmMsnStyle(t.ground, controls, modes);
        form.show();
    }

    void report(int seconds, const QString &word = u"\"Haus\""_s, bool boldWord = true, bool smiley = true)
    {
        popup->Display(u"Richtig !"_s, u"Das gesuchte Wort \n"_s, word, u"ist richtig."_s, seconds, 101,
                       boldWord, smiley);
    }
    ReportWindow *row(int slot) const
    {
        return form.findChild<ReportWindow *>(u"frmMsnStyle(%1)"_s.arg(slot));
    }
    bool isUp(int slot) const
    {
        return row(slot)->isVisible() && row(slot)->height() == row(slot)->fullHeight();
    }

    TestGround t;
    Modes modes;
    QWidget form;
    MainControls controls;
    frmMsnStyle *popup;
};

} // namespace

class MsnStyleTest : public QObject
{
    Q_OBJECT

private slots:
    void slidesUpWaitsAndSinks()
    {
        Desk desk;
        QSignalSpy closed(desk.popup, &frmMsnStyle::closed);
        desk.report(1);
        ReportWindow *window = desk.row(1);
        const int foot = window->geometry().bottom();
        QCOMPARE(window->x(), 31);
        QCOMPARE(window->y(), desk.controls.Picture1->y() + 14);
        QCOMPARE(window->height(), 6);
        QCOMPARE(desk.t.sound.resources, QList<int>{101});
        QVERIFY(!desk.modes.CheckButtonsAct);
        QVERIFY(!desk.controls.Command2->isEnabled() && !desk.controls.Command5->isEnabled());
        QVERIFY(!desk.controls.Command3->isEnabled() && !desk.controls.Command4->isEnabled());
        QTRY_VERIFY(desk.isUp(1));
        QCOMPARE(window->geometry().bottom(), foot);
        QTRY_COMPARE(closed.count(), 1);
        QVERIFY(!window->isVisible());
        QCOMPARE(desk.popup->slot(), 0);
        QVERIFY(desk.modes.CheckButtonsAct);
        QVERIFY(desk.controls.Command2->isEnabled() && desk.controls.Command4->isEnabled());
    }

    void standsAsLongAsAsked_data()
    {
        columns<int, int>("seconds", "milliseconds");
        QTest::newRow("none") << 0 << 0;
        QTest::newRow("one") << 1 << 1000;
        QTest::newRow("three") << 3 << 3000;
        QTest::newRow("negative") << -5 << 0;
        QTest::newRow("more than a timer holds") << std::numeric_limits<int>::max() << 86'400'000;
    }
    void standsAsLongAsAsked()
    {
        QFETCH(int, seconds);
        Desk desk;
        desk.report(seconds);
        const auto *timer = desk.row(1)->findChild<QTimer *>(u"AlertTimer"_s);
        QVERIFY(timer->isSingleShot());
        QTEST(timer->interval(), "milliseconds");
    }

    void saysWhatItWasGiven_data()
    {
        columns<bool, bool, int>("bold", "smiley", "left"); // pixels from the edge to the lines
        QTest::newRow("smiley") << true << true << 92;
        QTest::newRow("no smiley") << true << false << 14;
        QTest::newRow("plain word") << false << true << 92;
    }
    void saysWhatItWasGiven()
    {
        QFETCH(bool, bold);
        QFETCH(bool, smiley);
        QFETCH(int, left);
        Desk desk;
        desk.report(60, u"\"Haus\""_s, bold, smiley);
        const auto line = [&](const char *name) {
            return desk.row(1)->findChild<QLabel *>(QLatin1String(name));
        };
        QTRY_VERIFY(desk.isUp(1));
        QCOMPARE(line("Label1")->text(), u"Richtig !"_s);
        QCOMPARE(line("lblAlert")->text(), u"Das gesuchte Wort"_s);
        QCOMPARE(line("Label2")->text(), u"\"Haus\""_s);
        QCOMPARE(line("Label3")->text(), u"ist richtig."_s);
        QCOMPARE(line("Label2")->font().bold(), bold);
        QCOMPARE(line("ImgSmiley")->isVisible(), smiley);
        QCOMPARE(line("Label1")->x(), 14);
        for (const char *name : {"lblAlert", "Label2", "Label3"})
            QCOMPARE(line(name)->x(), left);
    }

    void aRunningGameKeepsItsButtonsAndSilenceItsPeace()
    {
        Desk desk;
        desk.modes.GameActive = true;
        desk.t.options.setBox(Setting::UseSounds, 0);
        desk.controls.Command3->setEnabled(false);
        desk.controls.Command4->setEnabled(true);
        desk.report(0);
        QVERIFY(desk.t.sound.resources.isEmpty());
        QVERIFY(desk.controls.Command4->isEnabled());
        QTRY_VERIFY(!desk.row(1)->isVisible());
        QVERIFY(!desk.controls.Command3->isEnabled());
        QVERIFY(desk.controls.Command2->isEnabled());
    }

    void fiveInARowReuseTheFirstSlot()
    {
        Desk desk;
        for (int slot : {1, 2, 3, 4, 1}) {
            desk.report(60);
            QCOMPARE(desk.popup->slot(), slot);
        }
        for (int slot = 2; slot <= 4; ++slot)
            QVERIFY(desk.row(slot)->geometry().bottom() < desk.row(slot - 1)->geometry().bottom());
    }

    void theCloseSignEndsItAtOnce()
    {
        Desk desk;
        QSignalSpy closed(desk.popup, &frmMsnStyle::closed);
        desk.report(60);
        desk.report(60);
        const auto press = [&](int slot) {
            QTest::mouseClick(desk.row(slot)->findChild<QToolButton *>(u"Image1"_s), Qt::LeftButton);
            QVERIFY(!desk.row(slot)->isVisible());
        };
        press(1);
        QCOMPARE(desk.popup->slot(), 2); // a later report holds the counter
        press(2);
        QCOMPARE(desk.popup->slot(), 0);
        QCOMPARE(closed.count(), 2);
        QVERIFY(desk.controls.Command2->isEnabled());
    }

    void textStaysInside_data()
    {
        QTest::addColumn<QString>("word");
        QTest::newRow("10,000 characters") << QString(10000, u'm');
        QTest::newRow("line ends and tabs") << u"\"a\nb\r\nc\td\"\n"_s;
        QTest::newRow("marks and emoji") << u"\u202E\U0001F600\u200F"_s.repeated(500);
        QTest::newRow("markup") << u"<b>Haus</b>"_s;
    }
    void textStaysInside()
    {
        QFETCH(QString, word);
        Desk desk;
        desk.report(60, word);
        QTRY_VERIFY(desk.isUp(1));
        QVERIFY(desk.form.rect().contains(desk.row(1)->geometry()));
        const auto *line = desk.row(1)->findChild<QLabel *>(u"Label2"_s);
        QCOMPARE(line->textFormat(), Qt::PlainText);
        QVERIFY(line->sizeHint().width() <= line->width() + 1);
        QVERIFY(!line->text().contains(u'\n'));
    }
};

WORTEL_TEST(MsnStyleTest)
#include "tst_msn_style.moc"
