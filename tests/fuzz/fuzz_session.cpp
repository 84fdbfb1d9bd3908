// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "fuzz/targets.h"
#include "output/web/session_texts.h"
#include "output/web/web_page.h"
#include "persistence/session_file.h"
#include "platform/files.h"
#include "platform/ini_file.h"
#include "platform/runtime_error.h"

#include <algorithm>

using namespace Qt::StringLiterals;

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

/// The walk through the lines finds what reading key by key finds.
void compareWithKeys(const QString &path)
{
    const IniFile file(path);
    const SessionTexts texts(path);
    for (int number = 1; number <= 12; ++number)
        for (const auto &[key, value] : {std::pair{u"Type"_s, &SessionTexts::Tile::type},
                                         {u"Left"_s, &SessionTexts::Tile::left},
                                         {u"Top"_s, &SessionTexts::Tile::top},
                                         {u"Caption"_s, &SessionTexts::Tile::caption}}) {
            const SessionTexts::Tile *tile = texts.tile(number);
            fuzz::promise(file.read(u"Morpheme%1"_s.arg(number), key) ==
                              (tile != nullptr ? texts.text(tile->*value) : QString()),
                          "both ways of reading agree");
        }
    const QString count = file.read(u"NumObjects"_s, u"ObjCounter"_s);
    fuzz::promise(count.isEmpty() || count == texts.count(), "both ways of counting agree");
}

/// Whatever the session holds, its web page has the tags that the program writes and no others.
void lookAtPage(const QString &session)
{
    constexpr auto tagsOfTile = 10;
    constexpr auto tagsAround = 18;
    constexpr auto tagsOfScripts = 5;
    WebPage page;
    page.session = session;
    page.file = fuzz::freshFile();
    MakeWebpage(page);
    const QByteArray html = ReadWholeFile(page.file);
    const qsizetype around = html.count('<') - tagsOfTile * html.count("id= \"Word");
    fuzz::promise(around == tagsAround || around == tagsAround - tagsOfScripts, "no tags but the page's own");
    fuzz::promise(std::all_of(html.begin(), html.end(), [](char c) { return c > 0; }), "nothing but ASCII");
}

} // namespace

void fuzz::session(const QByteArray &bytes)
{
    const QString path = asFile(bytes);
    compareWithKeys(path);
    lookAtPage(path);
    const IniFile file(path);
    const QString name = session_file::lexiconInUse(file);
    TileList tiles = read(file);
    std::erase_if(tiles, [](const auto &tile) { return !canBeKept(*tile); });

    const QString beside = freshFile();
    IniFile copy(beside);
    session_file::write(copy, tiles, name);
    copy.save();
    const TileList again = read(IniFile(beside));
    promise(again.size() == tiles.size(), "as many tiles as were written");
    for (std::size_t i = 0; i < tiles.size(); ++i)
        promise(tiles[i]->txt == again[i]->txt && tiles[i]->xLeft() == again[i]->xLeft() &&
                    tiles[i]->yTop() == again[i]->yTop() && tiles[i]->BGColor == again[i]->BGColor,
                "a tile is read as it was written");
}
