// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/continuation.h"

#include "platform/ground.h"
#include "platform/log.h"
#include "platform/options.h"
#include "platform/product.h"
#include "shell/frm_main.h"
#include "shell/handbook/help_browser.h"
#include "shell/handbook/help_window.h"
#include "shell/rooms.h"
#include "widgets/dropper.h"
#include "widgets/picture_box.h"
#include "widgets/press_button.h"
#include "widgets/store_list.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QLabel>
#include <QLineEdit>

namespace {

constexpr std::array<WordStore WordLists::*, Continuation::stores> stores{
    &WordLists::WortelList,       &WordLists::PrefixList,        &WordLists::SuffixList,
    &WordLists::LexiconList,      &WordLists::langvokalList,     &WordLists::kurzvokalList,
    &WordLists::CorrectWordList,  &WordLists::GameCollectedList, &WordLists::PseudoWordList,
    &WordLists::PrefixReTypeList, &WordLists::WortelReTypeList,  &WordLists::SuffixReTypeList};
constexpr std::array<QString WordLists::*, 4> files{&WordLists::CurrentWortelFile, &WordLists::PrefixFile,
                                                    &WordLists::SuffixFile, &WordLists::CurrentLexiconFile};

std::array<StoreList *, 3> morphemeLists(const MainControls &c)
{
    return {c.WortelList, c.PrefixList, c.SuffixList};
}

int dragModeOf(const MainControls &c)
{
    for (std::size_t mode = 0; mode < c.Option1.size(); ++mode)
        if (c.Option1[mode]->isChecked())
            return static_cast<int>(mode);
    return -1;
}

void keepOptions(Continuation &kept, const Options &options)
{
    for (const SettingRow &row : settingsTable())
        kept.options[static_cast<std::size_t>(row.id)] = options.text(row.id);
}

void putOptions(const Continuation &kept, Options &options)
{
    for (const SettingRow &row : settingsTable()) {
        const QString &value = kept.options[static_cast<std::size_t>(row.id)];
        if (row.type == SettingType::Box)
            options.setBox(row.id, value.toInt());
        else if (row.type != SettingType::Option)
            options.setText(row.id, value);
        else if (value == u"True")
            options.setOption(row.id);
    }
}

void keepWindow(Continuation &kept, const QWidget &form, int percent)
{
    kept.maximised = form.isMaximized() || form.isFullScreen();
    const QRect now = form.geometry();
    kept.geometry = QRect(now.topLeft() * percent / 100, now.size() * percent / 100);
}

void putBoard(const Continuation &kept, Rooms &r, const MainControls &c)
{
    c.picCanvas->setPicture(kept.background);
    r.store.replaceAll(tilesOf(kept.tiles, r.store));
    r.store.recount();
    r.homes = kept.homes;
    r.optTypes.select(kept.filter);
    r.undo.takeSteps(kept.undo);
    r.canvas.repaint();
}

void putWords(const Continuation &kept, Rooms &r, frmMain &form)
{
    WordLists &lists = form.lists();
    for (std::size_t i = 0; i < stores.size(); ++i) {
        (lists.*stores[i]).clear();
        (lists.*stores[i]).addAll(kept.words[i]);
    }
    for (std::size_t i = 0; i < files.size(); ++i)
        lists.*files[i] = kept.files[i];
    r.loader.takeAsLoaded();
    form.controls().Label3->setText(kept.listName);
    form.controls().Label3->setToolTip(kept.listTip);
    form.controls().Dropper1->setCaption(kept.entry);
    if (!kept.sessionFile.isEmpty())
        r.sessions.makeCurrent(kept.sessionFile);
}

void putTools(const Continuation &kept, Rooms &r, frmMain &form)
{
    const MainControls &c = form.controls();
    c.Text1->setText(kept.count);
    c.Check1->setChecked(kept.wholeList);
    if (kept.dragMode >= 0)
        c.Option1[static_cast<std::size_t>(kept.dragMode)]->setChecked(true);
    if (kept.vowels != Vowels::None) {
        c.ChkVokal[kept.vowels == Vowels::Short ? 0 : 1]->setChecked(true);
        form.play().setCheckedVowels(kept.vowels);
    }
    r.vowelBoard.goOn(kept.listBeforeVowels, kept.boardBeforeVowels);
    r.printing.takeSetUp(kept.printer);
    if (!kept.clipboard.isEmpty())
        QGuiApplication::clipboard()->setText(kept.clipboard);
}

} // namespace

Continuation continuationOf(frmMain &form, int percent)
{
    Rooms &r = form.rooms();
    const MainControls &c = form.controls();
    Ground &ground = form.ground();
    r.pointer.letGo();

    Continuation kept;
    kept.tiles = copyOf(r.store.tiles());
    kept.undo = r.undo.steps();
    kept.homes = r.homes;
    kept.background = c.picCanvas->picture();
    kept.filter = r.optTypes.selected();
    for (std::size_t i = 0; i < stores.size(); ++i)
        kept.words[i] = (form.lists().*stores[i]).rows();
    for (std::size_t i = 0; i < files.size(); ++i)
        kept.files[i] = form.lists().*files[i];
    kept.listName = c.Label3->text();
    kept.listTip = c.Label3->toolTip();
    kept.entry = c.Dropper1->Caption();
    kept.sessionFile = r.sessions.CurrentSessionFile();
    kept.count = c.Text1->text();
    kept.wholeList = c.Check1->isChecked();
    kept.dragMode = dragModeOf(c);
    kept.vowels = form.play().checkedVowels();
    kept.listBeforeVowels = r.vowelBoard.usedBefore();
    kept.boardBeforeVowels = r.vowelBoard.boardBefore();
    kept.wordListOpen = !c.CorrectWordList->isHidden();
    kept.dictionaryOpen = r.dictionary.isOpen();
    for (std::size_t i = 0; i < kept.morphemeListsOpen.size(); ++i)
        kept.morphemeListsOpen[i] = !morphemeLists(c)[i]->isHidden();
    kept.tipIsDue = r.tips.isTipDue();
    if (const HelpWindow *handbook = form.handbook(); handbook != nullptr && handbook->isVisible())
        kept.handbookPage = handbook->browser()->source();
    kept.printer = r.printing.setUp();
    if (QGuiApplication::clipboard()->ownsClipboard())
        kept.clipboard = QGuiApplication::clipboard()->text();
    keepOptions(kept, ground.options);
    keepWindow(kept, form, percent);
    if (ground.log.enabled())
        kept.logFile = ground.log.file();
    return kept;
}

void goOnWith(const Continuation &kept, frmMain &form)
{
    Rooms &r = form.rooms();
    form.setWindowTitle(product::caption());
    putOptions(kept, form.ground().options);
    putWords(kept, r, form);
    putTools(kept, r, form);
    putBoard(kept, r, form.controls());
}

void openAgain(const Continuation &kept, frmMain &form)
{
    Rooms &r = form.rooms();
    for (int i = 0; i < 3; ++i)
        if (kept.morphemeListsOpen[static_cast<std::size_t>(i)])
            r.morphemeLists.show(i);
    if (kept.wordListOpen)
        r.wordList.Show_Result();
    if (kept.dictionaryOpen)
        r.dictionary.toggle();
    if (kept.tipIsDue)
        r.tips.startTipTimer();
    if (kept.handbookPage.isEmpty())
        return;
    form.showHelp();
    if (const HelpWindow *handbook = form.handbook())
        handbook->browser()->setSource(kept.handbookPage);
}
