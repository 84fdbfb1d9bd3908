// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "bench.h"

#include "games/klotar/game_words.h"
#include "generators/nonsense_words.h"
#include "generators/real_words.h"
#include "language/word_tests.h"
#include "platform/gate.h"
#include "platform/log.h"
#include "platform/options.h"
#include "platform/rnd.h"
#include "platform/settings_store.h"
#include "platform/system_clock.h"
#include "platform/text.h"
#include "platform/word_lists.h"

#include <QSet>

using namespace Qt::StringLiterals;

namespace {

constexpr int largeDictionary = 32000;
constexpr int smallDictionary = 1000;
constexpr int buildable = 200;

class NoStore : public SettingsStore
{
public:
    QString GetSetting(const QString &, const QString &, const QString &fallback) const override
    {
        return fallback;
    }
    void SaveSetting(const QString &, const QString &, const QString &) override {}
};

/// A word of `syllables` syllables that looks a little German; the same for the same seed.
QString makeWord(Rnd &rnd, int syllables)
{
    static const QStringList starts{u"b"_s, u"d"_s, u"f"_s, u"g"_s,    u"h"_s,
                                    u"l"_s, u"m"_s, u"w"_s, u"schl"_s, u"tr"_s};
    static const QStringList ends{u"af"_s, u"auf"_s, u"eim"_s, u"ick"_s,
                                  u"ol"_s, u"und"_s, u"ür"_s,  u"ehn"_s};
    QString word;
    for (int i = 0; i < syllables; ++i)
        word += starts.at(rnd.absInt(static_cast<double>(starts.size()))) +
                ends.at(rnd.absInt(static_cast<double>(ends.size())));
    return word;
}

/// Lists as a full board and a dictionary of `size` words give them; a fifth of the dictionary can be built
/// from the board.
struct Board
{
    explicit Board(int size)
    {
        options.setBox(Setting::CaseCheck, 0);
        for (int i = 0; i < 40; ++i) {
            lists.PrefixReTypeList.add(makeWord(rnd, 1));
            lists.WortelReTypeList.add(makeWord(rnd, 1) + makeWord(rnd, 1));
            lists.SuffixReTypeList.add(makeWord(rnd, 1));
        }
        QSet<QString> words;
        while (words.size() < buildable)
            words.insert(drawMorphemes(lists, rnd).joined());
        while (words.size() < size)
            words.insert(makeWord(rnd, 4));
        QStringList sorted = words.values();
        sorted.sort();
        lists.LexiconList.addAll(sorted);
    }

