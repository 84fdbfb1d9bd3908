// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "persistence/settings/frm_options.h"
#include "persistence/settings/option_fields.h"
#include "persistence/settings/options_layout.h"
#include "platform/options.h"
#include "support/test_class.h"
#include "support/test_ground.h"

#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

class FrmOptionsTest : public QObject
{
    Q_OBJECT

private:
    static QLineEdit *box(const frmOptions &window, const char *name)
    {
        return window.findChild<QLineEdit *>(QLatin1String(name));
    }
    static QWidget *control(const frmOptions &window, const SettingRow &row)
    {
        return window.findChild<QWidget *>(QLatin1String(row.frame))
            ->findChild<QWidget *>(QLatin1String(row.control));
    }
    static void press(frmOptions &window, const char *name)
    {
        QTest::mouseClick(window.findChild<QPushButton *>(QLatin1String(name)), Qt::LeftButton);
    }
    /// Opens the window as the game does and runs `act` while it is open.
    static void whileOpen(frmOptions &window, const std::function<void()> &act)
    {
        QTimer::singleShot(0, &window, act);
        window.edit();
        QVERIFY(!window.isVisible());
    }

private slots:
    void everySettingHasAControlThatEditsIt_data()
    {
        QTest::addColumn<Setting>("id");
        for (const SettingRow &row : settingsTable())
            if (row.window == SettingsWindow::frmOptions)
                QTest::newRow(row.key) << row.id;
    }
    void everySettingHasAControlThatEditsIt()
    {
        QFETCH(Setting, id);
        const SettingRow &row = settingRow(id);
        TestGround t;
        frmOptions window(t.ground);
        window.show();
        for (const options_layout::PageRow &page : options_layout::pages)
            if (window.findChild<QWidget *>(QString::fromUtf16(page.frame))
                    ->findChild<QWidget *>(QLatin1String(row.frame)) ||
                QString::fromUtf16(page.frame) == QLatin1String(row.frame))
                window.ShowProperFrame(QString::fromUtf16(page.frame));
        QWidget *edit = control(window, row);
        QVERIFY(edit && edit->isVisible());
        QVERIFY(edit->height() >= edit->heightForWidth(edit->width()));
        if (auto *text = qobject_cast<QLineEdit *>(edit)) {
            text->clear();
            QTest::keyClicks(text, u"-12"_s);
            const QString typed = row.type == SettingType::Integer ? u"12"_s : u"-12"_s;
            QCOMPARE(t.options.text(id), typed);
            t.options.setText(id, u"7"_s);
            QCOMPARE(text->text(), u"7"_s);
        } else if (auto *sizes = qobject_cast<QComboBox *>(edit)) {
            QTest::keyClick(sizes, Qt::Key_End);
            QCOMPARE(t.options.text(id), u"300"_s);
            t.options.setText(id, u"150"_s);
            QCOMPARE(sizes->currentText(), u"150 %"_s);
        } else if (row.type == SettingType::Box) {
            const bool before = t.options.isOn(id);
            QTest::mouseClick(edit, Qt::LeftButton);
            QCOMPARE(t.options.isOn(id), !before);
            t.options.setBox(id, before ? 1 : 0);
            QCOMPARE(qobject_cast<QAbstractButton *>(edit)->isChecked(), before);
        } else {
            QTest::mouseClick(edit, Qt::LeftButton);
            QTest::mouseClick(edit, Qt::LeftButton); // a second click does not clear it
            QVERIFY(t.options.isOn(id) && qobject_cast<QAbstractButton *>(edit)->isChecked());
        }
    }

    void pagesFitTheSmallestScreen()
    {
        TestGround t;
        frmOptions window(t.ground);
        window.show();
        window.resize(837, 448);
        for (const options_layout::PageRow &page : options_layout::pages) {
            const QString name = QString::fromUtf16(page.frame);
            window.ShowProperFrame(name);
            QCoreApplication::processEvents();
            QWidget *frame = window.findChild<QWidget *>(name);
            QVERIFY(frame->isVisible());
            QVERIFY2(frame->minimumSizeHint().width() <= frame->parentWidget()->width(), qPrintable(name));
            QVERIFY2(frame->height() <= frame->parentWidget()->height(), qPrintable(name));
            QCOMPARE(window.findChild<QLabel *>(u"lblSelected"_s)->text(),
                     QString::fromUtf16(page.caption).remove(u'&'));
        }
    }

