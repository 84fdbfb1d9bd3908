// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "output/columns/columns.h"

class QPagedPaintDevice;
class QPainter;

/// Prints rows of words in their columns, from the top of the page on and on as many pages as they need. A
/// word that is too long for its column goes on below.
void paintWords(QPainter &painter, QPagedPaintDevice &device, const word_columns::Rows &rows);
