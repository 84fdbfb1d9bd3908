// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "output/html_to_text.h"

#include <QString>

/// What kind of text a file holds, by the letters behind the last point of its name, case ignored.
enum class TextKind {
    Dictionary, ///< "lex"
    Plain,      ///< "txt"
    Rich,       ///< "rtf"
    Page,       ///< "htm", "html"
    Other,
};
TextKind textKindOf(const QString &path);

/// The text of a file of any kind as it is to be shown, with "\n" for line ends and without other control
/// characters below 32 but the tab; only a page has a title. Whether plain text or rich text is told by what
/// the file holds, not by its name. A line longer than `longestLine` is broken at a blank, because a text box
/// is slow with one line of megabytes; not a character is lost. Throws RuntimeError as ReadWholeFile. If
/// `step` ends the pass, what has been read until then comes back.
PageText loadText(const QString &path, const PassStep &step = {});
/// The same of bytes.
PageText decodeLoadedText(const QByteArray &bytes, TextKind kind, const PassStep &step = {});

inline constexpr qsizetype longestLine = 4000;
/// Any text, such as one from the clipboard, in the form in which `loadText` gives it.
QString textForBox(const QString &text);

/// The stem list that goes with a dictionary: "\facit" becomes "\text", ".lex" becomes ".txt", case ignored.
QString stemListOfDictionary(const QString &path);
