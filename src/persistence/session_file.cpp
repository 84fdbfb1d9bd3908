// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "persistence/session_file.h"

#include "platform/files.h"
#include "platform/ini_file.h"
#include "platform/text.h"

using namespace Qt::StringLiterals;

namespace {

QString sectionOf(int number) { return u"Morpheme"_s + QString::number(number); }

Int16 toInt16(const QString &text) { return Int16(CInt(CDbl(text))); }

} // namespace

void session_file::write(IniFile &file, const TileList &tiles, const QString &lexiconInUse)
{
    int number = 0;
    for (const auto &tile : tiles) {
        const QString section = sectionOf(++number);
        // A tile of a colour that no kind has gets no type, so that readers pass it over.
        if (const TileKind *kind = kindOfColour(tile->BGColor))
            file.write(section, u"Type"_s, QString::fromUtf16(kind->sessionWord));
        file.write(section, u"Left"_s, QString::number(tile->xLeft()));
        file.write(section, u"Top"_s, QString::number(tile->yTop()));
        file.write(section, u"Caption"_s, u'"' + tile->txt + u'"');
    }
    file.write(u"NumObjects"_s, u"ObjCounter"_s, QString::number(number));
    file.write(u"Name"_s, u"LexiconInUse"_s, lexiconInUse);
}

void session_file::readTiles(const IniFile &file, const std::function<void(const Tile &)> &take)
{
    const int count = toInt16(file.read(u"NumObjects"_s, u"ObjCounter"_s, u"0"_s));
    Tile tile;
    for (int number = 1; number <= count; ++number) {
        const QString section = sectionOf(number);
        const QString type = file.read(section, u"Type"_s);
        const QString left = file.read(section, u"Left"_s);
        const QString top = file.read(section, u"Top"_s);
        tile.caption = file.read(section, u"Caption"_s);
        if (type.isEmpty() || left.isEmpty() || top.isEmpty() || tile.caption.isEmpty())
            continue;
        if (const TileKind *kind = kindOfWord(type)) {
            tile.back = kind->back;
            tile.text = kind->text;
        }
        tile.left = toInt16(left);
        tile.top = toInt16(top);
        take(tile);
    }
}

QString session_file::lexiconInUse(const IniFile &file) { return file.read(u"Name"_s, u"LexiconInUse"_s); }

QString session_file::webExportName(const QString &path)
{
    constexpr qsizetype longestName = 255; // bytes, as the file system counts them
    const QString ending = u".html"_s;
    QString name = UCase(GetOnlyFileName(path)).remove(u".WLX"_s);
    while ((name + ending).toUtf8().size() > longestName)
        name.chop(1);
    return name + ending;
}
