// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "board/hand/board_keys.h"

#include "board/hand/board_pointer.h"
#include "board/hand/command_router.h"
#include "board/hand/popup_menu.h"
#include "platform/boxes.h"
#include "platform/ground.h"
#include "platform/options.h"
#include "platform/procedure.h"
#include "platform/work.h"
#include "widgets/dropper.h"
#include "widgets/main_controls.h"
#include "widgets/picture_box.h"

#include <QAbstractButton>
#include <QAbstractScrollArea>
#include <QApplication>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QScreen>
#include <QTextEdit>

using command::From;
using namespace Qt::StringLiterals;

namespace {
constexpr auto form = "frmMain";
constexpr int helpCommand = 1001;
} // namespace

BoardKeys::BoardKeys(Ground &ground, const MainControls &controls, CommandRouter &router,
                     BoardPointer &pointer, PopupMenu &popup)
    : ground_(ground)
    , controls_(controls)
    , router_(router)
    , pointer_(pointer)
    , popup_(popup)
{
    qApp->installEventFilter(this);
}

bool BoardKeys::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::KeyPress && goesToForm(watched))
        return handle(*static_cast<QKeyEvent *>(event));
    return QObject::eventFilter(watched, event);
}

bool BoardKeys::goesToForm(const QObject *watched) const
{
    // A key that its control leaves unused climbs to the parents, so only its first receiver counts.
    const QWidget *focus = controls_.form->window()->focusWidget();
    return watched == (focus != nullptr ? focus : controls_.form->window());
}

bool BoardKeys::handle(const QKeyEvent &event)
{
    const Qt::KeyboardModifiers shift = event.modifiers();
    const int key = event.key();
    if (shift.testFlag(Qt::ControlModifier) && !shift.testFlag(Qt::AltModifier) && key >= Qt::Key_A &&
        key <= Qt::Key_Z)
        return Form_KeyPress(key - Qt::Key_A + 1);
    return Form_KeyDown(key) || picCanvas_KeyDown(key);
}

bool BoardKeys::isTyping() const
{
    const QWidget *active = controls_.form->window()->focusWidget();
    if (controls_.Dropper1->isActiveControl() || qobject_cast<const QLineEdit *>(active) != nullptr ||
        qobject_cast<const QTextEdit *>(active) != nullptr ||
        qobject_cast<const QPlainTextEdit *>(active) != nullptr)
        return true;
    const auto *button = qobject_cast<const QAbstractButton *>(active);
    return button != nullptr && button->isCheckable();
}

bool BoardKeys::Form_KeyPress(int code)
{
    const command::Command *row = command::find(From::Key, code);
    if (row == nullptr || isTyping())
        return false;
    const auto way = (row->flags & command::Looks) != 0 ? Gate::Way::Look : Gate::Way::Play;
    if (const Gate::Passage passage = ground_.gate.enter(way)) {
        pointer_.letGo();
        Press press;
        press.filter = router_.selectedFilter();
        router_.run(From::Key, code, press);
    }
    return true;
}

bool BoardKeys::Form_KeyDown(int key)
{
    if (key == Qt::Key_F1) {
        if (const Gate::Passage passage = ground_.gate.enter(Gate::Way::Look))
            router_.run(From::MainMenu, helpCommand, {});
        return true;
    }
    if (key != Qt::Key_Escape)
        return false;
    if (pointer_.isHolding()) {
        pointer_.letGo();
        return true;
    }
    if (ground_.gate.work() == nullptr)
        return false;
    stopWork();
    return true;
}

/// While words are prepared it is asked first, by the option; any other work just ends.
void BoardKeys::stopWork()
{
    Procedure step{ground_.log, "Form_KeyDown", form};
    step([&] {
        const bool asks =
            ground_.gate.work()->preparesWords() && ground_.options.isOn(Setting::ConfirmBeforeErase);
        if (ground_.boxes.agrees(u"Es werden gerade noch einige Wörter vorbereitet...\n\n"
                                 "Willst du wirklich aufhören?"_s,
                                 u"Bestätigen"_s, BoxStyle::Confirm, asks))
            ground_.gate.cancelWork();
    });
}

bool BoardKeys::picCanvas_KeyDown(int key)
{
    if (key != Qt::Key_Menu || isTyping())
        return false;
    const Gate::Passage passage = ground_.gate.enter(Gate::Way::Play);
    if (!passage)
        return true;
    const QSize screen = controls_.form->screen()->size();
    const QSize rest = (screen - controls_.picCanvas->size()) / 2;
    // What is chosen here has never been acted on.
    popup_.ShowPopupMenu(MenuName::MainMenu, QPoint(rest.width(), rest.height()));
    return true;
}
