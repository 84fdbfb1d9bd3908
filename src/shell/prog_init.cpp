// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/prog_init.h"

#include "board/canvas/bulk_tiles.h"
#include "board/canvas/canvas.h"
#include "board/tiles/affix_homes.h"
#include "board/tiles/affix_rows.h"
#include "language/list_loader.h"
#include "platform/boxes.h"
#include "platform/files.h"
#include "platform/ground.h"
#include "platform/options.h"
#include "platform/procedure.h"
#include "platform/product.h"
#include "platform/text.h"
#include "platform/word_lists.h"
#include "widgets/gradient.h"
#include "widgets/guards.h"
#include "widgets/main_controls.h"
#include "widgets/plain_tool_tip.h"

#include <QLabel>
#include <QScreen>

#include <algorithm>
#include <utility>

using namespace Qt::StringLiterals;

ProgInit::ProgInit(Ground &ground, const MainControls &controls, WordLists &lists, ListLoader &loader,
                   Canvas &canvas, BulkTiles &bulk, AffixHomes &homes)
    : ground_(ground)
    , controls_(controls)
    , lists_(lists)
    , loader_(loader)
    , canvas_(canvas)
    , bulk_(bulk)
    , homes_(homes)
{}

bool ProgInit::run(Int16 count, int screenCode)
{
    Procedure step{ground_.log, "ProgInit", "frmMain"};
    Hourglass hourglass;
    if (!loadLists())
        return false;
    step([&] { nameTheList(); });
    step([&] { controls_.form->setWindowTitle(product::caption()); });
    step([&] { canvas_.surface().clear(); });
    if (!std::exchange(homesFound_, true))
        step([&] { findHomes(screenCode); });
    step([&] { leftOut_ = std::max<int>(0, count - bulk_.layFirstBoard(count, expectedBandTop())); });
    step([&] { loader_.FillKurzLanglist(); });
    return true;
}

bool ProgInit::loadLists()
{
    while (const std::optional<QString> missing = loader_.loadAtStart())
        if (!offersUsualList(*missing))
            return false;
    return true;
}

/// A chosen list that is gone, or has no dictionary, must not end every start from now on: the list that came
/// with the program takes its place if the user agrees. Any other missing file is only told.
bool ProgInit::offersUsualList(const QString &missing)
{
    Procedure step{ground_.log, "ProgInit", "frmMain", Procedure::Silent};
    const QString usual = ground_.options.fallback(Setting::WortelFile);
    const bool isGone = ListLoader::missingOf(lists_.CurrentWortelFile).has_value();
    if (!isGone || ListLoader::missingOf(usual)) {
        ground_.boxes.plainBox(Boxes::Icon::Critical, product::faultTitle, missing);
        return false;
    }
    const Boxes::Answer answer = ground_.boxes.plainBox(
        Boxes::Icon::Critical, product::faultTitle,
        missing +
            u"\n\nSoll Wortel-Meister stattdessen mit der Liste \"%1\" starten, jetzt und in Zukunft?"_s.arg(
                listBaseName(usual)),
        Boxes::Buttons::YesNo);
    if (answer != Boxes::Answer::Yes)
        return false;
    step([&] { ground_.options.reset(Setting::WortelFile); });
    return true;
}

void ProgInit::nameTheList()
{
    controls_.Label3->setText(RTrimText(GetOnlyFileName(lists_.CurrentLexiconFile), u".lex"_s));
    controls_.Label3->setToolTip(plainToolTip(listBaseName(lists_.CurrentWortelFile)));
}

/// The window is maximised when it is shown; until then the band stands higher than it will.
int ProgInit::expectedBandTop() const
{
    constexpr int titleBarHeight = 30; // pixels, about what window managers take
    const int now = canvas_.store().measures().BandTop();
    const int screen = controls_.form->screen()->availableSize().height();
    return std::max(now, screen - titleBarHeight - controls_.Picture1->height());
}

void ProgInit::findHomes(int screenCode)
{
    Procedure step{ground_.log, "ProgInit", "frmMain", Procedure::Silent};
    int addToPosition = 0; // a number past 16 bits leaves the row at its usual place
    step([&] { addToPosition = CInt(Val(ground_.options.stored(Setting::AddToSuffixPosition))); });
    const int suffixTop =
        affix_rows::suffixTop(canvas_.store().measures().ScaleHeight(), screenCode, addToPosition);
    findRow(homes_.prefixes, lists_.PrefixList, affix_rows::prefixTop, affix_rows::prefixStep);
    findRow(homes_.suffixes, lists_.SuffixList, suffixTop, affix_rows::suffixStep);
}

void ProgInit::findRow(std::vector<AffixHome> &homes, const WordStore &affixes, int top,
                       int (*stepAfter)(int))
{
    int left = 0;
    for (int i = 1; i <= affix_rows::tilesInRow; ++i) {
        homes.push_back({left, top, affixes.at(i - 1)});
        left += stepAfter(i);
    }
}
