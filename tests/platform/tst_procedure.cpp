// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/files.h"
#include "platform/log.h"
#include "platform/procedure.h"
#include "support/test_class.h"

#include <new>

class ProcedureTest : public QObject
{
    Q_OBJECT

    QTemporaryDir folder_;

    /// The log's lines without the time at their ends.
    static QStringList lines(const Log &log)
    {
        QStringList result = readListFile(log.file());
        for (QString &line : result) {
            if (!QRegularExpression(u" - \\d\\d:\\d\\d:\\d\\d$"_s).match(line).hasMatch())
                QTest::qFail(qPrintable(u"no time: "_s + line), __FILE__, __LINE__);
            line.chop(11);
        }
        return result;
    }

private slots:
    void stepsGoOnBehindAFault()
    {
        Log log;
        log.enable(folder_.filePath(u"errors.log"_s));
        int done = 0;
        Procedure step{log, "CanvasRedrawAll", "frmMain"};
        step([&] { ++done; });
        const int line = __LINE__ + 1;
        QVERIFY(!step([] { throw RuntimeError::of(11); }));
        step([&] { ++done; });
        step.setErrorSuffix(u". Index: 12"_s);
        step([] { throw std::bad_alloc(); });
        step([] { throw 1; });
        QCOMPARE(done, 2);
        QVERIFY(step.failed());
        const QString place = u" in procedure CanvasRedrawAll of Form frmMain"_s;
        QCOMPARE(lines(log),
                 QStringList({u"Event: In procedure CanvasRedrawAll of Form frmMain"_s,
                              u"Error 11 (Division by zero) %1"_s.arg(line) + place,
                              u"Error 7 (Out of memory) %1"_s.arg(line + 3) + place + u". Index: 12"_s,
                              u"Error 5 (Invalid procedure call or argument) %1"_s.arg(line + 4) + place +
                                  u". Index: 12"_s}));
    }

    void logIsInertOrHarmless_data()
    {
        columns<QString, bool>("file", "on");
        QTest::newRow("off") << folder_.filePath(u"off.log"_s) << false;
        QTest::newRow("no such folder") << folder_.filePath(u"fehlt/errors.log"_s) << true;
        QTest::newRow("is a folder") << folder_.path() << true;
        QTest::newRow("no room") << u"/dev/full"_s << true;
    }
    void logIsInertOrHarmless()
    {
        QFETCH(QString, file);
        QFETCH(bool, on);
        Log log(file);
        if (on)
            log.enable(file);
        log.WriteLog(u"Übung \U0001F600"_s);
        QCOMPARE(QFileInfo(file).isFile(), false);
    }
};

WORTEL_TEST(ProcedureTest)
#include "tst_procedure.moc"
