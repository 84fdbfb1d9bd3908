// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

/// The input masks of number fields: what a field keeps of a text that was typed, pasted or loaded into it.
/// Where a caret is given it moves back by one for each dropped character before it.

/// Only the digits "0" to "9".
QString Integer_Pos(const QString &text, int *caret = nullptr);
/// Digits, and a minus sign where it is the first character kept.
QString Integer_All(const QString &text, int *caret = nullptr);
