// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/files.h"
#include "shell/argument_handler.h"
#include "shell/splash.h"
#include "shell/start.h"
#include "shell/start_steps.h"
#include "support/test_class.h"
#include "support/test_ground.h"

#include <QApplication>
#include <QDialog>
#include <QLabel>

using start_steps::Next;

/// What the start asks and tells before any window exists.
class StartStepsTest : public QObject
{
    Q_OBJECT

private slots:

    void opensTheLog_data()
    {
        columns<bool, int, bool, bool>("first", "answer", "oldLogStays", "backup");
        QTest::newRow("emptied") << true << 0 << false << false;
        QTest::newRow("kept") << true << 1 << true << true;
        QTest::newRow("second instance") << false << -1 << true << false;
    }
    void opensTheLog()
    {
        QFETCH(bool, first);
        QFETCH(int, answer);
        QFETCH(bool, backup);
        TestGround t;
        const QString file = t.writeFile(u"errors.log"_s, u"alt\r\n"_s);
        t.store.SaveSetting(u"Settings"_s, u"UseBackup"_s, backup ? u"1"_s : u"0"_s);
        if (answer >= 0)
            t.boxes.willPress(answer);
        ArgumentHandler handler;
        handler.ParseCommandLine(u"/L"_s);
        QVERIFY(start_steps::ApplyArguments(t.ground, handler, first, [] {}) == Next::GoOn);
        QCOMPARE(t.log.enabled(), first);
        QStringList lines = QString::fromLatin1(ReadWholeFile(file)).split(u"\r\n"_s, Qt::SkipEmptyParts);
        for (QString &line : lines)
            line = line.section(u" - "_s, 0, 0); // without the time of writing
        QTEST(lines.contains(u"alt"_s), "oldLogStays");
        if (!first)
            return;
        QCOMPARE(t.boxes.asked.first().text, u"Möchten Sie erst die Fehleraufzeichnungsdatei\n\n"_s + file +
                                                 u" (error.log) zurücksetzen?  "_s);
        QCOMPARE(t.boxes.asked.first().style, u"CONFIRM"_s);
        QVERIFY(lines.contains(u"Starting new application-log: Wortel-Meister v.1.0.0"_s));
        QVERIFY(lines.contains(u"Date/Time: 03/14/2026  09:26 AM"_s));
        const QString last = backup ? u"Event: Backup-file (WLXAutoSave.bak), opened in the default folder"_s
                                    : QString(64, u'-');
        QCOMPARE(lines.last(), last);
    }

    void fillsTheScreenWithTheTaskBarHidden_data()
    {
        columns<QString, bool>("hideTaskbar", "fullScreen");
        QTest::newRow("off") << u"0"_s << false;
        QTest::newRow("on") << u"1"_s << true;
    }
    void fillsTheScreenWithTheTaskBarHidden()
    {
        QFETCH(QString, hideTaskbar);
        QFETCH(bool, fullScreen);
        TestGround t;
        t.store.SaveSetting(u"Settings"_s, u"HideTaskbar"_s, hideTaskbar);
        QWidget form;
        showMainWindow(form, t.options);
        QCOMPARE(form.isFullScreen(), fullScreen);
        QCOMPARE(form.isMaximized(), !fullScreen);
    }

    void theSplashStepsAsideForAQuestion()
    {
        TestGround t;
        frmSplash splash(t.clock);
        splash.showWithShadow();
        QVERIFY(splash.isVisible());
        QCOMPARE(splash.findChild<QLabel *>(u"lblversion"_s)->text(), u"1.00.00"_s);
        QDialog question;
        question.setModal(true);
        question.show();
        for (const QWidget *window : QApplication::topLevelWidgets())
            QCOMPARE(window->isVisible(), window == &question);
    }

    void leftOversGoFromEveryFolder()
    {
        TestGround t;
        QStringList halves;
        for (const QString &folder : {u""_s, u"Sitzungen\\"_s, u"Listen\\"_s, u"eigene\\"_s})
            halves << t.writeFile(folder + u".wortel-AbCdEf.tmp"_s, u"x"_s);
        t.store.SaveSetting(u"Path"_s, u"SaveWLX"_s, t.AppFolder + u"Sitzungen"_s);
        t.store.SaveSetting(u"Path"_s, u"Export"_s, t.AppFolder + u"LISTEN"_s);
        start_steps::removeLeftOvers(t.ground, {t.folder.filePath(u"eigene"_s)});
        for (const QString &half : std::as_const(halves))
            QVERIFY2(!IsTextFile(half), qPrintable(half));
    }

    void offersRecovery_data()
    {
        // answer: -1: not asked
        columns<QString, bool, int, bool, bool>("useBackup", "fileExists", "answer", "goesOn", "recovers");
        const int yes = static_cast<int>(Boxes::Answer::Yes);
        const int no = static_cast<int>(Boxes::Answer::No);
        const int cancel = static_cast<int>(Boxes::Answer::Cancel);
        QTest::newRow("off") << u"0"_s << true << -1 << true << false;
        QTest::newRow("third state is not on") << u"2"_s << true << -1 << true << false;
        QTest::newRow("clean end") << u"1"_s << false << -1 << true << false;
        QTest::newRow("yes") << u"1"_s << true << yes << true << true;
        QTest::newRow("no") << u"1"_s << true << no << true << false;
        QTest::newRow("cancel") << u"1"_s << true << cancel << false << false;
    }
    void offersRecovery()
    {
        QFETCH(QString, useBackup);
        QFETCH(bool, fileExists);
        QFETCH(int, answer);
        QFETCH(bool, recovers);
        TestGround t;
        t.store.SaveSetting(u"Settings"_s, u"UseBackup"_s, useBackup);
        const QString file = t.AppFolder + u"WLXAutoSave.bak"_s;
        if (fileExists)
            t.writeFile(u"WLXAutoSave.bak"_s, u"x"_s);
        if (answer >= 0)
            t.boxes.willAnswer(static_cast<Boxes::Answer>(answer));
        bool RecoverOnStart = !recovers;
        QTEST(start_steps::askForRecovery(t.ground, RecoverOnStart) == Next::GoOn, "goesOn");
        QCOMPARE(RecoverOnStart, recovers);
        QCOMPARE(IsTextFile(file), fileExists);
    }
};

WORTEL_TEST(StartStepsTest)
#include "tst_start_steps.moc"
