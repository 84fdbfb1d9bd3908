// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
// The ways into retype mode and out of it; what happens on the way stands in retype_steps.cpp.
#include "games/retype/retype_mode.h"

#include "board/hand/command_router.h"
#include "games/retype/retype_sources.h"
#include "games/retype/strip_control.h"
#include "generators/word_maker.h"
#include "language/dictionary_panel.h"
#include "language/word_check.h"
#include "language/word_tests.h"
#include "platform/boxes.h"
#include "platform/files.h"
#include "platform/gate.h"
#include "platform/ground.h"
#include "platform/note_texts.h"
#include "platform/notes.h"
#include "platform/procedure.h"
#include "platform/product.h"
#include "platform/text.h"
#include "platform/word_lists.h"
#include "widgets/control_sheet.h"
#include "widgets/dropper.h"
#include "widgets/main_controls.h"
#include "widgets/msg_scroller.h"
#include "widgets/press_button.h"
#include "widgets/status_line.h"
#include "widgets/store_list.h"

#include <QScopedValueRollback>

#include <utility>

using namespace Qt::StringLiterals;

namespace {

using C = MainControls;

constexpr QColor wordColour{0, 0, 0};
constexpr QColor nonsenseColour{255, 0, 0}; ///< seen at once that these are no words

/// From the preparing on: the games rest, and so do the lists.
constexpr SheetRow modeSheet[] = {
    {tool<&C::Check3>, SheetRow::Disabled},
    {tool<&C::Option2, 0>, SheetRow::Disabled},
    {tool<&C::Option2, 1>, SheetRow::Disabled},
    {tool<&C::Option2, 2>, SheetRow::Disabled},
    {tool<&C::ChkVokal, 0>, SheetRow::Disabled},
    {tool<&C::ChkVokal, 1>, SheetRow::Disabled},
    {tool<&C::Command3>, SheetRow::Disabled},
    {tool<&C::Command4>, SheetRow::Disabled},
    {tool<&C::Check4>, SheetRow::None, u"Abschreiben abbrechen"},
};

} // namespace

RetypeMode::RetypeMode(Ground &ground, const MainControls &controls, WordLists &lists, PlayState &play,
                       const Rooms &rooms, QObject *parent)
    : QObject(parent)
    , ground_(ground)
    , controls_(controls)
    , lists_(lists)
    , play_(play)
    , rooms_(rooms)
    , running_(&retypeSource(WordSource::UserWords))
{
    connect(&rooms_.words, &WordMaker::stripToClear, controls_.Scroller, &MsgScroller::Clear);
}

void RetypeMode::notice(const QString &text)
{
    ground_.boxes.ShowInfoBox(text, BoxSign::Info, product::name);
}

// The button and the menu
// ------------------------------------------------------------------------------------------------------------

void RetypeMode::Check4_MouseDown(Qt::MouseButton button, Qt::KeyboardModifiers keys)
{
    Procedure step(ground_.log, "Check4_MouseDown", "frmMain");
    if (state_ == State::Preparing) {
        stopWanted_ = true;
        ground_.gate.cancelWork();
        return;
    }
    const Gate::Passage passage = ground_.gate.enter(Gate::Way::Play);
    if (!passage || !rooms_.sheet.acts(controls_.Check4))
        return;
    if (button == Qt::LeftButton)
        step([&] { leftPress(WordSource::UserWords); });
    else if (button == Qt::RightButton)
        step([&] { rightPress(keys.testFlag(Qt::ShiftModifier)); });
}

void RetypeMode::registerCommands(CommandRouter &router)
{
    router.onMenu(1600, [this] { leftPress(WordSource::UserWords); });
    router.onMenu(1601, [this] { rightPress(false); });
    router.onMenu(1607, [this] { rightPress(true); });
    router.onMenu(1608, [this] { play_.RetypeActive() ? leave() : openChooser(); });
}

void RetypeMode::leftPress(WordSource words)
{
    if (play_.RetypeActive()) {
        leave();
        return;
    }
    rooms_.check.readVowelBoxes();
    if (play_.KurzVokalMode())
        words = WordSource::ShortVowels;
    else if (play_.LangVokalMode())
        words = WordSource::LongVowels;
    StartTheRetyping(words);
}

void RetypeMode::rightPress(bool shift)
{
    rooms_.check.readVowelBoxes();
    if (play_.checkedVowels() != Vowels::None)
        ground_.notes.tell(note::afterVowels);
    else if (play_.RetypeActive())
        leave();
    else if (Val(controls_.OptType[0]->text()) == 0)
        notice(u"Es sind keine Wortele auf dem Bildschirm"_s);
    else if (!shift)
        StartTheRetyping(WordSource::BoardWords);
    else if (UCase(listBaseName(lists_.CurrentWortelFile)) == u"IG ODER LICH"_s)
        notice(u"Zu dieser Wortel-Liste gibt es keine Unsinnswörter"_s);
    else
        StartTheRetyping(WordSource::PseudoWords);
}

