// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/test_class.h"
#include "widgets/press_button.h"

namespace {

/// A button in its window, and what it has told: "left", "right", with "+shift" where Shift was held.
struct Bench
{
    explicit Bench(bool checkable = false)
    {
        button.setParent(&window);
        button.setCheckable(checkable);
        button.resize(60, 40);
        window.show();
        QObject::connect(&button, &PressButton::mouseDown, &button,
                         [this](Qt::MouseButton which, Qt::KeyboardModifiers keys) {
                             told << (which == Qt::LeftButton ? u"left"_s : u"right"_s) +
                                         (keys & Qt::ShiftModifier ? u"+shift"_s : QString());
                         });
    }

    QWidget window;
    PressButton button;
    QStringList told;
};

} // namespace

class PressButtonTest : public QObject
{
    Q_OBJECT

private slots:
    void leftComesOnReleaseInside()
    {
        Bench bench(true);
        QTest::mousePress(&bench.button, Qt::LeftButton);
        QVERIFY(bench.told.isEmpty());
        QTest::mouseRelease(&bench.button, Qt::LeftButton, Qt::ShiftModifier);
        QCOMPARE(bench.told, QStringList{u"left+shift"_s});
        QVERIFY(bench.button.isChecked());
        QCOMPARE(bench.button.focusPolicy(), Qt::TabFocus);
    }

    void releaseOutsideIsNothing()
    {
        Bench bench(true);
        QTest::mousePress(&bench.button, Qt::LeftButton);
        QTest::mouseMove(&bench.button, QPoint(200, 200));
        QTest::mouseRelease(&bench.button, Qt::LeftButton, {}, QPoint(200, 200));
        QVERIFY(bench.told.isEmpty());
        QVERIFY(!bench.button.isChecked());
    }

    void rightComesAtOnceAndChecksNothing()
    {
        Bench bench(true);
        QTest::mousePress(&bench.button, Qt::RightButton, Qt::ShiftModifier);
        QCOMPARE(bench.told, QStringList{u"right+shift"_s});
        QTest::mouseRelease(&bench.button, Qt::RightButton);
        QCOMPARE(bench.told.size(), 1);
        QVERIFY(!bench.button.isChecked());
    }
};

WORTEL_TEST(PressButtonTest)
#include "tst_press_button.moc"
