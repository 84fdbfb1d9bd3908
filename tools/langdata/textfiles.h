// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>

#include <stdexcept>

namespace langdata {

/// Something in the input that a maintainer has to mend; the text says which file and what.
class InputError : public std::runtime_error
{
public:
    explicit InputError(const QString &text)
        : std::runtime_error(text.toStdString())
    {}
};

/// Whole content of a file. Throws InputError if it cannot be read.
QByteArray readBytes(const QString &path);

/// Entries of a list file of the game: strict Windows-1252, CR LF, no blank or untrimmed line.
QStringList readGameList(const QString &path);

/// Words of a maintainers' list: UTF-8, parted by blanks and line ends, "#" begins a remark.
QStringList readWords(const QString &path);

/// The entries as a list file of the game. Throws InputError for a character Windows-1252 lacks.
QByteArray gameListBytes(const QStringList &entries);

/// Writes the bytes whole or not at all. Throws InputError if the disk refuses.
void writeWhole(const QString &path, const QByteArray &bytes);

} // namespace langdata
