// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "board/hand/commands.h"

#include <array>

namespace command {
namespace {

constexpr std::int16_t wortel = 0;
constexpr std::int16_t prefix = 1;
constexpr std::int16_t suffix = 2;

constexpr auto Tile = From::TileMenu;
constexpr auto Main = From::MainMenu;
constexpr auto Key = From::Key;

constexpr const char16_t *oneCopy = u"Kopie Hinzufügen";
constexpr const char16_t *copies = u"Kopien Hinzufügen";
constexpr const char16_t *noTiles = u"Es sind keine Morpheme auf dem Bildschirm";
constexpr const char16_t *nothingToRemove = u"Es gibt keine Morpheme zu entfernen";
constexpr const char16_t *nothingToSpread =
    u"Es gibt keine Morpheme, die \"ohne Überdeckung\" platziert werden können";
constexpr const char16_t *nothingToLineUp = u"Es gibt keine Wortele zu anordnen";
constexpr const char16_t *nothingToShuffle = u"Es gibt keine Wortele zu vertauschen";
constexpr const char16_t *nothingToReplace = u"Es gibt keine Wortele zu ersetzen";
constexpr const char16_t *nothingToPlace = u"Es gibt keine Wortele zu platzieren";
constexpr const char16_t *askReplace = u"Alle Wortele ersetzen?";
constexpr const char16_t *askPlace = u"Alle Wortele ohne Überdeckung platzieren?";

// Two log words say something else than the menu ("abscreiben"; the vowel list for the stem game): the log
// has always read so.
// clang-format off
constexpr Command rows[] = {
    {Tile, 104, 0, Commits | Recalls, SoundId::None, u"Bearbeiten"},
    {Tile, 105, 0, Commits | Recalls, SoundId::None, u"Entfernen"},
    {Tile, 106, 0, Commits | Recalls, SoundId::None, u"Großschreibung"},
    {Tile, 116, 1, Commits, SoundId::None, oneCopy},
    {Tile, 117, 2, Commits, SoundId::None, copies},
    {Tile, 118, 3, Commits, SoundId::None, copies},
    {Tile, 119, 4, Commits, SoundId::None, copies},
    {Tile, 120, 5, Commits, SoundId::None, copies},
    {Tile, 121, 10, Commits, SoundId::None, u"10 Kopien Hinzufügen"},
    {Tile, 122, 15, Commits, SoundId::None, u"15 Kopien Hinzufügen"},
    {Tile, 123, presetNumber, Commits, SoundId::None, u"Ben. def. Anzahl Kopien Hinzufügen"},

    {Main, 101, prefix, None, SoundId::None, u"Präfix-Liste zeigen"},
    {Main, 202, wortel, None, SoundId::None, u"Wortel-Liste zeigen"},
    {Main, 301, suffix, None, SoundId::None, u"Suffix-Liste zeigen"},
    {Main, 102, prefix, None, SoundId::None, u"Nur Präfixe zeigen"},
    {Main, 203, wortel, None, SoundId::None, u"Nur Wortele zeigen"},
    {Main, 302, suffix, None, SoundId::None, u"Nur Suffixe zeigen"},
    {Main, 103, prefix, Commits | Recalls, SoundId::TileInserted, u"Neues Präfix"},
    {Main, 204, wortel, Commits | Recalls, SoundId::TileInserted, u"Neues Wortel"},
    {Main, 303, suffix, Commits | Recalls, SoundId::TileInserted, u"Neues Suffix"},
    {Main, 201, 0, None, SoundId::None, u"Wortel-Liste(n) auswählen "},
    {Main, 206, 1, Commits, SoundId::TilesAdded, u"Einfügen 1"},
    {Main, 207, 2, Commits, SoundId::TilesAdded, u"Einfügen 2"},
    {Main, 208, 3, Commits, SoundId::TilesAdded, u"Einfügen 3"},
    {Main, 209, 4, Commits, SoundId::TilesAdded, u"Einfügen 4"},
    {Main, 210, 5, Commits, SoundId::TilesAdded, u"Einfügen 5"},
    {Main, 211, 10, Commits, SoundId::TilesAdded, u"Einfügen 10"},
    {Main, 212, 15, Commits, SoundId::TilesAdded, u"Einfügen 15"},
    {Main, 213, presetNumber, Commits, SoundId::TilesAdded, u"Einfügen Ben. def. Anzahl"},
    {Main, 216, 0, Commits, SoundId::TilesAdded, u"Hinzufügen 1"},
    {Main, 217, 2, Commits, SoundId::TilesAdded, u"Hinzufügen 2"},
    {Main, 218, 3, Commits, SoundId::TilesAdded, u"Hinzufügen 3"},
    {Main, 219, 4, Commits, SoundId::TilesAdded, u"Hinzufügen 4"},
    {Main, 220, 5, Commits, SoundId::TilesAdded, u"Hinzufügen 5"},
    {Main, 221, 10, Commits, SoundId::TilesAdded, u"Hinzufügen 10"},
    {Main, 222, 15, Commits, SoundId::TilesAdded, u"Hinzufügen 15"},
    {Main, 223, presetNumber, Commits, SoundId::TilesAdded, u"Hinzufügen Ben. def. Anzahl"},

    {Main, 234, wortel, Commits, SoundId::TilesErased, u"Alle Wortele entfernen", Needs::Wortel, u"Es gibt keine Wortele zu entfernen", Asks::Removal, u"Alle Wortele entfernen?"},
    {Main, 104, prefix, Commits, SoundId::TilesErased, u"Alle Präfixe entfernen", Needs::Prefix, u"Es gibt keine Präfixe zu entfernen", Asks::Removal, u"Alle Präfixe entfernen?"},
    {Main, 304, suffix, Commits, SoundId::TilesErased, u"Alle Suffixe entfernen", Needs::Suffix, u"Es gibt keine Suffixe zu entfernen", Asks::Removal, u"Alle Suffixe entfernen?"},
    {Main, 105, prefix, Commits, SoundId::None, u"Alle Präfixe Großschreibung", Needs::Prefix, u"Es sind keine Präfixe auf dem Bildschirm"},
    {Main, 235, wortel, Commits, SoundId::None, u"Alle Wortele Großschreibung", Needs::Wortel, u"Es sind keine Wortele auf dem Bildschirm"},
    {Main, 108, prefix, Commits | SoundFirst, SoundId::TilesShuffled, u"Alle Präfixe vertauschen", Needs::Prefix, u"Es gibt keine Präfixe zu vertauschen"},
    {Main, 308, suffix, Commits | SoundFirst, SoundId::TilesShuffled, u"Alle Suffixe vertauschen", Needs::Suffix, u"Es gibt keine Suffixe zu vertauschen"},
    {Main, 236, wortel, Commits, SoundId::TilesShuffled, u"Alle Wortele vertauschen", Needs::Wortel, nothingToShuffle},
    {Main, 240, 0, Commits, SoundId::TilesShuffled, u"Alle Wortele ersetzen", Needs::Wortel, nothingToReplace, Asks::Always, askReplace},
    {Main, 241, 0, Commits, SoundId::None, u"Alle Wortele Ohne Überdeckung platzieren", Needs::Wortel, nothingToPlace, Asks::Always, askPlace},
    {Main, 260, 2, Commits, SoundId::TilesShuffled, nullptr, Needs::Wortel, nothingToLineUp},
    {Main, 261, 1, Commits, SoundId::TilesShuffled, nullptr, Needs::Wortel, nothingToLineUp},
    {Main, 264, 0, Commits, SoundId::TilesShuffled, nullptr, Needs::Wortel, nothingToLineUp},
    {Main, 275, 0, None, SoundId::None, nullptr},

    {Main, 150, 0, Recalls, SoundId::None, nullptr},
    {Main, 250, 0, Recalls, SoundId::None, nullptr},
    {Main, 350, 0, Recalls, SoundId::None, nullptr},
    {Main, 401, 0, None, SoundId::None, u"Wörterbuch Zeigen"},
    {Main, 402, 0, None, SoundId::None, u"Wörterbuch Laden"},
    {Main, 501, 0, None, SoundId::None, u"Wörterliste Zeigen"},
    {Main, 502, 0, None, SoundId::None, u"Wörterliste Kopieren"},
    {Main, 503, 0, None, SoundId::None, u"Wörterliste Speichern"},
    {Main, 504, 0, None, SoundId::None, u"Wörterliste Drucken"},
    {Main, 506, 0, None, SoundId::None, u"Wörterliste Bearbeiten"},
    {Main, 601, 0, None, SoundId::None, u"Wortkontrolle"},
    {Main, 701, 0, None, SoundId::None, u"Spielmodus Aktiviert/Nicht Aktiviert"},
    {Main, 1600, 0, NotInGame, SoundId::None, u"Abschreiben Wörterliste"},
    {Main, 1601, 0, NotInGame, SoundId::None, u"Wörterbuch abscreiben"},
    {Main, 1602, 0, None, SoundId::None, nullptr},
    {Main, 1603, 0, None, SoundId::None, nullptr},
    {Main, 1604, 0, None, SoundId::None, nullptr},
    {Main, 1605, 0, None, SoundId::None, nullptr},
    {Main, 1606, 0, None, SoundId::None, nullptr},
    {Main, 1607, 0, NotInGame, SoundId::None, u"Pseudowörter abschreiben"},
    {Main, 1608, 0, NotInGame, SoundId::None, u"Benützerdefinierte Wörter abschreiben"},
    {Main, 1701, 0, NotInGame, SoundId::None, nullptr},
    {Main, 1702, 0, NotInGame, SoundId::None, nullptr},
    {Main, 1703, 0, NotInGame, SoundId::None, nullptr},
    {Main, 2900, 0, NotInGame | SelectsAll, SoundId::None, u"Bestenliste Zeigen"},
    {Main, 2901, 0, NotInGame, SoundId::None, u"Bestenliste Zurücksetzen"},
    {Main, 2902, 0, NotInGame | SelectsAll, SoundId::None, nullptr},
    {Main, 2903, 0, NotInGame, SoundId::None, nullptr},
    {Main, 2904, 0, NotInGame | SelectsAll, SoundId::None, nullptr},
    {Main, 2905, 0, NotInGame, SoundId::None, nullptr},
    {Main, 2906, 0, NotInGame | SelectsAll, SoundId::None, nullptr},
    {Main, 2907, 0, NotInGame, SoundId::None, nullptr},
    {Main, 3104, 0, NotInGame, SoundId::None, u"Bestenliste Vokale Zeigen"},
    {Main, 3105, 0, NotInGame, SoundId::None, u"Bestenliste Vokale Zurücksetzen"},
    {Main, 3106, 0, NotInGame, SoundId::None, u"Bestenliste Vokale Zeigen"},
    {Main, 3107, 0, NotInGame, SoundId::None, u"Bestenliste Vokale Zurücksetzen"},
    {Main, 901, 0, Recalls, SoundId::None, u"Optionen Zeigen"},
    {Main, 1001, 0, Looks, SoundId::None, u"Hilfe Inhalt"},
    {Main, 1003, 0, SelectsAll, SoundId::None, u"Über Wortel..."},

    {Main, 1501, 0, None, SoundId::None, u"Alle 3 Listen zeigen"},
    {Main, 1502, allKinds, None, SoundId::None, u"Alle Morpheme zeigen"},
    {Main, 1503, 0, Commits, SoundId::TilesErased, u"Alle Morpheme entfernen", Needs::AnyTile, nothingToRemove, Asks::RemoveAll, u"Alle Morpheme entfernen?"},
    {Main, 1504, 0, Commits | SoundFirst, SoundId::TilesShuffled, nullptr, Needs::Wortel, noTiles},
    {Main, 1505, 0, Commits, SoundId::None, nullptr, Needs::AnyTile, nothingToSpread},
    {Main, 1522, 1, Commits, SoundId::None, nullptr, Needs::AnyTile, nothingToSpread},
    {Main, 1510, 0, Looks, SoundId::None, u"Größer"},
    {Main, 1511, 0, Looks, SoundId::None, u"Kleiner"},
    {Main, 1512, 0, Looks, SoundId::None, u"Größe automatisch"},
    {Main, 1513, 0, None, SoundId::None, u"Alle Morpheme einpassen"},
    {Main, 1901, 0, None, SoundId::None, u"Sitzung laden"},
    {Main, 1903, 0, None, SoundId::None, u"Sitzung speichern als"},
    {Main, 1904, 0, None, SoundId::None, u"Drucken"},
    {Main, 1905, 0, None, SoundId::None, u"Drucker Einstellungen"},
    {Main, 1906, 0, None, SoundId::None, u"Program Beenden"},
    {Main, 1907, 0, None, SoundId::None, u"Sitzung speichern als webseite"},
    {Main, 2801, 0, None, SoundId::None, nullptr},
    {Main, 2802, 0, None, SoundId::None, nullptr},

    {From::Pointer, 103, prefix, Commits | Recalls, SoundId::TileInserted, nullptr},
    {From::Pointer, 204, wortel, Commits | Recalls, SoundId::TileInserted, nullptr},
    {From::Pointer, 303, suffix, Commits | Recalls, SoundId::TileInserted, nullptr},

    {Key, 1, 0, Commits | Recalls, SoundId::None, nullptr},
    {Key, 2, 1, Commits, SoundId::None, u"Wortele Alphabetisch Anordnen (keep duplicates)", Needs::Wortel, nothingToLineUp},
    {Key, 4, 0, Commits, SoundId::None, u"Alle Wortele Ohne Überdeckung platzieren", Needs::Wortel, nothingToPlace, Asks::Always, askPlace},
    {Key, 5, 0, Commits, SoundId::TilesShuffled, u"Alle Wortele ersetzen", Needs::Wortel, nothingToReplace, Asks::Always, askReplace},
    {Key, 6, wortel, Commits | SoundFirst, SoundId::TilesShuffled, u"Alle Wortele vertauschen", Needs::Wortel, nothingToShuffle},
    {Key, 8, 0, Looks, SoundId::None, nullptr},
    {Key, 9, 0, None, SoundId::None, nullptr},
    {Key, 10, 0, None, SoundId::None, nullptr},
    {Key, 15, 0, NotInGame | NotInRetype | WhileTyping, SoundId::None, u"Sitzung laden"},
    {Key, 19, 0, WhileTyping, SoundId::None, u"Sitzung speichern als"},
    {Key, 25, 0, None, SoundId::None, nullptr},
    {Key, 26, 0, None, SoundId::None, nullptr},
};

constexpr std::array<KindWords, 3> kindWords{{
    {u"Wortel: Eingeben", u"Wortel: Bearbeiten", u"Bitte schreibe einen Wortstamm", u"Wortel entfernen?"},
    {u"Präfix: Einfügen", u"Präfix: Bearbeiten", u"Bitte schreibe ein Präfix\n(Vorsilbe)", u"Präfix entfernen?"},
    {u"Suffix: Einfügen", u"Suffix: Bearbeiten", u"Bitte schreibe ein Suffix\n(Endung)", u"Suffix entfernen?"},
}};
// clang-format on

} // namespace

std::span<const Command> table() { return rows; }

const Command *find(From from, int id)
{
    for (const Command &row : rows)
        if (row.from == from && row.id == id)
            return &row;
    return nullptr;
}

const KindWords &words(int kindIndex) { return kindWords.at(static_cast<std::size_t>(kindIndex)); }

} // namespace command
