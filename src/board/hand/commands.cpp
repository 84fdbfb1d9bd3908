// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "board/hand/commands.h"

#include <array>

namespace command {
namespace {

constexpr std::int16_t wortel = 0;
constexpr std::int16_t prefix = 1;
constexpr std::int16_t suffix = 2;
constexpr std::int16_t allKinds = 3;

constexpr auto Tile = From::TileMenu;
constexpr auto Main = From::MainMenu;
constexpr auto Other = Does::OtherRoom;

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
    {Tile, 104,  Does::EditTile, 0, Commits | Recalls, 0, u"Bearbeiten"},
    {Tile, 105,  Does::RemoveTile, 0, Commits | Recalls, 0, u"Entfernen"},
    {Tile, 106,  Does::ToggleCapitals, 0, Commits | Recalls, 0, u"Großschreibung"},
    {Tile, 116,  Does::CopyTile, 1, Commits, 0, oneCopy},
    {Tile, 117,  Does::CopyTile, 2, Commits, 0, copies},
    {Tile, 118,  Does::CopyTile, 3, Commits, 0, copies},
    {Tile, 119,  Does::CopyTile, 4, Commits, 0, copies},
    {Tile, 120,  Does::CopyTile, 5, Commits, 0, copies},
    {Tile, 121,  Does::CopyTile, 10, Commits, 0, u"10 Kopien Hinzufügen"},
    {Tile, 122,  Does::CopyTile, 15, Commits, 0, u"15 Kopien Hinzufügen"},
    {Tile, 123,  Does::CopyTile, presetNumber, Commits, 0, u"Ben. def. Anzahl Kopien Hinzufügen"},

    {Main, 101,  Does::ShowList, prefix, None, 0, u"Präfix-Liste zeigen"},
    {Main, 202,  Does::ShowList, wortel, None, 0, u"Wortel-Liste zeigen"},
    {Main, 301,  Does::ShowList, suffix, None, 0, u"Suffix-Liste zeigen"},
    {Main, 102,  Does::SelectFilter, prefix, None, 0, u"Nur Präfixe zeigen"},
    {Main, 203,  Does::SelectFilter, wortel, None, 0, u"Nur Wortele zeigen"},
    {Main, 302,  Does::SelectFilter, suffix, None, 0, u"Nur Suffixe zeigen"},
    {Main, 103,  Does::Insert, prefix, Commits | Recalls, 123, u"Neues Präfix"},
    {Main, 204,  Does::Insert, wortel, Commits | Recalls, 123, u"Neues Wortel"},
    {Main, 303,  Does::Insert, suffix, Commits | Recalls, 123, u"Neues Suffix"},
    {Main, 201,  Other, 0, None, 0, u"Wortel-Liste(n) auswählen "},
    {Main, 206,  Does::Refill, 1, Commits, 120, u"Einfügen 1"},
    {Main, 207,  Does::Refill, 2, Commits, 120, u"Einfügen 2"},
    {Main, 208,  Does::Refill, 3, Commits, 120, u"Einfügen 3"},
    {Main, 209,  Does::Refill, 4, Commits, 120, u"Einfügen 4"},
    {Main, 210,  Does::Refill, 5, Commits, 120, u"Einfügen 5"},
    {Main, 211,  Does::Refill, 10, Commits, 120, u"Einfügen 10"},
    {Main, 212,  Does::Refill, 15, Commits, 120, u"Einfügen 15"},
    {Main, 213,  Does::Refill, presetNumber, Commits, 120, u"Einfügen Ben. def. Anzahl"},
    {Main, 216,  Does::AddOneWortel, 0, Commits, 120, u"Hinzufügen 1"},
    {Main, 217,  Does::AddRandom, 2, Commits, 120, u"Hinzufügen 2"},
    {Main, 218,  Does::AddRandom, 3, Commits, 120, u"Hinzufügen 3"},
    {Main, 219,  Does::AddRandom, 4, Commits, 120, u"Hinzufügen 4"},
    {Main, 220,  Does::AddRandom, 5, Commits, 120, u"Hinzufügen 5"},
    {Main, 221,  Does::AddRandom, 10, Commits, 120, u"Hinzufügen 10"},
    {Main, 222,  Does::AddRandom, 15, Commits, 120, u"Hinzufügen 15"},
    {Main, 223,  Does::AddRandom, presetNumber, Commits, 120, u"Hinzufügen Ben. def. Anzahl"},

