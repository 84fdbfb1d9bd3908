// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "board/hand/just_type.h"

#include "platform/gate.h"
#include "platform/ground.h"
#include "widgets/click_label.h"
#include "widgets/dropper.h"
#include "widgets/main_controls.h"
#include "widgets/picture_box.h"
#include "widgets/press_button.h"

#include <QApplication>
#include <QKeyEvent>
#include <QLineEdit>

#include <algorithm>

JustType::JustType(Ground &ground, const MainControls &controls)
    : ground_(ground)
    , controls_(controls)
{
    // Dead keys and input methods give their letters only to a control that asks for them.
    for (QWidget *widget : controls.form->findChildren<QWidget *>())
        if (isFree(widget))
            widget->setAttribute(Qt::WA_InputMethodEnabled);
}

bool JustType::isFree(const QWidget *focus) const
{
    return focus == nullptr || focus == controls_.form || focus == controls_.picCanvas ||
           qobject_cast<const PressButton *>(focus) != nullptr ||
           qobject_cast<const ClickLabel *>(focus) != nullptr;
}

QWidget *JustType::field() const
{
    if (controls_.Text2->isVisible() && controls_.Text2->isEnabled())
        return controls_.Text2;
    const Dropper &word = *controls_.Dropper1;
    return word.isVisible() && word.isEnabled() ? word.focusProxy() : nullptr;
}

JustType::Fate JustType::type(const QString &letters)
{
    // Only what can be seen: a blank presses what has the keyboard.
    const bool written =
        std::all_of(letters.begin(), letters.end(), [](QChar c) { return c.isPrint() || c.isSurrogate(); });
    if (letters.isEmpty() || !written || letters == u" ")
        return Fate::NoLetters;
    if (field() != nullptr)
        write(letters);
    else if (!ground_.gate.isFree())
        ground_.gate.whenFree([this, letters] { write(letters); });
    else
        return Fate::NoField;
    return Fate::Taken;
}

void JustType::write(const QString &letters)
{
    QWidget *to = field();
    if (to == nullptr)
        return;
    to->setFocus(Qt::OtherFocusReason);
    QKeyEvent typed(QEvent::KeyPress, 0, Qt::NoModifier, letters);
    QApplication::sendEvent(to, &typed);
}

void JustType::takeFocus()
{
    if (QWidget *to = field())
        to->setFocus(Qt::OtherFocusReason);
}
