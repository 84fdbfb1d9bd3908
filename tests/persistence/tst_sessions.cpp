// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/files.h"
#include "support/file_size_limit.h"
#include "support/test_board.h"
#include "support/test_class.h"

#include <QLabel>

#include <sys/stat.h>

class SessionsTest : public QObject
{
    Q_OBJECT

private:
    struct Rig : TestBoard
    {
        Sessions &sessions = r.sessions;
        QString path = t.AppFolder + u"a.wlx"_s;

        void write(const QByteArray &bytes) const { writeFileAtomically(path, bytes); }
        QByteArray bytes() const { return ReadWholeFile(path); }
        QString lastBox() const { return t.boxes.asked.isEmpty() ? QString() : t.boxes.asked.last().text; }
        QString invalid() const
        {
            return u"Die WXL-Sitzung konnte nicht eingelesen werden: "_s + path +
                   u"\n\nDie Datei enthält ungültige Daten.\n\nDas Laden wird abgebrochen..."_s;
        }
    };
    static QByteArray tile(int number, const char *type, const char *left, const char *top,
                           const char *caption)
    {
        return QByteArray("[Morpheme") + QByteArray::number(number) + "]\r\nType=" + type +
               "\r\nLeft=" + left + "\r\nTop=" + top + "\r\nCaption=" + caption + "\r\n";
    }
    static QByteArray count(const char *number)
    {
        return QByteArray("[NumObjects]\r\nObjCounter=") + number + "\r\n";
    }

private slots:
    void initTestCase()
    {
        QVERIFY(home_.isValid());
        qputenv("XDG_DATA_HOME", home_.path().toLocal8Bit());
    }

    void formatByteForByte()
    {
        Rig rig;
        rig.lists.CurrentWortelFile = rig.t.AppFolder + u"text\\Hauptbausteine.Txt"_s;
        rig.lay(prefix, 1200, 340, u"ver"_s);
        rig.sessions.SaveObjects(rig.path);
        QCOMPARE(rig.bytes(), tile(1, "Prefix", "1200", "340", "\"ver\"") + count("1") +
                                  QByteArray("[Name]\r\nLexiconInUse=Hauptbausteine\r\n"));
        QCOMPARE(rig.sessions.CurrentSessionFile(), rig.path);
        QCOMPARE(rig.sessions.WebExportName(), u"A.html"_s);
    }

    void savesAndOpens_data()
    {
        columns<QString>("caption");
        QTest::newRow("signs") << u"  groß \"x\"=[;] "_s;
        QTest::newRow("sharp s before a quotation mark") << u"groß“"_s;
        QTest::newRow("long") << QString(800, u'x');
        QTest::newRow("another script") << u"Ω"_s;
    }
    void savesAndOpens()
    {
        QFETCH(QString, caption);
        Rig rig;
        rig.lay(prefix, 1, 2, u"ver"_s);
        rig.lay(wortel, -30, 40, caption);
        rig.lay(suffix, 0, 0, u"schaft"_s);
        const QStringList tiles = rig.described();
        rig.sessions.SaveObjects(rig.path);
        rig.lay(wortel, 9, 9, u"neu"_s);
        rig.sessions.RestoreObjects(rig.path);
        QCOMPARE(rig.described(), tiles);
        QCOMPARE(rig.counters(), QStringList({u"1"_s, u"1"_s, u"1"_s, u"3"_s}));
        QCOMPARE(rig.optTypes->selected(), TileFilter::all);
    }

