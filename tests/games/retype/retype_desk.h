// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "support/reports.h"
#include "support/test_board.h"

using namespace Qt::StringLiterals;

/// The house with words and tiles to copy, and a player at its tools.
struct Desk : TestHouse
{
    QStringList reports; ///< titles, of the words that were checked

    Desk()
        : TestHouse(1, {853, 480})
    {
        form.show();
        t.options.setOption(Setting::ScrollerLeftUpPos);
        t.options.setBox(Setting::ShowCorrectListAfterReType, 0);
        lists.LexiconList.clear();
        lists.LexiconList.addAll({u"Haus"_s, u"Maus"_s, u"laufen"_s, u"verlaufen"_s, u"belaufen"_s});
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
            lay(prefixKind, 10, 10, text);
        for (const QString &text : {u"lauf"_s, u"kind"_s, u"wand"_s})
            lay(wortelKind, 10, 50, text);
        for (const QString &text : {u"en"_s, u"ung"_s, u"bar"_s})
            lay(suffixKind, 10, 90, text);
        t.options.setText(Setting::NumReTypeWords, u"2"_s);
        t.options.setText(Setting::NumPseudoReTypeWords, u"2"_s);
    }

    /// Starts with words of that source: "words", "board", "nonsense", "short" or "long".
    void start(const QString &source)
    {
        if (source == u"short"_s || source == u"long"_s)
            tool(controls.ChkVokal[source == u"long"_s]);
        source == u"words"_s                        ? fillList()
        : source.size() > 5 || source == u"board"_s ? layTiles()
                                                    : fillVowels();
        source == u"board"_s ? right() : source == u"nonsense"_s ? nonsense() : left();
    }

    void left() { tool(controls.Check4); }
    void right() { tool(controls.Check4, Qt::RightButton); }
    void nonsense() { tool(controls.Check4, Qt::RightButton, Qt::ShiftModifier); }
    void type(const QString &word)
    {
        controls.Dropper1->setCaption(word);
        tool(controls.Command2);
        for (const QString &report : takeReports(*this))
            reports << report.section(u'|', 0, 0);
    }
    void copyAll()
    {
        for (int round = 0; play.RetypeActive() && round < 10; ++round)
            type(controls.Scroller->List(1));
    }
    QStringList shown() const
    {
        QStringList words;
        for (int index = 1; index <= controls.Scroller->ListCount(); ++index)
            words << controls.Scroller->List(index);
        return words;
    }
    QString caption() const { return controls.GameProgress->Caption(); }
    QString lastBox() const { return t.boxes.asked.isEmpty() ? QString() : t.boxes.asked.last().text; }

    /// Acts at yield number `number` of the preparation.
    void atYield(int number, const std::function<void()> &action)
    {
        t.pump.waiting = true;
        t.pump.onYield = [this, number, action, seen = 0]() mutable {
            if (r.retype.isPreparing() && ++seen == number)
                action();
        };
    }
};
