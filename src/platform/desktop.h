// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

class QFrame;
class QWidget;

/// What windows ask of the desktop they lie on. Where a window system has no such thing, nothing happens.

/// Centres a window on its screen, by whole pixels. The window's size must be final.
void CenterForm(QWidget *form);
/// Puts a window in the always-on-top band, or takes it out again. A window that is shown stays shown.
void MakeTopMost(QWidget *form, bool top = true);
/// Sets or clears the thin 3-D frame of a control.
void ThinBorder(QFrame *control, bool thin);
/// Hides or shows the desktop's task bar. Desktops other than the one the program was made for leave their
/// bars to the user, and there this does nothing.
void ShowTaskBar(bool shown);
