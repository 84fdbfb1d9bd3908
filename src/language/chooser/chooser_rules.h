// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <QStringList>

#include <cstdint>

/// The questions that the word chooser asks of words. All ignore case, by `UCase`, but for the two that ask
/// about it.

/// Which words found are kept, in the order of the options `OptWordFilter`.
enum class WordFilter : std::uint8_t { All, Short, Long, Capital, NotCapital };

/// Short words have up to 9 letters, long ones 10 and more. `Capital` are words with a capital first letter
/// and small ones behind it.
bool passes(const QString &word, WordFilter filter);

/// The word ends as adjectives do ("IG", "LICH"...), or as nouns do ("UNG", "KEIT"...).
bool IsAdjectiveSuffix(const QString &word);
bool IsNomenSuffix(const QString &word);

/// The word begins with one of the marked prefixes, or ends with one of the marked suffixes.
bool IsInPrefixList(const QString &word, const QStringList &marked);
bool IsInSuffixList(const QString &word, const QStringList &marked);

/// The words without those that stand further up already; the first spelling stays.
QStringList withoutDuplicates(const QStringList &words);
