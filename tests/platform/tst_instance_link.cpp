// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/files.h"
#include "platform/instance_link.h"
#include "platform/local_socket.h"
#include "support/test_class.h"

#include <QLocalSocket>

#include <atomic>
#include <sys/file.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>

class InstanceLinkTest : public QObject
{
    Q_OBJECT

    QTemporaryDir folder_;
    QString address_ = folder_.filePath(u"link"_s);

private slots:
    void handsTextOver_data()
    {
        QTest::addColumn<QStringList>("arguments");
        QTest::newRow("paths") << QStringList{u"C:\\Übung 1.wlx"_s, u"/home/x/b.wlx"_s};
        QTest::newRow("an empty one between") << QStringList{u"a"_s, u""_s, u"b"_s};
        QTest::newRow("largest") << QStringList{QString(64 * 1024, u'x')};
    }
    void handsTextOver()
    {
        QFETCH(QStringList, arguments);
        InstanceLink first(address_);
        QVERIFY(first.isFirst());
        QSignalSpy arrived(&first, &InstanceLink::arrived);
        QCOMPARE(handOver(arguments), InstanceLink::Outcome::Taken);
        QCOMPARE(handOver({}), InstanceLink::Outcome::Taken); // only asks
        QCOMPARE(arrived.count(), 1);
        QCOMPARE(first.waiting(), std::size_t(1)); // until somebody opens it
        QCOMPARE(first.takeNext(), arguments);
        QCOMPARE(first.takeNext(), std::nullopt);
        QCOMPARE(handOver({QString(64 * 1024 + 1, u'x')}), InstanceLink::Outcome::TooLong);
    }

    void onlyTheUserReachesTheSocket()
    {
        InstanceLink first(address_);
        const QFile::Permissions others =
            QFile::ReadGroup | QFile::WriteGroup | QFile::ReadOther | QFile::WriteOther;
        QCOMPARE(QFile::permissions(address_) & others, QFile::Permissions());
    }

    void answersItsOwnUserOnly()
    {
        if (geteuid() != 0)
            QSKIP("only root may be another user");
        const InstanceLink first(address_);
        // Even where the rights of the files have been opened.
        QCOMPARE(chmod(QFile::encodeName(folder_.path()).constData(), 0755), 0);
        QCOMPARE(chmod(QFile::encodeName(address_).constData(), 0666), 0);
        const pid_t child = fork();
        if (child == 0) {
            constexpr uid_t nobody = 65534;
            const int as = setuid(nobody);
            const int plain = socket(AF_UNIX, SOCK_STREAM, 0);
            sockaddr_un address{};
            address.sun_family = AF_UNIX;
            qstrncpy(address.sun_path, QFile::encodeName(address_).constData(), sizeof address.sun_path);
            char answer = 0;
            const bool refused =
                as == 0 && local_socket::connectTo(address_) < 0 &&
                ::connect(plain, reinterpret_cast<sockaddr *>(&address), sizeof address) == 0 &&
                send(plain, "\0\0\0\1a", 5, MSG_NOSIGNAL) >= -1 && read(plain, &answer, 1) <= 0;
            _exit(refused ? 0 : 1);
        }
        int status = -1;
        QTRY_VERIFY(status >= 0 || waitpid(child, &status, WNOHANG) == child);
        QCOMPARE(status, 0);
        QCOMPARE(first.waiting(), std::size_t(0));
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
        QLocalSocket stranger;
        stranger.connectToServer(address_);
        QVERIFY(stranger.waitForConnected(1000));
        stranger.write(bytes);
        stranger.flush();
        QTest::qWait(20);
        stranger.disconnectFromServer();
        QCOMPARE(handOver({u"danach"_s}), InstanceLink::Outcome::Taken); // the link still lives
        QCOMPARE(first.waiting(), std::size_t(1));
    }

    void silentStrangersDoNotBlockTheLink()
    {
        InstanceLink first(address_);
        std::vector<std::unique_ptr<QLocalSocket>> strangers;
        for (int i = 0; i < 10; ++i) {
            strangers.push_back(std::make_unique<QLocalSocket>());
            strangers.back()->connectToServer(address_);
            QVERIFY(strangers.back()->waitForConnected(1000));
        }
        QCOMPARE(handOver({u"hier"_s}), InstanceLink::Outcome::Taken);
    }