    {Main, 234,  Does::EraseKind, wortel, Commits, 122, u"Alle Wortele entfernen", Needs::Wortel, u"Es gibt keine Wortele zu entfernen", Asks::Removal, u"Alle Wortele entfernen?"},
    {Main, 104,  Does::EraseKind, prefix, Commits, 122, u"Alle Präfixe entfernen", Needs::Prefix, u"Es gibt keine Präfixe zu entfernen", Asks::Removal, u"Alle Präfixe entfernen?"},
    {Main, 304,  Does::EraseKind, suffix, Commits, 122, u"Alle Suffixe entfernen", Needs::Suffix, u"Es gibt keine Suffixe zu entfernen", Asks::Removal, u"Alle Suffixe entfernen?"},
    {Main, 105,  Does::CapitalsOfKind, prefix, Commits, 0, u"Alle Präfixe Großschreibung", Needs::Prefix, u"Es sind keine Präfixe auf dem Bildschirm"},
    {Main, 235,  Does::CapitalsOfKind, wortel, Commits, 0, u"Alle Wortele Großschreibung", Needs::Wortel, u"Es sind keine Wortele auf dem Bildschirm"},
    {Main, 108,  Does::ShuffleKind, prefix, Commits | SoundFirst, 109, u"Alle Präfixe vertauschen", Needs::Prefix, u"Es gibt keine Präfixe zu vertauschen"},
    {Main, 308,  Does::ShuffleKind, suffix, Commits | SoundFirst, 109, u"Alle Suffixe vertauschen", Needs::Suffix, u"Es gibt keine Suffixe zu vertauschen"},
    {Main, 236,  Does::ShuffleKind, wortel, Commits, 109, u"Alle Wortele vertauschen", Needs::Wortel, nothingToShuffle},
    {Main, 240,  Does::ReplaceAllWortel, 0, None, 109, u"Alle Wortele ersetzen", Needs::Wortel, nothingToReplace, Asks::Always, askReplace},
    {Main, 241,  Does::SpreadWortel, 0, Commits, 0, u"Alle Wortele Ohne Überdeckung platzieren", Needs::Wortel, nothingToPlace, Asks::Always, askPlace},
    {Main, 260,  Does::LineUp, 2, Commits, 109, nullptr, Needs::Wortel, nothingToLineUp},
    {Main, 261,  Does::LineUp, 1, Commits, 109, nullptr, Needs::Wortel, nothingToLineUp},
    {Main, 264,  Does::LineUp, 0, Commits, 109, nullptr, Needs::Wortel, nothingToLineUp},
    {Main, 275,  Does::ShowTip, 275, None, 0, nullptr},