    void closing_data()
    {
        columns<bool, int, QString, QString>("change", "answer", "edited", "stored");
        QTest::newRow("OK unchanged") << false << -1 << u"20"_s << u"20"_s;
        QTest::newRow("OK, yes") << true << 0 << u"33"_s << u"33"_s;
        QTest::newRow("OK, no") << true << 1 << u"20"_s << u"20"_s;
        QTest::newRow("Abbrechen keeps the edit in force") << true << -2 << u"33"_s << u"20"_s;
    }
    void closing()
    {
        QFETCH(bool, change);
        QFETCH(int, answer);
        TestGround t;
        frmOptions window(t.ground);
        if (answer >= 0)
            t.boxes.willPress(answer);
        whileOpen(window, [&] {
            if (change)
                box(window, "TxtNumWortel")->setText(u"33"_s);
            press(window, answer == -2 ? "cmdCancel" : "cmdOK");
        });
        QTEST(t.options.text(Setting::NumWortel), "edited");
        QTEST(t.options.stored(Setting::NumWortel), "stored");
        if (answer >= 0)
            QCOMPARE(t.boxes.asked.value(0).text,
                     u"Es wurden Änderungen gemacht.\n\nWillst du die Änderungen bestätigen?"_s);
        // Opening it again throws away what was not confirmed.
        whileOpen(window, [&] { press(window, "cmdCancel"); });
        QTEST(t.options.text(Setting::NumWortel), "stored");
    }

    void onlyTheButtonsEndIt()
    {
        TestGround t;
        frmOptions window(t.ground);
        window.show();
        window.close();
        QVERIFY(window.isVisible());
        QTest::keyClick(&window, Qt::Key_Escape);
        QVERIFY(!window.isVisible());
    }

    void fileButtons()
    {
        TestGround t;
        frmOptions window(t.ground);
        window.show();
        t.store.SaveSetting(u"Path"_s, u"RestoreBGPath"_s, u"D:\\Bilder"_s);
        t.fileDialogs.willOpen({u"D:\\Fotos\\Wald.jpg"_s});
        press(window, "Command4");
        QCOMPARE(t.fileDialogs.asked.last().style, u"D:\\Bilder"_s);
        QCOMPARE(t.options.text(Setting::BackgroundPicture), u"D:\\Fotos\\Wald.jpg"_s);
        QCOMPARE(t.store.GetSetting(u"Path"_s, u"RestoreBGPath"_s, {}), u"D:\\Fotos"_s);
        t.fileDialogs.willOpen({});
        press(window, "Command4");
        QCOMPARE(t.options.text(Setting::BackgroundPicture), u"D:\\Fotos\\Wald.jpg"_s);
        press(window, "Command5");
        QCOMPARE(t.options.text(Setting::BackgroundPicture), QString());

        t.fileDialogs.willOpen({u"C:\\w.txt"_s});
        t.boxes.willAnswer(Boxes::Answer::Ok);
        press(window, "Command3");
        QVERIFY(
            t.boxes.told().startsWith(u"Wortel-Meister|Diese Wortel-Liste gibt es nicht:\n\nC:\\w.txt\n"_s));
        QCOMPARE(t.fileDialogs.asked.last().style, QString(t.AppFolder + u"text\\"_s));
        QCOMPARE(t.options.text(Setting::WortelFile), u"C:\\w.txt"_s);
        press(window, "Command6");
        QCOMPARE(t.options.text(Setting::WortelFile), QString());
    }

