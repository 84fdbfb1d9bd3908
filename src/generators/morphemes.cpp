// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "generators/morphemes.h"

#include "generators/nonsense_tables.h"
#include "platform/rnd.h"
#include "platform/text.h"
#include "platform/word_lists.h"

namespace {

enum class Doubles { Dropped, Kept };

/// Walks the tiles and lets `admits(kind, text)` decide which texts join the list of their kind.
template <typename Admits> 
void collect(const TileList &tiles, WordLists &lists, Doubles doubles, Admits &&admits)
{
    WordStore *const stores[] = {&lists.WortelReTypeList, &lists.PrefixReTypeList, &lists.SuffixReTypeList};
    for (WordStore *store : stores)
        store->clear();
    for (const auto &tile : tiles) {
        const TileKind *kind = kindOfColour(tile->BGColor);
        if (kind == nullptr)
            continue;
        WordStore &store = *stores[kind->filterIndex];
        // An empty text counts as not there yet each time it comes up.
        const bool known = doubles == Doubles::Dropped && !tile->txt.isEmpty() && store.contains(tile->txt);
        if (!known && admits(*kind, tile->txt))
            store.add(tile->txt);
    }
}

} // namespace

void collectMorphemes(const TileList &tiles, WordLists &lists)
{
    collect(tiles, lists, Doubles::Dropped, [](const TileKind &, const QString &) { return true; });
}

void collectAllMorphemes(const TileList &tiles, WordLists &lists)
{
    collect(tiles, lists, Doubles::Kept, [](const TileKind &, const QString &) { return true; });
}

void collectNonsenseMorphemes(const TileList &tiles, const QString &listName, WordLists &lists)
{
    const bool nounList = UCase(listName) == QStringView(nonsense::nounListName);
    collect(tiles, lists, Doubles::Dropped, [nounList](const TileKind &kind, const QString &text) {
        if (kind.back == colours::prefixBack)
            return !nounList;
        if (kind.back != colours::suffixBack)
            return true;
        const QString capitals = UCase(text);
        return nounList ? nonsense::isIn(nonsense::NounSuffixList, capitals)
                        : !nonsense::isIn(nonsense::bareEndings, capitals);
    });
}

QString drawRow(const WordStore &store, Rnd &rnd)
{
    rnd.Randomize();
    return store.at(rnd.absInt(store.count()));
}

Morphemes drawMorphemes(const WordLists &lists, Rnd &rnd)
{
    Morphemes drawn;
    drawn.Prefix = drawRow(lists.PrefixReTypeList, rnd);
    drawn.Stem = drawRow(lists.WortelReTypeList, rnd);
    drawn.Suffix = drawRow(lists.SuffixReTypeList, rnd);
    return drawn;
}
