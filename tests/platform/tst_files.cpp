// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/files.h"
#include "platform/ini_file.h"
#include "platform/log.h"
#include "platform/text_encoding.h"
#include "platform/windows1252.h"
#include "support/error_of.h"
#include "support/file_bytes.h"
#include "support/file_size_limit.h"
#include "support/stop_at_rename.h"
#include "support/test_class.h"

#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

class FilesTest : public QObject
{
    Q_OBJECT

    QTemporaryDir folder_;
    QString path(const QString &name) const { return folder_.filePath(name); }

private slots:
    void findsFilesWhateverTheirCase()
    {
        QDir(folder_.path()).mkpath(u"Text kurz/Fächer"_s);
        putBytes(path(u"Text kurz/Fächer/Übung.Txt"_s), "x");
        putBytes(path(u"Text kurz/A\u0308pfel.txt"_s), "x"); // as other systems write an umlaut
        const QString stored = storedPath(folder_.path());
        QCOMPARE(nativePath(stored + u"\\TEXT kurz\\fÄcher\\übung.tXT"_s),
                 path(u"Text kurz/Fächer/Übung.Txt"_s));
        QCOMPARE(nativePath(stored + u"\\text kurz\\Äpfel.txt"_s), path(u"Text kurz/A\u0308pfel.txt"_s));
        QCOMPARE(nativePath(stored + u"\\text KURZ\\neu\\a.txt"_s), path(u"Text kurz/neu/a.txt"_s));
        QVERIFY(!IsTextFile(stored + u"\\text kurz\\neu.txt"_s));
        putBytes(path(u"Text kurz/Neu.txt"_s), "x"); // a new file is seen at once
        QVERIFY(IsTextFile(u"  "_s + stored + u"\\text kurz\\neu.txt "_s));
        QVERIFY(!IsTextFile(stored + u"\\text kurz"_s));
        QVERIFY(!IsTextFile(u"  "_s));
    }

    void namesOfPaths()
    {
        QCOMPARE(GetOnlyFileName(u"C:\\text\\a b.txt"_s), u"a b.txt"_s);
        QCOMPARE(GetOnlyFileName(u"a.txt"_s), QString());
        QCOMPARE(listBaseName(u"x\\Haupt.tXt"_s), u"Haupt"_s);
        QCOMPARE(listBaseName(u"x\\Haupt.lex"_s), u"Haupt.lex"_s);
    }

    void readsLists_data()
    {
        columns<QByteArray, QStringList>("bytes", "entries");
        const QStringList ab{u"äb"_s, u"c d"_s};
        QTest::newRow("Windows-1252, CR LF") << QByteArray("\344b\r\n c d \r\n\r\n") << ab;
        QTest::newRow("CR") << QByteArray("\344b\rc d") << ab;
        QTest::newRow("UTF-8") << QByteArray("\xC3\244b\nc d") << ab;
        QTest::newRow("UTF-8 with mark") << QByteArray("\xEF\xBB\xBF\xC3\244b\nc d") << ab;
        QTest::newRow("UTF-16") << QByteArray("\xFF\xFE\xE4\0b\0\n\0c\0 \0d\0", 14) << ab;
        QTest::newRow("decomposed UTF-8") << QByteArray("a\xCC\210b\nc d") << ab;
        QTest::newRow("half of UTF-8 is Windows-1252")
            << QByteArray("\xC3\xA4\n\xE4") << QStringList{u"Ã¤"_s, u"ä"_s};
        QTest::newRow("sharp s before a quotation mark")
            << QByteArray("gro\xDF\x93") << QStringList{u"groß“"_s};
        QTest::newRow("well-formed, of another script") << QByteArray("\xCE\xA9") << QStringList{u"Î©"_s};
        QTest::newRow("UTF-8 quotation marks and sharp s")
            << QByteArray("\xE2\x80\x9Egro\xC3\x9F\xE2\x80\x9C") << QStringList{u"„groß“"_s};
        QTest::newRow("unassigned bytes are no text") << QByteArray("\xC2\x81") << QStringList{u"Â\x81"_s};
        QTest::newRow("empty") << QByteArray() << QStringList();
    }
    void readsLists()
    {
        QFETCH(QByteArray, bytes);
        putBytes(path(u"liste.txt"_s), bytes);
        QTEST(readListFile(path(u"liste.txt"_s)), "entries");
    }

