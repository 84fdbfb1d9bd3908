// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "langdata/blocklist.h"
#include "langdata/boards.h"
#include "langdata/maker.h"
#include "langdata/segmenter.h"
#include "langdata/textfiles.h"
#include "support/test_class.h"

#include <QDir>
#include <QHash>

namespace {

constexpr qsizetype fewestStems = 19;
constexpr qsizetype mostEntries = 32767;
constexpr qsizetype longestTip = 749; // the reader's buffer of 750 bytes holds a closing zero
constexpr double poorestShare = 0.015;
constexpr int fewestBoardWords = 20;

QString dataPath(const QString &name) { return QStringLiteral(WORTEL_SOURCE_DIR "/data/") + name; }

QStringList filesIn(const QString &folder, const QString &pattern)
{
    return QDir(dataPath(folder)).entryList({pattern}, QDir::Files, QDir::Name);
}

/// Keys and values of one of the small ini files, all below one section.
QHash<QString, QString> iniValues(const QString &name, const QString &section)
{
    QHash<QString, QString> values;
    const QStringList lines = langdata::readGameList(dataPath(name));
    if (lines.value(0) != u'[' + section + u']')
        return values;
    for (const QString &line : lines.mid(1))
        values.insert(line.section(u'=', 0, 0).toLower(), line.section(u'=', 1));
    return values;
}

QSet<QString> lowerSet(const QStringList &words)
{
    QSet<QString> lower;
    for (const QString &word : words)
        lower.insert(word.toLower());
    return lower;
}

QStringList affixes(const QString &kind)
{
    return langdata::readGameList(dataPath(u"affix/%1.afx"_s.arg(kind)));
}

} // namespace

/// Reads the committed language data the way a careful teacher would.
class LangDataTest : public QObject
{
    Q_OBJECT

private slots:
    void listFileIsClean_data()
    {
        columns<QString, qsizetype>("path", "fewest");
        const auto add = [](const QString &folder, const QString &pattern, qsizetype fewest) {
            for (const QString &name : filesIn(folder, pattern))
                QTest::newRow(qPrintable(name)) << dataPath(folder + u'/' + name) << fewest;
        };
        add(u"text"_s, u"*.txt"_s, fewestStems);
        add(u"text kurz lang"_s, u"*.txt"_s, fewestStems);
        add(u"affix"_s, u"*.afx"_s, 20);
        add(u"facit"_s, u"*.lex"_s, 1);
    }
    void listFileIsClean()
    {
        QFETCH(QString, path);
        QFETCH(qsizetype, fewest);
        const QStringList entries = langdata::readGameList(path); // strict about bytes, line ends and blanks
        QVERIFY(entries.size() >= fewest);
        QVERIFY(entries.size() <= mostEntries);
        QCOMPARE(QSet<QString>(entries.begin(), entries.end()).size(), entries.size());
        if (path.endsWith(u".afx"))
            return; // their order is that of the places in the rows
        for (qsizetype i = 1; i < entries.size(); ++i)
            QVERIFY2(langdata::collationKey(entries[i - 1]) <= langdata::collationKey(entries[i]),
                     qPrintable(u"%1 stands before %2"_s.arg(entries[i - 1], entries[i])));
    }

    void stemListHasDictionaryAndTip_data() { addStemLists(); }
    void stemListHasDictionaryAndTip()
    {
        QFETCH(QString, base);
        QVERIFY(QFile::exists(dataPath(u"facit/%1.lex"_s.arg(base))));
        const QString tip = iniValues(u"lextip.ini"_s, u"Tipp"_s).value(base.toLower());
        QVERIFY(!tip.isEmpty());
        QVERIFY(tip.size() <= longestTip);
    }

    void dictionaryBelongsToItsStems_data() { addStemLists(); }
    void dictionaryBelongsToItsStems()
    {
        QFETCH(QString, base);
        const bool main = base == u"Hauptbausteine";
        const QStringList stems =
            langdata::readGameList(dataPath(u"text/%1.%2"_s.arg(base, main ? u"Txt"_s : u"txt"_s)));
        const langdata::Segmenter segmenter(affixes(u"prefix"_s), {stems.begin(), stems.end()},
                                            affixes(u"suffix"_s));
        QSet<QString> used;
        for (const QString &word : langdata::readGameList(dataPath(u"facit/%1.lex"_s.arg(base)))) {
            const auto readings = segmenter.readings(word.toLower());
            QVERIFY2(!readings.empty(), qPrintable(word));
            for (const auto &reading : readings)
                used.insert(reading.stem);
        }
        QCOMPARE(used.size(), stems.size());
    }

    void boardsAreRich_data() { addStemLists(); }
    void boardsAreRich()
    {
        QFETCH(QString, base);
        const QString list = filesIn(u"text"_s, base + u".txt"_s).value(0);
        const langdata::BoardStats stats = langdata::playBoards(
            affixes(u"prefix"_s), langdata::readGameList(dataPath(u"text/"_s + list)), affixes(u"suffix"_s),
            lowerSet(langdata::readGameList(dataPath(u"facit/%1.lex"_s.arg(base)))));
        QVERIFY2(stats.worstShare >= poorestShare, qPrintable(QString::number(stats.worstShare)));
        QVERIFY2(stats.fewestWords >= fewestBoardWords, qPrintable(QString::number(stats.fewestWords)));
    }

