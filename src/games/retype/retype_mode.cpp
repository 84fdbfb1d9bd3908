// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
// The ways into retype mode and out of it; what happens on the way stands in retype_steps.cpp.
#include "games/retype/retype_mode.h"

#include "games/retype/retype_sources.h"
#include "generators/word_maker.h"
#include "language/dictionary_panel.h"
#include "language/word_check.h"
#include "platform/boxes.h"
#include "platform/files.h"
#include "platform/ground.h"
#include "platform/modes.h"
#include "platform/options.h"
#include "platform/procedure.h"
#include "platform/text.h"
#include "platform/word_lists.h"
#include "widgets/click_label.h"
#include "widgets/dropper.h"
#include "widgets/main_controls.h"
#include "widgets/msg_scroller.h"
#include "widgets/press_button.h"
#include "widgets/progress_bar.h"
#include "widgets/store_list.h"

#include <QLineEdit>
#include <QScopedValueRollback>

using namespace Qt::StringLiterals;

namespace {

constexpr QColor wordColour{0, 0, 0};
constexpr QColor nonsenseColour{255, 0, 0}; ///< seen at once that these are no words

using C = MainControls;
using Row = SheetRow;

#define CONTROL(member) [](const C &c) -> QWidget * { return c.member; }
/// While words are prepared and while the mode runs: the games rest. The kept ones rest while words are
/// prepared, or are hidden then.
constexpr SheetRow modeSheet[] = {
    {CONTROL(Check3), Row::Disabled},
    {CONTROL(Option2[0]), Row::Disabled},
    {CONTROL(Option2[1]), Row::Disabled},
    {CONTROL(Option2[2]), Row::Disabled},
    {CONTROL(ChkVokal[0]), Row::Disabled},
    {CONTROL(ChkVokal[1]), Row::Disabled},
    {CONTROL(Check4), Row::Kept, u"Abschreiben abbrechen"},
    {CONTROL(Picture3), Row::Kept},
    {CONTROL(Check1), Row::Kept},
    {CONTROL(Check2), Row::Kept},
    {CONTROL(Label3), Row::Kept},
    {CONTROL(Text1), Row::Kept},
    {CONTROL(Command2), Row::Kept},
    {CONTROL(Command3), Row::Kept},
    {CONTROL(Command4), Row::Kept},
    {CONTROL(Command5), Row::Kept},
    {CONTROL(Command6), Row::Kept},
    {CONTROL(Label2), Row::Kept},
    {CONTROL(Dropper1), Row::Kept},
    {CONTROL(Option1[0]), Row::Kept},
    {CONTROL(Option1[1]), Row::Kept},
};
#undef CONTROL

} // namespace

RetypeMode::RetypeMode(Ground &ground, const MainControls &controls, WordLists &lists, Modes &modes,
                       const Rooms &rooms, QObject *parent)
    : QObject(parent)
    , ground_(ground)
    , controls_(controls)
    , lists_(lists)
    , modes_(modes)
    , rooms_(rooms)
    , sheet_(controls)
{
    connect(&rooms_.words, &WordMaker::stripToClear, controls_.Scroller, &MsgScroller::Clear);
    connect(&rooms_.words, &WordMaker::modesCleared, this, &RetypeMode::menusChanged);
}

void RetypeMode::notice(const QString &text)
{
    ground_.boxes.ShowInfoBox(text, u"INFO"_s, u"Wortel-Meister"_s);
}

// The button and the menu
// ------------------------------------------------------------------------------------------------------------

void RetypeMode::Check4_MouseDown(Qt::MouseButton button, Qt::KeyboardModifiers keys)
{
    Procedure step(ground_.log, "Check4_MouseDown", "frmMain");
    if (state_ == State::Preparing) {
        stopWanted_ = true;
        modes_.CancelPreparing = true;
    } else if (state_ == State::Ending || !modes_.CheckButtonsAct) {
        return;
    } else if (button == Qt::LeftButton) {
        step([&] { leftPress(); });
    } else if (button == Qt::RightButton) {
        step([&] { rightPress(keys.testFlag(Qt::ShiftModifier)); });
    }
}

void RetypeMode::toggleActive()
{
    modes_.RetypeActive = !modes_.RetypeActive;
    emit menusChanged();
}

void RetypeMode::leftPress()
{
    if (modes_.RetypeActive) {
        leave();
        return;
    }
    toggleActive();
    rooms_.check.readVowelBoxes();
    if (!modes_.RetypeChosenWords)
        modes_.RetypeUserWords = true;
    StartTheRetyping(modes_.KurzVokalMode   ? u"KURZVOKAL"_s
                     : modes_.LangVokalMode ? u"LANGVOKAL"_s
                                            : u"USERWORDS"_s);
}

