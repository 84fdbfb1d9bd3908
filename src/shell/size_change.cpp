// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/size_change.h"

#include "board/hand/command_router.h"
#include "platform/gate.h"
#include "platform/ground.h"
#include "platform/note_texts.h"
#include "platform/notes.h"
#include "platform/options.h"
#include "platform/play_state.h"
#include "platform/procedure.h"
#include "platform/program_size.h"
#include "platform/work.h"

#include <QApplication>
#include <QKeyEvent>

#include <utility>

SizeChange::SizeChange(Ground &ground, const PlayState &play, int percent, QSize screen, QObject *parent)
    : QObject(parent)
    , ground_(ground)
    , play_(play)
    , percent_(percent)
    , screen_(screen)
    , wish_(program_size::wishOf(ground.options.stored(Setting::ProgramSize)))
    , wanted_(percent)
{
    timer_.setSingleShot(true);
    timer_.setInterval(rest);
    connect(&timer_, &QTimer::timeout, this, &SizeChange::settle);
    connect(&play, &PlayState::changed, this, &SizeChange::act); // the end of a game
    qApp->installEventFilter(this);
}

void SizeChange::registerCommands(CommandRouter &router)
{
    router.onMenu(1510, [this] { larger(); });
    router.onMenu(1511, [this] { smaller(); });
    router.onMenu(1512, [this] { automatic(); });
}

bool SizeChange::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::KeyPress && isMine(*static_cast<QKeyEvent *>(event)))
        return true;
    return QObject::eventFilter(watched, event);
}

bool SizeChange::isMine(const QKeyEvent &event)
{
    const Qt::KeyboardModifiers shift = event.modifiers() & ~(Qt::KeypadModifier | Qt::ShiftModifier);
    if (shift != Qt::ControlModifier || ground_.gate.isClosing())
        return false;
    switch (event.key()) {
    case Qt::Key_Plus:
    case Qt::Key_Equal:
        larger();
        return true;
    case Qt::Key_Minus:
    case Qt::Key_Underscore:
        smaller();
        return true;
    case Qt::Key_0:
        automatic();
        return true;
    default:
        return false;
    }
}

void SizeChange::larger()
{
    const int next = program_size::larger(wanted_, screen_);
    next > wanted_ ? want(next) : ground_.notes.tell(note::noLarger);
}

void SizeChange::smaller()
{
    const int next = program_size::smaller(wanted_);
    next < wanted_ ? want(next) : ground_.notes.tell(note::noSmaller);
}

void SizeChange::automatic() { want(program_size::automatic); }

/// It is kept at once, so that the next start has it whatever comes between.
void SizeChange::want(int wish)
{
    Procedure step{ground_.log, "ProgramSize", "frmMain", Procedure::Silent};
    step([&] { ground_.options.keepText(Setting::ProgramSize, program_size::textOf(wish)); });
    wish_ = wish;
    wanted_ = program_size::onScreen(wish, screen_);
    ground_.notes.tell(note::sizeIs, program_size::textOf(wanted_));
    told_ = false;
    timer_.start();
}

void SizeChange::takeSetting()
{
    const int wish = program_size::wishOf(ground_.options.text(Setting::ProgramSize));
    if (wish == wish_)
        return; // what the environment or another screen has made of it stays
    wish_ = wish;
    wanted_ = program_size::onScreen(wish, screen_);
    told_ = false;
    timer_.start();
    ground_.gate.whenFree([this] { tellIfLess(); }); // once the options are gone
}

void SizeChange::tellIfLess()
{
    if (wish_ != program_size::automatic && wish_ > wanted_ && wanted_ == percent_)
        ground_.notes.tell(note::notSoLarge, program_size::textOf(percent_));
}

void SizeChange::settle()
{
    if (wanted_ != percent_ && !ground_.gate.isFree())
        tellWait();
    act();
}

void SizeChange::act()
{
    if (wanted_ == percent_ || timer_.isActive() || std::exchange(queued_, true))
        return;
    ground_.gate.whenFree([this] {
        queued_ = false;
        if (wanted_ == percent_ || timer_.isActive())
            return;
        if (play_.GameActive() || play_.RetypeActive())
            tellWait(); // its end comes back here
        else if (ground_.gate.hasWaiting())
            act(); // what came from outside would be lost
        else if (const char16_t *sentence = hindrance_ ? hindrance_() : nullptr)
            ground_.notes.tell(sentence);
        else
            emit due();
    });
}

void SizeChange::tellWait()
{
    if (std::exchange(told_, true))
        return;
    const char16_t *sentence = note::sizeAfterWork;
    if (QApplication::activeModalWidget() != nullptr)
        sentence = note::sizeAfterWindow;
    else if (play_.GameActive())
        sentence = note::sizeAfterGame;
    else if (play_.RetypeActive())
        sentence = note::sizeAfterRetype;
    ground_.notes.tell(sentence);
}
