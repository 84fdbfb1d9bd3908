// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "persistence/backup.h"
#include "persistence/backup_file.h"
#include "platform/files.h"
#include "support/file_size_limit.h"
#include "support/test_board.h"
#include "support/test_class.h"

class BackupTest : public QObject
{
    Q_OBJECT

private:
    struct Rig : TestBoard
    {
        Backup &backup = r.backup;
        QString path = Backup::file(t.ground);
        QByteArray bytes() const { return ReadWholeFile(path); }
        void put(const QByteArray &content) const { writeFileAtomically(path, content); }
    };
    static const QByteArray &emptyRecord()
    {
        static const QByteArray sixteenZeros(16, '\0');
        return sixteenZeros;
    }
    /// "M1" 'M' 258 -2 "für" index 1
    static QByteArray oneTile()
    {
        return QByteArray("\x02\0M1\x01\0M\x02\x01\0\0\xFE\xFF\xFF\xFF\x03\0f\xFCr\x01\0", 22);
    }
    static QByteArray record(char type, qint32 left, qint32 top)
    {
        MyObj array;
        array.AddElementToMyObj(u"M1"_s, type, left, top, u"x"_s);
        return backup_file::encode(array).mid(16);
    }

private slots:
    void formatByteForByte()
    {
        Rig rig;
        rig.backup.SaveMyObjects(rig.path);
        QCOMPARE(rig.bytes(), emptyRecord());
        rig.lay(wortel, 258, -2, u"für"_s);
        rig.backup.SaveMyObjects(rig.path);
        QCOMPARE(rig.bytes(), emptyRecord() + oneTile());
    }

    void savesAndRestores()
    {
        Rig rig;
        rig.lay(prefix, 1, 2, u"ver"_s);
        rig.lay(wortel, 30, 40, QString(70000, u'a'));
        rig.lay(suffix, -5, 32767, u"ung\t\"x\""_s);
        rig.lay({0x123456, 0, u"", u"", u"", 'X', 0, BoxStyle::Plain}, 3, 3,
                u"fremd"_s); // of a colour that no kind has
        const QStringList before = rig.described();
        rig.backup.SaveMyObjects(rig.path);
        rig.backup.RestoreMyObjects(rig.path);
        QStringList after = rig.described();
        QCOMPARE(after.size(), 3);
        QCOMPARE(after.at(0), before.at(0));
        QCOMPARE(after.at(1).size(), 65535 + 6); // a length has two bytes
        QCOMPARE(after.at(2), before.at(2));
        QCOMPARE(rig.counters(), QStringList({u"1"_s, u"1"_s, u"1"_s, u"3"_s}));
    }

    void everyCutGivesWholeRecordsOnly()
    {
        MyObj array;
        array.AddElementToMyObj(u"M1"_s, 'P', 1, 2, u"ver"_s);
        array.AddElementToMyObj(u"M2"_s, 'S', -3, 4, u"ung"_s);
        const QByteArray whole = backup_file::encode(array);
        for (qsizetype length = 0; length <= whole.size(); ++length) {
            const auto records = backup_file::decode(whole.first(length));
            const std::size_t expected = length == whole.size() ? 3 : length >= 38 ? 2 : length >= 16 ? 1 : 0;
            QCOMPARE(records.size(), expected);
            if (expected > 1) {
                QCOMPARE(records[1].caption, u"ver"_s);
                QCOMPARE(records[1].left, 1);
            }
        }
    }

    void badFiles_data()
    {
        columns<QByteArray, QString, bool>("bytes", "tiles", "told");
        const auto row = [](const char *name, const QByteArray &bytes, const char *tiles, bool told = false) {
            QTest::newRow(name) << bytes << QString::fromUtf8(tiles) << told;
        };
        const QByteArray good = record('P', 7, 8);
        row("nothing", {}, "");
        row("no empty record in front", good, "7,8 x");
        row("lengths too large", good + QByteArray(40, '\xFF'), "7,8 x");
        row("left out of 16 bits", good + record('S', 40000, 1) + good, "7,8 x", true);
        row("top at the end of 32 bits", good + record('M', 0, std::numeric_limits<qint32>::min()), "7,8 x",
            true);
        row("text", "[Morpheme1]\r\nType=Prefix\r\n", "50,50 weg", true);
    }
    void badFiles()
    {
        QFETCH(QByteArray, bytes);
        QFETCH(bool, told);
        Rig rig;
        rig.lay(wortel, 50, 50, u"weg"_s);
        rig.put(bytes);
        if (told)
            rig.t.boxes.willAnswer(Boxes::Answer::Ok);
        rig.backup.RestoreMyObjects(rig.path);
        QTEST(rig.described().join(u'|'), "tiles");
        QCOMPARE(rig.counters().last(), QString::number(rig.store->count()));
        if (told)
            QCOMPARE(rig.t.boxes.asked.last().text,
                     u"Die BAK-Session konnte nicht eingelesen werden: "_s + rig.path +
                         u"\n\nDie Datei enthält ungültige Daten.\n\nDas Laden wird abgebrochen..."_s);
    }

    void writtenOnlyIfWantedAndBeforeOtherEvents()
    {
        Rig rig;
        rig.lay(wortel, 1, 1, u"a"_s);
        rig.backup.saveIfWanted();
        QVERIFY(!IsTextFile(rig.path));
        rig.t.store.SaveSetting(u"Settings"_s, u"UseBackup"_s, u"2"_s);
        rig.backup.saveIfWanted();
        QVERIFY(IsTextFile(rig.path));
        QCOMPARE(rig.t.pump.yields, 0);
    }

    void faultsLeaveTheOldFile()
    {
        Rig rig;
        rig.put("alt");
        for (int i = 0; i < 200; ++i)
            rig.lay(wortel, i, 1, QString(500, u'x'));
        rig.t.boxes.willAnswer(Boxes::Answer::Ok);
        {
            const FileSizeLimit full(4096);
            rig.backup.SaveMyObjects(rig.path);
        }
        QCOMPARE(rig.t.boxes.asked.last().text, u".BAK-Datei könnte nicht gespeichert werden"_s);
        QCOMPARE(rig.bytes(), QByteArray("alt"));
        QCOMPARE(rig.store->count(), 200);
        // A folder in place of the file, for writing and for reading.
        rig.t.boxes.willAnswer(Boxes::Answer::Ok);
        rig.backup.SaveMyObjects(rig.t.AppFolder.chopped(1));
        rig.t.boxes.willAnswer(Boxes::Answer::Ok);
        rig.backup.RestoreMyObjects(rig.t.AppFolder.chopped(1));
        QCOMPARE(rig.store->count(), 200);
    }
};

WORTEL_TEST(BackupTest)
#include "tst_backup.moc"
