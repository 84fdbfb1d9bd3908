// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/settings_file.h"
#include "support/error_of.h"
#include "support/file_bytes.h"
#include "support/file_size_limit.h"
#include "support/test_class.h"

#include <sys/stat.h>
#include <unistd.h>

class SettingsFileTest : public QObject
{
    Q_OBJECT

    QTemporaryDir folder_;
    QString file_ = folder_.filePath(u"Neu/Wortel-Meister/settings.ini"_s);

private slots:
    void cleanup() { QDir(folder_.filePath(u"Neu"_s)).removeRecursively(); }

    void keepsAnyText_data()
    {
        columns<QString, QString, QString>("section", "key", "value");
        QTest::newRow("umlauts and blanks") << u"Fächer zwei"_s << u" Größe :"_s << u"  weiß  "_s;
        QTest::newRow("signs") << u"a]=[b"_s << u"=k=["_s << u"x=[y];#"_s;
        QTest::newRow("line ends") << u"a\nb"_s << u"k\r\n[x]"_s << u"1\r\n[Settings]\nNumWortel=9\0z"_s;
        QTest::newRow("percent and path") << u"%41"_s << u"100%"_s << u"C:\\text\\50%20.txt"_s;
        QTest::newRow("a megabyte") << u"Web"_s << u"k"_s << QString(1 << 20, u'ü');
    }
    void keepsAnyText()
    {
        QFETCH(QString, section);
        QFETCH(QString, key);
        QFETCH(QString, value);
        SettingsFile store(file_);
        QCOMPARE(store.GetSetting(section, key, u"default"_s), u"default"_s);
        store.SaveSetting(section, key, value);
        store.SaveSetting(u"Other"_s, key, u"other"_s);
        QCOMPARE(store.GetSetting(section, key, u"default"_s), value);
        const SettingsFile restarted(file_);
        QCOMPARE(restarted.GetSetting(section, key, u"default"_s), value);
        QCOMPARE(restarted.GetSetting(u"Other"_s, key, QString()), u"other"_s);
        QCOMPARE(restarted.GetSetting(u"Third"_s, key, u"default"_s), u"default"_s);
    }

    void programsShareTheFile()
    {
        SettingsFile one(file_);
        SettingsFile two(file_);
        one.SaveSettings(u"Settings"_s, {{u"a"_s, u"1"_s}, {u"b"_s, u"1"_s}});
        two.SaveSetting(u"Settings"_s, u"b"_s, u"22"_s);
        one.SaveSetting(u"Path"_s, u"c"_s, u"1"_s);
        QCOMPARE(one.GetSetting(u"Settings"_s, u"b"_s, QString()), u"22"_s);
        QCOMPARE(two.GetSetting(u"Path"_s, u"c"_s, QString()), u"1"_s);
        QCOMPARE(two.GetSetting(u"Settings"_s, u"a"_s, QString()), u"1"_s);
    }

    void garbageIsKeptBeside_data()
    {
        columns<QByteArray, QString>("bytes", "numWortel");
        QTest::newRow("half good") << QByteArray("[Settings]\nNumWortel=7\n\xFF\xFEschrott\n[Sett") << u"7"_s;
        QTest::newRow("a letter") << QByteArray("Liebe Oma,\nwie geht es dir?\n") << u"20"_s;
        QTest::newRow("one endless line") << QByteArray(1 << 20, 'x') << u"20"_s;
    }
    void garbageIsKeptBeside()
    {
        QFETCH(QByteArray, bytes);
        putBytes(file_, bytes);
        SettingsFile store(file_);
        QTEST(store.GetSetting(u"Settings"_s, u"NumWortel"_s, u"20"_s), "numWortel");
        QCOMPARE(bytesOf(file_), bytes);
        store.SaveSetting(u"Settings"_s, u"UseUndo"_s, u"0"_s);
        QCOMPARE(bytesOf(file_ + u".bak"_s), bytes);
        QTEST(SettingsFile(file_).GetSetting(u"Settings"_s, u"NumWortel"_s, u"20"_s), "numWortel");
        store.SaveSetting(u"Settings"_s, u"UseUndo"_s, u"1"_s);
        QCOMPARE(bytesOf(file_ + u".bak"_s), bytes);
    }

    void whatIsNoFileStopsNoSaving()
    {
        const QByteArray name = QFile::encodeName(file_);
        for (const auto lay :
             {+[](const char *at) { return mkdir(at, 0700); },
              +[](const char *at) { return mkfifo(at, 0600); }, // nobody may wait for it, nor for the lock
              +[](const char *at) { return mknod(at, S_IFREG | 0600, 0) + truncate(at, 1 << 30); }}) {
            cleanup();
            QVERIFY(QDir().mkpath(QFileInfo(file_).path()));
            QCOMPARE(lay(name) + mkfifo(name + ".lock", 0600), 0);
            SettingsFile(file_).SaveSetting(u"Settings"_s, u"a"_s, u"1"_s);
            QCOMPARE(SettingsFile(file_).GetSetting(u"Settings"_s, u"a"_s, u"-"_s), u"1"_s);
        }
    }

    void emptyAndMarkedFilesAreNoGarbage()
    {
        for (const auto &[bytes, held] :
             {std::pair{"", u"-"_s}, {"\xEF\xBB\xBF[Settings]\r\nb=gro\xC3\x9F\r\n", u"groß"_s}}) {
            putBytes(file_, bytes);
            SettingsFile store(file_);
            QCOMPARE(store.GetSetting(u"Settings"_s, u"b"_s, u"-"_s), held);
            store.SaveSetting(u"Settings"_s, u"a"_s, u"1"_s);
            QCOMPARE(SettingsFile(file_).GetSetting(u"Settings"_s, u"b"_s, u"-"_s), held);
            QVERIFY(!QFileInfo::exists(file_ + u".bak"_s));
        }
    }

    void aFullDiskLosesNothing()
    {
        SettingsFile store(file_);
        store.SaveSetting(u"Settings"_s, u"a"_s, u"1"_s);
        const QByteArray before = bytesOf(file_);
        {
            const FileSizeLimit full(100);
            QVERIFY(errorOf([&] { store.SaveSetting(u"Settings"_s, u"b"_s, QString(500, u'x')); }) != 0);
            QCOMPARE(bytesOf(file_), before);
            QCOMPARE(store.GetSetting(u"Settings"_s, u"b"_s, QString()).size(), 500);
        }
        store.SaveSetting(u"Settings"_s, u"a"_s, u"1"_s); // unchanged, but there is something to make up for
        QCOMPARE(SettingsFile(file_).GetSetting(u"Settings"_s, u"b"_s, QString()).size(), 500);
    }

    void aHeldLockStopsNoSaving()
    {
        putBytes(file_, "[Settings]\na=1\n");
        QLockFile lock(file_ + u".lock"_s);
        QVERIFY(lock.lock());
        SettingsFile store(file_);
        store.SaveSetting(u"Settings"_s, u"a"_s, u"2"_s);
        QCOMPARE(SettingsFile(file_).GetSetting(u"Settings"_s, u"a"_s, QString()), u"2"_s);
    }
};

WORTEL_TEST(SettingsFileTest)
#include "tst_settings_file.moc"
