// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "bench.h"

#include "platform/files.h"
#include "platform/text.h"
#include "platform/word_store.h"
#include "widgets/store_list.h"

#include <QFile>
#include <QHash>
#include <QTemporaryDir>

#include <memory>

using namespace Qt::StringLiterals;

namespace {

constexpr int largeCount = 32000;
constexpr int smallCount = 1000;

/// Different words of the length and look of German ones.
QStringList germanWords(int count)
{
    const QStringList starts{u"Ver"_s, u"be"_s, u"Über"_s, u"an"_s, u"zer"_s, u"Vor"_s, u"un"_s, u"Ge"_s};
    const QStringList ends{u"ung"_s, u"lich"_s, u"heit"_s, u"en"_s, u"bar"_s};
    QStringList words;
    for (int i = 0; i < count; ++i) {
        QString stem;
        for (int rest = i; rest > 0 || stem.size() < 4; rest /= 20)
            stem += u"bdfgklmnprstwzaeiouä"_s.at(rest % 20);
        words.append(starts.at(i % starts.size()) + stem + ends.at(i % ends.size()));
    }
    return words;
}

double loading()
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(u"liste.txt"_s);
    QByteArray bytes;
    for (const QString &word : germanWords(largeCount))
        bytes += word.toLatin1() + "\r\n";
    writeFileAtomically(path, bytes);
    return bench::ratio(
        [&] {
            WordStore store;
            store.addAll(readListFile(path));
            bench::keep(store.count());
        },
        [&] {
            QFile file(path);
            if (!file.open(QIODevice::ReadOnly))
                return;
            bench::keep(file.readAll().split('\n').size());
        },
        31);
}

/// A store, and a thousand of its words in capitals, which is what is looked for.
struct Search
{
    explicit Search(int count)
    {
        const QStringList words = germanWords(count);
        store.addAll(words);
        for (int i = 0; i < smallCount; ++i)
            wanted.append(UCase(words.at(i * (count / smallCount))));
        for (const QString &word : words)
            folded.insert(UCase(word), static_cast<int>(folded.size()));
    }

    void find() const
    {
        int sum = 0;
        for (int round = 0; round < rounds; ++round)
            for (const QString &word : wanted)
                sum += store.findExact(word);
        bench::keep(sum);
    }
    void lookUp() const
    {
        int sum = 0;
        for (int round = 0; round < rounds; ++round)
            for (const QString &word : wanted)
                sum += folded.value(word, -1);
        bench::keep(sum);
    }

    static constexpr int rounds = 20;
    WordStore store;
    QStringList wanted;
    QHash<QString, int> folded;
};

double finding()
{
    const Search search(largeCount);
    return bench::ratio([&] { search.find(); }, [&] { search.lookUp(); }, 31);
}

double growth()
{
    const Search large(largeCount);
    const Search small(smallCount);
    return bench::ratio([&] { large.find(); }, [&] { small.find(); }, 31);
}

/// Opens a list control that shows `store` and scrolls to its last row.
void open(WordStore &store)
{
    StoreList list;
    list.resize(150, 300);
    list.show(&store);
    list.setListIndex(store.count() - 1);
    bench::keep(list.grab().width());
}

double opening()
{
    WordStore large;
    large.addAll(germanWords(largeCount));
    WordStore small;
    small.addAll(germanWords(smallCount));
    return bench::ratio([&] { open(large); }, [&] { open(small); });
}

const bench::Row loadRow{"lists: load 32,000 words / read and split", 4.0, loading};
const bench::Row findRow{"lists: find in 32,000 words / bare hash look-up", 3.0, finding};
const bench::Row openRow{"lists: open with 32,000 rows / with 1,000", 12.0, opening};
const bench::Row growthRow{"lists: find in 32,000 words / in 1,000", 1.5, growth};

} // namespace
