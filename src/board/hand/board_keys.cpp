// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "board/hand/board_keys.h"

#include "board/hand/board_focus.h"
#include "board/hand/board_pointer.h"
#include "board/hand/command_router.h"
#include "platform/boxes.h"
#include "platform/ground.h"
#include "platform/options.h"
#include "platform/procedure.h"
#include "platform/work.h"
#include "widgets/dropper.h"
#include "widgets/main_controls.h"
#include "widgets/picture_box.h"
#include "widgets/store_list.h"

#include <QAbstractButton>
#include <QApplication>
#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPointer>
#include <QTextEdit>

using command::From;
using namespace Qt::StringLiterals;

namespace {
constexpr auto form = "frmMain";
constexpr int helpCommand = 1001;
constexpr int undoKey = 26; ///< Ctrl+Z
constexpr int redoKey = 25; ///< Ctrl+Y
} // namespace

BoardKeys::BoardKeys(Ground &ground, const MainControls &controls, const TileKeys::Rooms &rooms)
    : ground_(ground)
    , controls_(controls)
    , rooms_(rooms)
    , tileKeys_(ground, controls, rooms)
    , letters_(ground, controls)
{
    qApp->installEventFilter(this);
    connect(&ground.gate, &Gate::boxOpens, this, [this] { tileKeys_.endRun(); });
}

bool BoardKeys::eventFilter(QObject *watched, QEvent *event)
{
    switch (event->type()) {
    case QEvent::KeyPress:
        return goesToForm(watched) && handle(*static_cast<QKeyEvent *>(event));
    case QEvent::KeyRelease:
        if (!static_cast<QKeyEvent *>(event)->isAutoRepeat() && goesToForm(watched))
            tileKeys_.endRun();
        return false;
    case QEvent::InputMethod:
        return goesToForm(watched) && letters_.isFree(controls_.form->window()->focusWidget()) &&
               letters_.type(static_cast<QInputMethodEvent *>(event)->commitString()) ==
                   JustType::Fate::Taken;
    case QEvent::MouseButtonPress:
        if (const auto *widget = qobject_cast<QWidget *>(watched))
            pressed(widget);
        return false;
    case QEvent::Show:
        if (keyWasLast_)
            if (auto *list = qobject_cast<StoreList *>(watched))
                listOpens(list);
        return false;
    case QEvent::FocusOut:
        if (tileKeys_.inRun())
            ground_.gate.whenFree([this] { tileKeys_.endRun(); });
        return false;
    default:
        return false;
    }
}

/// The press of a pointer: the frame of the keys is of no more use, and a tool that had the keyboard gives it
/// back, so that the next Enter does not press it again.
void BoardKeys::pressed(const QWidget *widget)
{
    if (!controls_.form->isAncestorOf(widget))
        return;
    keyWasLast_ = false;
    listInHand_ = qobject_cast<const StoreList *>(widget->parentWidget()); // the rows lie on a child of it
    rooms_.focus.setByKeys(false);
    const QWidget *focus = controls_.form->window()->focusWidget();
    if (focus != nullptr && focus != widget && focus != controls_.picCanvas && letters_.isFree(focus))
        controls_.picCanvas->setFocus(Qt::OtherFocusReason);
}

/// A list that a key has opened gets the keyboard, so that its rows can be gone through at once.
void BoardKeys::listOpens(QWidget *list)
{
    if (!controls_.form->isAncestorOf(list) || list == controls_.LexiconList)
        return;
    ground_.gate.whenFree([list = QPointer<QWidget>(list)] {
        if (list != nullptr && list->isVisible())
            list->setFocus(Qt::OtherFocusReason);
    });
}

bool BoardKeys::goesToForm(const QObject *watched) const
{
    // A key that its control leaves unused climbs to the parents, so only its first receiver counts.
    const QWidget *focus = controls_.form->window()->focusWidget();
    return watched == (focus != nullptr ? focus : controls_.form->window());
}

