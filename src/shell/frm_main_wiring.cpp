// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
// The wiring plan: which control's press goes to which room, and which room's news to which other room. A
// room connects itself only to controls that are its alone (the board's pointer, the strip, the filters and
// lists, the tip's panel); everything else stands here.
#include "shell/frm_main.h"

#include "platform/gate.h"
#include "platform/ground.h"
#include "platform/note_texts.h"
#include "platform/notes.h"
#include "platform/options.h"
#include "platform/printer.h"
#include "shell/rooms.h"
#include "widgets/click_label.h"
#include "widgets/dropper.h"
#include "widgets/long_press.h"
#include "widgets/picture_box.h"
#include "widgets/press_button.h"
#include "widgets/store_list.h"

#include <QGuiApplication>
#include <QLineEdit>
#include <QShortcut>

#include <type_traits>

using namespace Qt::StringLiterals;

namespace {

constexpr auto nothing = [] {};
using Nothing = std::decay_t<decltype(nothing)>;
constexpr int boxCloserMs = 50;

} // namespace

/// Connects a tool's left and right press. A tool acts if the gate lets it in and no reason lies on it.
template <typename Left, typename Right> void frmMain::onPress(PressButton *tool, Left left, Right right)
{
    if constexpr (!std::is_same_v<Right, Nothing>)
        LongPress::offer(tool);
    connect(tool, &PressButton::mouseDown, this, [this, tool, left, right](Qt::MouseButton button) {
        const Gate::Passage passage = ground_.gate.enter(Gate::Way::Play);
        if (passage && sheet_.acts(tool))
            button == Qt::LeftButton ? left() : right();
    });
}

void frmMain::wire()
{
    connect(&ground_.notes, &Notes::told, this, &frmMain::showNote);
    wireBoard();
    wireWords();
    wireLists();
    wireModes();
    wireKeeping();
    wireCommands();
}

void frmMain::wireBoard()
{
    Rooms &r = *rooms_;
    Gate &gate = ground_.gate;
    onPress(
        controls_.Check2, [&r] { r.bulk.Check2_LeftPress(); }, [&r] { r.chooser.chooseStemLists(); });
    onPress(
        controls_.Command6, [this] { showOptions(); }, nothing);
    connect(controls_.Command1, &PressButton::mouseDown, this,
            throughGate(gate, Gate::Way::Look, [this](Qt::MouseButton button, auto) {
                if (button == Qt::LeftButton)
                    showHelp();
            }));
    // Beside the tool, so that the second press of a double click chooses nothing.
    const auto openMenu = [this, &r, tool = controls_.CmdMenu] {
        r.pointer.openMenu(tool->mapToGlobal(QPoint(tool->width(), 0)));
    };
    onPress(controls_.CmdMenu, openMenu, nothing);
    connect(new QShortcut(Qt::Key_F10, this), &QShortcut::activated, this,
            throughGate(gate, Gate::Way::Play, openMenu));
    for (const PressButton *tool :
         {controls_.Check1, controls_.Option1[0], controls_.Option1[1], controls_.Command6,
          controls_.Command1, controls_.Option2[0], controls_.Option2[1], controls_.Option2[2]})
        connect(tool, &PressButton::mouseDown, this, [this](Qt::MouseButton button) {
            if (button == Qt::RightButton)
                ground_.notes.tell(note::leftPressOnly);
        });
    connect(controls_.Label4, &ClickLabel::clicked, &gate, &Gate::cancelWork);
    connect(controls_.Label2, &ClickLabel::clicked, this,
            throughGate(gate, Gate::Way::Play, [this] { showAbout(); }));

    connect(&r.keys, &BoardKeys::escapes, this, &frmMain::closeOnTop);
    connect(&r.keys, &BoardKeys::nowhereToType, this, [this] { tellWhyAtRest(controls_.Dropper1); });
    boxCloser_.setInterval(boxCloserMs);
    connect(&gate, &Gate::closeRequested, this, &frmMain::closeBoxes);
    connect(&gate, &Gate::closeRequested, &boxCloser_, qOverload<>(&QTimer::start));
    connect(&boxCloser_, &QTimer::timeout, this, &frmMain::closeBoxes);
    connect(&gate, &Gate::closeNow, this, &frmMain::unload);
}

