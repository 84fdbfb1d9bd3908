// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

class QLabel;
class QString;

/// Tells screen readers what the widgets of this room are: names, states, values, and what a press on them
/// does. A reader's press goes the way of a hand's, from the event loop, so that it passes the same gate and
/// nobody waits for it. To be called once, before the first window; nothing is made while no reader asks.
void installAccessibleTools();

/// What a screen reader says for a label that shows a mere number: "Gesammelte Wörter: %1".
void speakAs(QLabel &label, const QString &pattern);
/// The label's number in that sentence; empty while it shows none.
QString spokenCount(const QLabel &label);
