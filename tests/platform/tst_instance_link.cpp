// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/instance_link.h"
#include "support/registry.h"

#include <QLocalSocket>
#include <QSignalSpy>
#include <QtTest>

#include <atomic>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>

using namespace Qt::StringLiterals;

class InstanceLinkTest : public QObject
{
    Q_OBJECT

    QTemporaryDir folder_;
    QString address_ = folder_.filePath(u"link"_s);

private slots:
    void handsTextOver_data()
    {
        QTest::addColumn<QString>("text");
        QTest::newRow("paths") << u"C:\\Übung.wlx  /home/x/b.wlx"_s;
        QTest::newRow("empty") << QString();
        QTest::newRow("largest") << QString(64 * 1024, u'x');
    }
    void handsTextOver()
    {
        QFETCH(QString, text);
        InstanceLink first(address_);
        QVERIFY(first.isFirst() && first.listen());
        QSignalSpy received(&first, &InstanceLink::textReceived);
        const InstanceLink second(address_);
        QVERIFY(!second.isFirst());
        QVERIFY(second.send(text)); // does not wait for the first instance to read
        QTRY_COMPARE(received.count(), 1);
        QCOMPARE(received.first().first().toString(), text);
        QVERIFY(!second.send(QString(64 * 1024 + 1, u'x')));
    }

    void onlyTheUserReachesTheSocket()
    {
        InstanceLink first(address_);
        QVERIFY(first.listen());
        const QFile::Permissions others =
            QFile::ReadGroup | QFile::WriteGroup | QFile::ReadOther | QFile::WriteOther;
        QCOMPARE(QFile::permissions(address_) & others, QFile::Permissions());
    }

    void dropsWhatIsNoMessage_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        QTest::newRow("nothing") << QByteArray();
        QTest::newRow("less than told") << QByteArray("\0\0\0\005abc", 7);
        QTest::newRow("longest length") << QByteArray("\xFF\xFF\xFF\377abc", 7);
        QTest::newRow("no UTF-8") << QByteArray("\0\0\0\x02\xC3\x28", 6);
        QTest::newRow("megabytes") << QByteArray(4 << 20, '\xAA');
    }
    void dropsWhatIsNoMessage()
    {
        QFETCH(QByteArray, bytes);
        InstanceLink first(address_);
        QVERIFY(first.listen());
        QSignalSpy received(&first, &InstanceLink::textReceived);
        QLocalSocket stranger;
        stranger.connectToServer(address_);
        QVERIFY(stranger.waitForConnected(1000));
        stranger.write(bytes);
        stranger.flush();
        QTest::qWait(20);
        stranger.disconnectFromServer();
        QVERIFY(InstanceLink(address_).send(u"danach"_s)); // the link still lives
        QTRY_COMPARE(received.count(), 1);
        QCOMPARE(received.first().first().toString(), u"danach"_s);
    }

    void silentStrangersDoNotBlockTheLink()
    {
        InstanceLink first(address_);
        QVERIFY(first.listen());
        QSignalSpy received(&first, &InstanceLink::textReceived);
        std::vector<std::unique_ptr<QLocalSocket>> strangers;
        for (int i = 0; i < 10; ++i) {
            strangers.push_back(std::make_unique<QLocalSocket>());
            strangers.back()->connectToServer(address_);
            QVERIFY(strangers.back()->waitForConnected(1000));
        }
        QVERIFY(InstanceLink(address_).send(u"hier"_s));
        QTRY_COMPARE(received.count(), 1);
    }

    void aCrashLeavesNoLock()
    {
        const pid_t child = fork();
        if (child == 0) {
            InstanceLink crashed(address_);
            _exit(crashed.isFirst() && crashed.listen() ? 0 : 1);
        }
        int status = 1;
        waitpid(child, &status, 0);
        QCOMPARE(status, 0);
        QVERIFY(QFileInfo::exists(address_)); // the stale socket
        InstanceLink next(address_);
        QVERIFY(next.isFirst());
        QVERIFY(next.listen());
    }

    void ofManyStartsInOneInstantOneIsFirst()
    {
        std::atomic<int> firsts = 0;
        std::atomic<int> made = 0;
        constexpr int starts = 8;
        std::vector<std::thread> threads;
        for (int i = 0; i < starts; ++i)
            threads.emplace_back([&] {
                const InstanceLink link(address_);
                firsts += link.isFirst() ? 1 : 0;
                ++made;
                while (made < starts)
                    std::this_thread::yield();
            });
        for (std::thread &thread : threads)
            thread.join();
        QCOMPARE(firsts.load(), 1);
    }

    void waitsForAFirstInstanceThatStillStarts()
    {
        InstanceLink first(address_);
        QSignalSpy received(&first, &InstanceLink::textReceived);
        std::atomic<bool> sent = false;
        std::thread other([&] { sent = InstanceLink(address_).send(u"früh"_s); });
        QTest::qWait(150);
        QVERIFY(first.listen());
        QTRY_COMPARE(received.count(), 1);
        other.join();
        QVERIFY(sent);
    }

    void neitherNobodyNorAMissingFolderStopsTheStart()
    {
        QVERIFY(!InstanceLink(address_).send(u"x"_s, 200));
        QVERIFY(InstanceLink(u"/proc/wortel/link"_s).isFirst());
    }
};

WORTEL_TEST(InstanceLinkTest)
#include "tst_instance_link.moc"
