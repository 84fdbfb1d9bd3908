// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "bench.h"

#include "language/chooser/word_search.h"
#include "platform/system_clock.h"
#include "platform/word_store.h"
#include "platform/work.h"
#include "support/test_ground.h"

using namespace Qt::StringLiterals;

namespace {

constexpr int dictionarySize = 32000;
constexpr int stemCount = 20;

/// A dictionary in which every word is found by one of twenty stems, or none by any of them.
struct Words
{
    explicit Words(bool allFound)
    {
        const QStringList starts{u"Ver"_s, u"be"_s, u"Über"_s, u"an"_s, u"zer"_s, u"Vor"_s, u"un"_s, u"Ge"_s};
        for (int i = 0; i < stemCount; ++i)
            stems.append(u"%1ä%2tz"_s.arg(QChar(u'b' + i)).arg(QChar(u'a' + i)));
        QStringList words;
        for (int i = 0; i < dictionarySize; ++i)
            words.append(starts.at(i % starts.size()) +
                         (allFound ? stems.at(i % stemCount).toUpper() : u"strom"_s) +
                         QString::number(i, 36));
        dictionary.addAll(words);
    }

    WordStore dictionary;
    QStringList stems;
};

/// The ground of a test, but with the real event pump, which a search asks behind every word.
struct LiveGround : TestGround
{
    LoopPump livePump{gate};
    Ground live{AppFolder, log,      gatedBoxes, gatedDialogs, printer, rnd,  sound,
                clock,     livePump, store,      options,      gate,    notes};
};

int search(const Words &words, LiveGround &t)
{
    WordStore found;
    Work work(t.live);
    WordSearch(words.dictionary, found).findStems(words.stems, work);
    return found.count();
}

int bareTests(const Words &words)
{
    int found = 0;
    for (const QString &stem : words.stems)
        for (const QString &word : words.dictionary.rows())
            found += word.contains(stem, Qt::CaseInsensitive);
    return found;
}

double ofBareTests(bool allFound)
{
    const Words words(allFound);
    LiveGround t;
    return bench::ratio([&] { bench::keep(search(words, t)); }, [&] { bench::keep(bareTests(words)); });
}

/// A thousand questions whether a word has been found already.
double duplicates()
{
    const Words words(true);
    WordStore few;
    few.addAll(words.dictionary.rows().first(dictionarySize / 32));
    WordStore many;
    many.addAll(words.dictionary.rows());
    const auto ask = [&](WordStore &found) {
        const WordSearch search(words.dictionary, found);
        int sum = 0;
        for (int i = 0; i < dictionarySize / 32; ++i)
            sum += search.Duplicate(words.dictionary.at(i));
        bench::keep(sum);
    };
    return bench::ratio([&] { ask(many); }, [&] { ask(few); }, 31);
}

const bench::Row noneRow{"chooser: 20 stems in 32,000 words, none found / bare tests", 2.5,
                         [] { return ofBareTests(false); }};
const bench::Row allRow{"chooser: 20 stems in 32,000 words, all found / bare tests", 2.5,
                        [] { return ofBareTests(true); }};
const bench::Row duplicatesRow{"chooser: duplicates among 32,000 found / among 1,000", 1.5, duplicates};

} // namespace
