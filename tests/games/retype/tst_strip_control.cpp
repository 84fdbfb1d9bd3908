// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/test_class.h"
#include "support/test_house.h"
#include "widgets/gradient.h"

namespace {

/// The house with a running strip.
struct Desk : TestHouse
{
    StripControl &control = r.strip;
    MsgScroller &strip = *controls.Scroller;

    Desk()
        : TestHouse(1, {1000, 700})
    {
        strip.AddItem(u"Haus"_s);
        strip.AddItem(u"Maus"_s);
        strip.setEnabled(true);
        strip.setScroll(true);
        strip.show();
    }

    void drag(const QPoint &position, Qt::KeyboardModifiers keys)
    {
        QMouseEvent event(QEvent::MouseMove, position, position, Qt::NoButton, Qt::LeftButton, keys);
        QCoreApplication::sendEvent(&strip, &event);
    }
};

} // namespace

class StripControlTest : public QObject
{
    Q_OBJECT

private slots:
    void places()
    {
        Desk desk;
        for (const auto &[option, place] : {std::pair{Setting::ScrollerMiddlePos, QPoint(0, 239)},
                                            {Setting::ScrollerLeftUpPos, QPoint(0, 0)}}) {
            desk.t.options.setOption(option);
            desk.control.PlaceTheMsgScroller();
            QCOMPARE(desk.strip.pos(), place);
            QCOMPARE(desk.strip.width(), 1000);
        }
        desk.t.options.setOption(Setting::ScrollerRndPos);
        QSet<int> seen;
        for (int round = 0; round < 1000; ++round) {
            desk.control.PlaceTheMsgScroller();
            QVERIFY(QRect(0, 80, 1000, desk.controls.Picture1->y() - 80).contains(desk.strip.geometry()));
            QVERIFY(desk.strip.geometry().right() == 999 && desk.strip.width() >= 750);
            seen.insert(desk.strip.x());
        }
        QVERIFY(seen.size() > 100);
    }

    /// From the smallest laptop to the whiteboard: letters to be read, room for them, never over the word
    /// field; what a hand has moved stays.
    void fitsTheBoard()
    {
        Desk desk;
        desk.t.options.setOption(Setting::ScrollerRndPos);
        for (const QSize &size : {QSize(640, 420), QSize(853, 480), QSize(1280, 800), QSize(1920, 1080)}) {
            desk.form.resize(size);
            desk.form.show();
            desk.control.PlaceTheMsgScroller();
            const int letters = desk.strip.font().pixelSize();
            QVERIFY(letters >= std::max(24, size.height() / 25) && letters < desk.strip.height());
            QVERIFY(desk.strip.geometry().bottom() < desk.controls.Picture1->y());
        }
        desk.form.resize(800, 600); // while words run
        QCOMPARE(desk.strip.geometry().right(), 799);
        QTest::mousePress(&desk.strip, Qt::LeftButton, Qt::ShiftModifier, {20, 10});
        desk.drag({25, 12}, Qt::ShiftModifier);
        const QRect moved = desk.strip.geometry();
        desk.form.resize(900, 700);
        QCOMPARE(desk.strip.geometry(), moved);
    }

    void takesItsValuesFromTheOptions()
    {
        Desk desk;
        for (const int allowed : {2, 0}) {
            desk.t.options.setBox(Setting::ScrollerCanPan, allowed);
            QVERIFY(desk.t.options.ApplySettings());
            QCOMPARE(desk.strip.AllowPan(), allowed != 0);
            QCOMPARE(desk.strip.toolTip(), allowed != 0 ? u"Verschieben / Anhalten"_s : QString());
        }
        desk.t.options.setText(Setting::ScrollerSpeed, u"99999"_s); // beyond 16 bits: the old speed stays
        const int speed = desk.strip.ScrollSpeed();
        QVERIFY(desk.t.options.ApplySettings());
        QCOMPARE(desk.strip.ScrollSpeed(), speed);
    }

    void movesWithShift()
    {
        Desk desk;
        desk.strip.move(100, 100);
        QTest::mousePress(&desk.strip, Qt::LeftButton, Qt::ShiftModifier, {20, 10});
        desk.drag({50, 15}, Qt::ShiftModifier);
        QCOMPARE(desk.strip.pos(), QPoint(130, 105));
        desk.drag({60, 15}, Qt::NoModifier);
        QCOMPARE(desk.strip.pos(), QPoint(130, 105));
    }

    void rightButtonPauses()
    {
        for (const auto &[allowed, keys, pauses] : {std::tuple{1, Qt::NoModifier, true},
                                                    {0, Qt::NoModifier, false},
                                                    {1, Qt::ShiftModifier, false}}) {
            Desk desk;
            desk.t.options.setBox(Setting::ScrollerCanPan, allowed);
            QTest::mouseClick(&desk.strip, Qt::RightButton, keys, {20, 10});
            QCOMPARE(desk.strip.isTimerOn(), !pauses);
            QTest::mouseClick(&desk.strip, Qt::RightButton, keys, {20, 10});
            QVERIFY(desk.strip.isTimerOn());
        }
    }

    void keepsTheClickedWord()
    {
        Desk desk;
        while (desk.strip.Offset() < 0)
            desk.strip.tick();
        const ScrollerStrip::HotSpot spot = desk.strip.strip().hotSpots().at(1);
        QTest::mouseClick(&desk.strip, Qt::LeftButton, {}, {spot.left + 2, 10});
        QCOMPARE(desk.control.LastScrollerWord(), u"Maus"_s);
    }
};

WORTEL_TEST(StripControlTest)
#include "tst_strip_control.moc"
