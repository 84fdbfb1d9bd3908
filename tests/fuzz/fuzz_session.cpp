// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "fuzz/targets.h"
#include "persistence/session_file.h"
#include "platform/ini_file.h"
#include "platform/runtime_error.h"
#include "platform/windows1252.h"

namespace {

TileList read(const IniFile &file)
{
    TileList tiles;
    try {
        session_file::readTiles(file, [&](const session_file::Tile &found) {
            auto tile = std::make_unique<cWortel>();
            tile->txt = found.caption;
            tile->BGColor = found.back;
            tile->TxtColor = found.text;
            tile->setXLeft(found.left);
            tile->setYTop(found.top);
            tiles.push_back(std::move(tile));
        });
    } catch (const RuntimeError &) {
        // told to the user; the tiles before the fault stay
    }
    return tiles;
}

/// A session is written in Windows-1252, and a tile without a kind is not written so that it is read again.
bool canBeKept(const cWortel &tile)
{
    return kindOfColour(tile.BGColor) != nullptr && windows1252::encode(tile.txt).has_value();
}

} // namespace

void fuzz::session(const QByteArray &bytes)
{
    const IniFile file(asFile(bytes));
    const QString name = session_file::lexiconInUse(file);
    TileList tiles = read(file);
    std::erase_if(tiles, [](const auto &tile) { return !canBeKept(*tile); });

    IniFile copy(freshFile());
    session_file::write(copy, tiles, name);
    const TileList again = read(copy);
    promise(again.size() == tiles.size(), "as many tiles as were written");
    for (std::size_t i = 0; i < tiles.size(); ++i)
        promise(tiles[i]->txt == again[i]->txt && tiles[i]->xLeft() == again[i]->xLeft() &&
                    tiles[i]->yTop() == again[i]->yTop() && tiles[i]->BGColor == again[i]->BGColor,
                "a tile is read as it was written");
}
