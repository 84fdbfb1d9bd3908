// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "e2e/desktop.h"

/// What the end-to-end tests know of the screen, and a board whose tiles they know.

inline const QString mainWindow = QStringLiteral("^Wortel-Meister [0-9]");
constexpr QSize leastTile(8, 20); ///< the narrowest tile has one letter

namespace colour {
constexpr QRgb board = qRgb(0, 128, 192);
constexpr QRgb yellow = qRgb(255, 255, 0);
constexpr QRgb red = qRgb(255, 0, 0);
constexpr QRgb white = qRgb(255, 255, 255);
constexpr QRgb blue = qRgb(0, 0, 255);
} // namespace colour

/// Switches off what would come up in the middle of a test: welcome, tips, and the sound at the end with its
/// wait.
void quiet(Desktop &desktop);

/// The texts of the red tiles of `knownBoard`.
QStringList knownWords();
/// A session: "auf" in yellow, the known words in red, "en" in blue, none over another.
QByteArray knownBoard();

/// Starts the program with the known board and waits for its window.
bool startKnownBoard(Desktop &desktop);

/// The places of the board's tiles of a colour on the screen, by rows and then from the left.
QVector<QRect> tilesOn(const QImage &screen, const QRect &board, QRgb colour);
/// Waits until so many tiles of that colour are seen on the board.
bool showsTiles(Desktop &desktop, qsizetype count, QRgb colour = colour::red);

/// Whether the report of a word check stands over the left end of the band; with a smiley it praises. `board`
/// is free of tiles there.
bool reportIsUp(const QImage &screen, const QRect &board);
bool praiseIsUp(const QImage &screen, const QRect &board);

/// Whether two pictures of a tool show the same but for a shade of the letters' edges.
bool sameText(const QImage &one, const QImage &other);
