// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "output/columns/columns.h"

#include "platform/files.h"
#include "platform/options.h"
#include "platform/text_encoding.h"

#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;

namespace {

constexpr int gap = 5; ///< blanks behind the longest cell of a column
constexpr int mostRows = 32767;

const QString lineEnd = u"\r\n"_s;

int withinColumns(int count) { return std::clamp(count, 1, word_columns::most); }

/// A number field of the options holds digits of any length, or none.
int numberOf(const Options &options, Setting id)
{
    return static_cast<int>(std::clamp(options.number(id), 0.0, double(mostRows)));
}

QString padded(const word_columns::Rows &rows)
{
    std::array<qsizetype, word_columns::most> widths{};
    for (const QStringList &row : rows)
        for (qsizetype column = 0; column < row.size(); ++column) {
            qsizetype &width = widths[static_cast<std::size_t>(column)];
            width = std::max(width, row.at(column).size() + gap);
        }
    QString text;
    for (const QStringList &row : rows) {
        for (qsizetype column = 0; column < row.size(); ++column)
            text += row.at(column).leftJustified(widths[static_cast<std::size_t>(column)]);
        text += lineEnd;
    }
    return text;
}

void write(const QString &path, const QString &text) { writeFileAtomically(path, encodeText(text)); }

} // namespace

word_columns::Rows word_columns::across(const QStringList &words, int count)
{
    const int width = withinColumns(count);
    Rows rows;
    for (qsizetype from = 0; from < words.size(); from += width)
        rows.push_back(words.mid(from, width));
    return rows;
}

word_columns::Rows word_columns::inBlocks(const QStringList &words, int count, int blockRows)
{
    const qsizetype height = std::max(blockRows, 1);
    const qsizetype block = height * withinColumns(count);
    Rows rows;
    for (qsizetype from = 0; from < words.size(); from += block) {
        const std::size_t top = rows.size();
        const qsizetype end = std::min(from + block, words.size());
        rows.resize(top + static_cast<std::size_t>(std::min(height, end - from)));
        for (qsizetype at = from; at < end; ++at)
            rows[top + static_cast<std::size_t>((at - from) % height)].append(words.at(at));
    }
    return rows;
}

word_columns::Rows word_columns::asWished(const QStringList &words, const Options &options)
{
    const int count = numberOf(options, Setting::SaveNoColumns);
    if (options.isOn(Setting::SaveCopyWithCol))
        return across(words, count);
    if (options.isOn(Setting::SaveCopyWithColBl))
        return inBlocks(words, count, numberOf(options, Setting::SaveNoBlocks));
    return across(words, 1);
}

void word_columns::writeList(const QString &path, const QStringList &words, const Options &options)
{
    const bool inColumns = options.isOn(Setting::SaveCopyWithCol) || options.isOn(Setting::SaveCopyWithColBl);
    if (inColumns)
        write(path, padded(asWished(words, options)));
    else
        write(path, words.isEmpty() ? QString() : words.join(lineEnd) + lineEnd);
}

void Columnize(const QString &inFile, const QString &outFile, int columnCount)
{
    write(outFile, padded(word_columns::across(readListFile(inFile, true), columnCount)));
}

void ColumnizeInBlocks(const QString &inFile, const QString &outFile, int columnCount, int blockRows)
{
    write(outFile, padded(word_columns::inBlocks(readListFile(inFile, true), columnCount, blockRows)));
}
