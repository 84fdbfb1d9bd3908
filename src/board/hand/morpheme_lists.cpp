// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "board/hand/morpheme_lists.h"

#include "platform/clock.h"
#include "platform/ground.h"
#include "platform/options.h"
#include "platform/procedure.h"
#include "platform/sound.h"
#include "widgets/gradient.h"
#include "widgets/main_controls.h"
#include "widgets/press_button.h"
#include "widgets/store_list.h"

#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;

namespace {

constexpr int listOpened = 121; // sound
constexpr int allLists = 3;

/// Pixels from a filter button's left edge to that of its list.
constexpr std::array<int, 3> listShift{-11, -20, 8};

} // namespace

MorphemeLists::MorphemeLists(Ground &ground, const MainControls &controls, QObject *parent)
    : QObject(parent)
    , ground_(ground)
    , controls_(controls)
{
    for (std::size_t i = 0; i < controls.OptType.size(); ++i)
        connect(controls.OptType[i], &PressButton::mouseDown, this,
                [this, i](Qt::MouseButton button) { OptType_MouseDown(static_cast<int>(i), button); });
}

StoreList *MorphemeLists::list(int index) const
{
    const std::array lists{controls_.WortelList, controls_.PrefixList, controls_.SuffixList};
    return lists.at(static_cast<std::size_t>(index));
}

void MorphemeLists::place(int index)
{
    StoreList &shown = *list(index);
    const PressButton &button = *controls_.OptType.at(static_cast<std::size_t>(index));
    const int left =
        button.mapTo(controls_.form, QPoint()).x() + listShift.at(static_cast<std::size_t>(index));
    shown.move(std::max(0, left), controls_.Picture1->y() - shown.height());
    shown.raise();
}

void MorphemeLists::playOpened()
{
    if (!ground_.options.isOn(Setting::SoundOnActions))
        return;
    ground_.sound.PlayResourceSound(listOpened);
    ground_.pump.yield();
}

void MorphemeLists::OptType_MouseDown(int index, Qt::MouseButton button)
{
    Procedure step{ground_.log, "OptType_MouseDown", "frmMain"};
    if (button == Qt::LeftButton) {
        step([&] { hideAll(); });
        step([&] { emit menuRestoreWanted(); });
        step([&] { ground_.log.WriteLog(u"Event: User requested a menu-restore"_s); });
    } else if (index == allLists) {
        step([&] { ToggleAllMorphemeLists(); });
    } else {
        step([&] {
            place(index);
            list(index)->setVisible(list(index)->isHidden());
            if (!list(index)->isHidden())
                playOpened();
        });
    }
}

void MorphemeLists::ToggleAllMorphemeLists()
{
    Procedure step{ground_.log, "ToggleAllMorphemeLists", "frmMain"};
    step([&] {
        bool anyOpen = false;
        for (int i = 0; i < allLists; ++i) {
            place(i);
            anyOpen = anyOpen || !list(i)->isHidden();
        }
        for (int i = 0; i < allLists; ++i)
            list(i)->setVisible(!anyOpen);
        if (!anyOpen)
            playOpened();
    });
}

void MorphemeLists::hideAll()
{
    for (int i = 0; i < allLists; ++i)
        list(i)->hide();
}
