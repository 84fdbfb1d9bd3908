// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <QStringList>

#include <vector>

class Options;

/// Words of a list in columns: as text files, and as what a printer puts on paper. Each row holds its cells
/// from the left; a short row has fewer.
namespace word_columns {

using Rows = std::vector<QStringList>;

/// The layout has four columns at most. What is asked for beyond 1 to 4 columns, or below one row, becomes
/// the nearest that there is, so that no word is lost.
inline constexpr int most = 4;

/// Words run across: the first `count` words fill the first row.
Rows across(const QStringList &words, int count);
/// Words run down a column for `blockRows` lines, then down the next one; behind the last column the next
/// block begins below.
Rows inBlocks(const QStringList &words, int count, int blockRows);
/// In the layout that the options name: one below the other, across, or in blocks.
Rows asWished(const QStringList &words, const Options &options);

/// Writes `words`, one a line, and rewrites the file as the options wish. Throws RuntimeError as
/// writeFileAtomically.
void writeList(const QString &path, const QStringList &words, const Options &options);

} // namespace word_columns

/// Reads the lines of `inFile`, trimmed, and writes them to `outFile` (which may be the same) across as many
/// columns, each padded with blanks to its longest cell and 5 more, the last one too. Throws RuntimeError as
/// ReadWholeFile and writeFileAtomically.
void Columnize(const QString &inFile, const QString &outFile, int columnCount);
/// The same in blocks of `blockRows` rows.
void ColumnizeInBlocks(const QString &inFile, const QString &outFile, int columnCount, int blockRows);