bool BoardKeys::handle(const QKeyEvent &event)
{
    keyWasLast_ = true;
    const Qt::KeyboardModifiers shift = event.modifiers();
    const bool ctrl = shift.testFlag(Qt::ControlModifier);
    const bool alt = shift.testFlag(Qt::AltModifier);
    const int key = event.key();
    if (ctrl && !alt && key >= Qt::Key_A && key <= Qt::Key_Z)
        return Form_KeyPress(key - Qt::Key_A + 1, event.isAutoRepeat());
    // A key that is held would close one thing after the other.
    const bool heldDown = event.isAutoRepeat() && (key == Qt::Key_Escape || key == Qt::Key_F6);
    if (heldDown || Form_KeyDown(key))
        return true;
    if (isOnBoard() && tileKeys_.press(event))
        return true;
    if (key == Qt::Key_Down && goesDownToList())
        return true;
    // The right Alt key comes as both on some keyboards, and gives letters.
    if (key >= Qt::Key_Home && key <= Qt::Key_PageDown)
        listInHand_ = nullptr; // now the rows are gone through by keys, and letters look for one
    const QWidget *focus = controls_.form->window()->focusWidget();
    const bool isInHand = focus != nullptr && focus == listInHand_;
    if (ctrl != alt || !(isInHand || letters_.isFree(focus)))
        return false;
    const JustType::Fate fate = letters_.type(event.text());
    if (fate == JustType::Fate::NoField && !event.isAutoRepeat())
        emit nowhereToType();
    return fate == JustType::Fate::Taken;
}

/// From the search box to what was found: the list stands below it.
bool BoardKeys::goesDownToList()
{
    if (!controls_.Text2->hasFocus() || !controls_.LexiconList->isVisible())
        return false;
    controls_.LexiconList->setFocus(Qt::OtherFocusReason);
    return true;
}

bool BoardKeys::isOnBoard() const
{
    const QWidget *focus = controls_.form->window()->focusWidget();
    return focus == nullptr || focus == controls_.form || focus == controls_.picCanvas;
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

/// The word field keeps the keyboard after a drop and after a tool's press. Where it has no step of its own
/// to go back or on, the key is meant for the board; held down, it stops between the two.
bool BoardKeys::isLeftByField(int code, bool held) const
{
    const QLineEdit *field = activeWordField();
    if (held || field == nullptr)
        return false;
    return (code == undoKey && !field->isUndoAvailable()) || (code == redoKey && !field->isRedoAvailable());
}

QLineEdit *BoardKeys::activeWordField() const
{
    auto *field = qobject_cast<QLineEdit *>(controls_.Dropper1->focusProxy());
    return field != nullptr && field->hasFocus() ? field : nullptr;
}

bool BoardKeys::Form_KeyPress(int code, bool held)
{
    const command::Command *row = command::find(From::Key, code);
    if (row == nullptr)
        return false;
    if (isTyping() && (row->flags & command::WhileTyping) == 0 && !isLeftByField(code, held)) {
        QLineEdit *field = code == redoKey ? activeWordField() : nullptr;
        if (field != nullptr)
            field->redo(); // a text box does not know this key on every system
        return field != nullptr;
    }
    const auto way = (row->flags & command::Looks) != 0 ? Gate::Way::Look : Gate::Way::Play;
    if (const Gate::Passage passage = ground_.gate.enter(way)) {
        rooms_.pointer.letGo();
        tileKeys_.endRun();
        Press press;
        press.filter = rooms_.router.selectedFilter();
        rooms_.router.run(From::Key, code, press);
    }
    return true;
}

bool BoardKeys::Form_KeyDown(int key)
{
    switch (key) {
    case Qt::Key_F1:
        if (const Gate::Passage passage = ground_.gate.enter(Gate::Way::Look))
            rooms_.router.run(From::MainMenu, helpCommand, {});
        return true;
    case Qt::Key_F6:
        changeSides();
        return true;
    case Qt::Key_Escape:
        if (rooms_.pointer.isHolding())
            rooms_.pointer.letGo();
        else if (ground_.gate.work() != nullptr)
            stopWork();
        else
            emit escapes();
        return true;
    default:
        return false;
    }
}

/// From the board to the word and back.
void BoardKeys::changeSides()
{
    if (isOnBoard())
        letters_.takeFocus();
    else
        controls_.picCanvas->setFocus(Qt::TabFocusReason);
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
