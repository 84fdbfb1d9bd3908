// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "fuzz/targets.h"
#include "persistence/session_file.h"
#include "platform/ini_file.h"
#include "platform/runtime_error.h"

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

/// A tile without a kind is not written so that it is read again, nor is half a character.
bool canBeKept(const cWortel &tile)
{
    return kindOfColour(tile.BGColor) != nullptr && tile.txt.isValidUtf16();
}

} // namespace

void fuzz::session(const QByteArray &bytes)
{
    const IniFile file(asFile(bytes));
    const QString name = session_file::lexiconInUse(file);
    TileList tiles = read(file);
    std::erase_if(tiles, [](const auto &tile) { return !canBeKept(*tile); });

    const QString path = freshFile();
    IniFile copy(path);
    session_file::write(copy, tiles, name);
    copy.save();
    const TileList again = read(IniFile(path));
    promise(again.size() == tiles.size(), "as many tiles as were written");
    for (std::size_t i = 0; i < tiles.size(); ++i)
        promise(tiles[i]->txt == again[i]->txt && tiles[i]->xLeft() == again[i]->xLeft() &&
                    tiles[i]->yTop() == again[i]->yTop() && tiles[i]->BGColor == again[i]->BGColor,
                "a tile is read as it was written");
}
