// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/rooms.h"

#include "platform/gate.h"
#include "platform/ground.h"
#include "platform/options.h"
#include "platform/play_state.h"
#include "platform/word_lists.h"
#include "widgets/control_sheet.h"
#include "widgets/main_controls.h"
#include "widgets/status_line.h"

#include <QCoreApplication>

Rooms::Rooms(Ground &ground, const Hall &hall)
    : popup(ground, hall.controls, hall.sheet, hall.play)
    , news(ground.gate)
    , optTypes(hall.controls)
    , measures(hall.controls)
    , surface(*hall.controls.picCanvas)
    , store(ground, optTypes, optTypes, surface, measures)
    , canvas(ground, hall.controls, hall.sheet, store, surface, optTypes)
    , fit(ground, canvas)
    , morphemeLists(ground, hall.controls)
    , background(ground, hall.controls, canvas)
    , placement(ground, hall.controls, hall.lists, canvas)
    , bulk(ground, hall.controls, hall.lists, homes, canvas, placement, news)
    , arrangement(ground, canvas, placement)
    , menus([this, &ground, &play = hall.play] {
        return MenuFacts{.play = play,
                         .useUndo = ground.options.storedIsOn(Setting::UseUndo),
                         .canUndo = undo.CanUndo(),
                         .canRedo = undo.CanRedo()};
    })
    , cp(ground.gate, menus, hall.controls.form)
    , router(ground, hall.play, canvas, news)
    , commands(ground, hall.controls, router, news, {canvas, placement, bulk, arrangement, morphemeLists})
    , focus(hall.controls, canvas)
    , pointer(ground, hall.controls, {canvas, router, commands, cp, news, focus})
    , keys(ground, hall.controls, {focus, canvas, router, pointer, news})
    , reader(hall.controls, canvas, focus)
    , loader(ground, hall.lists)
    , tests(hall.lists, ground.options)
    , dictionary(ground, hall.controls, hall.sheet, hall.lists)
    , wordList(ground, hall.controls, hall.lists, hall.play, tests, dictionary)
    , check(ground, hall.controls, hall.lists, hall.play, tests, dictionary, popup)
    , chooser(ground, hall.controls, hall.lists, loader, store, news,
              {[this] { return bulk.Refill(); }, [this] { pointer.DoOnDrop(); }})
    , wordChooser(ground, hall.lists, loader, hall.controls.form)
    , tips(ground, hall.controls, hall.lists, hall.play)
    , maker(ground, hall.lists, tests, store)
    , options(ground, hall.controls.form)
    , undo(ground, canvas, news)
    , backup(ground, canvas, news)
    , sessions(ground, hall.controls, hall.lists, {canvas, loader, news})
    , fileType(ground.log, QCoreApplication::applicationFilePath())
    , printing(ground, hall.controls, hall.lists, canvas)
    , scores(ground)
    , kernling(ground, {hall.lists, tests, maker, store, scores, [this] { check.clearVowelBoxes(); }},
               hall.controls.form)
    , strip(ground, hall.controls)
    , retype(ground, hall.controls, hall.lists, hall.play,
             {hall.sheet, hall.status, strip, maker, check, tests, dictionary, canvas, news})
    , vowelBoard(ground, hall.controls, hall.lists, {check, bulk, canvas, loader, news})
    , game(ground, hall.controls, hall.lists, hall.play,
           {hall.sheet, hall.status, check, tests, dictionary, canvas, pointer, tips, scores})
    , paarlon(ground, hall.lists, hall.controls.form)
    , progInit(ground, hall.controls, hall.lists, loader, canvas, bulk, homes)
{}

Rooms::~Rooms() = default;
