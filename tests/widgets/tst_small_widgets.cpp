// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/columns.h"
#include "support/registry.h"
#include "widgets/alpha_panel.h"
#include "widgets/dropper.h"
#include "widgets/picture_box.h"
#include "widgets/progress_bar.h"

#include <QLineEdit>
#include <QPainter>
#include <QSignalSpy>
#include <QtTest>

using namespace Qt::StringLiterals;

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
        QTest::newRow("red") << QColor(255, 0, 0) << QColor(255, 223, 223);
        QTest::newRow("white") << QColor(255, 255, 255) << QColor(255, 255, 255);
        QTest::newRow("key colour") << QColor(255, 0, 255) << QColor(255, 255, 255);
        QTest::newRow("beside the key colour") << QColor(255, 0, 254) << QColor(255, 223, 255);
    }
    void blend()
    {
        QFETCH(QColor, board);
        QFETCH(QColor, face);
        QWidget form;
        AlphaPanel panel(&form);
        panel.setGeometry(10, 20, 30, 30);
        QImage image(100, 100, QImage::Format_RGB32);
        image.fill(Qt::white);
        image.setPixelColor(15, 27, board);
        panel.blend(image);
        QCOMPARE(panel.face().pixelColor(5, 7), face);
        QCOMPARE(panel.face().pixelColor(6, 7), QColor(Qt::white));
    }

    void blendKeepsToTheBoard_data()
    {
        QTest::addColumn<QRect>("place");
        QTest::newRow("over the right edge") << QRect(90, 90, 40, 40);
        QTest::newRow("over the left edge") << QRect(-20, -20, 40, 40);
        QTest::newRow("beside it") << QRect(500, 500, 40, 40);
        QTest::newRow("nothing") << QRect(0, 0, 0, 0);
    }
    void blendKeepsToTheBoard()
    {
        QFETCH(QRect, place);
        QWidget form;
        AlphaPanel panel(&form);
        panel.setGeometry(place);
        QImage image(100, 100, QImage::Format_ARGB32_Premultiplied);
        image.fill(Qt::black);
        panel.blend(image);
        const QRect common = place.intersected(image.rect()).translated(-place.topLeft());
        for (int y = 0; y < place.height(); ++y) {
            for (int x = 0; x < place.width(); ++x)
                QCOMPARE(qRed(panel.face().pixel(x, y)), common.contains(x, y) ? 223 : 255);
        }
        panel.blend({});
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

    void wordFieldSelectionKeepsToTheWord()
    {
        const std::tuple<int, int, QString> rows[] = {
            {1, 2, u"ah"_s}, {2, 99, u"hr"_s}, {9, 2, QString()}, {-3, 2, u"fa"_s}, {1, -2, QString()}};
        for (const auto &[start, length, selected] : rows) {
            Dropper dropper;
            dropper.setCaption(u"fahr"_s);
            dropper.select(start, length);
            QCOMPARE(dropper.findChild<QLineEdit *>()->selectedText(), selected);
            QCOMPARE(dropper.SelStart(), std::clamp(start, 0, 4));
            QCOMPARE(dropper.SelLength(), selected.size());
        }
    }

    void progressKeepsToItsBounds()
    {
        GameProgressBar bar;
        QSignalSpy changed(&bar, &GameProgressBar::ValueChanged);
        bar.setMaximum(7);
        bar.setValue(5);
        bar.setValue(5);
        bar.setValue(99);
        QCOMPARE(bar.value(), 7);
        bar.setMaximum(-4);
        QCOMPARE(bar.maximum(), 1);
        QCOMPARE(bar.value(), 1);
        bar.setCaption(u"3 Wörter vorbereitet"_s);
        bar.resetAndHide();
        QCOMPARE(bar.value(), 0);
        QCOMPARE(bar.Caption(), u"Bitte warten..."_s);
        QVERIFY(bar.isHidden());
        QCOMPARE(changed.count(), 4);
    }
};

WORTEL_TEST(SmallWidgetsTest)
#include "tst_small_widgets.moc"