    void aCrashLeavesNoLock()
    {
        const pid_t child = fork();
        if (child == 0) {
            InstanceLink crashed(address_);
            _exit(crashed.isFirst() ? 0 : 1);
        }
        int status = 1;
        waitpid(child, &status, 0);
        QCOMPARE(status, 0);
        QVERIFY(QFileInfo::exists(address_)); // the stale socket
        const InstanceLink next(address_);
        QVERIFY(next.isFirst());
        QCOMPARE(handOver({u"x"_s}), InstanceLink::Outcome::Taken);
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

    void whatLiesInTheWayIsTakenOver_data()
    {
        QTest::addColumn<QString>("inTheWay");
        QTest::addColumn<int>("mode");
        QTest::newRow("empty") << u""_s << 0600;
        QTest::newRow("of another program") << u"99999999\nsh\nschule7\n"_s << 0644;
        QTest::newRow("of a process that lives")
            << u"1\nwortel\n%1\n"_s.arg(QSysInfo::machineHostName()) << 0600;
        QTest::newRow("not to be read") << u"x"_s << 0;
        QTest::newRow("a link") << u"->"_s << 0;
        QTest::newRow("held by another user") << u"held"_s << 0666;
    }
    void whatLiesInTheWayIsTakenOver()
    {
        QFETCH(QString, inTheWay);
        QFETCH(int, mode);
        const QString address = folder_.filePath(u"weg"_s);
        const QString lock = address + u".lock"_s;
        QFile::remove(lock);
        if (inTheWay == u"->"_s)
            QVERIFY(QFile::link(u"/etc/hostname"_s, lock));
        else
            writeFileAtomically(lock, inTheWay.toUtf8());
        if (mode != 0 || inTheWay == u"x"_s)
            QCOMPARE(chmod(lock.toLocal8Bit().constData(), static_cast<mode_t>(mode)), 0);
        QFile held(lock);
        if (inTheWay == u"held"_s && held.open(QIODevice::ReadWrite) && fchown(held.handle(), 65534, 0) == 0)
            QCOMPARE(flock(held.handle(), LOCK_EX | LOCK_NB), 0);
        writeFileAtomically(address, "no socket");

        const InstanceLink first(address);
        QVERIFY(first.isFirst());
        QVERIFY(!InstanceLink(address).isFirst());
        QCOMPARE(handOver({u"a"_s}, 5000, address), InstanceLink::Outcome::Taken);
    }

    void aFolderMayHaveALongName()
    {
        const QString address = folder_.filePath(QString(200, u'l') + u'/' + QString(100, u'ö') + u"/link"_s);
        InstanceLink first(address);
        QVERIFY(first.isFirst());
        QCOMPARE(handOver({u"a"_s}, 5000, address), InstanceLink::Outcome::Taken);
        first.stopListening();
        QVERIFY(!QFileInfo::exists(address));
    }

    void whoGetsNoAnswerBecomesTheFirstOrSaysSo()
    {
        auto first = std::make_unique<InstanceLink>(address_);
        // Stopped: it lives and does not read. What it reads too late is not opened behind the user's back.
        QCOMPARE(InstanceLink(address_).handOver({u"spät"_s}, 200), InstanceLink::Outcome::NoAnswer);
        QTest::qWait(50);
        QCOMPARE(first->waiting(), std::size_t(0));
        // Ending: it takes nothing any more, and the one who waits follows it.
        first->stopListening();
        std::atomic<InstanceLink::Outcome> outcome{};
        std::thread other([&] { outcome = InstanceLink(address_).handOver({u"a"_s}); });
        QTest::qWait(150);
        first.reset();
        other.join();
        QCOMPARE(outcome.load(), InstanceLink::Outcome::IsFirst);
    }

    void aDeletedLockMakesNoSecondFirst()
    {
        const InstanceLink first(address_);
        QVERIFY(QFile::remove(address_ + u".lock"_s));
        QVERIFY(!InstanceLink(address_).isFirst());
        QVERIFY(InstanceLink(u"/proc/wortel/link"_s).isFirst()); // no folder, no lock
    }

    void takesAFolderThatIsTheUsersAlone_data()
    {
        QTest::addColumn<int>("mode");
        QTest::addColumn<bool>("taken");
        QTest::newRow("his alone") << 0700 << true;
        QTest::newRow("others may write") << 0777 << false;
    }
    void takesAFolderThatIsTheUsersAlone()
    {
        QFETCH(int, mode);
        QFETCH(bool, taken);
        const QString runtime = folder_.filePath(u"run%1"_s.arg(mode));
        QVERIFY(QDir().mkpath(runtime));
        QCOMPARE(chmod(runtime.toLocal8Bit().constData(), static_cast<mode_t>(mode)), 0);
        const QByteArray before = qgetenv("XDG_RUNTIME_DIR");
        qputenv("XDG_RUNTIME_DIR", QFile::encodeName(runtime));
        const QString address = InstanceLink::defaultAddress();
        qputenv("XDG_RUNTIME_DIR", before);
        const QString own = QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation);
        QCOMPARE(address.startsWith(runtime + u"/wortel-meister-"_s), taken);
        QCOMPARE(address.startsWith(own + u"/Wortel-Meister/wortel-meister-"_s), !taken);
    }

private:
    /// What another process of the same user does, while the first one's events run.
    InstanceLink::Outcome handOver(const QStringList &arguments, int patience = 5000, const QString &to = {})
    {
        std::atomic<bool> done = false;
        InstanceLink::Outcome outcome{};
        std::thread other([&] {
            outcome = InstanceLink(to.isEmpty() ? address_ : to).handOver(arguments, patience);
            done = true;
        });
        while (!done)
            QTest::qWait(5);
        other.join();
        return outcome;
    }
};

WORTEL_TEST(InstanceLinkTest)
#include "tst_instance_link.moc"
