// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

class QString;
class QWidget;

/// Says a text to a screen reader as an alert of the window that `from` stands in, without taking the focus:
/// a verdict, a notice. A text said twice is heard twice; an empty one is not said. Nothing happens, and
/// nothing is made, while no screen reader asks.
void announce(QWidget &from, const QString &text);
