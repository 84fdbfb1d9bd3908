// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "games/kernling/text_words.h"
#include "platform/rnd.h"
#include "platform/word_store.h"
#include "support/test_class.h"

#include <set>

using namespace kernling;

/// The words of a text and the moves of the work list.
class TextWordsTest : public QObject
{
    Q_OBJECT

private slots:
    void words_data()
    {
        columns<QString, int, QString>("text", "length", "words");
        const auto row = [](const char *name, const QString &text, int length, const QString &words) {
            QTest::newRow(name) << text << length << words;
        };
        row("empty", u""_s, 0, u""_s);
        row("sentence", u"Der Hund, der den Hund sah."_s, 0, u"Der Hund den sah"_s);
        row("umlauts and guests", u"Straße ÄÖÜäöü àÅå áóñ"_s, 0, u"Straße ÄÖÜäöü àÅå áóñ"_s);
        row("other letters end a word", u"Café Çelik"_s, 0, u"Caf elik"_s);
        row("digits", u"3Haus Ha2us 12 Haus9 4you2me"_s, 0, u"Haus Ha2us you2me"_s);
        row("length", u"Haus Maus Häuser Ha2s3 alt"_s, 4, u"Haus Maus Ha2s"_s);
        row("lines and tabs", u"eins\tzwei\r\ndrei\u2029vier"_s, 0, u"eins zwei drei vier"_s);
        row("a control sign joins", u"ei\u0001ns"_s, 0, u"eins"_s);
    }
    void words()
    {
        QFETCH(QString, text);
        QFETCH(int, length);
        const auto words = GetWordsFromText(text, length);
        QVERIFY(words.has_value());
        QTEST(words->join(u' '), "words");
    }

    void thePassCanBeEnded()
    {
        QList<qsizetype> asked;
        const QString text = u"Wort "_s.repeated(2000);
        QVERIFY(!UniqueWords(text, 0, [&](qsizetype done) {
            asked << done;
            return done < 3000;
        }));
        QCOMPARE(asked, (QList<qsizetype>{0, 1000, 2000, 3000}));
        QCOMPARE(asLines({u"a"_s, u"b"_s}), u"\ra\rb"_s);
    }

    void hits_data()
    {
        columns<QString, QString, QList<qsizetype>>("text", "word", "hits");
        const auto row = [](const char *name, const QString &text, const QString &word,
                            const QList<qsizetype> &hits) { QTest::newRow(name) << text << word << hits; };
        row("whole words in any case", u"wirk Wirk, wirken; verWIRK WIRK"_s, u"wirk"_s, {0, 5, 27});
        row("umlauts are letters", u"ürück rück Rücken (RÜCK)"_s, u"rück"_s, {6, 19});
        row("digits too", u"eis2 2eis eis"_s, u"eis"_s, {10});
        row("two words", u"a b a b a b"_s, u"a b"_s, {0, 4, 8});
        row("empty", u"a"_s, u""_s, {});
    }
    void hits()
    {
        QFETCH(QString, text);
        QFETCH(QString, word);
        const std::vector<qsizetype> found = wholeWordHits(text, word);
        QTEST(QList<qsizetype>(found.begin(), found.end()), "hits");
        const QString pieces = QString(hitStride - 1, u' ') + word + u'\n' + text; // `word` stands in two
        QCOMPARE(wholeWordHits(pieces, word).size(), found.size() + (word.isEmpty() ? 0 : 1));
    }

    void shuffle()
    {
        QStringList items;
        for (int i = 0; i < 50; ++i)
            items << QString::number(i % 40);
        WordStore list;
        Rnd rnd(3);
        ShuffleAllWords(list, rnd);
        list.addAll(items);
        ShuffleAllWords(list, rnd);
        QVERIFY(list.rows() != items);
        QCOMPARE(std::multiset(list.rows().begin(), list.rows().end()),
                 std::multiset(items.begin(), items.end()));
    }

    void randomRowsAreDifferent_data()
    {
        columns<int, int, int>("count", "wanted", "drawn");
        QTest::newRow("some") << 100 << 30 << 30;
        QTest::newRow("more than there are") << 10 << 99999 << 10;
        QTest::newRow("nearly all") << 2000 << 1990 << 1990;
        QTest::newRow("none") << 5 << 0 << 0;
        QTest::newRow("negative") << 5 << -3 << 0;
        QTest::newRow("empty list") << 0 << 5 << 0;
    }
    void randomRowsAreDifferent()
    {
        QFETCH(int, count);
        QFETCH(int, wanted);
        Rnd rnd(1);
        const std::vector<int> rows = randomRows(count, wanted, rnd);
        const std::set<int> different(rows.begin(), rows.end());
        QCOMPARE(different.size(), rows.size());
        QVERIFY(rows.empty() || (*different.begin() >= 0 && *different.rbegin() < count));
        QTEST(static_cast<int>(rows.size()), "drawn");
    }
};

WORTEL_TEST(TextWordsTest)
#include "tst_text_words.moc"