    /// Whatever two characters of the page stand beside each other: the bytes come back as what they were.
    void ownFilesComeBack()
    {
        QStringList texts{u"â€“"_s, u"ÿþab"_s, u"ï»¿ab"_s, u"Ω und 😀"_s, u"groß“"_s};
        for (int first = 0x20; first < 0x100; ++first)
            for (int second = 0x80; second < 0x100; ++second)
                texts.append(windows1252::decode(QByteArray(1, char(first)) + char(second)));
        int marked = 0;
        for (const QString &text : std::as_const(texts)) {
            const QByteArray bytes = encodeText(text);
            QVERIFY2(decodeText(bytes) == text, qPrintable(text));
            marked += bytes.startsWith("\xEF\xBB\xBF") ? 1 : 0;
        }
        QVERIFY2(marked < 200, "Windows-1252 is the rule");
    }

    void tellsWhyAFileCannotBeRead()
    {
        QCOMPARE(errorOf([&] { ReadWholeFile(path(u"keine.txt"_s)); }), 53);
        QCOMPARE(errorOf([&] { ReadWholeFile(folder_.path()); }), 75);
        QCOMPARE(errorOf([&] { ReadWholeFile(u"/dev/zero"_s); }), 75);
        mkfifo(qPrintable(path(u"Rohr"_s)), 0600);
        QCOMPARE(errorOf([&] { ReadWholeFile(path(u"Rohr"_s)); }), 75);
        QCOMPARE(errorOf([&] { writeFileAtomically(path(u"Rohr"_s), "x"); }), 75);
        putBytes(path(u"riesig.txt"_s), "x");
        QFile::resize(path(u"riesig.txt"_s), 1 << 30); // takes no room on the disk
        QCOMPARE(errorOf([&] { ReadWholeFile(path(u"riesig.txt"_s)); }), 7);
        QVERIFY(!ReadWholeFile(u"/proc/self/mounts"_s).isEmpty()); // it tells no size
        if (geteuid() == 0)
            return; // the superuser may read everything
        putBytes(path(u"geheim.txt"_s), "x");
        QFile::setPermissions(path(u"geheim.txt"_s), {});
        QCOMPARE(errorOf([&] { ReadWholeFile(path(u"geheim.txt"_s)); }), 70);
    }

    void writesAllOrNothing()
    {
        const QString target = path(u"Sitzung.wlx"_s);
        writeFileAtomically(target, "old");
        QFile::setPermissions(target, QFile::ReadOwner | QFile::WriteOwner);
        writeFileAtomically(storedPath(path(u"SITZUNG.WLX"_s)), "new"); // the same file
        QCOMPARE(bytesOf(target), QByteArray("new"));
        QCOMPARE(QFile::permissions(target) & (QFile::ReadGroup | QFile::ReadOther), QFile::Permissions());
        {
            const FileSizeLimit full(1000);
            QVERIFY(errorOf([&] { writeFileAtomically(target, QByteArray(5000, 'x')); }) != 0);
        }
        QCOMPARE(bytesOf(target), QByteArray("new"));
        QVERIFY(QDir(folder_.path()).entryList({u".wortel*"_s}, QDir::Files | QDir::Hidden).isEmpty());
        QFile::link(target, path(u"Zeiger"_s));
        writeFileAtomically(path(u"Zeiger"_s), "linked");
        QVERIFY(QFileInfo(path(u"Zeiger"_s)).isSymLink());
        QCOMPARE(bytesOf(target), QByteArray("linked"));
        QCOMPARE(errorOf([&] { writeFileAtomically(path(u"kein Ordner/a.txt"_s), "x"); }), 76);
        QCOMPARE(errorOf([&] { writeFileAtomically(folder_.path(), "x"); }), 75);
    }

    void namesOfAnyKind()
    {
        for (const QString &name : {QString(251, u'x') + u".wlx"_s, QString(125, u'ä') + u"x.wlx"_s,
                                    u"a\nb.wlx"_s, u" \"b\" 'c' .wlx"_s, u"A\u0308pfel.wlx"_s})
            for (const char *bytes : {"first", "second"}) {
                writeFileAtomically(bytes[0] == 'f' ? path(name) : storedPath(path(name)), bytes);
                QCOMPARE(bytesOf(path(name)), QByteArray(bytes));
                QCOMPARE(ReadWholeFile(storedPath(path(name))), QByteArray(bytes));
            }
    }