void RetypeMode::openChooser()
{
    Procedure step(ground_.log, "openChooser", "frmMain", Procedure::Silent);
    if (play_.checkedVowels() != Vowels::None) {
        step([&] { notice(u"Die Auswahl von Wörtern geht nicht, solange \"kurz\" oder \"lang\" an ist"_s); });
        return;
    }
    controls_.CorrectWordList->hide();
    rooms_.dictionary.close();
    step([&] { emit chooserWanted(); });
}

void RetypeMode::startFromList(WordSource words)
{
    const int count = lists_.CorrectWordList.count();
    if (count == 0) {
        notice(u"Es gibt keine Wörter zum Abschreiben"_s);
    } else if (count >= wordLimit) {
        notice(u"Es können max. 1024 Wörter benutzt werden"_s);
    } else {
        controls_.CorrectWordList->hide();
        leftPress(words);
    }
}

void RetypeMode::RetypeWithChoosenWortel()
{
    Procedure step(ground_.log, "RetypeWithChoosenWortel", "frmMain");
    step([&] { startFromList(WordSource::ChosenWords); });
}

void RetypeMode::mnuStartRetypeFromList()
{
    Procedure step(ground_.log, "mnuStartRetypeFromList", "frmMain");
    rooms_.dictionary.close();
    step([&] { startFromList(WordSource::UserWords); });
}

// Start and stop
// ------------------------------------------------------------------------------------------------------------

void RetypeMode::colourWords(const QColor &colour)
{
    controls_.Scroller->setForeColor(colour);
    controls_.Dropper1->setForeColour(colour);
}

void RetypeMode::StartTheRetyping(WordSource words)
{
    Procedure step(ground_.log, "StartTheRetyping", "frmMain");
    if (play_.GameActive())
        ground_.notes.tell(note::afterGame);
    if (state_ != State::Rest || play_.GameActive())
        return;
    running_ = &retypeSource(words);
    if (running_->origin == RetypeSource::WordList && wordsOf(*running_).isEmpty()) {
        leave();
        ground_.notes.tell(note::wordListEmpty);
        return;
    }
    bool runs = false;
    {
        // Until the strip stands, a press of the button only asks for the end, whichever step lets it in.
        const QScopedValueRollback preparing(state_, State::Preparing);
        stopWanted_ = false;
        KeptWords_.clear();
        copied_.clear();
        play_.startRetyping(words);
        rooms_.dictionary.close();
        controls_.CorrectWordList->hide();
        rooms_.sheet.lay(Reason::Retype, modeSheet);
        colourWords(running_->origin == RetypeSource::Nonsense ? nonsenseColour : wordColour);
        runs = step([&] { runs = prepare(*running_); }) && runs;
        if (runs)
            runs = step([&] { showStrip(*running_); });
    }
    if (!runs || stopWanted_)
        leave();
}

void RetypeMode::leave()
{
    play_.stop();
    StopTheRetyping();
}

void RetypeMode::endRun()
{
    if (play_.RetypeActive() && state_ == State::Rest)
        leave();
}

void RetypeMode::breakOff()
{
    if (!play_.RetypeActive() || state_ != State::Rest)
        return;
    leave();
    bool any = false;
    for (const QString &word : std::exchange(copied_, {})) {
        if (!running_->isOfPlayer() || rooms_.tests.ChkForDuplicates(word))
            continue;
        lists_.CorrectWordList.add(word);
        any = true;
    }
    if (any)
        ground_.notes.tell(note::copiedWordsBack);
}

void RetypeMode::wordsEdited(const QStringList &words, bool fillEmptyStrip)
{
    if (!play_.RetypeActive())
        rooms_.strip.takeWords(words, fillEmptyStrip);
    else if (play_.RetypePseudoWords())
        return;
    else if (words.isEmpty())
        endRun();
    else
        rooms_.strip.takeWords(words, fillEmptyStrip);
}

void RetypeMode::StopTheRetyping()
{
    Procedure step(ground_.log, "StopTheRetyping", "frmMain");
    const QScopedValueRollback ending(state_, State::Ending);
    step([&] { controls_.Scroller->setEnabled(false); });
    step([&] { controls_.Scroller->setScroll(false); });
    controls_.Scroller->hide();
    colourWords(wordColour);
    rooms_.sheet.takeOff(Reason::Typing);
    rooms_.sheet.takeOff(Reason::Retype);
    controls_.Check4->setFace({});
    rooms_.status.hide(StatusLine::Layer::Mode);
    step([&] { controls_.Option1[1]->setChecked(true); });
}
