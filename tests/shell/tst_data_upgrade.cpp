// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/data_upgrade.h"
#include "support/file_bytes.h"
#include "support/file_size_limit.h"
#include "support/test_class.h"

#include <sys/wait.h>

namespace {

const QByteArray none = "missing"; ///< of a file that is not there

/// An installation and the folder of one user.
struct Place
{
    QTemporaryDir root;
    QString installed = root.filePath(u"share"_s);
    QString user = root.filePath(u"user"_s);

    /// Another version takes the place of the installed one.
    void install(const QHash<QString, QByteArray> &files) const
    {
        QDir(installed).removeRecursively();
        putBytes(installed + u"/facit/Wald.lex"_s, "Baum\r\n");
        for (auto file = files.cbegin(); file != files.cend(); ++file)
            if (file.value() != none)
                putBytes(installed + u'/' + file.key(), file.value());
    }
    void start(const QString &version) const { data_upgrade::bringUpToDate(user, installed, version); }
    void put(const QString &name, const QByteArray &bytes) const { putBytes(user + u'/' + name, bytes); }
    QByteArray bytes(const QString &name) const { return bytesOf(user + u'/' + name); }
};

const QString list = u"text/Ä ODER E.txt"_s;

} // namespace

/// What a new version does to the lists of a user.
class DataUpgradeTest : public QObject
{
    Q_OBJECT

private slots:
    /// One file each: as the first version brings it, as the user leaves it, as the second brings it, and as
    /// it is then.
    void twoVersions_data()
    {
        columns<QByteArray, QByteArray, QByteArray, QByteArray>("first", "left", "second", "expected");
        const QByteArray one = "eins\r\n";
        const QByteArray two = "zwei\r\n";
        const QByteArray own = "eigenes\r\n";
        QTest::newRow("untouched") << one << one << two << two;
        QTest::newRow("untouched and unchanged") << one << one << one << one;
        QTest::newRow("edited") << one << own << two << own;
        QTest::newRow("edited to the same size")
            << one << QByteArray("EINS\r\n") << two << QByteArray("EINS\r\n");
        QTest::newRow("edited to nothing") << one << QByteArray() << two << QByteArray();
        QTest::newRow("edited into what comes") << one << two << two << two;
        QTest::newRow("edited, not renewed") << one << own << one << own;
        QTest::newRow("taken away") << one << none << two << none;
        QTest::newRow("new") << none << none << two << two;
        QTest::newRow("new, and the user has one") << none << own << two << own;
        QTest::newRow("gone, untouched") << one << one << none << one;
        QTest::newRow("gone, edited") << one << own << none << own;
        QTest::newRow("comes empty") << one << one << QByteArray() << QByteArray();
    }
    void twoVersions()
    {
        QFETCH(QByteArray, first);
        QFETCH(QByteArray, left);
        QFETCH(QByteArray, second);
        QFETCH(QByteArray, expected);
        const Place place;
        place.install({{u"text/Wald.txt"_s, "wald\r\n"}, {list, first}});
        place.start(u"1.0.0"_s);
        QCOMPARE(place.bytes(list), first);
        if (left == none)
            QFile::remove(place.user + u'/' + list);
        else
            place.put(list, left);
        place.start(u"1.0.0"_s);
        QCOMPARE(place.bytes(list), left);

        place.install({{u"text/Wald.txt"_s, "wald\r\n"}, {list, second}});
        place.start(u"1.0.1"_s);
        QCOMPARE(place.bytes(list), expected);

        // And once more: an edited file is edited for good, one that came again is ours again.
        const QByteArray third = "drei\r\n";
        place.install({{u"text/Wald.txt"_s, "wald\r\n"}, {list, third}});
        place.start(u"1.1.0"_s);
        const bool ours = expected == second || (second == none && expected == first);
        QCOMPARE(place.bytes(list), ours ? third : expected);
    }

    void whatNoStartCanDoWithoutComesBack()
    {
        const Place place;
        place.install({{u"text/Hauptbausteine.Txt"_s, "wald"}});
        place.start(u"1.0.0"_s);
        QVERIFY(QFile::remove(place.user + u"/text/Hauptbausteine.Txt"_s));
        QVERIFY(!data_upgrade::isWhole(place.user, place.installed));
        place.start(u"1.0.0"_s);
        QVERIFY(data_upgrade::isWhole(place.user, place.installed));
    }

    /// The same version may be built anew with other data; an older one takes nothing back, but a game
    /// without lists is none.
    void whichVersion()
    {
        const Place place;
        place.install({{list, "alt"}});
        place.start(u"1.9.0"_s);
        place.install({{list, "neu!"}});
        place.start(u"1.9.0"_s);
        QCOMPARE(place.bytes(list), QByteArray("neu!"));
        place.install({{list, "älter"}});
        place.start(u"1.10.0"_s);
        place.install({{list, "zurück"}});
        place.start(u"1.9.0"_s);
        QCOMPARE(place.bytes(list), QByteArray("älter"));
        QDir(place.user + u"/text"_s).removeRecursively();
        place.start(u"1.9.0"_s);
        QCOMPARE(place.bytes(list), QByteArray("zurück"));
    }