    void noOrphans()
    {
        QStringList bases;
        for (const QString &name : filesIn(u"text"_s, u"*.txt"_s))
            bases << name.chopped(4).toLower();
        QVERIFY(bases.contains(u"hauptbausteine"));
        for (const QString &name : filesIn(u"facit"_s, u"*.lex"_s))
            QVERIFY2(bases.contains(name.chopped(4).toLower()), qPrintable(name));
        const auto tips = iniValues(u"lextip.ini"_s, u"Tipp"_s);
        for (auto tip = tips.begin(); tip != tips.end(); ++tip)
            QVERIFY2(bases.contains(tip.key()), qPrintable(tip.key()));
    }

    void nothingUnfitForChildren()
    {
        const langdata::Blocklist blocklist(
            langdata::readWords(QStringLiteral(WORTEL_SOURCE_DIR "/tools/langdata/blocklist.txt")),
            affixes(u"prefix"_s), affixes(u"suffix"_s));
        QStringList files;
        for (const QString &name : filesIn(u"facit"_s, u"*.lex"_s))
            files << u"facit/"_s + name;
        for (const QString &name : filesIn(u"text"_s, u"*.txt"_s))
            files << u"text/"_s + name;
        for (const QString &file : std::as_const(files))
            for (const QString &word : langdata::readGameList(dataPath(file)))
                QVERIFY2(!blocklist.blocks(word), qPrintable(u"%1 in %2"_s.arg(word, file)));
    }

    void blocklistIsAnchored_data()
    {
        columns<QString, bool>("word", "blocked");
        QTest::newRow("two prefixes") << u"zuverarschen"_s << true;
        QTest::newRow("inside a word") << u"Nachbarschaft"_s << false;
        QTest::newRow("alternative") << u"Schisser"_s << true;
        QTest::newRow("longer stem") << u"schissel"_s << false;
    }
    void blocklistIsAnchored()
    {
        QFETCH(QString, word);
        const langdata::Blocklist blocklist({u"arsch"_s, u"schiss|scheiß"_s}, {u"ver"_s, u"zu"_s, u"nach"_s},
                                            {u"en"_s, u"er"_s, u"ig"_s, u"schaft"_s});
        QTEST(blocklist.blocks(word), "blocked");
    }

    void vowelListsAreWhole()
    {
        const QStringList shorts =
            langdata::readGameList(dataPath(u"text kurz lang/kurzer Stammvokal.Txt"_s));
        const QStringList longs = langdata::readGameList(dataPath(u"text kurz lang/langer Stammvokal.Txt"_s));
        QCOMPARE(shorts.size(), 276);
        QCOMPARE(longs.size(), 298);
        const QStringList all = langdata::readGameList(dataPath(u"text kurz lang/alle.txt"_s));
        QSet<QString> both(shorts.begin(), shorts.end());
        both.unite({longs.begin(), longs.end()});
        QCOMPARE(both.size(), 276 + 298); // no stem is short and long
        QCOMPARE(QSet<QString>(all.begin(), all.end()), both);
    }

    void vowelTips()
    {
        const auto tips = iniValues(u"vokaltip.ini"_s, u"Tipp"_s);
        QCOMPARE(lowerSet(tips.keys()), QSet<QString>({u"kurzvokal"_s, u"langvokal"_s}));
        for (const QString &tip : tips)
            QVERIFY(!tip.isEmpty() && tip.size() <= longestTip);
    }

    void lookAlikeStems()
    {
        const auto stems = iniValues(u"Wortel enthalten.ini"_s, u"Stamm"_s);
        QCOMPARE(stems.size(), 29);
        QVERIFY(!stems.value(u"renn"_s).isEmpty());
        for (auto stem = stems.begin(); stem != stems.end(); ++stem) {
            QVERIFY2(stem->size() <= longestTip, qPrintable(stem.key()));
            // "other stem (word, word); other stem (word)": each stem holds the key, each word its stem
            for (const QString &other : stem->split(u"; "_s)) {
                const QString name = other.section(u" ("_s, 0, 0);
                QVERIFY2(name != stem.key() && name.contains(stem.key()), qPrintable(other));
                for (const QString &word : other.section(u" ("_s, 1).chopped(1).split(u", "_s))
                    QVERIFY2(word.contains(name, Qt::CaseInsensitive), qPrintable(word));
            }
        }
    }

private:
    static void addStemLists()
    {
        QTest::addColumn<QString>("base");
        for (const QString &name : filesIn(u"text"_s, u"*.txt"_s))
            QTest::newRow(qPrintable(name)) << name.chopped(4);
    }
};

WORTEL_TEST(LangDataTest)
#include "tst_langdata.moc"
