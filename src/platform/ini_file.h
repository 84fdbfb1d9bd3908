// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/text_encoding.h"

#include <QByteArray>
#include <QHash>
#include <QList>
#include <QString>

#include <limits>
#include <utility>
#include <vector>

/// Private-profile ini files (Windows-1252) with the semantics of the platform the program was made for: keys
/// and sections without regard to case, the first one wins, a value in double quotes loses them on reading, a
/// write replaces the key's value in place, appends it to its section or appends the section, and leaves
/// every other line as it is, byte for byte. A file in UTF-8 or UTF-16 is understood too, and one that gets a
/// character which the page does not have becomes one in UTF-8. Every operation but
/// opening and saving costs constant time, whatever the count of sections.
class IniFile
{
public:
    enum class Purpose { Reading, Writing };

    /// Reads `path` once; a missing file is an empty one, and so is for writing what lies behind a foreign
    /// link. Throws RuntimeError for a file that exists and cannot be read.
    explicit IniFile(const QString &path, Purpose purpose = Purpose::Reading);

    /// The value, cut at `limit` characters, or `fallback` if section or key are missing.
    QString read(const QString &section, const QString &key, const QString &fallback = {},
                 int limit = std::numeric_limits<int>::max()) const;
    /// Sets a value in memory. Line ends in it become blanks. The caller puts values whose outer blanks or
    /// quotes count into double quotes.
    void write(const QString &section, const QString &key, const QString &value);
    /// Writes the file atomically, if anything changed. Throws RuntimeError as writeFileAtomically.
    void save();

private:
    /// The lines of a section with their line ends, the header first. Section 0 is what stands before any
    /// header.
    using Lines = std::vector<QByteArray>;

    void makeRoomFor(const QString &text);
    void parse(const QByteArray &bytes);
    void addLine(const QByteArray &line);
    int addSection(const QString &name);
    QString decode(const QByteArray &bytes) const;
    QByteArray encode(const QString &text) const;

    QString path_;
    TextEncoding encoding_ = TextEncoding::Windows1252; ///< never Utf16
    bool marked_ = false;                               ///< begins with the mark of UTF-8
    bool changed_ = false;
    std::vector<Lines> sections_;
    QHash<QString, int> sectionIndex_;             ///< folded name to its first section
    QHash<std::pair<int, QString>, int> keyIndex_; ///< section and folded key to the key's first line
};
