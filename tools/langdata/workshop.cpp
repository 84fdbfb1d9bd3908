// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "workshop.h"

#include "boards.h"
#include "expander.h"
#include "maker.h"
#include "report.h"
#include "segmenter.h"
#include "sources.h"
#include "textfiles.h"

#include <QDir>

using namespace Qt::StringLiterals;

namespace langdata {
namespace {

struct StemList
{
    QString base;
    QStringList stems;
};

QSet<QString> setOf(const QStringList &lines) { return QSet<QString>(lines.begin(), lines.end()); }

/// Stems of a list file. Throws InputError for anything but different words in small letters.
QStringList readStems(const QString &path)
{
    const QStringList stems = readGameList(path);
    QSet<QString> seen;
    for (const QString &stem : stems) {
        if (stem != stem.toLower() || stem.size() < 2 || stem.contains(u' '))
            throw InputError(u"%1: \"%2\" is no stem"_s.arg(path, stem));
        if (seen.contains(stem))
            throw InputError(u"%1: the stem \"%2\" stands there twice"_s.arg(path, stem));
        seen.insert(stem);
    }
    return stems;
}

std::vector<StemList> readStemLists(const QString &folder)
{
    std::vector<StemList> lists;
    QStringList names = QDir(folder).entryList({u"*.txt"_s}, QDir::Files, QDir::NoSort);
    names.sort();
    for (const QString &name : std::as_const(names))
        lists.push_back({name.chopped(4), readStems(folder + u'/' + name)});
    if (lists.empty())
        throw InputError(u"%1: no stem list"_s.arg(folder));
    return lists;
}

QSet<QString> readFamiliar(const QByteArray &words)
{
    QSet<QString> familiar;
    const QStringList lines = QString::fromUtf8(words).split(u'\n', Qt::SkipEmptyParts);
    for (const QString &line : lines)
        familiar.insert(line.trimmed());
    return familiar;
}

} // namespace

void makeDictionaries(const Sources &sources, const QString &toolFolder, const QString &dataFolder,
                      const WordCheck &accepts)
{
    const QStringList prefixes = readGameList(dataFolder + u"/affix/prefix.afx"_s);
    const QStringList suffixes = readGameList(dataFolder + u"/affix/suffix.afx"_s);
    const std::vector<StemList> lists = readStemLists(dataFolder + u"/text"_s);
    QSet<QString> stems;
    for (const StemList &list : lists)
        stems.unite(setOf(list.stems));

    const Judges judges{Blocklist(readWords(toolFolder + u"/blocklist.txt"_s), prefixes, suffixes),
                        setOf(readWords(toolFolder + u"/include.txt"_s)),
                        setOf(readWords(toolFolder + u"/exclude.txt"_s)),
                        readFamiliar(sources.content(u"familiar.txt"_s)), accepts};
    const Expander expander(sources.content(u"de_DE_frami.aff"_s), sources.content(u"de_DE_frami.dic"_s));
    const Maker maker(expander, Segmenter(prefixes, stems, suffixes), judges);

    std::vector<ListResult> results;
    std::vector<QByteArray> dictionaries;
    for (const StemList &list : lists) {
        const QStringList words = maker.dictionaryOf(list.base, list.stems);
        QSet<QString> lower;
        for (const QString &word : words)
            lower.insert(word.toLower());
        results.push_back(
            {list.base, list.stems.size(), words.size(), playBoards(prefixes, list.stems, suffixes, lower)});
        dictionaries.push_back(gameListBytes(words));
    }
    for (size_t i = 0; i < lists.size(); ++i)
        writeWhole(u"%1/facit/%2.lex"_s.arg(dataFolder, lists[i].base), dictionaries[i]);
    writeWhole(toolFolder + u"/report.txt"_s, reportBytes(results, maker));
}

} // namespace langdata
