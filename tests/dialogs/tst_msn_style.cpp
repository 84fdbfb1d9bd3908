// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "dialogs/report_window.h"
#include "support/test_class.h"
#include "support/test_house.h"
#include "widgets/gradient.h"

#include <QLabel>
#include <QToolButton>

#include <limits>

namespace {

struct Desk : TestHouse
{
    frmMsnStyle *popup = &r.popup;

    Desk()
        : TestHouse(1, {853, 480})
    {
        form.show();
    }

    void report(int seconds, const QString &word = u"\"Haus\""_s)
    {
        popup->Display(u"Richtig !"_s, u"Das gesuchte Wort \n"_s, word, u"ist richtig."_s, seconds,
                       SoundId::WordRight, true, true);
    }
    ReportWindow *row(int slot) const
    {
        return form.findChild<ReportWindow *>(u"frmMsnStyle(%1)"_s.arg(slot));
    }
    QTimer *alert(int slot) const { return row(slot)->findChild<QTimer *>(u"AlertTimer"_s); }
    bool isUp(int slot) const
    {
        return row(slot)->isVisible() && row(slot)->height() == row(slot)->fullHeight();
    }
    /// The tools that a report puts to rest, by their state.
    QString tools()
    {
        QString states;
        for (const QWidget *tool : std::initializer_list<const QWidget *>{
                 controls.Command2, controls.Command5, controls.Command3, controls.Command4})
            states += tool->isEnabled() ? u'+' : u'-';
        return states + (form.sheet().acts(controls.Check4) ? u'+' : u'-');
    }
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
        desk.t.sound.resources.clear();
        desk.report(1);
        ReportWindow *window = desk.row(1);
        const int foot = window->geometry().bottom();
        QCOMPARE(window->x(), 31);
        QCOMPARE(window->y(), desk.controls.Picture1->y() + 14);
        QCOMPARE(window->height(), 6);
        QCOMPARE(desk.t.sound.resources, QList<int>{101});
        QCOMPARE(desk.tools(), u"-----"_s);
        QTRY_VERIFY(desk.isUp(1));
        QCOMPARE(window->geometry().bottom(), foot);
        QTRY_COMPARE(closed.count(), 1);
        QVERIFY(!window->isVisible());
        QCOMPARE(desk.popup->slot(), 0);
        QCOMPARE(desk.trouble(), QString());
    }

    /// A pointer that was moved onto it holds it, a forgotten one and a finger do not, and a key lets it go.
    void staysUnderThePointer()
    {
        Desk desk;
        desk.report(0);
        ReportWindow *window = desk.row(1);
        const auto point = [&](Qt::MouseEventSource source) {
            QMouseEvent event(QEvent::MouseMove, {5, 5}, {5, 5}, {5, 5}, {}, {}, {}, source);
            QApplication::sendEvent(window->findChild<QLabel *>(u"Label2"_s), &event);
        };
        point(Qt::MouseEventNotSynthesized);
        QTest::qWait(800);
        QVERIFY(desk.isUp(1));
        QVERIFY2(!desk.tools().contains(u'-'), "the tools wait for its time only");
        QEvent leave(QEvent::Leave);
        QApplication::sendEvent(window, &leave);
        QTRY_VERIFY(window->height() < window->fullHeight());
        point(Qt::MouseEventNotSynthesized); // it was sinking already
        QTRY_VERIFY(desk.isUp(1));
        QTest::keyClick(&desk.form, Qt::Key_A);
        point(Qt::MouseEventSynthesizedByQt);
        QTRY_VERIFY(!window->isVisible());
        QCOMPARE(desk.trouble(), QString());
    }

    /// Its time begins when it has slid up.
    void standsItsTime_data()
    {
        columns<int, int>("seconds", "interval");
        QTest::newRow("two seconds") << 2 << 2000;
        QTest::newRow("none") << 0 << 0;
        QTest::newRow("a day at most") << 1000000 << 24 * 3600 * 1000;
    }
    void standsItsTime()
    {
        QFETCH(int, seconds);
        Desk desk;
        desk.report(seconds);
        QTEST(desk.alert(1)->interval(), "interval");
        QVERIFY(!desk.alert(1)->isActive());
        if (desk.alert(1)->interval() == 0)
            return;
        QTRY_VERIFY(desk.alert(1)->isActive());
        QVERIFY(desk.isUp(1));
    }

    void aRunningGameKeepsItsButtonsAndSilenceItsPeace()
    {
        Desk desk;
        desk.play.startGame(PlayState::Phase::Playing, Vowels::None);
        desk.t.options.setBox(Setting::UseSounds, 0);
        desk.t.sound.resources.clear();
        desk.report(60);
        QVERIFY(desk.t.sound.resources.isEmpty());
        QCOMPARE(desk.tools(), u"--++-"_s);
        emit desk.row(1)->closePressed();
        QCOMPARE(desk.tools(), u"+++++"_s);
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
        QCOMPARE(desk.tools(), u"+++++"_s);
    }

    void textStaysInside_data()
    {
        QTest::addColumn<QString>("word");
        QTest::newRow("10,000 characters") << QString(10000, u'm');
        QTest::newRow("line ends and tabs") << u"\"a\nb\r\nc\td\"\n"_s;
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
