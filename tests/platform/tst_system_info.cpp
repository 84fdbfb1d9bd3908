// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/files.h"
#include "platform/log.h"
#include "platform/system_info.h"
#include "support/test_class.h"

class SystemInfoTest : public QObject
{
    Q_OBJECT

private slots:
    void killsFiles()
    {
        QTemporaryDir folder;
        Log log;
        log.enable(folder.filePath(u"errors.log"_s));
        const QString path = folder.filePath(u"Alt.bak"_s);
        QVERIFY(!KillFile(path, &log));
        writeFileAtomically(path, "x");
        QVERIFY(KillFile(storedPath(folder.filePath(u"alt.BAK"_s)), &log));
        QVERIFY(!QFileInfo::exists(path));
        QVERIFY(!QFileInfo::exists(log.file()));
        QDir(folder.path()).mkpath(u"Ordner/x"_s);
        QVERIFY(!KillFile(folder.filePath(u"Ordner"_s), &log));
        const QStringList lines = readListFile(log.file());
        QCOMPARE(lines.size(), 2);
        QVERIFY(lines[0].startsWith(
            u"Error 75 (Path/File access error) in procedure KillFile of Module modMain"));
        QVERIFY(lines[1].startsWith(folder.filePath(u"Ordner"_s) + u" could not be deleted"_s));
    }

    void recentDocuments_data()
    {
        columns<QByteArray, bool>("before", "understood");
        QTest::newRow("no list yet") << QByteArray() << true;
        QTest::newRow("a list") << QByteArray("<xbel version=\"1.0\" xmlns:bookmark=\"b\" xmlns:mime=\"m\">\n"
                                              "  <bookmark href=\"file:///x\"></bookmark>\n</xbel>\n")
                                << true;
        QTest::newRow("no end") << QByteArray("<xbel xmlns:bookmark=\"b\" xmlns:mime=\"m\">") << false;
    }
    void recentDocuments()
    {
        QFETCH(QByteArray, before);
        QFETCH(bool, understood);
        QTemporaryDir home;
        const QByteArray old = qgetenv("XDG_DATA_HOME");
        qputenv("XDG_DATA_HOME", home.path().toUtf8());
        const QString list = home.filePath(u"recently-used.xbel"_s);
        const QString session = home.filePath(u"Frösche & Co 's.wlx"_s);
        writeFileAtomically(session, "x");
        if (!before.isEmpty())
            writeFileAtomically(list, before);
        AddToRecentDocs(session, u"application/x-wortel"_s);
        AddToRecentDocs(session, u"application/x-wortel"_s); // no second entry
        AddToRecentDocs(home.filePath(u"fehlt.wlx"_s), u"application/x-wortel"_s);
        const QByteArray after = ReadWholeFile(list);
        qputenv("XDG_DATA_HOME", old);
        if (!understood) {
            QCOMPARE(after, before);
            return;
        }
        QXmlStreamReader reader(after);
        QStringList addresses;
        while (!reader.atEnd())
            if (reader.readNext() == QXmlStreamReader::StartElement && reader.name() == u"bookmark")
                addresses.append(reader.attributes().value(u"href"_s).toString());
        QVERIFY2(!reader.hasError(), qPrintable(reader.errorString()));
        QCOMPARE(addresses.size(), before.isEmpty() ? 1 : 2);
        QCOMPARE(QUrl(addresses.last()).toLocalFile(), session);
        home.remove();
    }
};

WORTEL_TEST(SystemInfoTest)
#include "tst_system_info.moc"
