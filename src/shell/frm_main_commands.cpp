// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
// The commands of the menus that other rooms than the board carry out, one row a command.
#include "shell/frm_main.h"

#include "platform/boxes.h"
#include "platform/ground.h"
#include "platform/word_lists.h"
#include "shell/rooms.h"
#include "widgets/main_controls.h"

using namespace Qt::StringLiterals;

namespace {

struct CommandRow
{
    int id;
    void (*act)(frmMain &form, Rooms &rooms);
};

constexpr CommandRow commands[] = {
    {201, [](frmMain &, Rooms &r) { r.chooser.chooseStemLists(); }},
    {275, [](frmMain &, Rooms &r) { r.tips.mnuShowTip_Click(); }},
    {401, [](frmMain &, Rooms &r) { r.dictionary.toggle(); }},
    {402, [](frmMain &, Rooms &r) { r.chooser.chooseDictionaries(); }},
    {501, [](frmMain &, Rooms &r) { r.wordList.Show_Result(); }},
    {502, [](frmMain &, Rooms &r) { r.wordList.CorrectWordsToClip(); }},
    {503, [](frmMain &, Rooms &r) { r.wordList.Save_Result(); }},
    {506, [](frmMain &, Rooms &r) { r.wordList.editByMenu(); }},
    {601, [](frmMain &, Rooms &r) { r.check.Command2_MouseDown(Qt::LeftButton); }},
    {901, [](frmMain &form, Rooms &) { form.showOptions(); }},
    {1001, [](frmMain &form, Rooms &) { form.showHelp(); }},
    {1003, [](frmMain &form, Rooms &) { form.showAbout(); }},
    {1600, [](frmMain &, Rooms &r) { r.retype.command(1600); }},
    {1601, [](frmMain &, Rooms &r) { r.retype.command(1601); }},
    {1607, [](frmMain &, Rooms &r) { r.retype.command(1607); }},
    {1608, [](frmMain &, Rooms &r) { r.retype.command(1608); }},
    {1901,
     [](frmMain &, Rooms &r) {
         r.sessions.RestoreObjects();
         r.undo.SetCollBuffer();
     }},
    {1903, [](frmMain &, Rooms &r) { r.sessions.SaveObjects(); }},
    {1906, [](frmMain &form, Rooms &) { form.close(); }},
    {2801, [](frmMain &, Rooms &r) { r.undo.UndoAction(); }},
    {2802, [](frmMain &, Rooms &r) { r.undo.RedoAction(); }},
};

} // namespace

void frmMain::carryOut(int id)
{
    for (const CommandRow &row : commands) {
        if (row.id == id) {
            row.act(*this, *rooms_);
            return;
        }
    }
    comesLater();
}

void frmMain::comesLater()
{
    ground_.boxes.ShowInfoBox(u"Das gibt es in dieser Version noch nicht. Es kommt später dazu."_s, u"INFO"_s,
                              u"Wortel-Meister"_s);
}
