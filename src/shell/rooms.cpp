// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/rooms.h"

#include "platform/ground.h"
#include "platform/modes.h"
#include "platform/options.h"
#include "platform/word_lists.h"
#include "widgets/main_controls.h"

#include <QCoreApplication>

Rooms::Rooms(Ground &ground, MainControls &controls, WordLists &lists, Modes &modes)
    : popup(ground, controls, modes)
    , optTypes(controls)
    , measures(controls)
    , surface(*controls.picCanvas)
    , store(ground, optTypes, optTypes, surface, measures)
    , canvas(ground, controls, modes, store, surface, optTypes)
    , morphemeLists(ground, controls)
    , background(ground, controls, canvas)
    , placement(ground, controls, modes, lists, canvas)
    , bulk(ground, controls, lists, homes, canvas, placement)
    , arrangement(ground, controls, modes, canvas, placement)
    , menus([&ground, &modes] {
        return MenuFacts{.modes = modes, .useUndo = ground.options.storedIsOn(Setting::UseUndo)};
    })
    , cp(menus, controls.form)
    , commands(ground, controls, lists, modes, {canvas, placement, bulk, arrangement, morphemeLists, menus})
    , pointer(ground, controls, modes, canvas, commands, cp)
    , keys(ground, controls, modes, commands, pointer, cp)
    , loader(ground, lists)
    , tests(lists, ground.options)
    , dictionary(ground, controls, lists)
    , wordList(ground, controls, lists, modes, tests, dictionary)
    , check(ground, controls, lists, modes, tests, dictionary, popup)
    , chooser(ground, controls, lists, loader, store,
              {[this] { bulk.Refill(); }, [this] { pointer.DoOnDrop(); }})
    , tips(ground, controls, lists, modes)
    , maker(ground, controls, lists, modes, tests, store)
    , strip(ground, controls)
    , retype(ground, controls, lists, modes, {strip, maker, check, tests, dictionary, canvas})
    , options(ground, controls.form)
    , undo(ground, modes, menus, canvas)
    , backup(ground, modes, canvas, bulk)
    , sessions(ground, controls, lists, {canvas, bulk, loader, undo})
    , fileType(ground.log, QCoreApplication::applicationFilePath())
    , progInit(ground, controls, lists, loader, canvas, placement, homes)
{}

Rooms::~Rooms() = default;
