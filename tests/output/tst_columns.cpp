// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "output/columns/columns.h"
#include "platform/files.h"
#include "support/columns.h"
#include "support/registry.h"
#include "support/test_ground.h"

#include <QtTest>

using namespace Qt::StringLiterals;

/// Word lists as text files, in their three layouts.
class ColumnsTest : public QObject
{
    Q_OBJECT

private slots:
    void columnize_data()
    {
        columns<QByteArray, int, QByteArray>("in", "count", "out");
        const QByteArray seven = "a\r\nbb\r\nccc\r\nd\r\ne\r\nf\r\ng\r\n";
        QTest::newRow("nothing") << QByteArray() << 3 << QByteArray();
        QTest::newRow("one word") << QByteArray("Haus") << 3 << QByteArray("Haus     \r\n");
        QTest::newRow("one column") << QByteArray(" a \r\nb\r\n") << 1 << QByteArray("a     \r\nb     \r\n");
        QTest::newRow("three") << seven << 3
                               << QByteArray("a     bb     ccc     \r\nd     e      f       \r\ng     \r\n");
        QTest::newRow("four") << seven << 4
                              << QByteArray("a     bb     ccc     d     \r\ne     f      g       \r\n");
        QTest::newRow("nine are four")
            << seven << 9 << QByteArray("a     bb     ccc     d     \r\ne     f      g       \r\n");
        QTest::newRow("none is one") << QByteArray("a\r\nb\r\n") << 0 << QByteArray("a     \r\nb     \r\n");
        QTest::newRow("fewer than none") << QByteArray("a\r\n") << -5 << QByteArray("a     \r\n");
        QTest::newRow("umlauts") << QByteArray("\xC4hre\r\nMa\xDF\r\nx\r\n") << 2
                                 << QByteArray("\xC4hre     Ma\xDF     \r\nx        \r\n");
    }
    void columnize()
    {
        QFETCH(QByteArray, in);
        QFETCH(int, count);
        const QTemporaryDir folder;
        const QString path = storedPath(folder.filePath(u"wörter.txt"_s));
        writeFileAtomically(path, in);
        Columnize(path, path, count);
        QTEST(ReadWholeFile(path), "out");
    }

    void columnizeInBlocks_data()
    {
        columns<int, int, int, QByteArray>("words", "count", "rows", "out");
        QTest::newRow("two blocks") << 7 << 2 << 2
                                    << QByteArray(
                                           "1     3     \r\n2     4     \r\n5     7     \r\n6     \r\n");
        QTest::newRow("short column") << 5 << 3 << 2 << QByteArray("1     3     5     \r\n2     4     \r\n");
        QTest::newRow("row by row") << 3 << 2 << 1 << QByteArray("1     2     \r\n3     \r\n");
        QTest::newRow("no rows are one") << 2 << 2 << 0 << QByteArray("1     2     \r\n");
        QTest::newRow("more rows than words") << 2 << 4 << 9999 << QByteArray("1     \r\n2     \r\n");
        QTest::newRow("nine columns") << 5 << 9 << 1 << QByteArray("1     2     3     4     \r\n5     \r\n");
        QTest::newRow("nothing") << 0 << 3 << 3 << QByteArray();
    }
    void columnizeInBlocks()
    {
        QFETCH(int, words);
        QFETCH(int, count);
        QFETCH(int, rows);
        const QTemporaryDir folder;
        const QString in = storedPath(folder.filePath(u"ein.txt"_s));
        const QString out = storedPath(folder.filePath(u"aus.txt"_s));
        QByteArray lines;
        for (int word = 1; word <= words; ++word)
            lines += QByteArray::number(word) + "\r\n";
        writeFileAtomically(in, lines);
        ColumnizeInBlocks(in, out, count, rows);
        QTEST(ReadWholeFile(out), "out");
        QCOMPARE(ReadWholeFile(in), lines);
    }

    /// No word is lost, whatever the options say.
    void savedAsWished_data()
    {
        columns<int, QString, QString, QByteArray>("layout", "count", "rows", "first");
        QTest::newRow("below") << int(Setting::SaveCopyWithLF) << u"3"_s << u"3"_s << QByteArray("0");
        QTest::newRow("across") << int(Setting::SaveCopyWithCol) << u"3"_s << u"3"_s << QByteArray("0 1 2");
        QTest::newRow("blocks") << int(Setting::SaveCopyWithColBl) << u"2"_s << u"10"_s << QByteArray("0 10");
        QTest::newRow("empty fields")
            << int(Setting::SaveCopyWithColBl) << QString() << QString() << QByteArray("0");
        QTest::newRow("endless fields")
            << int(Setting::SaveCopyWithColBl) << QString(400, u'9') << QString(400, u'9') << QByteArray("0");
    }
    void savedAsWished()
    {
        QFETCH(int, layout);
        QFETCH(QString, count);
        QFETCH(QString, rows);
        TestGround t;
        t.options.setOption(static_cast<Setting>(layout));
        t.options.setText(Setting::SaveNoColumns, count);
        t.options.setText(Setting::SaveNoBlocks, rows);
        QStringList words;
        for (int i = 0; i < 10000; ++i)
            words << QString::number(i) + QString(i == 77 ? 500 : 0, u'x');
        const QString path = t.AppFolder + u"wörter.txt"_s;
        word_columns::writeList(path, words, t.options);
        const QByteArray text = ReadWholeFile(path);
        QTEST(text.left(text.indexOf('\r')).simplified(), "first");
        QStringList found = QString::fromLatin1(text.simplified()).split(u' ');
        found.sort();
        words.sort();
        QCOMPARE(found, words);
    }
};

WORTEL_TEST(ColumnsTest)
#include "tst_columns.moc"