void frmMain::wireWords()
{
    Rooms &r = *rooms_;
    const auto whenPlayed = [this](auto action) {
        return throughGate(ground_.gate, Gate::Way::Play, action);
    };
    onPress(
        controls_.Command2, [&r] { r.check.Command2_MouseDown(Qt::LeftButton); },
        [&r] { r.check.Command2_MouseDown(Qt::RightButton); });
    onPress(
        controls_.Command5, [&r] { r.check.Command5_MouseDown(Qt::LeftButton); },
        [&r] { r.check.Command5_MouseDown(Qt::RightButton); });
    onPress(
        controls_.Command3, [&r] { r.dictionary.toggle(); }, [&r] { r.chooser.chooseDictionaries(); });
    onPress(
        controls_.Command4, [&r] { r.wordList.Show_Result(); }, [&r] { r.wordList.Save_Result(); });
    connect(controls_.Dropper1, &Dropper::EnterPress, this,
            whenPlayed([&r] { r.check.Dropper1_EnterPress(); }));
    connect(controls_.Dropper1, &Dropper::keyTyped, &r.check, &WordCheck::Dropper1_KeyPress);
}

void frmMain::wireLists()
{
    Rooms &r = *rooms_;
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

    connect(&r.loader, &ListLoader::busy, this, [](bool on) {
        on ? QGuiApplication::setOverrideCursor(Qt::WaitCursor) : QGuiApplication::restoreOverrideCursor();
    });
    connect(&r.loader, &ListLoader::loading, &r.dictionary, &DictionaryPanel::storeLoading);
    connect(&r.dictionary, &DictionaryPanel::tipRequested, &r.tips, &Tips::mnuShowTip_Click);
    connect(&r.dictionary, &DictionaryPanel::chooserRequested, &r.retype, &RetypeMode::openChooser);
}

void frmMain::wireModes()
{
    Rooms &r = *rooms_;
    LongPress::offer(controls_.Check4);
    connect(controls_.Check4, &PressButton::mouseDown, &r.retype, &RetypeMode::Check4_MouseDown);
    onPress(
        controls_.Check3, [&r] { r.game.Check3_MouseDown(Qt::LeftButton); },
        [&r] { r.game.Check3_MouseDown(Qt::RightButton); });
    for (int level = 0; level < 3; ++level)
        onPress(
            controls_.Option2[static_cast<std::size_t>(level)], [&r, level] { r.game.Option2_Click(level); },
            nothing);
    for (int box = 0; box < 2; ++box)
        onPress(
            controls_.ChkVokal[static_cast<std::size_t>(box)],
            [&r, box] { r.vowelBoard.ChkVokal_MouseDown(box, Qt::LeftButton); },
            [&r, box] { r.vowelBoard.ChkVokal_MouseDown(box, Qt::RightButton); });
    connect(&r.game, &WordGame::vowelBoardWanted, &r.vowelBoard, &VowelBoard::load);
    connect(&r.game, &WordGame::retypeWanted, &r.retype, &RetypeMode::retypeAfterGame);
    connect(&r.check, &WordCheck::vowelWordFound, &r.vowelBoard, &VowelBoard::PlayTheVokal);
    connect(&r.check, &WordCheck::vowelsSwitchedOff, &r.vowelBoard, &VowelBoard::RestoreAfterVokal);
    connect(&r.sessions, &Sessions::boardOpens, &r.game, &WordGame::boardOpens);
    connect(&r.sessions, &Sessions::boardOpens, &r.vowelBoard, &VowelBoard::makeRoom);
    connect(&r.sessions, &Sessions::boardOpens, &r.tips, &Tips::hideTip);
    connect(&r.news, &BoardNews::stepped, this, [this, &r] {
        if (!play_.GameActive() && !play_.RetypeActive())
            r.vowelBoard.boardSteps();
    });
    connect(&r.check, &WordCheck::retypeWordFound, &r.retype, &RetypeMode::wordCopied);
    connect(&r.wordList, &WordListPanel::wordsEdited, &r.retype, &RetypeMode::wordsEdited);
    connect(&r.dictionary, &DictionaryPanel::startRetypeFromList, &r.retype,
            &RetypeMode::mnuStartRetypeFromList);
    connect(&r.chooser, &ListChooser::listsChosen, &r.retype, &RetypeMode::endRun);
    connect(&r.maker, &WordMaker::retypingToEnd, &r.retype, &RetypeMode::endRun);
    connect(&r.sessions, &Sessions::listsChosen, &r.retype, &RetypeMode::endRun);
    connect(&r.retype, &RetypeMode::chooserWanted, &r.wordChooser, &WordChooser::open);
    connect(&r.wordChooser, &WordChooser::wordsChosen, &r.retype, &RetypeMode::RetypeWithChoosenWortel);

    connect(&r.kernling, &FrmKernling::PrintRTF, this, [this, &r](const QTextDocument *text) {
        if (ground_.printer.names().isEmpty() || r.printing.setUpPrinter())
            r.printing.PrintRTF(*text, u"Wortstamm"_s, u"Kernling"_s);
    });

    // The menus are built anew on one signal, whatever has changed.
    connect(this, &frmMain::menusStale, this, [&r] { r.menus.CreateMenus(); });
    connect(&play_, &PlayState::changed, this, &frmMain::menusStale);
    connect(&r.undo, &UndoRing::changed, this, &frmMain::menusStale);
    connect(&r.morphemeLists, &MorphemeLists::menuRestoreWanted, this, &frmMain::menusStale);
    connect(&r.paarlon, &Paarlon::displayed, this, &frmMain::menusStale);
}

