// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "language/word_tests.h"

#include "platform/options.h"
#include "platform/text.h"
#include "platform/word_lists.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

bool holds(const WordStore &store, const QString &word) { return !word.isEmpty() && store.contains(word); }

} // namespace

bool WordTests::isIn(const WordStore &store, const QString &word, int caseRule)
{
    if (caseRule != 0 && caseRule != 1)
        return false;
    const int row = store.findExact(word);
    if (row < 0 || caseRule == 0)
        return row >= 0;
    // The index knows the first spelling only; another one can only stand behind it.
    const QStringList &rows = store.rows();
    return std::find(rows.cbegin() + row, rows.cend(), word) != rows.cend();
}

bool WordTests::In_Lexicon(const QString &word) const
{
    return isIn(lists_.LexiconList, word, options_.box(Setting::CaseCheck));
}

bool WordTests::In_PseudoWordsList(const QString &word) const
{
    return isIn(lists_.PseudoWordList, word, options_.box(Setting::UseCaseOnPseudo));
}

bool WordTests::InKurzLangVokalList(const QString &word, Vowels group) const
{
    switch (group) {
    case Vowels::Short:
        return holds(lists_.kurzvokalList, word);
    case Vowels::Long:
        return holds(lists_.langvokalList, word);
    case Vowels::None:
        break;
    }
    return false;
}

bool WordTests::ChkForDuplicates(const QString &word) const { return holds(lists_.CorrectWordList, word); }
bool WordTests::ChkForDuplicates2(const QString &word) const { return holds(lists_.LexiconList, word); }
bool WordTests::ChkForDuplicates3(const QString &word) const { return holds(lists_.PseudoWordList, word); }
bool WordTests::GameChkCollectedDupl(const QString &word) const
{
    return holds(lists_.GameCollectedList, word);
}

QString WordTests::ProperCase(const QString &word) const
{
    return lists_.LexiconList.at(lists_.LexiconList.findExact(word));
}

int WordTests::GetCorrectNumWords(bool vowelGame) const
{
    const auto counts = [&](const QString &word) {
        return vowelGame ? InKurzLangVokalList(word, Vowels::Short) || InKurzLangVokalList(word, Vowels::Long)
                         : In_Lexicon(word);
    };
    const QStringList &rows = lists_.CorrectWordList.rows();
    return static_cast<int>(std::count_if(rows.cbegin(), rows.cend(), counts));
}

void InsertSortStrings(QStringList &items, bool ascending, bool caseSensitive)
{
    std::stable_sort(items.begin(), items.end(), [=](const QString &a, const QString &b) {
        const int order = caseSensitive ? a.compare(b) : compareCollated(a, b);
        return ascending ? order < 0 : order > 0;
    });
}
