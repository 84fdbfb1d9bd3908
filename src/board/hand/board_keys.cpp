// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "board/hand/board_keys.h"

#include "board/hand/board_commands.h"
#include "board/hand/board_pointer.h"
#include "board/hand/popup_menu.h"
#include "platform/boxes.h"
#include "platform/ground.h"
#include "platform/modes.h"
#include "platform/options.h"
#include "platform/procedure.h"
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
constexpr int okAndCancel = 3;
constexpr int refused = 1;
} // namespace

BoardKeys::BoardKeys(Ground &ground, const MainControls &controls, Modes &modes, BoardCommands &commands,
                     BoardPointer &pointer, PopupMenu &popup)
    : ground_(ground)
    , controls_(controls)
    , modes_(modes)
    , commands_(commands)
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

bool BoardKeys::Form_KeyPress(int code) { return !isTyping() && commands_.runKey(code); }

bool BoardKeys::Form_KeyDown(int key)
{
    if (key == Qt::Key_F1) {
        commands_.run(From::MainMenu, helpCommand, {});
        return true;
    }
    if (key != Qt::Key_Escape)
        return false;
    if (pointer_.isDragging()) {
        pointer_.cancelDrag();
        return true;
    }
    if (controls_.Dropper1->isActiveControl() || !modes_.RetypeActive)
        return false;
    Procedure step{ground_.log, "Form_KeyDown", form};
    step([&] {
        const int answer = ground_.boxes.ShowMBox(u"Es werden gerade noch einige Wörter vorbereitet...\n\n"
                                                  "Willst du wirklich aufhören?"_s,
                                                  ground_.options.isOn(Setting::ConfirmBeforeErase),
                                                  okAndCancel, u"Bestätigen"_s, u"CONFIRM"_s);
        if (answer != refused)
            modes_.StopPlacing = modes_.CancelPreparing = true;
    });
    return true;
}

bool BoardKeys::picCanvas_KeyDown(int key)
{
    if (key != Qt::Key_Menu || isTyping())
        return false;
    const QSize screen = controls_.form->screen()->size();
    const QSize rest = (screen - controls_.picCanvas->size()) / 2;
    // What is chosen here has never been acted on.
    popup_.ShowPopupMenu(MenuName::MainMenu, QPoint(rest.width(), rest.height()));
    return true;
}