void frmMain::wireKeeping()
{
    Rooms &r = *rooms_;
    connect(&r.news, &BoardNews::committed, &r.undo, &UndoRing::SetCollBuffer);
    connect(&r.news, &BoardNews::moved, &r.undo, &UndoRing::refreshPresent);
    connect(&r.news, &BoardNews::opened, &r.undo, &UndoRing::ClearCollBuffer);
    for (const auto news :
         {&BoardNews::committed, &BoardNews::moved, &BoardNews::opened, &BoardNews::stepped})
        connect(&r.news, news, &r.backup, &Backup::saveIfWanted);

    connect(&r.news, &BoardNews::opened, this, &frmMain::offerToFit);
    connect(&r.sessions, &Sessions::restored, this, &frmMain::offerToFit);
    for (const auto news : {&BoardNews::committed, &BoardNews::stepped})
        connect(&r.news, news, this, [&r] {
            r.fit.follow();
            r.tips.recompose();
        });
    size_.askBefore([&r]() -> const char16_t * {
        if (r.paarlon.window() != nullptr)
            return note::sizeAfterWindow;
        return r.kernling.keepsText() ? note::sizeNextStart : nullptr;
    });
    connect(&r.paarlon, &Paarlon::closed, &size_, &SizeChange::act);
    connect(&size_, &SizeChange::due, this, &frmMain::sizeChangeDue);

    connect(&ground_.options, &Options::applied, this, [this, &r] {
        size_.takeSetting();
        r.game.takeLevel();
        r.placement.takeTryLimit();
        r.background.takeSetting();
        r.strip.SetUpMsgScroller();
        r.undo.takeSetting();
    });
    connect(&r.options, &frmOptions::registerFileType, this, [&r] { r.fileType.registerSessions(); });
    connect(&r.options, &frmOptions::removeFileType, this, [&r] { r.fileType.removeSessions(); });
    connect(&r.options, &frmOptions::resetScores, this, [&r](frmOptions::Scores table) {
        if (table == frmOptions::Scores::Paarlon)
            r.paarlon.resetAll();
        else
            r.scores.ResetScores(table == frmOptions::Scores::Klotar ? ScoredGame::Klotar
                                                                     : ScoredGame::Tonarin);
    });
}
