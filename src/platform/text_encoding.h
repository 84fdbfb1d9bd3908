// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QString>

/// What stands before UTF-8 text that says so.
inline const QByteArray utf8Mark = QByteArrayLiteral("\xEF\xBB\xBF");

/// How the bytes of a text file become a text and back: the one rule for all readers and writers of lists,
/// ini files and sessions. Files are Windows-1252; what a modern editor saves is understood as well.
enum class TextEncoding { Windows1252, Utf8, Utf16 };

/// A mark at the start decides. Without one, bytes are UTF-8 if they hold characters beyond ASCII, all of
/// them are well-formed UTF-8, and each character stands in Windows-1252 too: "ß" before a closing quotation
/// mark is well-formed as well, but what comes of it is a letter of another script.
TextEncoding encodingOf(const QByteArray &bytes);

/// The text without a mark, in normal form C.
QString decodeText(const QByteArray &bytes);
/// The same for bytes whose encoding is known.
QString decodeText(const QByteArray &bytes, TextEncoding encoding);
/// Bytes that `decodeText` gives back as `text` (in normal form C): Windows-1252, or UTF-8 with its mark for
/// the rare text that has other characters or whose bytes would be taken for another encoding.
QByteArray encodeText(const QString &text);
