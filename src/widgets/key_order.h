// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

class QLayout;
class QWidget;

/// The Tab key goes on from `last` (nullptr for the first one of a window) through what the layout holds, frame
/// by frame and in its order, also where it is parted by a splitter. Returns the last one reached.
QWidget *orderForKeys(const QLayout *layout, QWidget *last = nullptr);
