// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "board/tiles/tile_store.h"

#include <QByteArray>

#include <cstdint>
#include <vector>

/// One element of the array `MyObj`: a tile as the backup file holds it.
struct BackupRecord
{
    QString key;
    char type = 0; ///< 'P', 'M' or 'S'; 0 in the empty record
    std::int32_t left = 0;
    std::int32_t top = 0;
    QString caption;
    Int16 index;
};

/// The array that stands between the board and the backup file. It begins with an empty element 0, which is
/// written too.
class MyObj
{
public:
    MyObj()
        : elements_(1)
    {}

    const std::vector<BackupRecord> &elements() const { return elements_; }
    /// Grows the array by one element, which gets its number as index. Throws RuntimeError 6 beyond 32,767.
    void AddElementToMyObj(const QString &key, char type, std::int32_t left, std::int32_t top,
                           const QString &caption);
    /// Adds all tiles of the three kinds, keyed "M1", "M2" and so on by their place among all tiles.
    void addTiles(const TileList &tiles);

private:
    std::vector<BackupRecord> elements_;
};

/// The backup's bytes: records one after the other, little-endian, texts in Windows-1252 with their length
/// before them.
namespace backup_file {

/// A reader takes this many records and no more, so that a larger backup loses the rest.
inline constexpr int largestCount = 2001;

QByteArray encode(const MyObj &array);
/// The records up to the end of the bytes; a record that is cut short counts as the end.
std::vector<BackupRecord> decode(const QByteArray &bytes);

} // namespace backup_file
