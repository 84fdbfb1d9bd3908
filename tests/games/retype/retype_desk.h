// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "board/canvas/canvas.h"
#include "board/canvas/canvas_surface.h"
#include "board/canvas/opt_types.h"
#include "games/retype/retype_mode.h"
#include "games/retype/strip_control.h"
#include "generators/word_maker.h"
#include "language/dictionary_panel.h"
#include "language/word_check.h"
#include "language/word_tests.h"
#include "platform/modes.h"
#include "platform/report_popup.h"
#include "platform/word_lists.h"
#include "support/test_ground.h"
#include "widgets/dropper.h"
#include "widgets/main_controls.h"
#include "widgets/msg_scroller.h"
#include "widgets/press_button.h"
#include "widgets/progress_bar.h"
#include "widgets/store_list.h"

#include <QLabel>

using namespace Qt::StringLiterals;

/// Keeps what was reported.
class Reports : public ReportPopup
{
public:
    QStringList titles;
    void Display(const QString &title, const QString &, const QString &, const QString &, int, int, bool,
                 bool) override
    {
        titles << title;
    }
};

/// The rooms around retype mode on a real form, wired as the main window does it.
struct Desk
{
    TestGround test;
    QWidget form;
    MainControls controls = makeMainControls(&form);
    WordLists lists;
    Modes modes;
    Reports reports;
    OptTypes optTypes{controls};
    FormMeasures measures{controls};
    CanvasSurface surface{*controls.picCanvas};
    TileStore tiles{test.ground, optTypes, optTypes, surface, measures};
    Canvas canvas{test.ground, controls, modes, tiles, surface, optTypes};
    WordTests tests{lists, test.options};
    DictionaryPanel dictionary{test.ground, controls, lists};
    WordCheck check{test.ground, controls, lists, modes, tests, dictionary, reports};
    WordMaker words{test.ground, controls, lists, modes, tests, tiles};
    StripControl strip{test.ground, controls};
    RetypeMode retype{test.ground, controls, lists, modes, {strip, words, check, tests, dictionary, canvas}};
    int menusBuilt = 0;

    Desk()
    {
        form.resize(853, 480);
        layOutMainControls(controls, 853, 480);
        form.show();
        controls.CorrectWordList->show(&lists.CorrectWordList);
        controls.LexiconList->show(&lists.LexiconList);
        QObject::connect(&check, &WordCheck::retypeWordFound, &retype, &RetypeMode::wordCopied);
        QObject::connect(&retype, &RetypeMode::menusChanged, &form, [this] { ++menusBuilt; });
        QObject::connect(controls.Check4, &PressButton::mouseDown, &retype, &RetypeMode::Check4_MouseDown);
        test.options.setOption(Setting::ScrollerLeftUpPos);
        test.options.setBox(Setting::ShowCorrectListAfterReType, 0);
        lists.LexiconList.addAll({u"Haus"_s, u"Maus"_s, u"laufen"_s, u"verlaufen"_s, u"belaufen"_s});
        lists.CurrentWortelFile = u"text\\Hauptbausteine.Txt"_s;
    }

    void fillList() { lists.CorrectWordList.addAll({u"haus"_s, u"laufen"_s, u"maus"_s}); }
    void fillVowels()
    {
        lists.kurzvokalList.addAll({u"bild"_s, u"hand"_s});
        lists.langvokalList.addAll({u"bad"_s, u"tag"_s});
        lists.CorrectWordList.addAll({u"bad"_s, u"bild"_s, u"hand"_s, u"tag"_s});
    }
    void layTiles()
    {
        for (const QString &text : {u"ver"_s, u"be"_s})
            tiles.CanvasDrawWortel(10, 10, text, colours::prefixBack, colours::prefixText);
        for (const QString &text : {u"lauf"_s, u"kind"_s, u"wand"_s})
            tiles.CanvasDrawWortel(10, 50, text, colours::wortelBack, colours::wortelText);
        for (const QString &text : {u"en"_s, u"ung"_s, u"bar"_s})
            tiles.CanvasDrawWortel(10, 90, text, colours::suffixBack, colours::suffixText);
        controls.OptType[0]->setText(u"3"_s);
        test.options.setText(Setting::NumReTypeWords, u"2"_s);
        test.options.setText(Setting::NumPseudoReTypeWords, u"2"_s);
    }

    void left() { retype.Check4_MouseDown(Qt::LeftButton, {}); }
    void right(Qt::KeyboardModifiers keys = {}) { retype.Check4_MouseDown(Qt::RightButton, keys); }
    void nonsense() { right(Qt::ShiftModifier); }
    void type(const QString &word)
    {
        controls.Dropper1->setCaption(word);
        check.Command2_MouseDown(Qt::LeftButton);
    }
    void copyAll()
    {
        for (int round = 0; modes.RetypeActive && round < 10; ++round)
            type(controls.Scroller->List(1));
    }
    QStringList shown() const
    {
        QStringList texts;
        for (int index = 1; index <= controls.Scroller->ListCount(); ++index)
            texts << controls.Scroller->List(index);
        return texts;
    }
    QString caption() const { return controls.GameProgress->Caption(); }

    /// Acts at yield number `number` of the preparation.
    void atYield(int number, const std::function<void()> &action)
    {
        test.pump.waiting = true;
        test.pump.onYield = [this, number, action, seen = 0]() mutable {
            if (retype.isPreparing() && ++seen == number)
                action();
        };
    }
};
