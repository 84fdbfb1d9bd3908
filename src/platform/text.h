// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDateTime>
#include <QString>

/// The text and number functions of the program's runtime. They are the only ones used for these jobs,
/// because Qt's own differ where it matters (`QString::toUpper` makes "SS" of "ß", `toInt` gives 0 for
/// "12abc").

/// Upper case, one character to one character: "ß" stays "ß", umlauts fold.
QString UCase(const QString &text);
/// Lower case, one character to one character.
QString LCase(const QString &text);
/// Blanks (U+0020) cut at both ends; tabs stay.
QString Trim(const QString &text);
/// True if the two texts are equal without regard to case, by `UCase`.
bool equalsIgnoreCase(QStringView a, QStringView b);
/// True if `part` occurs in `text` without regard to case, by `UCase`.
bool containsIgnoreCase(const QString &text, const QString &part);

/// `EndsWith` and `StartsWith` ignore case, `StartsWithExact` compares exactly.
bool EndsWith(const QString &text, const QString &ending);
bool StartsWith(const QString &text, const QString &start);
bool StartsWithExact(const QString &text, const QString &start);
/// `text` without `ending` where it ends so, case ignored.
QString RTrimText(const QString &text, const QString &ending);

/// First letter upper case, all others lower case.
QString InitCapWord(const QString &text);
/// False for an empty text, and for a text that begins with a to z, "ß" or "ü". "ä" and "ö" deliberately
/// count as capitals.
bool FirstIsInitCap(const QString &text);
/// The first letter's case turned over by `FirstIsInitCap`, the rest in lower case.
QString ToggleInitChar(const QString &text);

/// Tabs and line ends become blanks, other control characters below 32 go; with `keepLineEnds` CR and LF
/// stay.
QString CleanText(const QString &text, bool keepLineEnds = false);

/// The number at the start of `text` (blanks skipped, a sign, digits, a decimal point, an exponent); 0 where
/// there is none.
double Val(const QString &text);
/// The largest whole number not above `value`.
double Int(double value);
/// `value` cut towards zero.
double Fix(double value);
/// Rounded to a whole number, halves to the even one.
double Round(double value);
/// `value` rounded by `Round` as a 16-bit number. Throws RuntimeError 6 where it does not fit.
int CInt(double value);
/// `value` rounded by `Round` as a 32-bit number. Throws RuntimeError 6 where it does not fit.
int CLng(double value);
/// The number that `text` holds as a whole (blanks at the ends allowed). Throws RuntimeError 13 if it is
/// none.
double CDbl(const QString &text);

/// A number with leading zeros up to `digits` digits, as the pattern "00" gives it.
QString FormatNumber(int value, int digits);
/// "hh:nn:ss", 24 hours.
QString FormatTime(const QTime &time);
/// "mm/dd/yyyy  hh:nn AM/PM", 12 hours.
QString FormatDateTime(const QDateTime &moment);

/// Compares for a kept-sorted list: German collation, case ignored. Negative, 0 or positive.
int compareCollated(const QString &a, const QString &b);