    /// Laid by somebody else in a folder where everybody may write, to make us write into a file of our own.
    void foreignLinksAreNotFollowed()
    {
        if (geteuid() != 0)
            QSKIP("only the superuser can lay a link for somebody else");
        const QByteArray link = QFile::encodeName(path(u"fremd.wlx"_s));
        const QByteArray own = QFile::encodeName(path(u"eigen.wlx"_s)); // leads over the foreign one
        putBytes(path(u"eigen.txt"_s), "own bytes");
        QCOMPARE(symlink(qPrintable(path(u"eigen.txt"_s)), link) + symlink(link, own), 0);
        QVERIFY(!isForeignLink(path(u"fremd.wlx"_s)));
        QCOMPARE(lchown(link, 65534, 65534), 0);
        IniFile session(path(u"fremd.wlx"_s), IniFile::Purpose::Writing);
        session.write(u"Name"_s, u"x"_s, u"y"_s);
        writeFileAtomically(path(u"eigen.wlx"_s), "x");
        QCOMPARE(bytesOf(path(u"fremd.wlx"_s)), QByteArray("x"));
        QVERIFY(!QFileInfo(path(u"fremd.wlx"_s)).isSymLink());
        session.save();
        QCOMPARE(bytesOf(path(u"fremd.wlx"_s)), QByteArray("[Name]\r\nx=y\r\n")); // nothing is given away
        QCOMPARE(bytesOf(path(u"eigen.txt"_s)), QByteArray("own bytes"));
    }

    void theLogFollowsNoLink()
    {
        const QByteArray target = QFile::encodeName(path(u"eigen.txt"_s));
        const QByteArray file = QFile::encodeName(path(u"errors.log"_s));
        putBytes(path(u"eigen.txt"_s), "own");
        Log log;
        log.enable(path(u"errors.log"_s));
        for (const auto lay : {+[](const char *to, const char *at) { return symlink(to, at); },
                               +[](const char *to, const char *at) { return ::link(to, at); },
                               +[](const char *, const char *at) { return mkfifo(at, 0600); }}) {
            QCOMPARE(lay(target, file), 0);
            log.WriteLog(u"a"_s); // must not wait for a pipe's reader
            QCOMPARE(bytesOf(path(u"eigen.txt"_s)), QByteArray("own"));
            QCOMPARE(unlink(file), 0);
        }
    }

    void whatAKilledWriterLeavesGoes()
    {
        const QString target = path(u"leben/Sitzung.wlx"_s);
        const QStringList others{u".wortel-Heft.tmp"_s, u".wortel-abcdef.tmp.txt"_s, u"Sitzung.wlx.Backup"_s,
                                 u"wortel-abcdef.tmp"_s, u".wortel-Ordner.tmp/x"_s};
        for (const QString &other : others)
            putBytes(path(u"leben/"_s + other), "x");
        putBytes(target, "old");
        const auto hidden = [&] {
            return QDir(path(u"leben"_s)).entryList(QDir::Files | QDir::Hidden).size();
        };
        const qsizetype before = hidden();
        const pid_t child = fork();
        if (child == 0) {
            stopAtRename();
            writeFileAtomically(target, "new");
            _exit(0);
        }
        QTRY_COMPARE(hidden(), before + 1);
        removeLeftOvers(storedPath(path(u"leben"_s)));
        QCOMPARE(hidden(), before + 1); // its writer is still at work
        kill(child, SIGKILL);
        QCOMPARE(waitpid(child, nullptr, 0), child);
        QCOMPARE(hidden(), before + 1);
        removeLeftOvers(storedPath(path(u"leben"_s)));
        QCOMPARE(hidden(), before);
        QCOMPARE(bytesOf(target), QByteArray("old"));
        for (const QString &other : others)
            QCOMPARE(bytesOf(path(u"leben/"_s + other)), QByteArray("x"));
    }
};

WORTEL_TEST(FilesTest)
#include "tst_files.moc"
