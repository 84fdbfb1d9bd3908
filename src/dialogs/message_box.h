// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "dialogs/box_window.h"

/// The question box: a message in the colours of a style with the one or two buttons of a code. The answer is
/// the index of the button.
class MBox : public BoxWindow
{
    Q_OBJECT

public:
    MBox(const QString &prompt, int buttons, const QString &title, BoxStyle style, QWidget *owner);
};

/// The notice box: a white window with a sign whose press closes it, as Enter and Esc do.
class frmMboxRetype : public BoxWindow
{
    Q_OBJECT

public:
    frmMboxRetype(const QString &prompt, BoxSign signKind, const QString &title, QWidget *owner);
};
