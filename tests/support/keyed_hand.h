// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "support/test_hand.h"

/// The house in front of a player who has only keys; the board has the keyboard.
struct KeyedHand : TestHand
{
    KeyedHand()
    {
        form.show();
        form.activateWindow();
        settle();
        controls.picCanvas->setFocus();
    }
    void send(QEvent::Type type, QKeyCombination key, const QString &text, bool repeats)
    {
        QKeyEvent event(type, key.key(), key.keyboardModifiers(), text, repeats);
        QWidget *focus = form.focusWidget();
        QApplication::sendEvent(focus != nullptr ? focus : &form, &event);
    }
    /// Keys by their names, divided by blanks; "*" before one holds it down for three repeats.
    void keys(const QString &names)
    {
        for (const QString &name : names.split(u' ', Qt::SkipEmptyParts)) {
            const QKeyCombination key = QKeySequence(QString(name).remove(u'*'))[0];
            for (int i = 0; i < (name.startsWith(u'*') ? 4 : 1); ++i)
                send(QEvent::KeyPress, key, {}, i > 0);
            send(QEvent::KeyRelease, key, {}, false);
        }
        settle();
    }
    void letter(const QString &text, Qt::KeyboardModifiers shift = {})
    {
        send(QEvent::KeyPress, QKeyCombination(shift), text, false);
        settle();
    }
};
