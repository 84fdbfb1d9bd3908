// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QByteArrayView>
#include <QStringList>

#include <optional>

/// Windows-1252, the 8-bit code page of all data files, through an own 256-entry table, strict both ways. The
/// five unassigned bytes (0x81, 0x8D, 0x8F, 0x90, 0x9D) map to the control characters of the same number, as
/// the original platform does.
namespace windows1252 {

/// Every byte has a character, so decoding cannot fail. The result is in normal form C.
QString decode(QByteArrayView bytes);
/// The bytes of `text`, or nothing if a character has none.
std::optional<QByteArray> encode(const QString &text);
/// The bytes of `text` with "?" for a character that has none.
QByteArray encodeLossy(const QString &text);

/// The characters of `text` that have no byte, each once, with a blank between two.
QString missing(const QString &text);

} // namespace windows1252