void RetypeMode::rightPress(bool shift)
{
    rooms_.check.readVowelBoxes();
    if (modes_.KurzVokalMode || modes_.LangVokalMode)
        return;
    if (modes_.RetypeActive) {
        leave();
        return;
    }
    toggleActive();
    if (Val(controls_.OptType[0]->text()) == 0) {
        notice(u"Es sind keine Wortele auf dem Bildschirm"_s);
        modes_.GameActive = false;
        takeBackStart();
    } else if (!shift) {
        modes_.RetypeRandomWords = true;
        StartTheRetyping(u"RNDWORDSFROMSCREEN"_s);
    } else if (UCase(listBaseName(lists_.CurrentWortelFile)) == u"IG ODER LICH"_s) {
        notice(u"Zu dieser Wortel-Liste gibt es keine Unsinnswörter"_s);
        modes_.RetypePseudoWords = false;
        takeBackStart();
    } else {
        modes_.RetypePseudoWords = true;
        StartTheRetyping(u"PSEUDOWORDSFROMSCREEN"_s);
    }
}

void RetypeMode::takeBackStart()
{
    modes_.RetypeActive = false;
    emit menusChanged();
}

void RetypeMode::command(int id)
{
    // The entries stay enabled in a game, which the mode must not break into.
    if (modes_.GameActive)
        return;
    switch (id) {
    case 1600:
        Check4_MouseDown(Qt::LeftButton, {});
        break;
    case 1601:
        Check4_MouseDown(Qt::RightButton, {});
        break;
    case 1607:
        Check4_MouseDown(Qt::RightButton, Qt::ShiftModifier);
        break;
    case 1608:
        if (modes_.RetypeActive)
            Check4_MouseDown(Qt::LeftButton, {});
        else
            openChooser();
        break;
    default:
        break;
    }
}

void RetypeMode::openChooser()
{
    Procedure step(ground_.log, "openChooser", "frmMain", Procedure::Silent);
    if (modes_.KurzVokalMode || modes_.LangVokalMode)
        return;
    modes_.clearRetypeSources();
    modes_.RetypeChosenWords = true;
    controls_.CorrectWordList->hide();
    if (rooms_.dictionary.isOpen())
        step([&] { rooms_.dictionary.toggle(); });
    step([&] { emit chooserWanted(u"Abschreiben: Alle Wörter"_s, u"Abschreiben: Ausgewählte Wörter"_s); });
}

void RetypeMode::RetypeWithChoosenWortel()
{
    Procedure step(ground_.log, "RetypeWithChoosenWortel", "frmMain");
    const int count = lists_.CorrectWordList.count();
    if (count == 0) {
        step([&] { notice(u"Es gibt keine Wörter zum Abschreiben"_s); });
    } else if (count >= wordLimit) {
        step([&] { notice(u"Es können max. 1024 Wörter benutzt werden"_s); });
    } else {
        controls_.CorrectWordList->hide();
        Check4_MouseDown(Qt::LeftButton, {});
    }
}

void RetypeMode::mnuStartRetypeFromList()
{
    Procedure step(ground_.log, "mnuStartRetypeFromList", "frmMain");
    if (rooms_.dictionary.isOpen())
        step([&] { rooms_.dictionary.toggle(); });
    RetypeWithChoosenWortel();
}

// Start and stop
// ------------------------------------------------------------------------------------------------------------

void RetypeMode::colourWords(const QColor &colour)
{
    controls_.Scroller->setForeColor(colour);
    controls_.Dropper1->setForeColour(colour);
}

void RetypeMode::StartTheRetyping(const QString &Mode)
{
    Procedure step(ground_.log, "StartTheRetyping", "frmMain");
    const RetypeSource *source = retypeSourceOfMode(Mode);
    if (source == nullptr || state_ != State::Rest)
        return;
    bool runs = false;
    {
        // Until the strip stands, a press of the button only asks for the end, whichever step lets it in.
        const QScopedValueRollback preparing(state_, State::Preparing);
        stopWanted_ = false;
        KeptWords_.clear();
        sheet_.layOn(modeSheet);
        colourWords(source->origin == RetypeSource::Nonsense ? nonsenseColour : wordColour);
        runs = step([&] { runs = prepare(*source); }) && runs;
        if (runs)
            runs = step([&] { showStrip(*source); });
    }
    if (!runs || stopWanted_)
        leave();
}

void RetypeMode::leave()
{
    modes_.RetypeActive = false;
    modes_.clearRetypeSources();
    modes_.KurzVokalMode = false;
    modes_.LangVokalMode = false;
    emit menusChanged();
    StopTheRetyping();
}

void RetypeMode::StopTheRetyping()
{
    Procedure step(ground_.log, "StopTheRetyping", "frmMain");
    // The drag mode's change lets events run.
    const QScopedValueRollback ending(state_, State::Ending);
    step([&] { controls_.Scroller->setEnabled(false); });
    step([&] { controls_.Scroller->setScroll(false); });
    controls_.Scroller->hide();
    colourWords(wordColour);
    step([&] { sheet_.takeOff(); });
    controls_.Check4->setFace({});
    modes_.CancelPreparing = false;
    controls_.Label4->hide();
    controls_.GameProgress->resetAndHide();
    step([&] { controls_.Option1[1]->setChecked(true); });
}