    void odd_data()
    {
        columns<QByteArray, QString, bool>("bytes", "tiles", "told");
        const auto row = [](const char *name, const QByteArray &bytes, const char *tiles, bool told = false) {
            QTest::newRow(name) << bytes << QString::fromUtf8(tiles) << told;
        };
        const QByteArray good = tile(2, "sUFfix", "5", "6", "\"ung\"");
        row("empty file", {}, "");
        row("no count", good, "");
        row("count 0", good + count("0"), "");
        row("count beyond 16 bits", good + count("32768"), "", true);
        row("count larger than the file", good + count("32767"), "5,6 ung");
        row("empty caption", tile(1, "Prefix", "1", "1", "\"\"") + good + count("2"), "5,6 ung");
        row("blank key", tile(1, "Prefix", "", "1", "\"a\"") + good + count("2"), "5,6 ung");
        row("other type keeps the colours", good + tile(3, "Stamm", "1", "1", "b") + count("3"),
            "5,6 ung|1,1 b");
        row("left beyond 16 bits", good + tile(3, "Wortel", "32768", "1", "b") + count("3"), "5,6 ung", true);
        row("top beyond 32 bits", good + tile(3, "Wortel", "1", "-2147483649", "b") + count("3"), "5,6 ung",
            true);
        row("quotes inside", tile(1, "Prefix", "1", "1", "\"a\"b\"\"") + count("1"), "1,1 a\"b\"");
        row("garbage", QByteArray("\x00\xFF[[=]]\r[\n]=\x01\xFE", 15), "");
        row("UTF-8 with its mark",
            "\xEF\xBB\xBF" + tile(1, "Prefix", "1", "1", "\"f\xC3\xBCr\"") + count("1"), "1,1 für");
    }
    void odd()
    {
        QFETCH(QByteArray, bytes);
        QFETCH(bool, told);
        Rig rig;
        rig.lay(wortel, 50, 50, u"weg"_s);
        rig.write(bytes);
        if (told)
            rig.t.boxes.willAnswer(Boxes::Answer::Ok);
        rig.sessions.RestoreObjects(rig.path);
        QTEST(rig.described().join(u'|'), "tiles");
        QCOMPARE(rig.counters().last(), QString::number(rig.store->count()));
        QCOMPARE(rig.lastBox(), told ? rig.invalid() : QString());
        QCOMPARE(rig.sessions.CurrentSessionFile(), told ? QString() : rig.path);
        QCOMPARE(rig.bytes(), bytes);
    }

    void stemListComesAlong_data()
    {
        columns<QByteArray, bool, bool, bool>("name", "on", "loaded", "told");
        QTest::newRow("on") << QByteArray("[Name]\r\nLexiconInUse=Bäume\r\n") << true << true << false;
        QTest::newRow("off") << QByteArray("[Name]\r\nLexiconInUse=Bäume\r\n") << false << false << false;
        QTest::newRow("list too large")
            << QByteArray("[Name]\r\nLexiconInUse=riesig\r\n") << true << false << true;
        QTest::newRow("missing list")
            << QByteArray("[Name]\r\nLexiconInUse=fort\r\n") << true << false << true;
        for (const char *elsewhere : {"..\\text\\Bäume", "../text/Bäume", ".\\Bäume"})
            QTest::newRow(elsewhere) << "[Name]\r\nLexiconInUse=" + QByteArray(elsewhere) + "\r\n"
                                     << true << false << true;
    }
    void stemListComesAlong()
    {
        QFETCH(QByteArray, name);
        QFETCH(bool, on);
        QFETCH(bool, loaded);
        QFETCH(bool, told);
        Rig rig;
        rig.t.writeFile(u"text\\Bäume.txt"_s, u"tann\r\nbirk\r\n"_s);
        rig.t.writeFile(u"facit\\Bäume.lex"_s, u"Birke\r\n"_s);
        QFile::resize(nativePath(rig.t.writeFile(u"text\\riesig.txt"_s, {})), 1 << 30);
        rig.t.options.setBox(Setting::OpenWLXWithStoredLex, on ? 1 : 0);
        if (told)
            rig.t.boxes.willAnswer(Boxes::Answer::Ok);
        rig.write(tile(1, "Wortel", "1", "1", "\"a\"") + count("1") + QByteArray(name).replace("ä", "\xE4"));
        rig.sessions.RestoreObjects(rig.path);
        QCOMPARE(rig.lists.WortelList.rows() == QStringList({u"tann"_s, u"birk"_s}), loaded);
        QCOMPARE(rig.lists.LexiconList.rows() == QStringList({u"Birke"_s}), loaded);
        QVERIFY(!rig.lists.LexiconList.isEmpty() && !rig.lists.WortelList.isEmpty()); // the old stay
        QCOMPARE(rig.controls.Label3->text() + rig.controls.Label3->toolTip() == u"BäumeBäume"_s, loaded);
        QCOMPARE(rig.store->count(), 1);
        if (told) {
            const QString list = QString::fromUtf8(name.mid(21).trimmed());
            const QString trouble = list == u"riesig"_s
                                        ? u" kann nicht gelesen werden\n\nDie Datei ist zu groß."_s
                                        : u" fehlt\n\nSub: RestoreObjects. Line: "_s;
            QVERIFY(rig.lastBox().startsWith(u"Datei "_s + rig.t.AppFolder + u"text\\"_s + list + u".txt"_s +
                                             trouble));
        }
    }

