// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/word_store.h"

/// All word stores of the main window and the files they come from, made once and passed by reference. They
/// stand on the ground floor because the board draws its tiles from them as well as the language rooms that
/// fill and search them.
struct WordLists
{
    WordStore WortelList;
    WordStore PrefixList;
    WordStore SuffixList;
    WordStore LexiconList;
    WordStore langvokalList;
    WordStore kurzvokalList;
    WordStore CorrectWordList{WordStore::KeptSorted};
    WordStore GameCollectedList{WordStore::KeptSorted};
    WordStore PseudoWordList{WordStore::KeptSorted};
    WordStore PrefixReTypeList;
    WordStore WortelReTypeList;
    WordStore SuffixReTypeList;

    QString CurrentWortelFile; ///< stem list in use, stored form
    QString PrefixFile;
    QString SuffixFile;
    QString CurrentLexiconFile; ///< dictionary that goes with the stem list
};
