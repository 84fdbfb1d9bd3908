// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/test_class.h"
#include "widgets/msg_scroller.h"

namespace {

void fill(MsgScroller &strip, const QStringList &words = {u"Haus"_s, u"Maus"_s})
{
    strip.setSeperator(u"    "_s);
    strip.resize(300, 30);
    strip.setEnabled(true);
    for (const QString &word : words)
        strip.AddItem(word, word);
}

/// Moves the pointer without the cursor of the platform, which knows no widgets that overlap.
void movePointer(MsgScroller &strip, const QPoint &position, Qt::MouseButtons buttons = Qt::NoButton)
{
    QMouseEvent event(QEvent::MouseMove, position, strip.mapToGlobal(QPointF(position)), Qt::NoButton,
                      buttons, Qt::NoModifier);
    QCoreApplication::sendEvent(&strip, &event);
}

bool hasInk(const QImage &image, const QRect &area, const QColor &colour)
{
    for (int y = area.top(); y <= area.bottom(); ++y)
        for (int x = area.left(); x <= area.right(); ++x)
            if (image.pixelColor(x, y) == colour)
                return true;
    return false;
}

} // namespace

class MsgScrollerTest : public QObject
{
    Q_OBJECT

private slots:
    void runsWhileItIsAskedTo()
    {
        MsgScroller strip;
        strip.setScroll(true);
        QVERIFY2(!strip.isTimerOn(), "nothing to show");
        fill(strip);
        QVERIFY(strip.Running());
        QVERIFY(strip.isTimerOn());
        strip.setScroll(false);
        QVERIFY(!strip.isTimerOn());
        QCOMPARE(strip.Offset(), -250);

        strip.setAutoScroll(true);
        strip.show();
        QVERIFY(!strip.Running());
        const int fits = strip.strip().StripWidth();
        strip.resize(fits - 1, 30);
        QVERIFY(strip.Running());
        strip.resize(fits, 30);
        QVERIFY(!strip.Running());

        strip.setScroll(true);
        strip.tick();
        strip.Clear();
        QVERIFY(!strip.isTimerOn());
        QCOMPARE(strip.Offset(), -250);
        QCOMPARE(strip.ListCount(), 0);
    }

    void ticks()
    {
        MsgScroller strip;
        fill(strip, {u"Haus"_s});
        strip.setScroll(true);
        strip.tick();
        QCOMPARE(strip.Offset(), -247);
        strip.setScrollSpeed(10);
        strip.setScrollSpeed(0); // leaves the old speed
        strip.tick();
        QCOMPARE(strip.Offset(), -237);
        // A single item follows itself.
        while (strip.Offset() < 0)
            strip.tick();
        QVERIFY(strip.strip().pieces().size() >= 2);
        QCOMPARE(strip.strip().pieces().at(1).text, u"Haus"_s);
        const int cycle = strip.strip().cycleLength();
        for (int tick = 0; tick < 200; ++tick) {
            strip.tick();
            QVERIFY(strip.Offset() >= 0 && strip.Offset() <= cycle);
        }
    }

    void keepsToTheClock_data()
    {
        columns<QList<qint64>, QList<int>>("times", "ticks"); // of 100 ms; all ticks up to each time
        QTest::newRow("punctual") << QList<qint64>{99, 100, 199, 200, 300} << QList{0, 1, 1, 2, 3};
        QTest::newRow("always late") << QList<qint64>{107, 199, 200, 318, 400, 493, 500}
                                     << QList{1, 1, 2, 3, 4, 4, 5};
        QTest::newRow("a tick missed") << QList<qint64>{100, 320, 400} << QList{1, 3, 4};
        QTest::newRow("asleep for an hour")
            << QList<qint64>{100, 3'600'130, 3'600'229, 3'600'230} << QList{1, 3, 3, 4};
    }
    void keepsToTheClock()
    {
        QFETCH(QList<qint64>, times);
        MsgScroller strip;
        fill(strip);
        strip.setScrollInterval(100);
        strip.setScroll(true);
        QList<int> ticks;
        for (const qint64 time : times) {
            strip.advance(time);
            ticks << (strip.Offset() + 250) / 3;
        }
        QTEST(ticks, "ticks");
        // Paused, or with no time from tick to tick, it stands.
        const int stood = strip.Offset();
        strip.ToggleScroll();
        strip.advance(times.last() + 1000);
        strip.setScrollInterval(0);
        strip.ToggleScroll();
        strip.advance(times.last() + 2000);
        QCOMPARE(strip.Offset(), stood);
    }