    void dialogs()
    {
        Rig rig;
        rig.lay(wortel, 1, 1, u"a"_s);
        rig.t.fileDialogs.willOpen({});
        rig.sessions.RestoreObjects();
        QCOMPARE(rig.store->count(), 1);
        QCOMPARE(rig.t.fileDialogs.asked.last().title, u"Wortel - Sitzung laden"_s);
        QCOMPARE(rig.t.fileDialogs.asked.last().style, rig.t.AppFolder);
        rig.t.fileDialogs.willSave({});
        rig.sessions.SaveObjects();
        QVERIFY(rig.sessions.CurrentSessionFile().isEmpty());
        rig.t.fileDialogs.willSave(rig.path);
        rig.sessions.SaveObjects();
        QCOMPARE(rig.t.fileDialogs.asked.last().title, u"Wortel - Sitzung speichern"_s);
        QCOMPARE(rig.t.store.GetSetting(u"Path"_s, u"SaveWLX"_s, {}), rig.t.AppFolder.chopped(1));
        rig.t.fileDialogs.willSave({});
        rig.sessions.SaveObjects();
        QCOMPARE(rig.t.fileDialogs.lastHints.open, rig.path); // replaced without a question
        QVERIFY(IsTextFile(rig.path));
        rig.sessions.RestoreObjects(rig.path);
        QCOMPARE(rig.t.store.GetSetting(u"Path"_s, u"RestoreWXL"_s, u"-"_s), u"-"_s);
        rig.t.fileDialogs.willOpen({rig.path});
        rig.sessions.RestoreObjects();
        QCOMPARE(rig.t.store.GetSetting(u"Path"_s, u"RestoreWXL"_s, {}), rig.t.AppFolder.chopped(1));
    }

    void filesThatCannotBeRead_data()
    {
        columns<QString, QString>("what", "reason");
        QTest::newRow("missing") << QString() << QString(); // an empty session, as ever
        QTest::newRow("a folder in its place") << u"folder"_s << u"Die Datei enthält ungültige Daten."_s;
        QTest::newRow("a pipe in its place") << u"pipe"_s << u"Die Datei enthält ungültige Daten."_s;
        QTest::newRow("a gigabyte") << u"gigabyte"_s << u"Die Datei ist zu groß."_s;
    }
    /// They leave the board and what can be undone as they are.
    void filesThatCannotBeRead()
    {
        QFETCH(QString, what);
        QFETCH(QString, reason);
        Rig rig;
        const QString native = nativePath(rig.path);
        if (what == u"folder"_s)
            QVERIFY(QDir().mkpath(native));
        if (what == u"pipe"_s)
            QCOMPARE(mkfifo(qPrintable(native), 0600), 0);
        if (what == u"gigabyte"_s)
            QVERIFY(rig.t.writeFile(u"a.wlx"_s, {}) == rig.path && QFile::resize(native, 1 << 30));
        rig.lay(wortel, 1, 1, u"a"_s);
        if (!reason.isEmpty())
            rig.t.boxes.willAnswer(Boxes::Answer::Ok);
        QSignalSpy opens(&rig.sessions, &Sessions::boardOpens);
        rig.sessions.RestoreObjects(rig.path);
        QCOMPARE(rig.store->count(), reason.isEmpty() ? 0 : 1);
        QCOMPARE(opens.size(), reason.isEmpty() ? 1 : 0);
        QCOMPARE(rig.lastBox(), reason.isEmpty()
                                    ? QString()
                                    : rig.invalid().replace(u"Die Datei enthält ungültige Daten."_s, reason));
    }

    void aFullDiskLeavesTheOldSession()
    {
        Rig rig;
        rig.write("[Name]\r\nLexiconInUse=alt\r\n");
        for (int i = 0; i < 200; ++i)
            rig.lay(wortel, i, 1, u"voll"_s);
        rig.t.boxes.willAnswer(Boxes::Answer::Ok);
        {
            const FileSizeLimit full(4096);
            rig.sessions.SaveObjects(rig.path);
        }
        QVERIFY2(rig.lastBox().startsWith(
                     u".WLX-Datei könnte nicht gespeichert werden.\n\n FrmTransform::SaveObjects (Line: "_s),
                 qPrintable(rig.lastBox()));
        QCOMPARE(rig.bytes(), QByteArray("[Name]\r\nLexiconInUse=alt\r\n"));
        QVERIFY(rig.sessions.CurrentSessionFile().isEmpty());
    }

private:
    QTemporaryDir home_; ///< keeps the user's own recent documents out of it
};

WORTEL_TEST(SessionsTest)
#include "tst_sessions.moc"
