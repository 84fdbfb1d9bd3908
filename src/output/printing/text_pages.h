// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

class QPagedPaintDevice;
class QPainter;
class QTextDocument;

/// Prints a text page by page, with margins of an inch at the sides and an inch and a quarter above and
/// below, counted from the edges of the paper. Each page but the last gets its mark "- 1 -" at the right, the
/// header word above and the footer word below, where they are not empty; the last one gets none of them.
/// Pictures that the text names are not looked for.
void paintText(QPainter &painter, QPagedPaintDevice &device, const QTextDocument &text,
               const QString &headerWord, const QString &footerWord);
