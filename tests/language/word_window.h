// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "language/dictionary_panel.h"
#include "language/list_loader.h"
#include "language/word_check.h"
#include "language/word_list_panel.h"
#include "language/word_tests.h"
#include "platform/modes.h"
#include "platform/report_popup.h"
#include "platform/word_lists.h"
#include "support/test_ground.h"
#include "widgets/dropper.h"
#include "widgets/main_controls.h"
#include "widgets/press_button.h"
#include "widgets/store_list.h"

#include <QLineEdit>
#include <QWidget>

/// What a popup was given, in one text: title, lines, seconds, sound, bold, smiley.
struct NotedPopup : ReportPopup
{
    QStringList shown;

    void Display(const QString &title, const QString &line1, const QString &line2, const QString &line3,
                 int seconds, int soundId, bool boldLine2, bool showSmiley) override
    {
        shown.append(QStringLiteral("%1|%2%3%4|%5s %6%7%8")
                         .arg(title, line1, line2, line3)
                         .arg(seconds)
                         .arg(soundId)
                         .arg(boldLine2 ? QStringLiteral(" bold") : QString(),
                              showSmiley ? QStringLiteral(" smiley") : QString()));
    }
};

/// The word corner of the main window on a test's ground: controls, lists and the rooms of the word check.
struct WordWindow
{
    TestGround t;
    QWidget form;
    MainControls c = makeMainControls(&form);
    WordLists lists;
    Modes modes;
    WordTests tests{lists, t.options};
    NotedPopup popup;
    DictionaryPanel dictionary{t.ground, c, lists};
    WordListPanel words{t.ground, c, lists, modes, tests, dictionary};
    WordCheck check{t.ground, c, lists, modes, tests, dictionary, popup};

    WordWindow()
    {
        layOutMainControls(c, 1366, 768);
        form.resize(1366, 768);
        c.LexiconList->show(&lists.LexiconList);
        c.CorrectWordList->show(&lists.CorrectWordList);
        c.LexiconList->hide();
        c.CorrectWordList->hide();
        lists.LexiconList.addAll(
            {QStringLiteral("Haus"), QStringLiteral("laufen"), QStringLiteral("Läufer")});
        lists.kurzvokalList.add(QStringLiteral("ball"));
        lists.langvokalList.add(QStringLiteral("bahn"));
    }

    void enter(const QString &word)
    {
        c.Dropper1->setCaption(word);
        check.Command2_MouseDown(Qt::LeftButton);
    }
    QString entry() const { return c.Dropper1->Caption(); }
    bool entrySelected() const { return c.Dropper1->SelLength() == entry().size() && !entry().isEmpty(); }
};
