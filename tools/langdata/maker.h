// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "blocklist.h"
#include "segmenter.h"

#include <QHash>
#include <QSet>
#include <QString>
#include <QStringList>

#include <array>
#include <functional>
#include <vector>

namespace langdata {

class Expander;

/// Why a form that the tiles can build did not become a word of the dictionaries.
enum class Drop { Blocked, Excluded, NominalInfinitive, Rejected, Unfamiliar };
constexpr size_t dropCount = 5;

/// What the word rules judge by, next to the expanded dictionary.
struct Judges
{
    Blocklist blocklist;
    QSet<QString> include;                            ///< written as taught, kept whatever the rules say
    QSet<QString> exclude;                            ///< exact forms that never go in
    QSet<QString> familiar;                           ///< words as readers meet them, nouns in capitals
    std::function<bool(const QString &form)> accepts; ///< the Hunspell library's word check
};

/// Gathers the words that prefixes, stems and endings can build, and sorts them into
/// dictionaries. A word with at most one tile of each kind goes in when the dictionary lists it; a
/// longer one must be familiar as well. Nouns that the dictionary only knows as compounds
/// ("Vorschlag", "Landschaft") go in when they are familiar.
class Maker
{
public:
    /// Judges every form at once. Throws InputError if an included word cannot be built.
    Maker(const Expander &expander, const Segmenter &segmenter, const Judges &judges);

    /// Sorted words of a list. Throws InputError for stems that build no word at all and for
    /// dictionaries too long for the game.
    QStringList dictionaryOf(const QString &list, const QStringList &stems) const;

    /// Forms left out for one reason, sorted.
    const QStringList &dropped(Drop reason) const { return dropped_[size_t(reason)]; }

    /// Entries of the exclude list that no source ever offered, sorted.
    const QStringList &idleExcludes() const { return idleExcludes_; }

private:
    struct Word
    {
        QString form;
        unsigned origins = 0;
    };

    void gather(const Expander &expander);
    void offer(const QString &form, unsigned origin);
    QStringList familiarPrefixes(const QString &noun) const;
    bool isFamiliar(const QString &form) const;
    void judge();
    void keep(const QString &form, unsigned origins, const std::vector<Segmenter::Reading> &readings);
    static bool before(const Word &left, const Word &right);

    Segmenter segmenter_;
    Judges judges_;
    QHash<QString, unsigned> origins_; ///< candidate form -> its origins
    QHash<QString, bool> buildable_;   ///< lower case
    std::vector<Word> words_;
    QHash<QString, std::vector<size_t>> wordsOfStem_;
    std::array<QStringList, dropCount> dropped_;
    QStringList idleExcludes_;
};

/// Order of a German dictionary, case-blind: umlauts beside their vowel, ß as ss.
QString collationKey(const QString &word);

} // namespace langdata