    /// A folder from before there was a manifest: what is ours for sure is renewed from then on.
    void aFolderWithoutManifest_data()
    {
        columns<QByteArray>("manifest");
        QTest::newRow("none") << none;
        QTest::newRow("empty") << QByteArray();
        QTest::newRow("rubbish") << QByteArray("\0\xff\n\n  \n- text\n", 14);
        QTest::newRow("no sums") << QByteArray("1.0.0 abc\n../x text/Ä ODER E.txt\n");
    }
    void aFolderWithoutManifest()
    {
        QFETCH(QByteArray, manifest);
        const Place place;
        place.install({{list, "eins"}, {u"text/b.txt"_s, "b1"}, {u"text/neu.txt"_s, "n"}});
        place.put(u"facit/Wald.lex"_s, "eigenes");
        place.put(list, "eins");
        place.put(u"text/B.TXT"_s, "eigene Liste");
        if (manifest != none)
            place.put(u".laid"_s, manifest);
        place.start(u"1.0.0"_s);
        QCOMPARE(place.bytes(u"text/neu.txt"_s), QByteArray("n"));
        QCOMPARE(place.bytes(u"text/b.txt"_s), none); // the user's own in other letters
        place.install({{list, "zwei"}, {u"text/b.txt"_s, "b2"}});
        place.start(u"2.0.0"_s);
        QCOMPARE(place.bytes(list), QByteArray("zwei"));
        QCOMPARE(place.bytes(u"text/B.TXT"_s), QByteArray("eigene Liste"));
        QCOMPARE(place.bytes(u"facit/Wald.lex"_s), QByteArray("eigenes"));
    }

    /// Killed at the manifest or in the middle of a file; then the next version comes.
    void cutOff_data()
    {
        columns<int, QString>("limit", "bigFile");
        QTest::newRow("at the manifest") << 0 << QString();
        for (const QString &name : {u"a"_s, u"b"_s, u"neu"_s})
            QTest::addRow("at %s", qPrintable(name)) << 2000 << u"text/%1.txt"_s.arg(name);
    }
    void cutOff()
    {
        QFETCH(int, limit);
        QFETCH(QString, bigFile);
        const Place place;
        const auto version = [](const QByteArray &number) -> QHash<QString, QByteArray> {
            return {{u"text/a.txt"_s, 'a' + number},
                    {u"text/b.txt"_s, 'b' + number},
                    {u"text/c.txt"_s, 'c' + number}};
        };
        place.install(version("1"));
        place.start(u"1.0.0"_s);
        place.put(u"text/c.txt"_s, "eigenes");
        QHash<QString, QByteArray> second = version("2");
        second.insert(u"text/neu.txt"_s, "n2");
        if (!bigFile.isEmpty())
            second[bigFile] = QByteArray(5000, 'x');
        place.install(second);
        const pid_t child = fork();
        if (child == 0) {
            const FileSizeLimit full(static_cast<rlim_t>(limit));
            std::signal(SIGXFSZ, SIG_DFL);
            place.start(u"2.0.0"_s);
            _exit(0);
        }
        int status = 0;
        QCOMPARE(waitpid(child, &status, 0), child);
        QVERIFY(WIFSIGNALED(status));
        QCOMPARE(place.bytes(u"text/a.txt"_s),
                 QByteArray(limit == 0 || bigFile == u"text/a.txt"_s ? "a1" : "a2"));

        QHash<QString, QByteArray> third = version("3");
        third.insert(u"text/neu.txt"_s, "n3");
        place.install(third);
        place.start(u"3.0.0"_s);
        for (const QString &name : {u"a"_s, u"b"_s})
            QCOMPARE(place.bytes(u"text/%1.txt"_s.arg(name)), name.toLatin1() + '3');
        QCOMPARE(place.bytes(u"text/neu.txt"_s), QByteArray("n3"));
        QCOMPARE(place.bytes(u"text/c.txt"_s), QByteArray("eigenes"));
        QCOMPARE(QDir(place.user + u"/text"_s).entryList({u"*.tmp"_s}, QDir::Files | QDir::Hidden),
                 QStringList());
    }

    /// On a full disk the old files stay whole, and the next start brings the rest.
    void fullDisk()
    {
        const Place place;
        const QByteArray big(5000, 'x');
        place.install({{list, big}, {u"text/b.txt"_s, "b1"}});
        {
            const FileSizeLimit full(4000);
            place.start(u"1.0.0"_s);
        }
        QVERIFY(!data_upgrade::isWhole(place.user, place.installed));
        place.install({{list, "alt"}, {u"text/b.txt"_s, "b1"}});
        place.start(u"1.0.0"_s);
        QVERIFY(data_upgrade::isWhole(place.user, place.installed));
        place.install({{list, big}, {u"text/b.txt"_s, "b2"}});
        {
            const FileSizeLimit full(0);
            QVERIFY_THROWS_EXCEPTION(std::exception, place.start(u"1.1.0"_s));
        }
        QCOMPARE(place.bytes(list), QByteArray("alt"));
        {
            const FileSizeLimit full(4000);
            place.start(u"1.1.0"_s);
        }
        QCOMPARE(place.bytes(list), QByteArray("alt"));
        QCOMPARE(place.bytes(u"text/b.txt"_s), QByteArray("b2"));
        QVERIFY(data_upgrade::isWhole(place.user, place.installed));
        place.start(u"1.1.0"_s);
        QCOMPARE(place.bytes(list), big);
    }
};

WORTEL_TEST(DataUpgradeTest)
#include "tst_data_upgrade.moc"
