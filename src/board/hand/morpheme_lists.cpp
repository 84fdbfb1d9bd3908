// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "board/hand/morpheme_lists.h"

#include "board/tiles/tile_kind.h"
#include "platform/clock.h"
#include "platform/gate.h"
#include "platform/ground.h"
#include "platform/note_texts.h"
#include "platform/notes.h"
#include "platform/procedure.h"
#include "platform/sounds.h"
#include "platform/word_store.h"
#include "widgets/gradient.h"
#include "widgets/long_press.h"
#include "widgets/main_controls.h"
#include "widgets/press_button.h"
#include "widgets/store_list.h"

#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;

namespace {

constexpr int allLists = 3;

/// Pixels from a filter button's left edge to that of its list.
constexpr std::array<int, 3> listShift{-11, -20, 8};

} // namespace

MorphemeLists::MorphemeLists(Ground &ground, const MainControls &controls, QObject *parent)
    : QObject(parent)
    , ground_(ground)
    , controls_(controls)
{
    for (std::size_t i = 0; i < controls.OptType.size(); ++i) {
        LongPress::offer(controls.OptType[i]);
        connect(controls.OptType[i], &PressButton::mouseDown, this,
                throughGate(ground.gate, Gate::Way::Look, [this, i](Qt::MouseButton button, auto) {
                    OptType_MouseDown(static_cast<int>(i), button);
                }));
    }
}

StoreList *MorphemeLists::list(int index) const
{
    const std::array lists{controls_.WortelList, controls_.PrefixList, controls_.SuffixList};
    return lists.at(static_cast<std::size_t>(index));
}

void MorphemeLists::placeOpen()
{
    const int band = controls_.Picture1->y();
    int free = 0;                                 // of what is right of it
    for (const std::size_t kind : {1U, 0U, 2U}) { // as the buttons stand
        StoreList &shown = *list(static_cast<int>(kind));
        if (shown.isHidden())
            continue;
        const int left = controls_.OptType.at(kind)->mapTo(controls_.form, QPoint()).x() + listShift.at(kind);
        shown.resize(shown.width(), std::min(MainControls::morphemeListHeight, band));
        shown.move(std::max(free, left), band - shown.height());
        shown.raise();
        free = shown.x() + shown.width();
    }
}

void MorphemeLists::show(int index)
{
    list(index)->show();
    placeOpen();
}

void MorphemeLists::playOpened()
{
    if (playSound(ground_, SoundId::ListOpened))
        ground_.pump.yield();
}

void MorphemeLists::OptType_MouseDown(int index, Qt::MouseButton button)
{
    Procedure step{ground_.log, "OptType_MouseDown", "frmMain"};
    if (button == Qt::LeftButton) {
        step([&] { hideAll(); });
        step([&] { emit menuRestoreWanted(); });
        step([&] { ground_.log.WriteLog(u"Event: User requested a menu-restore"_s); });
        step([&] { tellIfNone(index); });
    } else if (index == allLists) {
        step([&] { ToggleAllMorphemeLists(); });
    } else {
        step([&] {
            list(index)->setVisible(list(index)->isHidden());
            placeOpen();
            if (list(index)->isHidden())
                return;
            if (list(index)->store()->isEmpty())
                ground_.notes.tell(note::listEmpty, QString::fromUtf16(kindAt(index).name));
            playOpened();
        });
    }
}

void MorphemeLists::tellIfNone(int index)
{
    if (controls_.OptType.at(static_cast<std::size_t>(index))->text() != u"0")
        return;
    if (index == allLists)
        ground_.notes.tell(note::boardEmpty);
    else
        ground_.notes.tell(note::noTiles, QString::fromUtf16(kindAt(index).plural));
}

void MorphemeLists::ToggleAllMorphemeLists()
{
    Procedure step{ground_.log, "ToggleAllMorphemeLists", "frmMain"};
    step([&] {
        const bool anyOpen = isAnyOpen();
        for (int i = 0; i < allLists; ++i)
            list(i)->setVisible(!anyOpen);
        placeOpen();
        if (!anyOpen)
            playOpened();
    });
}

void MorphemeLists::hideAll()
{
    for (int i = 0; i < allLists; ++i)
        list(i)->hide();
}

bool MorphemeLists::isAnyOpen() const
{
    bool anyOpen = false;
    for (int i = 0; i < allLists; ++i)
        anyOpen = anyOpen || !list(i)->isHidden();
    return anyOpen;
}
