// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "board/tiles/affix_rows.h"
#include "platform/files.h"
#include "shell/application_folder.h"
#include "shell/argument_handler.h"
#include "shell/command_line.h"
#include "shell/crash_filter.h"
#include "shell/storage.h"
#include "support/file_size_limit.h"
#include "support/test_class.h"

#include <csignal>
#include <sys/wait.h>
#include <unistd.h>

namespace {

int *volatile nowhere = reinterpret_cast<int *>(16);

int goDown(int depth)
{
    volatile char frame[1000];
    frame[0] = static_cast<char>(depth);
    return depth == 0 ? 0 : goDown(depth - 1) + frame[0];
}

} // namespace

/// The rules of the start that need no window.
class StartRulesTest : public QObject
{
    Q_OBJECT

private slots:
    void parsesTheCommandLine_data()
    {
        // expected: name=value
        columns<QString, QStringList>("line", "expected");
        QTest::newRow("empty") << u""_s << QStringList{};
        QTest::newRow("order kept, files ignored")
            << u"a.wlx  /L b.wlx /I "_s << QStringList{u"L="_s, u"I="_s};
        QTest::newRow("value") << u"/Name:Wert"_s << QStringList{u"Name=Wert"_s};
        QTest::newRow("quoted value") << u"/Name:\"Wert\""_s << QStringList{u"Name=Wert"_s};
        QTest::newRow("value with a colon") << u"/Pfad:C:\\a"_s << QStringList{u"Pfad=C:\\a"_s};
        QTest::newRow("case tells names apart") << u"/l /L"_s << QStringList{u"l="_s, u"L="_s};
        QTest::newRow("a second of the same name") << u"/L:1 /L:2"_s << QStringList{u"L=1"_s};
    }
    void parsesTheCommandLine()
    {
        QFETCH(QString, line);
        ArgumentHandler handler;
        handler.ParseCommandLine(u"/old"_s);
        handler.ParseCommandLine(line);
        QStringList found;
        for (int i = 0; i < handler.ArgumentCount(); ++i) {
            const Argument &argument = handler.GetArgumentIndex(i);
            QVERIFY(!argument.Dirty());
            found << argument.ArgumentName() + u'=' + argument.ArgumentValue();
        }
        QTEST(found, "expected");
    }

    void readsTheCommandLineAsOneText_data()
    {
        columns<QStringList, QString>("arguments", "text");
        QTest::newRow("switches") << QStringList{u"/L"_s, u"/?"_s, u"/Name:/a/b"_s} << u"/L /? /Name:/a/b"_s;
        QTest::newRow("a session that is gone")
            << QStringList{u"/home/wir/fort.wlx"_s, u"/home/fort"_s, u"/fort.WLX"_s}
            << u"\\home\\wir\\fort.wlx \\home\\fort \\fort.WLX"_s;
    }
    void readsTheCommandLineAsOneText()
    {
        QFETCH(QStringList, arguments);
        QTEST(command_line::text(command_line::read(arguments)), "text");
    }

    // "%" stands for a folder with the files "a.wlx" and "Stunde 1.wlx"
    void findsSessionsInArguments_data()
    {
        columns<QStringList, QStringList, QStringList, QStringList>("arguments", "there", "missing",
                                                                    "switches");
        const QStringList none;
        QTest::newRow("nothing") << QStringList{u""_s, u"  "_s} << none << none << none;
        QTest::newRow("with a blank")
            << QStringList{u"%\\Stunde 1.wlx"_s} << QStringList{u"%\\Stunde 1.wlx"_s} << none << none;
        QTest::newRow("one text of several") << QStringList{u"%\\a.wlx  %\\fort.wlx /L %\\A.WLX"_s}
                                             << QStringList{u"%\\a.wlx"_s, u"%\\A.WLX"_s}
                                             << QStringList{u"%\\fort.wlx"_s} << QStringList{u"/L"_s};
        QTest::newRow("mistyped, with a blank")
            << QStringList{u"%\\Stunde 2.wlx"_s, u"%\\a.wlx"_s} << QStringList{u"%\\a.wlx"_s}
            << QStringList{u"%\\Stunde 2.wlx"_s} << none;
    }
    void findsSessionsInArguments()
    {
        QFETCH(QStringList, arguments);
        QTemporaryDir place;
        const QString folder = storedPath(place.path());
        for (const char *name : {"a.wlx", "Stunde 1.wlx"})
            writeFileAtomically(place.filePath(QLatin1String(name)), "x");
        const command_line::Sessions found =
            command_line::sessionsOf(QStringList(arguments).replaceInStrings(u"%"_s, folder));
        const auto shortened = [&](QStringList paths) { return paths.replaceInStrings(folder, u"%"_s); };
        QTEST(shortened(found.there), "there");
        QTEST(shortened(found.missing), "missing");
        QTEST(found.switches, "switches");
    }

    void tellsWhetherItCanStore()
    {
        QTemporaryDir place;
        const QString fresh = place.filePath(u"neu/tief"_s);
        writeFileAtomically(place.filePath(u"datei"_s), "x");
        QCOMPARE(storage::stateOf({fresh}), storage::State::Writable);
        QVERIFY(QDir(fresh).isEmpty(QDir::Files | QDir::Hidden));
        QCOMPARE(storage::stateOf({fresh, place.filePath(u"datei/x"_s)}), storage::State::Protected);
        const FileSizeLimit limit(1000);
        QCOMPARE(storage::stateOf({place.filePath(u"datei/x"_s), fresh}), storage::State::Full);
    }

