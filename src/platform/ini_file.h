// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

/// Private-profile ini files (Windows-1252) with the semantics of the platform the program was made for: keys and sections without
/// regard to case, the first one wins, a value in double quotes loses them on reading, a write replaces the key's value in place, appends it
/// to its section or appends the section, and leaves every other line as it is. Writes are atomic.
class IniFile
{
public:
    /// Reads `path` once; a missing file is an empty one. Throws RuntimeError for a file that exists and cannot be read.
    explicit IniFile(const QString &path);

    /// The value, cut at `limit` characters, or `fallback` if section or key are missing.
    QString read(const QString &section, const QString &key, const QString &fallback = {}, int limit = 750) const;
    /// Sets a value in memory. Line ends in it become blanks.
    void write(const QString &section, const QString &key, const QString &value);
    /// Writes the file atomically, if anything changed. Throws RuntimeError as writeFileAtomically.
    void save();

private:
    struct Line;
    // the implementer chooses: lines in order with an index of sections and keys, so that 100,000 sections cost no quadratic time
};
