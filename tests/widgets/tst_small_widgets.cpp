// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/test_class.h"
#include "widgets/alpha_panel.h"
#include "widgets/dropper.h"
#include "widgets/picture_box.h"

#include <QLineEdit>
#include <QPainter>

class SmallWidgetsTest : public QObject
{
    Q_OBJECT

private slots:
    void pictureSurvivesGrowingAndShrinking()
    {
        PictureBox box;
        box.resize(50, 40);
        box.setBackColour(Qt::green);
        box.cls();
        QPainter(&box.image()).fillRect(10, 10, 5, 5, Qt::red);
        box.resize(90, 80);
        box.grab(); // a hidden widget is resized when it is painted
        QVERIFY(box.image().width() >= 90 && box.image().height() >= 80);
        box.resize(20, 20);
        box.resize(90, 80);
        QCOMPARE(box.image().pixelColor(12, 12), QColor(Qt::red));
        QCOMPARE(box.grab().toImage().pixelColor(12, 12), QColor(Qt::red));
        QCOMPARE(box.grab().toImage().pixelColor(85, 75), QColor(Qt::green));
    }

    void blend_data()
    {
        columns<QColor, QColor>("board", "face");
        // 255 - (255 - c) * 32 / 255
        QTest::newRow("black") << QColor(0, 0, 0) << QColor(223, 223, 223);
        QTest::newRow("key colour") << QColor(255, 0, 255) << QColor(255, 255, 255);
        QTest::newRow("beside the key colour") << QColor(255, 0, 254) << QColor(255, 223, 255);
    }
    void blend()
    {
        QFETCH(QColor, board);
        QWidget form;
        AlphaPanel panel(&form);
        panel.setGeometry(10, 20, 30, 30);
        QImage image(100, 100, QImage::Format_RGB32);
        image.fill(Qt::white);
        image.setPixelColor(15, 27, board);
        panel.blend(image);
        QTEST(panel.face().pixelColor(5, 7), "face");
        QCOMPARE(panel.face().pixelColor(6, 7), QColor(Qt::white));
    }

    void blendOfAFineBoard()
    {
        QWidget form;
        AlphaPanel panel(&form);
        panel.setGeometry(10, 10, 20, 20);
        QImage image(200, 200, QImage::Format_RGB32);
        image.setDevicePixelRatio(2);
        image.fill(Qt::white);
        image.setPixelColor(25, 27, Qt::black);
        panel.blend(image);
        QCOMPARE(panel.face().size(), QSize(40, 40));
        QCOMPARE(panel.face().pixelColor(5, 7), QColor(223, 223, 223));
    }

    void wordFieldTellsItsKeys()
    {
        Dropper dropper;
        QSignalSpy enter(&dropper, &Dropper::EnterPress);
        QSignalSpy typed(&dropper, &Dropper::keyTyped);
        auto *line = dropper.findChild<QLineEdit *>();
        QTest::keyClicks(line, u"Haß"_s);
        QTest::keyClick(line, Qt::Key_Backspace);
        QTest::keyClick(line, Qt::Key_Left);
        QTest::keyClick(line, Qt::Key_Shift);
        for (const Qt::Key leaving : {Qt::Key_Tab, Qt::Key_Backtab}) {
            QKeyEvent key(QEvent::KeyPress, leaving, Qt::NoModifier, u"\t"_s);
            QCoreApplication::sendEvent(line, &key);
        }
        QCOMPARE(dropper.Caption(), u"Ha"_s);
        QCOMPARE(typed.count(), 4); // keys that type nothing are silent
        QCOMPARE(enter.count(), 0);
        QTest::keyClick(line, Qt::Key_Return);
        QTest::keyClick(line, Qt::Key_Enter);
        QCOMPARE(enter.count(), 2);
        QCOMPARE(typed.count(), 4);
    }
};

WORTEL_TEST(SmallWidgetsTest)
#include "tst_small_widgets.moc"