    // "%" stands for the program's folder, in which "text\Tiere.txt" has a dictionary and "text\Obst.txt"
    // none.
    void aListThatCannotStartIsRefused_data()
    {
        columns<QString, QString, QString>("list", "told", "stored");
        QTest::newRow("whole") << u"%text\\Tiere.txt"_s << u""_s << u"%APP%text\\Tiere.txt"_s;
        QTest::newRow("a letter too many") << u"%text\\Tiere.txtx"_s << u"%text\\Tiere.txtx"_s << u""_s;
        QTest::newRow("no dictionary") << u"%text\\Obst.txt"_s << u"%facit\\Obst.lex"_s << u""_s;
        QTest::newRow("blank") << u" "_s << u""_s << u"%APP%text\\Hauptbausteine.Txt"_s;
    }
    void aListThatCannotStartIsRefused()
    {
        QFETCH(QString, list);
        QFETCH(QString, told);
        TestGround t;
        for (const QString &name : {u"text\\Tiere.txt"_s, u"facit\\Tiere.lex"_s, u"text\\Obst.txt"_s})
            t.writeFile(name, u"x\r\n"_s);
        frmOptions window(t.ground);
        window.show();
        t.options.setText(Setting::WortelFile, list.replace(u'%', t.AppFolder));
        if (told.isEmpty())
            t.boxes.willPress(0);
        else
            t.boxes.willAnswer(Boxes::Answer::Ok);
        press(window, "cmdOK");
        QCOMPARE(window.isVisible(), !told.isEmpty());
        QTEST(t.store.GetSetting(u"Settings"_s, u"WortelFile"_s, {}), "stored");
        QVERIFY(told.isEmpty() || t.boxes.told().contains(told.replace(u'%', t.AppFolder)));
    }

    void otherButtonsAreAnnounced()
    {
        TestGround t;
        frmOptions window(t.ground);
        QSignalSpy scores(&window, &frmOptions::resetScores);
        QSignalSpy registered(&window, &frmOptions::registerFileType);
        QSignalSpy removed(&window, &frmOptions::removeFileType);
        t.boxes.willAnswer(Boxes::Answer::Ok);
        for (const char *name : {"Command1", "Command10", "Command9", "Command7", "Command8", "Command2"})
            window.findChild<QPushButton *>(QLatin1String(name))->click();
        QCOMPARE(scores.count(), 3);
        QCOMPARE(scores.last().first().value<frmOptions::Scores>(), frmOptions::Scores::Paarlon);
        QCOMPARE(registered.count() + removed.count(), 2);
        QCOMPARE(t.boxes.asked.last().text, u"Diese Funktion ist noch nicht ins Programm eingebaut"_s);
    }

    void droppedFiles_data()
    {
        columns<QString, bool>("file", "taken");
        QTest::newRow("text") << u"/x/Stämme.txt"_s << true;
        QTest::newRow("picture") << u"/x/a.jpg"_s << false;
    }
    void droppedFiles()
    {
        QFETCH(QString, file);
        QFETCH(bool, taken);
        TestGround t;
        frmOptions window(t.ground);
        window.show();
        t.boxes.willAnswer(Boxes::Answer::Ok); // no such list, or no list at all
        QMimeData data;
        data.setUrls({QUrl::fromLocalFile(file)});
        QDragEnterEvent enter(QPoint(5, 5), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(box(window, "Text2"), &enter);
        QVERIFY(enter.isAccepted());
        QDropEvent drop(QPointF(5, 5), Qt::CopyAction | Qt::MoveAction, &data, Qt::LeftButton,
                        Qt::NoModifier);
        QCoreApplication::sendEvent(box(window, "Text2"), &drop);
        QCOMPARE(drop.dropAction(), Qt::CopyAction);
        QCoreApplication::processEvents();
        QCOMPARE(box(window, "Text2")->text() == QString(file).replace(u'/', u'\\'), taken);
        QCOMPARE(t.boxes.asked.last().title,
                 taken ? u"Wortel-Meister"_s : u"Wortel-Meister - Fehler: Format"_s);
    }
};

WORTEL_TEST(FrmOptionsTest)
#include "tst_frm_options.moc"
