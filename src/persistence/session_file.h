// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "board/tiles/tile_store.h"

#include <functional>

class IniFile;

/// The session file `.wlx`: an ini file with a section a tile. Saving over an older session replaces its
/// values key by key; sections behind the new count stay as dead text, which the count keeps readers from.
namespace session_file {

struct Tile
{
    Int16 left;
    Int16 top;
    QString caption;
    Colour back = 0;
    Colour text = 0;
};

/// Puts tiles, their count and the name of the stem list (a base name) into `file`, which the caller saves.
void write(IniFile &file, const TileList &tiles, const QString &lexiconInUse);

/// Hands out the tiles in their order. A section with an empty value is passed over in silence; a type that
/// is none of the three keeps the colours of the tile before it. Throws RuntimeError 13 or 6 at a number that
/// is none or is too large for 16 bits; the tiles before it have been handed out by then.
void readTiles(const IniFile &file, const std::function<void(const Tile &)> &take);

/// The name of the stem list, or the empty string.
QString lexiconInUse(const IniFile &file);

/// The name under which a session is put out as a web page: the file's name in capitals, ".WLX" taken out,
/// ".html" added, and cut where it would be too long for a file.
QString webExportName(const QString &path);

} // namespace session_file
