// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "output/columns/columns.h"
#include "platform/files.h"
#include "support/test_class.h"
#include "support/test_ground.h"

/// Word lists as text files, in their three layouts.
class ColumnsTest : public QObject
{
    Q_OBJECT

private slots:
    // clang-format off
    void layouts_data()
    {
        columns<QByteArray, int, int, QByteArray>("in", "count", "blockRows", "out"); // -1: no blocks
        const QByteArray seven = "a\r\nbb\r\nccc\r\nd\r\ne\r\nf\r\ng\r\n";
        const QByteArray inFour = "a     bb     ccc     d     \r\ne     f      g       \r\n";
        QTest::newRow("nothing") << QByteArray() << 3 << -1 << QByteArray();
        QTest::newRow("one column") << QByteArray(" a \r\nb\r\n") << 1 << -1 << QByteArray("a     \r\nb     \r\n");
        QTest::newRow("three") << seven << 3 << -1 << QByteArray("a     bb     ccc     \r\nd     e      f       \r\ng     \r\n");
        QTest::newRow("four") << seven << 4 << -1 << inFour;
        QTest::newRow("nine are four") << seven << 9 << -1 << inFour;
        QTest::newRow("none is one") << QByteArray("a\r\nb\r\n") << 0 << -1 << QByteArray("a     \r\nb     \r\n");
        QTest::newRow("umlauts") << QByteArray("\xC4hre\r\nMa\xDF\r\nx\r\n") << 2 << -1 << QByteArray("\xC4hre     Ma\xDF     \r\nx        \r\n");
        QTest::newRow("two blocks") << seven << 2 << 2 << QByteArray("a      ccc     \r\nbb     d       \r\ne      g       \r\nf      \r\n");
        QTest::newRow("short column") << QByteArray("1\r\n2\r\n3\r\n") << 3 << 2 << QByteArray("1     3     \r\n2     \r\n");
        QTest::newRow("no rows are one") << QByteArray("1\r\n2\r\n") << 2 << 0 << QByteArray("1     2     \r\n");
        QTest::newRow("more rows than words") << QByteArray("1\r\n2\r\n") << 9 << 9999 << QByteArray("1     \r\n2     \r\n");
    }
    // clang-format on
    void layouts()
    {
        QFETCH(QByteArray, in);
        QFETCH(int, count);
        QFETCH(int, blockRows);
        const QTemporaryDir folder;
        const QString path = storedPath(folder.filePath(u"wörter.txt"_s));
        writeFileAtomically(path, in);
        blockRows < 0 ? Columnize(path, path, count) : ColumnizeInBlocks(path, path, count, blockRows);
        QTEST(ReadWholeFile(path), "out");
    }

    /// No word is lost, whatever the options say.
    void savedAsWished()
    {
        TestGround t;
        QStringList words;
        for (int i = 0; i < 10000; ++i)
            words << QString::number(i) + QString(i == 77 ? 500 : 0, u'x');
        const auto first = [&](Setting layout, const QString &number) {
            t.options.setOption(layout);
            t.options.setText(Setting::SaveNoColumns, number);
            t.options.setText(Setting::SaveNoBlocks, number);
            word_columns::writeList(t.AppFolder + u"wörter.txt"_s, words, t.options);
            const QByteArray text = ReadWholeFile(t.AppFolder + u"wörter.txt"_s);
            const QStringList found = QString::fromLatin1(text.simplified()).split(u' ');
            return QSet(found.begin(), found.end()) == QSet(words.begin(), words.end())
                       ? text.left(text.indexOf('\r')).simplified()
                       : QByteArray("words are lost");
        };
        QCOMPARE(first(Setting::SaveCopyWithLF, u"3"_s), "0");
        QCOMPARE(first(Setting::SaveCopyWithCol, u"3"_s), "0 1 2");
        QCOMPARE(first(Setting::SaveCopyWithColBl, u"2"_s), "0 2");
        QCOMPARE(first(Setting::SaveCopyWithColBl, QString()), "0");
        QCOMPARE(first(Setting::SaveCopyWithColBl, QString(400, u'9')), "0");
    }
};

WORTEL_TEST(ColumnsTest)
#include "tst_columns.moc"
