// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/test_class.h"
#include "widgets/click_label.h"
#include "widgets/main_controls.h"
#include "widgets/press_button.h"

class MainControlsTest : public QObject
{
    Q_OBJECT

private slots:
    /// A reader of the screen can name each, and none is an empty face.
    void everyToolHasAFaceAndAName()
    {
        QWidget form;
        makeMainControls(&form);
        const QList<PressButton *> tools = form.findChildren<PressButton *>();
        QVERIFY(tools.size() >= 20);
        for (const PressButton *tool : tools) {
            QVERIFY2(!tool->accessibleName().isEmpty(), qPrintable(tool->objectName()));
            QVERIFY2(!tool->text().isEmpty() || !tool->icon().pixmap(28).isNull(),
                     qPrintable(tool->objectName()));
        }
        QVERIFY(!form.findChild<ClickLabel *>(u"Image1"_s)->pixmap().isNull());
    }

    void oneLevelIsLitAndVowelsAreFree()
    {
        QWidget form;
        const MainControls c = makeMainControls(&form);
        const auto lit = [&] {
            QString text;
            for (const PressButton *level : c.Option2)
                text += level->isChecked() ? level->text() : QString();
            return text;
        };
        QCOMPARE(lit(), u"1"_s);
        for (const std::size_t level : {2U, 0U, 1U}) {
            c.Option2.at(level)->setChecked(true);
            QCOMPARE(lit(), QString::number(level + 1));
        }
        QTest::mouseClick(c.Option2[2], Qt::LeftButton);
        QCOMPARE(lit(), u"3"_s);
        QTest::mouseClick(c.Option2[2], Qt::LeftButton); // stays lit
        QCOMPARE(lit(), u"3"_s);
        for (PressButton *vowel : c.ChkVokal)
            vowel->setChecked(true);
        QVERIFY(c.ChkVokal[0]->isChecked() && c.ChkVokal[1]->isChecked());
        QTest::mouseClick(c.ChkVokal[0], Qt::LeftButton);
        QVERIFY(!c.ChkVokal[0]->isChecked() && c.ChkVokal[1]->isChecked());
        QCOMPARE(lit(), u"3"_s);
    }

    void aFingerHitsEveryTool()
    {
        QWidget form;
        const MainControls c = makeMainControls(&form);
        for (const int width : {632, 853, 1920}) {
            layOutMainControls(c, width, 480);
            for (const QWidget *panel : {c.Picture2, c.Picture3, c.Picture4}) {
                QRegion taken;
                for (const QWidget *tool : panel->findChildren<PressButton *>()) {
                    QVERIFY(panel->rect().contains(tool->geometry()) && !taken.intersects(tool->geometry()));
                    taken += tool->geometry();
                }
            }
            QVERIFY(c.Label4->width() >= 24 && c.Label4->height() >= 24);
        }
    }
};

WORTEL_TEST(MainControlsTest)
#include "tst_main_controls.moc"