    NoStore store;
    Log log;
    Options options{store, u"C:\\"_s, log};
    Rnd rnd{7};
    WordLists lists;
    WordTests tests{lists, options};
    Gate gate;
    LoopPump pump{gate};
};

/// The comparison and the order that a check of a word is told to have, without an index.
bool scan(const QStringList &dictionary, const QString &word)
{
    for (const QString &entry : dictionary)
        if (equalsIgnoreCase(entry, word))
            return true;
    return false;
}

double checkRatio()
{
    Board board(largeDictionary);
    QStringList asked;
    for (int i = 0; i < 100; ++i)
        asked.append(i % 2 == 0 ? UCase(board.lists.LexiconList.at(board.rnd.absInt(largeDictionary)))
                                : makeWord(board.rnd, 5));
    const QStringList &dictionary = board.lists.LexiconList.rows();
    return bench::ratio(
        [&] {
            for (const QString &word : asked)
                bench::keep(board.tests.In_Lexicon(word));
        },
        [&] {
            for (const QString &word : asked)
                bench::keep(scan(dictionary, word));
        },
        3);
}

/// The rounds of a search as the window runs them: a candidate, its tests, the question for waiting input.
void searchRounds(Board &board, int rounds)
{
    board.lists.CorrectWordList.clear();
    for (int i = 0; i < rounds; ++i) {
        bench::keep(tryRealWord(board.lists, board.tests, board.rnd));
        if (board.pump.inputWaiting())
            board.pump.serve();
    }
}

/// Three draws, one join, one look-up.
double realWordRatio()
{
    constexpr int rounds = 20000;
    Board board(largeDictionary);
    const QStringList prefixes = board.lists.PrefixReTypeList.rows();
    const QStringList stems = board.lists.WortelReTypeList.rows();
    const QStringList suffixes = board.lists.SuffixReTypeList.rows();
    const QSet<QString> dictionary(board.lists.LexiconList.rows().cbegin(),
                                   board.lists.LexiconList.rows().cend());
    const auto index = [&](const QStringList &list) {
        return static_cast<qsizetype>(board.rnd() * static_cast<double>(list.size()));
    };
    return bench::ratio([&] { searchRounds(board, rounds); },
                        [&] {
                            for (int i = 0; i < rounds; ++i) {
                                const QString word = prefixes.at(index(prefixes)) + stems.at(index(stems)) +
                                                     suffixes.at(index(suffixes));
                                bench::keep(dictionary.contains(word));
                            }
                        });
}

double growthRatio()
{
    constexpr int rounds = 20000;
    Board large(largeDictionary);
    Board small(smallDictionary);
    return bench::ratio([&] { searchRounds(large, rounds); }, [&] { searchRounds(small, rounds); });
}

/// The hint of the word game on a board that yields no word: all its tries.
double hintRatio()
{
    constexpr int tries = 1000;
    Board board(largeDictionary);
    TileList tiles;
    const auto lay = [&](const WordStore &texts, const TileKind &kind) {
        for (const QString &text : texts.rows()) {
            tiles.push_back(std::make_unique<cWortel>());
            tiles.back()->txt = text + u'x'; // no word of the dictionary has one
            tiles.back()->BGColor = kind.back;
        }
    };
    lay(board.lists.PrefixReTypeList, prefixKind);
    lay(board.lists.WortelReTypeList, wortelKind);
    lay(board.lists.SuffixReTypeList, suffixKind);
    const QStringList prefixes = board.lists.PrefixReTypeList.rows();
    const QStringList stems = board.lists.WortelReTypeList.rows();
    const QStringList suffixes = board.lists.SuffixReTypeList.rows();
    const QSet<QString> dictionary(board.lists.LexiconList.rows().cbegin(),
                                   board.lists.LexiconList.rows().cend());
    const auto draw = [&](const QStringList &list) {
        return list.at(static_cast<qsizetype>(board.rnd() * static_cast<double>(list.size())));
    };
    return bench::ratio([&] { bench::keep(findWordHint(tiles, board.lists, board.tests, board.rnd)); },
                        [&] {
                            for (int i = 0; i < tries; ++i) {
                                const QString word =
                                    draw(prefixes) + u'x' + draw(stems) + u'x' + draw(suffixes) + u'x';
                                bench::keep(dictionary.contains(word));
                            }
                        },
                        51);
}

/// A run of 1,000 accepted words with its sweeps. Returns its rounds.
int nonsenseRun(Board &board)
{
    board.lists.PseudoWordList.clear();
    Rnd rnd(21);
    nonsense::Generator generator(board.lists, board.tests, rnd, 1);
    int rounds = 0;
    for (int found = 0; found < 1000; ++rounds) {
        found += generator.tryWord() ? 1 : 0;
        found -= generator.sweep();
    }
    return rounds;
}

/// The tests of as many rounds, with nothing kept.
void nonsenseTests(const Board &board, int rounds)
{
    Rnd rnd(21);
    for (int i = 0; i < rounds; ++i) {
        Morphemes parts = drawMorphemes(board.lists, rnd);
        if (nonsense::holdsBadCluster(nonsense::stretchOf(parts.Stem, parts.Suffix)))
            continue;
        parts.Suffix = nonsense::expandSuffix(parts.Suffix, rnd);
        const QString word = nonsense::join(parts, 1);
        const std::optional<QString> form = nonsense::acceptedForm(word);
        if (form && !board.tests.ChkForDuplicates2(word) && !board.tests.ChkForDuplicates3(word))
            bench::keep(nonsense::holdsBadClusterForSweep(UCase(*form)));
    }
}

double nonsenseRatio()
{
    Board board(largeDictionary);
    const int rounds = nonsenseRun(board);
    return bench::ratio([&] { bench::keep(nonsenseRun(board)); }, [&] { nonsenseTests(board, rounds); }, 31);
}

const bench::Row check{"words: check in a dictionary of 32,000", 2.0, checkRatio};
const bench::Row realWords{"words: a round for real words", 2.0, realWordRatio};
const bench::Row growth{"words: a round, 32,000 against 1,000 words", 1.5, growthRatio};
const bench::Row hint{"words: a hint that finds nothing", 2.0, hintRatio};
const bench::Row nonsenseWords{"words: 1,000 nonsense words", 3.0, nonsenseRatio};

} // namespace