    void knowsTheScreens_data()
    {
        columns<QSize, int, int>("screen", "code", "suffixTop");
        QTest::newRow("800x600") << QSize(800, 600) << 1 << 453;
        QTest::newRow("1024x768") << QSize(1024, 768) << 2 << 617;
        QTest::newRow("1152x864") << QSize(1152, 864) << 5 << 693;
        QTest::newRow("any other") << QSize(1920, 1080) << 1 << 453;
    }
    void knowsTheScreens()
    {
        QFETCH(QSize, screen);
        QFETCH(int, code);
        QFETCH(int, suffixTop);
        QCOMPARE(affix_rows::GetScreenResolution(screen.width(), screen.height()), code);
        QCOMPARE(affix_rows::suffixTop(573, code, 0), suffixTop);
        QCOMPARE(affix_rows::suffixTop(573, code, -3), suffixTop - 30);
    }

    void namesExceptions_data()
    {
        columns<quint32, QString>("code", "name");
        QTest::newRow("access") << 0xC0000005U << u"Access Violation"_s;
        QTest::newRow("last") << 0xC000013AU << u"Control-C Exit"_s;
        QTest::newRow("unknown") << 0xE0000001U << u"Unknown (&HE0000001)"_s;
        QTest::newRow("of a signal") << crash_filter::codeOfSignal(SIGFPE, FPE_INTDIV)
                                     << u"Integer Divide By Zero"_s;
    }
    void namesExceptions()
    {
        QFETCH(quint32, code);
        QTEST(crash_filter::exceptionName(code), "name");
    }

    void aCrashLeavesItsLine_data()
    {
        columns<void (*)(), QString>("crash", "name");
        QTest::newRow("from outside") << +[] { kill(getpid(), SIGSEGV); } << u"Access Violation"_s;
        QTest::newRow("an address of nothing") << +[] { *nowhere = 1; } << u"Access Violation"_s;
        QTest::newRow("endless calls") << +[] { goDown(1 << 30); } << u"Stack Overflow"_s;
    }
    void aCrashLeavesItsLine()
    {
        using Crash = void (*)();
        QFETCH(Crash, crash);
        QFETCH(QString, name);
        QTemporaryDir folder;
        const QString log = folder.filePath(u"errors.log"_s);
        const pid_t child = fork();
        if (child == 0) {
            crash_filter::install(log);
            crash();
            _exit(0);
        }
        int status = 0;
        QCOMPARE(waitpid(child, &status, 0), child);
        QVERIFY(WIFSIGNALED(status));
        QCOMPARE(WTERMSIG(status), SIGSEGV);
        const QString line = QString::fromLatin1(ReadWholeFile(log));
        const QRegularExpression expected(u"^\\*\\*\\* Unhandled Exception: "_s + name +
                                          u" at 0 \\*\\*\\* - \\d\\d:\\d\\d:\\d\\d\r\n$"_s);
        QVERIFY2(expected.match(line).hasMatch(), qPrintable(line));
    }

    void findsTheProgramsFolder()
    {
        QTemporaryDir place;
        const QString program = place.filePath(u"program"_s);
        const QString installed = place.filePath(u"share"_s);
        const QString user = place.filePath(u"user"_s);
        QDir().mkpath(program);
        for (const QString &name : {u"/text/Ä.txt"_s, u"/facit/Ä.lex"_s, u"/lextip.ini"_s}) {
            QDir().mkpath(QFileInfo(installed + name).path());
            writeFileAtomically(installed + name, "alt");
        }

        // Installed: the user gets a copy, once.
        QCOMPARE(application_folder::find(program, installed, user),
                 application_folder::withTrailingBackslash(user));
        QCOMPARE(ReadWholeFile(user + u"/text/Ä.txt"_s), QByteArray("alt"));
        writeFileAtomically(user + u"/text/Ä.txt"_s, "vom Lehrer");
        QFile::remove(user + u"/lextip.ini"_s);
        application_folder::find(program, installed, user);
        QCOMPARE(ReadWholeFile(user + u"/text/Ä.txt"_s), QByteArray("vom Lehrer"));
        QVERIFY(!QFile::exists(user + u"/lextip.ini"_s)); // what the teacher took away stays away

        // Another installation: what nobody has touched is renewed.
        const QString half = user + u"/text/.wortel-AbCdEf.tmp"_s;
        writeFileAtomically(half, "al");
        for (const QString &name : {u"/text/Ä.txt"_s, u"/facit/Ä.lex"_s, u"/lextip.ini"_s})
            writeFileAtomically(installed + name, "ganz neu");
        application_folder::find(program, installed, user);
        QVERIFY(!QFile::exists(user + u"/lextip.ini"_s));
        QVERIFY(!QFile::exists(half));
        QCOMPARE(ReadWholeFile(user + u"/facit/Ä.lex"_s), QByteArray("ganz neu"));
        QCOMPARE(ReadWholeFile(user + u"/text/Ä.txt"_s), QByteArray("vom Lehrer"));

        // A home that cannot be written: the installed data themselves, unless it was filled once.
        QCOMPARE(application_folder::find(program, installed, u"/proc/wortel"_s),
                 application_folder::withTrailingBackslash(installed));

        // Portable: the data lie beside the program.
        QDir().mkpath(program + u"/text"_s);
        QDir().mkpath(program + u"/facit"_s);
        QCOMPARE(application_folder::find(program, installed, user),
                 application_folder::withTrailingBackslash(program));
    }
};

WORTEL_TEST(StartRulesTest)
#include "tst_start_rules.moc"
