// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "generators/nonsense_words.h"
#include "generators/real_words.h"
#include "language/list_loader.h"
#include "language/word_tests.h"
#include "platform/files.h"
#include "platform/text.h"
#include "platform/word_lists.h"
#include "support/plain_board.h"
#include "support/test_class.h"
#include "support/test_ground.h"

/// What must hold of every generated word, over boards dealt from the shipped lists with fixed seeds.
class SeededBoardsTest : public QObject
{
    Q_OBJECT

private:
    static QString dataFolder() { return storedPath(QStringLiteral(WORTEL_SOURCE_DIR "/data/")); }

    struct Board
    {
        explicit Board(const QString &name, quint64 seed)
            : t(seed)
        {
            QString path = dataFolder() + u"text\\"_s + name;
            lists.PrefixList.addAll(readListFile(dataFolder() + u"affix\\prefix.afx"_s));
            lists.SuffixList.addAll(readListFile(dataFolder() + u"affix\\suffix.afx"_s));
            loader.FillWortelList(path);
            for (int i = 0; i < 20; ++i) {
                tiles.lay(drawRow(lists.WortelList, t.rnd), colours::wortelBack);
                tiles.lay(lists.PrefixList.at(i), colours::prefixBack);
                tiles.lay(lists.SuffixList.at(i), colours::suffixBack);
            }
        }

        TestGround t;
        WordLists lists;
        ListLoader loader{t.ground, lists};
        WordTests tests{lists, t.options};
        PlainBoard tiles{t.ground};
    };

private slots:
    void boards_data()
    {
        columns<QString, int>("stemList", "seed");
        const QStringList names =
            QDir(nativePath(dataFolder() + u"text"_s)).entryList({u"*.txt"_s}, QDir::Files);
        QVERIFY(names.size() >= 3);
        for (const QString &name : names)
            for (int seed = 1; seed <= 2; ++seed)
                QTest::newRow(qPrintable(name + u' ' + QString::number(seed))) << name << seed;
    }

    void realWords_data() { boards_data(); }
    void realWords()
    {
        QFETCH(QString, stemList);
        QFETCH(int, seed);
        Board board(stemList, static_cast<quint64>(seed));
        collectMorphemes(board.tiles.tiles.tiles(), board.lists);
        for (int rounds = 0; rounds < 200000 && board.lists.CorrectWordList.count() < 10; ++rounds)
            tryRealWord(board.lists, board.tests, board.t.rnd);
        const QStringList built = board.lists.CorrectWordList.rows();
        QVERIFY2(built.size() >= 3, qPrintable(stemList));
        QSet<QString> distinct;
        for (const QString &word : built) {
            QVERIFY2(board.tests.ChkForDuplicates2(word), qPrintable(word));
            distinct.insert(UCase(word));
        }
        QCOMPARE(distinct.size(), built.size());
        properCaseAll(board.lists, board.tests);
        for (const QString &word : board.lists.CorrectWordList.rows())
            QVERIFY2(board.lists.LexiconList.rows().contains(word), qPrintable(word));
    }

    void nonsenseWords_data() { boards_data(); }
    void nonsenseWords()
    {
        QFETCH(QString, stemList);
        QFETCH(int, seed);
        Board board(stemList, static_cast<quint64>(seed));
        collectNonsenseMorphemes(board.tiles.tiles.tiles(), listBaseName(stemList), board.lists);
        nonsense::Generator generator(board.lists, board.tests, board.t.rnd, 1);
        int found = 0;
        for (int rounds = 0; rounds < 20000 && found < 200; ++rounds) {
            found += generator.tryWord() ? 1 : 0;
            found -= generator.sweep();
            QCOMPARE(board.lists.PseudoWordList.count(), found);
        }
        QVERIFY2(found >= 20, qPrintable(stemList + u": "_s + QString::number(found)));
        QSet<QString> distinct;
        for (const QString &word : board.lists.PseudoWordList.rows()) {
            // One word a round: the sweep of the same round sees it.
            QVERIFY2(!nonsense::holdsBadClusterForSweep(UCase(word)), qPrintable(word));
            QVERIFY2(!board.tests.ChkForDuplicates2(word), qPrintable(word));
            distinct.insert(UCase(word));
        }
        QCOMPARE(distinct.size(), board.lists.PseudoWordList.count());
    }
};

WORTEL_TEST(SeededBoardsTest)
#include "tst_seeded_boards.moc"
