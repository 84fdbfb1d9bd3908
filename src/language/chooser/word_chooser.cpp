// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "language/chooser/word_chooser.h"

#include "language/chooser/frm_choose_wortel.h"
#include "language/word_tests.h"
#include "platform/gate.h"
#include "platform/ground.h"
#include "platform/procedure.h"
#include "platform/word_lists.h"

WordChooser::WordChooser(Ground &ground, WordLists &lists, ListLoader &loader, QWidget *form, QObject *parent)
    : QObject(parent)
    , ground_(ground)
    , lists_(lists)
    , loader_(loader)
    , form_(form)
{}

void WordChooser::open()
{
    Procedure step{ground_.log, "mnuAddWortelToRetypeList_Click", "frmMain"};
    QStringList words;
    step([&] {
        if (const Gate::Passage open = ground_.gate.openBox()) {
            frmChooseWortel window(ground_, lists_, loader_, form_);
            words = window.choose();
        }
    });
    if (words.isEmpty() || ground_.gate.isClosing())
        return;
    InsertSortStrings(words, true, false);
    step([&] { lists_.CorrectWordList.clear(); });
    step([&] { lists_.CorrectWordList.addAll(words); });
    step([&] { emit wordsChosen(); });
}