    void pans()
    {
        MsgScroller strip;
        fill(strip);
        strip.setScroll(true);
        strip.show();
        QTest::mousePress(&strip, Qt::LeftButton, {}, {200, 10});
        QVERIFY(strip.Panning());
        QVERIFY(!strip.isTimerOn());
        QCOMPARE(strip.cursor().shape(), Qt::ClosedHandCursor);
        movePointer(strip, {150, 10}, Qt::LeftButton);
        QCOMPARE(strip.Offset(), -200);
        movePointer(strip, {210, 10}, Qt::LeftButton);
        QCOMPARE(strip.Offset(), -260);

        // A colour is seen at once now, otherwise at the next tick.
        movePointer(strip, {0, 10}, Qt::LeftButton);
        QVERIFY(!strip.strip().pieces().empty());
        strip.setItemColor(1, 0x0000FF);
        QCOMPARE(strip.strip().pieces().front().colour, 0x0000FF);

        QTest::mouseRelease(&strip, Qt::LeftButton, {}, {0, 10});
        QVERIFY(!strip.Panning());
        QVERIFY(strip.isTimerOn());
        QCOMPARE(strip.cursor().shape(), Qt::ArrowCursor);
        strip.setItemColor(1, 0x00FF00);
        QCOMPARE(strip.strip().pieces().front().colour, 0x0000FF);
        strip.tick();
        QCOMPARE(strip.strip().pieces().front().colour, 0x00FF00);

        strip.ToggleScroll();
        QTest::mousePress(&strip, Qt::LeftButton, {}, {200, 10});
        QTest::mouseRelease(&strip, Qt::LeftButton, {}, {200, 10});
        QVERIFY2(!strip.isTimerOn(), "a paused strip stays paused");
    }

    void panNeedsPermission_data()
    {
        columns<bool, bool, Qt::MouseButton>("allowed", "scroll", "button");
        QTest::newRow("not allowed") << false << true << Qt::LeftButton;
        QTest::newRow("standing") << true << false << Qt::LeftButton;
        QTest::newRow("right button") << true << true << Qt::RightButton;
    }
    void panNeedsPermission()
    {
        QFETCH(bool, allowed);
        QFETCH(bool, scroll);
        QFETCH(Qt::MouseButton, button);
        MsgScroller strip;
        fill(strip);
        strip.setAllowPan(allowed);
        strip.setScroll(scroll);
        QTest::mousePress(&strip, button, {}, {200, 10});
        QVERIFY(!strip.Panning());
        QCOMPARE(strip.isTimerOn(), scroll);
    }

    void panSurvivesTheEndOfTheRun()
    {
        MsgScroller strip;
        fill(strip);
        strip.setScroll(true);
        strip.show();
        QTest::mousePress(&strip, Qt::LeftButton, {}, {200, 10});
        strip.Clear();
        strip.setScroll(false);
        QTest::mouseRelease(&strip, Qt::LeftButton, {}, {200, 10});
        QVERIFY(!strip.isTimerOn());

        strip.AddItem(u"Haus"_s);
        strip.setScroll(true);
        QTest::mousePress(&strip, Qt::LeftButton, {}, {200, 10});
        strip.setEnabled(false);
        QVERIFY2(!strip.Panning(), "a disabled strip hears of no release");
        QVERIFY(strip.isTimerOn());
    }

    void colours()
    {
        MsgScroller strip;
        QFont large = strip.font();
        large.setPixelSize(24);
        strip.setFont(large);
        strip.setBackColor(Qt::yellow);
        strip.setForeColor(Qt::black);
        fill(strip, {u"IIII"_s, u"HHHH"_s});
        strip.setItemColor(2, 0xFF0000);
        strip.Refresh();
        const QImage image = strip.grab().toImage();
        const ScrollerStrip::HotSpot first = strip.strip().hotSpots().at(0);
        const ScrollerStrip::HotSpot second = strip.strip().hotSpots().at(1);
        QVERIFY(hasInk(image, {first.left, 2, first.right - first.left, 26}, Qt::black));
        QVERIFY(hasInk(image, {second.left, 2, second.right - second.left, 26}, Qt::blue));
        QVERIFY(!hasInk(image, {second.left, 2, second.right - second.left, 26}, Qt::black));
        QCOMPARE(image.pixelColor(5, 3), QColor(Qt::yellow));
        QCOMPARE(image.pixelColor(290, 15), QColor(Qt::white));
    }
};

WORTEL_TEST(MsgScrollerTest)
#include "tst_msg_scroller.moc"
