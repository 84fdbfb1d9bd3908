// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/columns.h"
#include "support/registry.h"
#include "widgets/click_label.h"
#include "widgets/main_controls.h"
#include "widgets/press_button.h"

#include <QFile>
#include <QtTest>

using namespace Qt::StringLiterals;

class MainControlsTest : public QObject
{
    Q_OBJECT

private slots:
    void tools_data()
    {
        columns<QString, QString, QString>("picture", "caption", "toolTip");
        const auto row = [](const char *name, const QString &picture, const QString &caption,
                            const QString &toolTip) { QTest::newRow(name) << picture << caption << toolTip; };
        row("OptType(0)", {}, u"0"_s, u"nur Wortel zeigen / Wortel-Liste zeigen"_s);
        row("OptType(1)", {}, u"0"_s, u"nur Präfix zeigen / Präfix-Liste zeigen"_s);
        row("OptType(2)", {}, u"0"_s, u"nur Suffix zeigen / Suffix-Liste zeigen"_s);
        row("OptType(3)", {}, u"0"_s, u"Präfix+Wortel+Suffix zeigen / Listen zeigen"_s);
        row("Check1", {}, u"Alle"_s, {});
        row("Check2", {}, u"Wortel"_s, u"Wortel einfügen / Wortel-Liste laden"_s);
        row("Option1(0)", u"drag-word-check"_s, {}, u"Ziehmodus Wortkontrolle"_s);
        row("Option1(1)", u"drag-normal"_s, {}, u"normaler Ziehmodus"_s);
        row("Command1", u"help"_s, {}, u"Hilfe für Wortel"_s);
        row("Command2", u"word-check"_s, {}, u"Wortkontrolle / Wortsuche"_s);
        row("Command3", u"dictionary"_s, {}, u"Wörterbuch zeigen / Wörterbuch laden"_s);
        row("Command4", u"check-mark"_s, {}, u"Wörterliste zeigen / Wörterliste speichern"_s);
        row("Command5", u"erase"_s, {}, u"Löschen / Großschreibung"_s);
        row("Command6", u"options"_s, {}, u"Optionen"_s);
        row("Check3", u"stopwatch"_s, {}, u"Spiel starten / Bestenliste zeigen"_s);
        row("Check4", u"copy-down"_s, {},
            u"Abschreiben: Wörterliste / Wörterbuch (+Umschalt: Unsinnswörter)"_s);
        row("Option2(0)", {}, u"1"_s, u"Schwierigkeitsstufe 1"_s);
        row("Option2(1)", {}, u"2"_s, u"Schwierigkeitsstufe 2"_s);
        row("Option2(2)", {}, u"3"_s, u"Schwierigkeitsstufe 3"_s);
        row("ChkVokal(0)", u"short-vowel"_s, u"kurz"_s, u"Kurzvokal-Kontrolle"_s);
        row("ChkVokal(1)", u"long-vowel"_s, u"lang"_s, u"Langvokal-Kontrolle"_s);
        row("Image1", u"bulb"_s, {}, u"Rechtschreib-Tipp zeigen"_s);
    }
    void tools()
    {
        QFETCH(QString, picture);
        QFETCH(QString, caption);
        QWidget form;
        makeMainControls(&form);
        const QString name = QString::fromLatin1(QTest::currentDataTag());
        const auto *tool = form.findChild<QWidget *>(name);
        QVERIFY(tool != nullptr);
        QTEST(tool->toolTip(), "toolTip");
        QVERIFY(!tool->accessibleName().isEmpty());
        const auto *button = qobject_cast<const PressButton *>(tool);
        const auto *label = qobject_cast<const ClickLabel *>(tool);
        QCOMPARE(button != nullptr ? button->text() : label->text(), caption);
        const QPixmap shown = button != nullptr ? button->icon().pixmap(28) : label->pixmap();
        QCOMPARE(shown.isNull(), picture.isEmpty());
        if (picture.isEmpty())
            return;
        const QString file = u":/icons/"_s + picture + u".svg"_s;
        QVERIFY(QFile::exists(file));
        QCOMPARE(shown.toImage(), QIcon(file).pixmap(28).toImage());
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
};

WORTEL_TEST(MainControlsTest)
#include "tst_main_controls.moc"
