// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QSet>
#include <QString>

#include <functional>
#include <map>
#include <vector>

namespace langdata {

/// What the entry behind a form tells about it; a form with several origins has several bits.
enum Origin : unsigned {
    OriginOther = 1,             ///< noun, adverb, finite verb form, ...
    OriginInfinitive = 2,        ///< a verb's entry itself
    OriginAdjective = 4,         ///< adjective, compared and declined forms too
    OriginNominalInfinitive = 8, ///< "Laufen", "Laufens": a verb used as a noun
};

/// Expands a Hunspell dictionary into all its written forms. Only what makes free words is
/// followed: parts that live in compounds alone and affixes that carry flags of their own are
/// left out, so the result still wants a check by the Hunspell library itself.
class Expander
{
public:
    using Sink = std::function<void(const QString &base, const QString &form, unsigned origin)>;

    /// Both files in Latin-1. Throws InputError if they are no affix file and dictionary.
    Expander(const QByteArray &affixFile, const QByteArray &dictionary);

    /// Calls `sink` for each form of each entry, in the order of the dictionary; forms repeat. `base` is
    /// the entry's own word.
    void expand(const Sink &sink) const;

private:
    struct Rule
    {
        QString strip;
        QString add;
        std::vector<QString> condition; ///< one set of characters a place; "^" leads a negated set
    };
    struct Flag
    {
        bool prefix = false;
        bool crosses = false;
        std::vector<Rule> rules;
    };
    struct Entry
    {
        QString word;
        QString flags;
    };

    void readRules(const QByteArray &affixFile);
    void readEntries(const QByteArray &dictionary);
    static bool isInfinitive(const Entry &entry);
    unsigned originOf(const Entry &entry, bool base, QChar suffixFlag) const;
    void expandEntry(const Entry &entry, const Sink &sink) const;
    static bool applySuffix(const Rule &rule, const QString &word, QString &result);

    std::map<QChar, Flag> flags_;
    std::vector<Entry> entries_;
    QSet<QString> infinitives_;
};

} // namespace langdata
