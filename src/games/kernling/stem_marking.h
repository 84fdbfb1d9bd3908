// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "games/kernling/kernling_text.h"
#include "games/kernling/stem_verdict.h"

#include <QStringList>

class Work;
struct KernlingDesk;

/// Shows what a marking comes to: the verdict, its tone, the result lists with their counts, and the paint in
/// the text.
class StemMarking
{
public:
    StemMarking(KernlingDesk &desk, const WordTests &tests);

    /// Judges the marked letters. Nothing if none are marked.
    void HighLightSelection();
    /// Judges and paints every place at which one of `words` stands as a whole word, the words in their
    /// order, or says that there is none. A cancel leaves what is painted; nothing is while it still
    /// searches.
    void Locate_and_Higlight(const QStringList &words);

    // Takes away what was painted
    void cmdUnHighlight_Click();
    void cmdResetColors_Click();

    // Empties a result list
    void clearFound();
    void clearFalse();

private:
    using Runs = std::vector<KernlingText::Run>;

    Runs hitsOf(const QStringList &words, const QString &letters, Work &work);
    kernling::Verdict paintHits(const Runs &runs, const QString &letters, Work &work);
    kernling::VerdictOptions options() const;
    void keep(const kernling::Verdict &verdict);
    void show(kernling::Verdict verdict);
    void showFound();
    void showFalse();

    KernlingDesk &desk_;
    kernling::StemJudge judge_;
};
