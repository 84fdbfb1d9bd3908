// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/columns.h"
#include "support/registry.h"
#include "support/test_house.h"

#include <QtTest>

using namespace Qt::StringLiterals;

namespace {

/// The house with a running strip.
struct Desk : TestHouse
{
    TestGround &test = t;
    StripControl &control = r.strip;
    MsgScroller &strip = *controls.Scroller;

    explicit Desk(int width = 853, int height = 480)
        : TestHouse(1, {width, height})
    {}

    void run()
    {
        strip.AddItem(u"Haus"_s);
        strip.AddItem(u"Maus"_s);
        strip.setEnabled(true);
        strip.setScroll(true);
        strip.show();
    }

    void move(const QPoint &position, Qt::KeyboardModifiers keys, Qt::MouseButtons buttons = Qt::LeftButton)
    {
        QMouseEvent event(QEvent::MouseMove, position, position, Qt::NoButton, buttons, keys);
        QCoreApplication::sendEvent(&strip, &event);
    }
};

} // namespace

class StripControlTest : public QObject
{
    Q_OBJECT

private slots:
    void places_data();
    void places();
    void placesByChance();
    void takesItsValuesFromTheOptions();
    void movesWithShift();
    void rightButtonPauses_data();
    void rightButtonPauses();
    void keepsTheClickedWord();
    void takesEditedWords();
};

void StripControlTest::places_data()
{
    columns<int, QPoint>("option", "place");
    // The band is 88 high, the strip 250 by 30.
    QTest::newRow("middle") << static_cast<int>(Setting::ScrollerMiddlePos) << QPoint(375, 247);
    QTest::newRow("upper left") << static_cast<int>(Setting::ScrollerLeftUpPos) << QPoint(0, 0);
}

void StripControlTest::places()
{
    QFETCH(int, option);
    Desk desk(1000, 700);
    desk.test.options.setOption(static_cast<Setting>(option));
    desk.strip.resize(250, 30);
    desk.control.PlaceTheMsgScroller();
    QTEST(desk.strip.pos(), "place");
}

void StripControlTest::placesByChance()
{
    Desk desk(1000, 700);
    desk.test.options.setOption(Setting::ScrollerRndPos);
    desk.strip.resize(250, 30);
    QSet<int> seen;
    for (int round = 0; round < 1000; ++round) {
        desk.control.PlaceTheMsgScroller();
        QVERIFY(QRect(0, 80, 1000, 620).contains(desk.strip.geometry()));
        seen.insert(desk.strip.x());
    }
    QVERIFY(seen.size() > 200);
}

void StripControlTest::takesItsValuesFromTheOptions()
{
    Desk desk;
    QCOMPARE(desk.strip.Seperator(), QString(36, u' '));
    QCOMPARE(desk.strip.ScrollInterval(), 125);
    QVERIFY(!desk.strip.isEnabled());
    QVERIFY(desk.strip.isHidden());
    QCOMPARE(desk.strip.toolTip(), u"Verschieben / Anhalten"_s);

    desk.test.options.setBox(Setting::ScrollerCanPan, 2);
    QVERIFY(desk.test.options.ApplySettings());
    QVERIFY(desk.strip.AllowPan());
    QCOMPARE(desk.strip.toolTip(), u"Verschieben / Anhalten"_s);

    desk.test.options.setText(Setting::ScrollerSpeed, u"7"_s);
    desk.test.options.setBox(Setting::ScrollerCanPan, 0);
    QVERIFY(desk.test.options.ApplySettings());
    QCOMPARE(desk.strip.ScrollSpeed(), 7);
    QVERIFY(!desk.strip.AllowPan());
    QCOMPARE(desk.strip.toolTip(), QString());
    // A number that fits no 16 bits leaves the old speed.
    desk.test.options.setText(Setting::ScrollerSpeed, u"99999"_s);
    QVERIFY(desk.test.options.ApplySettings());
    QCOMPARE(desk.strip.ScrollSpeed(), 7);
}

void StripControlTest::movesWithShift()
{
    Desk desk;
    desk.run();
    desk.strip.move(100, 100);
    QTest::mousePress(&desk.strip, Qt::LeftButton, Qt::ShiftModifier, {20, 10});
    desk.move({50, 15}, Qt::ShiftModifier);
    QCOMPARE(desk.strip.pos(), QPoint(130, 105));
    desk.move({60, 15}, Qt::NoModifier);
    QCOMPARE(desk.strip.pos(), QPoint(130, 105));
    QTest::mouseRelease(&desk.strip, Qt::LeftButton, Qt::ShiftModifier, {20, 10});
    desk.move({70, 15}, Qt::ShiftModifier, Qt::NoButton);
    QCOMPARE(desk.strip.pos(), QPoint(130, 105));
}

void StripControlTest::rightButtonPauses_data()
{
    columns<int, Qt::KeyboardModifiers, bool>("allowed", "keys", "pauses");
    QTest::newRow("allowed") << 1 << Qt::KeyboardModifiers() << true;
    QTest::newRow("not allowed") << 0 << Qt::KeyboardModifiers() << false;
    QTest::newRow("with Shift") << 1 << Qt::KeyboardModifiers(Qt::ShiftModifier) << false;
}

void StripControlTest::rightButtonPauses()
{
    QFETCH(int, allowed);
    QFETCH(Qt::KeyboardModifiers, keys);
    QFETCH(bool, pauses);
    Desk desk;
    desk.test.options.setBox(Setting::ScrollerCanPan, allowed);
    desk.run();
    QTest::mouseClick(&desk.strip, Qt::RightButton, keys, {20, 10});
    QCOMPARE(desk.strip.isTimerOn(), !pauses);
    QTest::mouseClick(&desk.strip, Qt::RightButton, keys, {20, 10});
    QVERIFY(desk.strip.isTimerOn());
}

void StripControlTest::keepsTheClickedWord()
{
    Desk desk;
    desk.run();
    while (desk.strip.Offset() < 0)
        desk.strip.tick();
    const ScrollerStrip::HotSpot spot = desk.strip.strip().hotSpots().at(1);
    QTest::mouseClick(&desk.strip, Qt::LeftButton, {}, {spot.left + 2, 10});
    QCOMPARE(desk.control.LastScrollerWord(), u"Maus"_s);
    desk.control.MsgScroller_HotSpotClick(9);
    QCOMPARE(desk.control.LastScrollerWord(), u"Maus"_s);
    QVERIFY(desk.test.ok());
}

void StripControlTest::takesEditedWords()
{
    Desk desk;
    desk.control.takeWords({u"eins"_s}, false);
    QCOMPARE(desk.strip.ListCount(), 0);
    desk.control.takeWords({u"eins"_s, u"zwei"_s}, true);
    QCOMPARE(desk.strip.ListCount(), 2);
    desk.control.takeWords({u"drei"_s}, false);
    QCOMPARE(desk.strip.ListCount(), 1);
    QCOMPARE(desk.strip.List(1), u"drei"_s);
}

WORTEL_TEST(StripControlTest)
#include "tst_strip_control.moc"
