// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
// The wiring plan: which control's press goes to which room, and which room's news to which other room.
#include "shell/frm_main.h"

#include "platform/ground.h"
#include "platform/options.h"
#include "shell/about_window.h"
#include "shell/rooms.h"
#include "widgets/alpha_panel.h"
#include "widgets/click_label.h"
#include "widgets/dropper.h"
#include "widgets/press_button.h"
#include "widgets/store_list.h"

#include <QGuiApplication>
#include <QLabel>
#include <QLineEdit>

using namespace Qt::StringLiterals;

namespace {

/// Connects a tool's left and right press.
template <typename Left, typename Right>
void onPress(PressButton *tool, QObject *context, Left left, Right right)
{
    QObject::connect(tool, &PressButton::mouseDown, context,
                     [left, right](Qt::MouseButton button) { button == Qt::LeftButton ? left() : right(); });
}

constexpr auto nothing = [] {};

} // namespace

void frmMain::wire()
{
    wireBoard();
    wireLanguage();
    wireModes();
    wireKeeping();
}

void frmMain::wireBoard()
{
    Rooms &r = *rooms_;
    // The check buttons rest while a report stands over the board.
    const auto whileTheyAct = [this](auto action) {
        return [this, action] {
            if (modes_.CheckButtonsAct)
                action();
        };
    };
    onPress(controls_.Check2, this, whileTheyAct([&r] { r.bulk.Check2_LeftPress(); }),
            whileTheyAct([&r] { r.chooser.chooseStemLists(); }));
    connect(&r.bulk, &BulkTiles::commitWanted, &r.commands, &BoardCommands::Commit);
    connect(&r.commands, &BoardCommands::commandChosen, this, &frmMain::carryOut);
    connect(&r.morphemeLists, &MorphemeLists::menuRestoreWanted, this, [&r] { r.menus.CreateMenus(); });
    connect(controls_.Label4, &ClickLabel::clicked, this, [this] { modes_.CancelPreparing = true; });
    connect(controls_.Label2, &ClickLabel::clicked, this, &frmMain::showAbout);
    onPress(
        controls_.Command6, this, [this] { showOptions(); }, nothing);
    onPress(
        controls_.Command1, this, [this] { showHelp(); }, nothing);
}

void frmMain::wireLanguage()
{
    Rooms &r = *rooms_;
    connect(&r.loader, &ListLoader::busy, this, [](bool on) {
        on ? QGuiApplication::setOverrideCursor(Qt::WaitCursor) : QGuiApplication::restoreOverrideCursor();
    });
    connect(&r.loader, &ListLoader::loading, &r.dictionary, &DictionaryPanel::storeLoading);

    controls_.WortelList->show(&lists_.WortelList);
    controls_.PrefixList->show(&lists_.PrefixList);
    controls_.SuffixList->show(&lists_.SuffixList);
    controls_.LexiconList->show(&lists_.LexiconList);
    controls_.CorrectWordList->show(&lists_.CorrectWordList);
    connect(controls_.WortelList, &StoreList::rowClicked, &r.chooser, &ListChooser::WortelList_Click);
    connect(controls_.PrefixList, &StoreList::rowClicked, &r.chooser, &ListChooser::PrefixList_Click);
    connect(controls_.SuffixList, &StoreList::rowClicked, &r.chooser, &ListChooser::SuffixList_Click);
    connect(controls_.LexiconList, &StoreList::rightPressed, &r.dictionary,
            &DictionaryPanel::LexiconList_MouseDown);
    connect(controls_.CorrectWordList, &StoreList::rightPressed, &r.wordList,
            &WordListPanel::CorrectWordList_MouseDown);
    connect(controls_.Text2, &QLineEdit::textChanged, &r.dictionary, &DictionaryPanel::Text2_Change);

    connect(&r.dictionary, &DictionaryPanel::tipRequested, &r.tips, &Tips::mnuShowTip_Click);
    connect(controls_.Dropper1, &Dropper::EnterPress, &r.check, &WordCheck::Dropper1_EnterPress);
    connect(controls_.Dropper1, &Dropper::keyTyped, &r.check, &WordCheck::Dropper1_KeyPress);
    for (PressButton *box : controls_.ChkVokal)
        connect(box, &PressButton::toggled, &r.check, &WordCheck::ChkVokal_Click);
    connect(controls_.Command2, &PressButton::mouseDown, &r.check, &WordCheck::Command2_MouseDown);
    connect(controls_.Command5, &PressButton::mouseDown, &r.check, &WordCheck::Command5_MouseDown);
    onPress(
        controls_.Command3, this, [&r] { r.dictionary.toggle(); }, [&r] { r.chooser.chooseDictionaries(); });
    onPress(
        controls_.Command4, this, [&r] { r.wordList.Show_Result(); }, [&r] { r.wordList.Save_Result(); });
}

void frmMain::wireModes()
{
    Rooms &r = *rooms_;
    connect(controls_.Check4, &PressButton::mouseDown, &r.retype, &RetypeMode::Check4_MouseDown);
    connect(&r.check, &WordCheck::retypeWordFound, &r.retype, &RetypeMode::wordCopied);
    connect(&r.wordList, &WordListPanel::wordsEdited, &r.strip, &StripControl::takeWords);
    connect(&r.retype, &RetypeMode::menusChanged, this, [&r] { r.menus.CreateMenus(); });
    connect(&r.dictionary, &DictionaryPanel::startRetypeFromList, &r.retype,
            &RetypeMode::mnuStartRetypeFromList);
    connect(&r.retype, &RetypeMode::chooserWanted, this, &frmMain::comesLater);
    connect(&r.dictionary, &DictionaryPanel::chooserRequested, this, &frmMain::comesLater);
    connect(controls_.Check3, &PressButton::mouseDown, this, &frmMain::comesLater);
    connect(&r.options, &frmOptions::resetScores, this, &frmMain::comesLater);
}

void frmMain::wireKeeping()
{
    Rooms &r = *rooms_;
    connect(&r.commands, &BoardCommands::committed, &r.undo, &UndoRing::SetCollBuffer);
    connect(&r.commands, &BoardCommands::committed, &r.backup, &Backup::saveIfWanted);
    connect(&r.commands, &BoardCommands::backupWanted, &r.backup, &Backup::saveIfWanted);
    connect(&ground_.options, &Options::applied, this, [this, &r] {
        takeDifficulty();
        r.background.remove();
        r.background.loadFromSetting();
        r.strip.SetUpMsgScroller();
    });
    connect(&r.options, &frmOptions::registerFileType, this, [&r] { r.fileType.registerSessions(); });
    connect(&r.options, &frmOptions::removeFileType, this, [&r] { r.fileType.removeSessions(); });
    connect(&r.options, &frmOptions::recallFilter, this,
            [&r] { r.canvas.RecallFilter(r.optTypes.selected()); });
}

void frmMain::showOptions()
{
    const int filter = rooms_->optTypes.selected();
    rooms_->options.edit();
    rooms_->canvas.RecallFilter(filter);
}

void frmMain::showAbout()
{
    fAbout(this).exec();
    rooms_->optTypes.select(TileFilter::all);
}

void frmMain::showHelp() { help_.open(); }

bool frmMain::eventFilter(QObject *watched, QEvent *event)
{
    // The welcome has been read when the first press or key comes.
    if (event->type() == QEvent::MouseButtonPress || event->type() == QEvent::KeyPress)
        controls_.txtWelcomeMsg->hide();
    return QWidget::eventFilter(watched, event);
}
