// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/prog_init.h"

#include "board/canvas/canvas.h"
#include "board/canvas/placement.h"
#include "board/tiles/affix_homes.h"
#include "language/list_loader.h"
#include "platform/boxes.h"
#include "platform/clock.h"
#include "platform/files.h"
#include "platform/ground.h"
#include "platform/options.h"
#include "platform/procedure.h"
#include "platform/product.h"
#include "platform/rnd.h"
#include "platform/text.h"
#include "platform/word_lists.h"
#include "shell/affix_rows.h"
#include "widgets/guards.h"
#include "widgets/main_controls.h"
#include "widgets/plain_tool_tip.h"

#include <QLabel>

using namespace Qt::StringLiterals;

ProgInit::ProgInit(Ground &ground, const MainControls &controls, WordLists &lists, ListLoader &loader,
                   Canvas &canvas, Placement &placement, AffixHomes &homes)
    : ground_(ground)
    , controls_(controls)
    , lists_(lists)
    , loader_(loader)
    , canvas_(canvas)
    , placement_(placement)
    , homes_(homes)
{}

bool ProgInit::run(Int16 count, int screenCode)
{
    Procedure step{ground_.log, "ProgInit", "frmMain"};
    Hourglass hourglass;
    if (const std::optional<QString> missing = loader_.loadAtStart()) {
        ground_.boxes.plainBox(Boxes::Icon::Critical, product::faultTitle, *missing);
        return false;
    }
    step([&] { nameTheList(); });
    step([&] { controls_.form->setWindowTitle(product::caption()); });
    step([&] { canvas_.surface().clear(); });
    step([&] { layWortelTiles(count); });
    if (!affixRowsLaid_) {
        affixRowsLaid_ = true;
        layAffixRows(step, screenCode);
    }
    step([&] { loader_.FillKurzLanglist(); });
    return true;
}

void ProgInit::nameTheList()
{
    controls_.Label3->setText(RTrimText(GetOnlyFileName(lists_.CurrentLexiconFile), u".lex"_s));
    controls_.Label3->setToolTip(plainToolTip(listBaseName(lists_.CurrentWortelFile)));
}

void ProgInit::layWortelTiles(int count)
{
    if (ground_.options.isOn(Setting::NoOverlapOnStart)) {
        placement_.PlaceWortelFree(count);
        return;
    }
    TileStore &store = canvas_.store();
    const BoardMeasures &measures = store.measures();
    while (store.count() < count) {
        ground_.rnd.Randomize();
        // A draw below the offset folds back to the right of the edge, not onto it.
        const int x = ground_.rnd.absInt(measures.ScaleWidth(), -100);
        const int y = ground_.rnd.absInt(measures.ScaleHeight(), -200) + 65;
        const int index = ground_.rnd.absInt(lists_.WortelList.count());
        store.counters().set(0, count);
        store.CanvasDrawWortel(x, y, lists_.WortelList.at(index), colours::wortelBack, colours::wortelText);
        ground_.pump.yield();
    }
}

bool ProgInit::fillsAffixes() const
{
    return ground_.options.isOn(Setting::FillAffix) &&
           !ground_.options.text(Setting::NumAffixToFill).isEmpty();
}

void ProgInit::layAffixRows(Procedure &step, int screenCode)
{
    // A number past 16 bits leaves rows without copies at their usual place.
    int copies = 0;
    int addToPosition = 0;
    if (fillsAffixes())
        step([&] { copies = CInt(Val(ground_.options.text(Setting::NumAffixToFill))); });
    step([&] { addToPosition = CInt(Val(ground_.options.stored(Setting::AddToSuffixPosition))); });
    const int suffixTop =
        affix_rows::suffixTop(canvas_.store().measures().ScaleHeight(), screenCode, addToPosition);
    step([&] {
        layAffixRow(*kindOfColour(colours::prefixBack), affix_rows::prefixTop, affix_rows::prefixStep,
                    copies);
    });
    step([&] { layAffixRow(*kindOfColour(colours::suffixBack), suffixTop, affix_rows::suffixStep, copies); });
}

void ProgInit::layAffixRow(const TileKind &kind, int top, int (*stepAfter)(int), int copies)
{
    const bool isPrefix = kind.back == colours::prefixBack;
    const WordStore &affixes = isPrefix ? lists_.PrefixList : lists_.SuffixList;
    std::vector<AffixHome> &homes = isPrefix ? homes_.prefixes : homes_.suffixes;

    CanvasSurface::Batch batch(canvas_.surface());
    int left = 0;
    for (int i = 1; i <= affix_rows::tilesInRow; ++i) {
        const QString text = affixes.at(i - 1);
        for (int copy = 0; copy <= copies; ++copy)
            canvas_.store().CanvasDrawWortel(left, top, text, kind.back, kind.text);
        homes.push_back({left, top, text});
        left += stepAfter(i);
    }
    // The counter takes the whole list, though only twenty of its entries have a place.
    TileCounters &counters = canvas_.store().counters();
    counters.set(kind.filterIndex, Int16(affixes.count() * (1 + copies)));
    if (fillsAffixes())
        counters.updateTotal();
}
