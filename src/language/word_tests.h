// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/play_state.h"

#include <QString>
#include <QStringList>

class Options;
class WordStore;
struct WordLists;

/// The questions that word check, generators and games ask of the word stores. None of them changes a list.
/// All but the two that follow the case rule of the options are whole-item finds that ignore case; each takes
/// constant time, however long the list is.
class WordTests
{
public:
    WordTests(const WordLists &lists, const Options &options)
        : lists_(lists)
        , options_(options)
    {}

    /// Membership in the dictionary under the case rule `CaseCheck`: 1 exact, 0 case-blind, and False for
    /// every word in the box's third state.
    bool In_Lexicon(const QString &word) const;
    /// The same over the nonsense words with the rule `UseCaseOnPseudo`.
    bool In_PseudoWordsList(const QString &word) const;

    /// Whether the stem stands in the list of that group. The empty word stands in none.
    bool InKurzLangVokalList(const QString &word, Vowels group) const;

    /// In the word list, the dictionary, the nonsense words, the words collected in a game. The empty word is
    /// in none.
    bool ChkForDuplicates(const QString &word) const;
    bool ChkForDuplicates2(const QString &word) const;
    bool ChkForDuplicates3(const QString &word) const;
    bool GameChkCollectedDupl(const QString &word) const;

    /// The dictionary's spelling of `word`: its first entry that equals it without regard to case, or the
    /// empty string.
    QString ProperCase(const QString &word) const;
    /// The same by the list's exact find; the empty word gives the empty string.
    QString ProperCase2(const QString &word) const { return ProperCase(word); }

    /// The number of words in the word list that count for a score list: those of a vowel list for the vowel
    /// game, else those in the dictionary.
    int GetCorrectNumWords(bool vowelGame) const;

private:
    static bool isIn(const WordStore &store, const QString &word, int caseRule);

    const WordLists &lists_;
    const Options &options_;
};

/// Sorts in place, stable: binary comparison with `caseSensitive`, else the case-blind collation of the
/// kept-sorted lists.
void InsertSortStrings(QStringList &items, bool ascending, bool caseSensitive);
