// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/rnd.h"
#include "platform/text.h"
#include "platform/word_store.h"
#include "support/error_of.h"
#include "support/test_class.h"

namespace {

QStringList numbered(int count)
{
    QStringList words;
    for (int i = 0; i < count; ++i)
        words.append(u"Wort%1"_s.arg(i));
    return words;
}

/// What a find must give, the slow way.
int linearFind(const WordStore &store, const QString &word)
{
    for (int row = 0; row < store.count(); ++row)
        if (UCase(store.at(row)) == UCase(word))
            return row;
    return -1;
}

} // namespace

class WordStoreTest : public QObject
{
    Q_OBJECT

private slots:
    void findIgnoresCaseAndGivesTheFirst()
    {
        WordStore store;
        store.addAll({u"Abend"_s, u"straße"_s, u"ABEND"_s, QString()});
        QCOMPARE(store.findExact(u"abend"_s), 0);
        QCOMPARE(store.findExact(u"STRAßE"_s), 1);
        QCOMPARE(store.findExact(u"STRASSE"_s), -1);
        QCOMPARE(store.findExact(u"Aben"_s), -1);
        QCOMPARE(store.findExact(QString()), 3);
        store.removeAt(0);
        QCOMPARE(store.findExact(u"abend"_s), 1);
        store.replace(0, u"Abend"_s);
        QCOMPARE(store.findExact(u"abend"_s), 0);
        QCOMPARE(store.findExact(u"straße"_s), -1);
        store.clear();
        QCOMPARE(store.findExact(u"abend"_s), -1);
    }

    void findAgreesWithALinearSearch_data()
    {
        QTest::addColumn<bool>("sorted");
        QTest::newRow("appending") << false;
        QTest::newRow("kept sorted") << true;
    }
    void findAgreesWithALinearSearch()
    {
        QFETCH(bool, sorted);
        WordStore store(sorted ? WordStore::KeptSorted : WordStore::Appending);
        Rnd rnd(3);
        const auto word = [&] {
            return QString(u"aAäÄß"_s.at(rnd.absInt(5))) + QString::number(rnd.absInt(40));
        };
        for (int step = 0; step < 3000; ++step) {
            switch (rnd.absInt(6)) {
            case 0:
                if (!store.isEmpty())
                    store.removeAt(rnd.absInt(store.count()));
                break;
            case 1:
                store.addAll({word(), word()});
                break;
            case 2:
                if (!store.isEmpty() && !sorted)
                    store.replace(rnd.absInt(store.count()), word());
                break;
            case 3:
                if (rnd.absInt(100) == 0)
                    store.clear();
                break;
            default:
                store.add(word());
            }
            const QString wanted = word();
            QCOMPARE(store.findExact(wanted), linearFind(store, wanted));
        }
        if (sorted)
            QVERIFY(
                std::is_sorted(store.rows().begin(), store.rows().end(),
                               [](const QString &a, const QString &b) { return compareCollated(a, b) < 0; }));
    }

    void removesOnlyNeighbouringDuplicates_data()
    {
        columns<QStringList, QStringList>("rows", "left");
        QTest::newRow("neighbours") << QStringList{u"Abend"_s, u"Abend"_s, u"Abend"_s}
                                    << QStringList{u"Abend"_s};
        const QStringList apart{u"Abend"_s, u"Ball"_s, u"Abend"_s};
        QTest::newRow("apart") << apart << apart;
        const QStringList cases{u"abend"_s, u"Abend"_s};
        QTest::newRow("other case") << cases << cases;
    }
    void removesOnlyNeighbouringDuplicates()
    {
        QFETCH(QStringList, rows);
        WordStore store;
        store.addAll(rows);
        store.removeNeighbouringDuplicates();
        QTEST(store.rows(), "left");
    }

    void countIsSixteenBits()
    {
        QCOMPARE(Int16(-32768LL).value(), -32768);
        for (const long long beyond : {32768LL, -32769LL, 0x100000001LL})
            QCOMPARE(errorOf([&] { Int16{beyond}; }), 6);
        WordStore store;
        QSignalSpy changed(&store, &WordStore::changed);
        QCOMPARE(errorOf([&] { store.addAll(numbered(40000)); }), 6);
        QCOMPARE(store.count(), 32767);
        QCOMPARE(changed.count(), 1);
        QCOMPARE(store.at(32766), u"Wort32766"_s);
        QCOMPARE(errorOf([&] { store.add(u"noch eins"_s); }), 6);
        QCOMPARE(store.findExact(u"noch eins"_s), -1);
        QCOMPARE(store.findExact(u"wort32766"_s), 32766);
    }

    void findPrefixWrapsRound_data()
    {
        columns<QString, int, int>("start", "after", "row");
        QTest::newRow("from the first") << u"AB"_s << -1 << 0;
        QTest::newRow("wraps") << u"ba"_s << 1 << 1;
        QTest::newRow("behind the last") << u"ab"_s << 2 << 0;
        QTest::newRow("none") << u"c"_s << 0 << -1;
    }
    void findPrefixWrapsRound()
    {
        QFETCH(QString, start);
        QFETCH(int, after);
        WordStore store;
        store.addAll({u"Abend"_s, u"Ball"_s, u"abermals"_s});
        QTEST(store.findPrefix(start, after), "row");
    }
};

WORTEL_TEST(WordStoreTest)
#include "tst_word_store.moc"