    {Main, 150,  Other, 0, Recalls | RebuildsMenus, 0, nullptr},
    {Main, 250,  Other, 0, Recalls | RebuildsMenus, 0, nullptr},
    {Main, 350,  Other, 0, Recalls | RebuildsMenus, 0, nullptr},
    {Main, 401,  Other, 0, None, 0, u"Wörterbuch Zeigen"},
    {Main, 402,  Other, 0, None, 0, u"Wörterbuch Laden"},
    {Main, 501,  Other, 0, None, 0, u"Wörterliste Zeigen"},
    {Main, 502,  Other, 0, None, 0, u"Wörterliste Kopieren"},
    {Main, 503,  Other, 0, None, 0, u"Wörterliste Speichern"},
    {Main, 504,  Other, 0, None, 0, u"Wörterliste Drucken"},
    {Main, 506,  Other, 0, None, 0, u"Wörterliste Bearbeiten"},
    {Main, 601,  Other, 0, None, 0, u"Wortkontrolle"},
    {Main, 701,  Other, 0, None, 0, u"Spielmodus Aktiviert/Nicht Aktiviert"},
    {Main, 1600, Other, 0, RebuildsMenus, 0, u"Abschreiben Wörterliste"},
    {Main, 1601, Other, 0, RebuildsMenus, 0, u"Wörterbuch abscreiben"},
    {Main, 1602, Other, 0, None, 0, nullptr},
    {Main, 1603, Other, 0, None, 0, nullptr},
    {Main, 1604, Other, 0, None, 0, nullptr},
    {Main, 1605, Other, 0, None, 0, nullptr},
    {Main, 1606, Other, 0, None, 0, nullptr},
    {Main, 1607, Other, 0, RebuildsMenus, 0, u"Pseudowörter abschreiben"},
    {Main, 1608, Other, 0, RebuildsMenus, 0, u"Benützerdefinierte Wörter abschreiben"},
    {Main, 1701, Other, 0, NotInGame, 0, nullptr},
    {Main, 1702, Other, 0, NotInGame, 0, nullptr},
    {Main, 1703, Other, 0, NotInGame, 0, nullptr},
    {Main, 2900, Other, 0, NotInGame | SelectsAll, 0, u"Bestenliste Zeigen"},
    {Main, 2901, Other, 0, NotInGame, 0, u"Bestenliste Zurücksetzen"},
    {Main, 2902, Other, 0, NotInGame | SelectsAll, 0, nullptr},
    {Main, 2903, Other, 0, NotInGame, 0, nullptr},
    {Main, 2904, Other, 0, NotInGame | SelectsAll, 0, nullptr},
    {Main, 2905, Other, 0, NotInGame, 0, nullptr},
    {Main, 2906, Other, 0, NotInGame | SelectsAll, 0, nullptr},
    {Main, 2907, Other, 0, NotInGame, 0, nullptr},
    {Main, 3104, Other, 0, NotInGame, 0, u"Bestenliste Vokale Zeigen"},
    {Main, 3105, Other, 0, NotInGame, 0, u"Bestenliste Vokale Zurücksetzen"},
    {Main, 3106, Other, 0, NotInGame, 0, u"Bestenliste Vokale Zeigen"},
    {Main, 3107, Other, 0, NotInGame, 0, u"Bestenliste Vokale Zurücksetzen"},
    {Main, 901,  Other, 0, Recalls, 0, u"Optionen Zeigen"},
    {Main, 1001, Other, 0, None, 0, u"Hilfe Inhalt"},
    {Main, 1003, Other, 0, SelectsAll, 0, u"Über Wortel..."},

    {Main, 1501, Does::ToggleLists, 0, None, 0, u"Alle 3 Listen zeigen"},
    {Main, 1502, Does::SelectFilter, allKinds, None, 0, u"Alle Morpheme zeigen"},
    {Main, 1503, Does::EraseAll, 0, Commits, 122, u"Alle Morpheme entfernen", Needs::AnyTile, nothingToRemove, Asks::RemoveAll, u"Alle Morpheme entfernen?"},
    {Main, 1504, Does::ShuffleAll, 0, SoundFirst, 109, nullptr, Needs::Wortel, noTiles},
    {Main, 1505, Does::SpreadAll, 0, Commits, 0, nullptr, Needs::AnyTile, nothingToSpread},
    {Main, 1522, Does::SpreadAll, 1, Commits, 0, nullptr, Needs::AnyTile, nothingToSpread},
    {Main, 1901, Other, 0, None, 0, u"Sitzung laden"},
    {Main, 1903, Other, 0, None, 0, u"Sitzung speichern als"},
    {Main, 1904, Other, 0, None, 0, u"Drucken"},
    {Main, 1905, Other, 0, None, 0, u"Drucker Einstellungen"},
    {Main, 1906, Other, 0, None, 0, u"Program Beenden"},
    {Main, 1907, Other, 0, None, 0, u"Sitzung speichern als webseite"},
    {Main, 2801, Other, 0, None, 0, nullptr},
    {Main, 2802, Other, 0, None, 0, nullptr},

    {From::Key, 1,  Does::AddWortelFree, 0, Commits | Recalls, 0, nullptr},
    {From::Key, 2,  Does::LineUp, 1, None, 0, u"Wortele Alphabetisch Anordnen (keep duplicates)", Needs::Wortel, nothingToLineUp},
    {From::Key, 4,  Does::SpreadWortel, 0, None, 0, u"Alle Wortele Ohne Überdeckung platzieren", Needs::Wortel, nothingToPlace, Asks::Always, askPlace},
    {From::Key, 5,  Does::ReplaceAllWortel, 0, BacksUp, 109, u"Alle Wortele ersetzen", Needs::Wortel, nothingToReplace, Asks::Always, askReplace},
    {From::Key, 6,  Does::ShuffleKind, wortel, Commits | SoundFirst, 109, u"Alle Wortele vertauschen", Needs::Wortel, nothingToShuffle},
    {From::Key, 8,  Does::ShowTip, 275, None, 0, nullptr},
    {From::Key, 9,  Other, 2801, StepBack, 0, nullptr},
    {From::Key, 10, Other, 2802, StepForward, 0, nullptr},
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
