// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>

/// The popup menus as data, one row a line: level, what choosing it does (the id of a command, 0 for nothing,
/// or a submenu, whose rows follow one level deeper), caption, hint, icon, and the rule that tells when the
/// item is enabled. A caption that begins with "-" is a title strip, a plain "-" a separator. In a hint, "%"
/// stands for the caption of the dictionary's button.
namespace menu {

inline constexpr std::int8_t noIcon = -1;

enum class Rule : std::uint8_t {
    Always,
    NoGame,         ///< not while the word game runs
    NoRetype,       ///< not while words are prepared or retyped
    NoGameNoRetype, ///< neither of them
    Undo,           ///< the setting "undo" is on
    StepBack,       ///< a step can be undone
    StepForward,    ///< a step can be redone
    Klotar,         ///< always enabled, checked while the word game runs
    RetypeUser,     ///< these four: all enabled, or while one of them runs only that one, checked
    RetypeRandom,
    RetypePseudo,
    RetypeChosen,
};

enum class Opens : std::uint8_t {
    Nothing,
    Submenu,
    FreshSubmenu,  ///< its rows are built anew each time it opens
    RetypeSources, ///< `retypeMenu` takes the place of its rows when it opens
};

struct Effect
{
    constexpr Effect(int command)
        : id(command)
    {}
    constexpr Effect(Opens what)
        : opens(what)
    {}

    int id = 0;
    Opens opens = Opens::Nothing;
};

inline constexpr Effect submenu = Opens::Submenu;
inline constexpr Effect freshSubmenu = Opens::FreshSubmenu;
inline constexpr Effect retypeSources = Opens::RetypeSources;

struct Row
{
    std::int8_t level;
    Effect effect;
    const char16_t *caption;
    const char16_t *hint = u"";
    std::int8_t icon = noIcon;
    Rule rule = Rule::Always;
};

// clang-format off
inline constexpr Row mainMenu[] = {
    {1, 0,    u"-Hauptmenü"},
    {1, submenu, u"Präfix", u"", 0},
    {2, 0,    u"-Präfix"},
    {2, 101,  u"Präfix-Liste zeigen", u"gelbe Taste+Rechtsklick", 22},
    {2, 102,  u"Nur Präfixe zeigen", u"gelbe Taste+Linksklick", 0},
    {2, 105,  u"Alle Präfixe Großschreibung", u"", 26},
    {2, 103,  u"Neues Präfix eingeben", u"Umschalt+Linksklick", 8},
    {2, 108,  u"Alle Präfixe vertauschen", u"", 29},
    {2, 104,  u"Alle Präfixe entfernen", u"", 12},
    {1, submenu, u"Wortel", u"", 1},
    {2, 0,    u"-Wortel"},
    {2, 201,  u"Wortel-Liste(n) auswählen", u"Wortel-Taste+Rechtsklick", 21},
    {2, 202,  u"Wortel-Liste zeigen", u"rote Taste+Rechtsklick", 22},
    {2, 203,  u"Nur Wortele zeigen", u"rote Taste+Linksklick", 1},
    {2, 235,  u"Alle Wortele Großschreibung", u"", 26},
    {2, submenu, u"Neues Wortel einfügen"},
    {3, 0,    u"-Neues Wortel einfügen"},
    {3, 206,  u"Einfügen 1"},
    {3, 207,  u"Einfügen 2"},
    {3, 208,  u"Einfügen 3"},
    {3, 209,  u"Einfügen 4"},
    {3, 210,  u"Einfügen 5"},
    {3, 211,  u"Einfügen 10"},
    {3, 212,  u"Einfügen 15"},
    {3, 213,  u"Voreingestellte Anzahl", u"Wortel-Taste+Linksklick"},
    {2, submenu, u"Neues Wortel hinzufügen"},
    {3, 0,    u"-Neues Wortel hinzufügen"},
    {3, 216,  u"Hinzufügen 1", u"Strg+A"},
    {3, 217,  u"Hinzufügen 2"},
    {3, 218,  u"Hinzufügen 3"},
    {3, 219,  u"Hinzufügen 4"},
    {3, 220,  u"Hinzufügen 5"},
    {3, 221,  u"Hinzufügen 10"},
    {3, 222,  u"Hinzufügen 15"},
    {3, 223,  u"Hinzufügen: voreingestellte Anzahl"},
    {2, 204,  u"Neues Wortel schreiben", u"Strg+Linksklick", 8},
    {2, 236,  u"Alle Wortele vertauschen", u"Strg+F", 29},
    {2, 240,  u"Alle Wortele ersetzen", u"Strg+E"},
    {2, 241,  u"Alle Wortele ohne Überdeckung platzieren", u"Strg+D", 30},
    {2, submenu, u"Alle Wortele anordnen", u"", 35},
    {3, 0,    u"-Alle Wortele anordnen"},
    {3, 260,  u"Alphabetisch [Doppelte entfernen]"},
    {3, 261,  u"Alphabetisch", u"Strg+B"},
    {3, 264,  u"Unsortiert"},
    {2, 234,  u"Alle Wortele entfernen", u"", 12},
    {1, submenu, u"Suffix", u"", 2},
    {2, 0,    u"-Suffix"},
    {2, 301,  u"Suffix-Liste zeigen", u"blaue Taste+Rechtsklick", 22},
    {2, 302,  u"Nur Suffixe zeigen", u"blaue Taste+Linksklick", 2},
    {2, 303,  u"Neues Suffix eingeben", u"Alt+Linksklick", 8},
    {2, 308,  u"Alle Suffixe vertauschen", u"", 29},
    {2, 304,  u"Alle Suffixe entfernen", u"", 12},
    {1, submenu, u"Alle Morpheme", u"", 19},
    {2, 0,    u"-Alle Morpheme"},
    {2, 1501, u"Alle 3 Listen zeigen", u"", 22},
    {2, 1502, u"Alle Morpheme zeigen", u"", 19},
    {2, 1504, u"Alle Morpheme vertauschen", u"", 29},
    {2, 1522, u"Alle Morpheme ohne Überdeckung platzieren [Doppelte entfernen]", u"", 30},
    {2, 1505, u"Alle Morpheme ohne Überdeckung platzieren"},
    {2, 1503, u"Alle Morpheme entfernen", u"", 12},
    {2, 1513, u"Alle Morpheme einpassen"},
    {2, submenu, u"Größe"},
    {3, 0,    u"-Größe"},
    {3, 1510, u"Größer", u"Strg++"},
    {3, 1511, u"Kleiner", u"Strg+-"},
    {3, 1512, u"Automatisch", u"Strg+0"},
    {1, submenu, u"Wörterbuch", u"", 9, Rule::NoGameNoRetype},
    {2, 0,    u"-Wörterbuch"},
    {2, 401,  u"Zeigen", u"Linksklick auf %", 10},
    {2, 402,  u"Laden", u"Rechtsklick auf %", 21},
    {1, submenu, u"Wörterliste", u"", 3, Rule::NoGameNoRetype},
    {2, 0,    u"-Wörterliste"},
    {2, 501,  u"Zeigen", u"Linksklick auf Haken", 14},
    {2, 502,  u"Kopieren", u"", 20},
    {2, 503,  u"Speichern", u"Rechtsklick auf Haken", 17},
    {2, 504,  u"Drucken", u"", 24},
    {2, 506,  u"Bearbeiten", u"Rechtsklick auf Liste", 25},
    {1, 601,  u"Wortkontrolle", u"", 7},
    {1, retypeSources, u"Abschreiben", u"", 27, Rule::NoGame},
    {2, 0,    u"-Abschreiben"},
    {2, 1600, u"Wörterliste", u"Linksklick auf Abschreiben"},
    {2, 1601, u"Wörterbuch alle", u"Rechtsklick auf Abschreiben"},
    {2, 1602, u"Wörterbuch Kleinschr."},
    {2, 1603, u"Wörterbuch Großschr."},
    {2, 1604, u"Wörterbuch mit Präfix"},
    {2, 1605, u"Wörterbuch mit Wortel"},
    {2, 1606, u"Wörterbuch mit Suffix"},
    {2, 1607, u"Unsinnswörter", u"Umschalt+Rechtsklick auf Abschreiben"},
    {2, 1608, u"Ausgewählte Wörter"},
    {1, freshSubmenu, u"S p i e l e", u"", 4, Rule::NoRetype},
    {2, 701,  u"Klotar", u"Linksklick auf Stoppuhr", noIcon, Rule::Klotar},
    {2, submenu, u"Paarlon"},
    {3, 0,    u"-Paarlon"},
    {3, 150,  u"Präfix", u"", 0},
    {3, 250,  u"Wortel", u"", 1},
    {3, 350,  u"Suffix", u"", 2},
    {2, 1701, u"Kernling", u"", noIcon, Rule::NoGame},
    {2, submenu, u"Tonarin", u"", noIcon, Rule::NoGame},
    {3, 0,    u"-Tonarin"},
    {3, 1702, u"Kurzvokale"},
    {3, 1703, u"Langvokale"},
    {1, submenu, u"Bestenliste", u"", 13},
    {2, 0,    u"-Bestenliste"},
    {2, submenu, u"Klotar"},
    {3, 0,    u"-Klotar"},
    {3, 2900, u"Zeigen", u"", 11},
    {3, 2901, u"Zurücksetzen", u"", 12},
    {2, submenu, u"Paarlon"},
    {3, 0,    u"-Paarlon"},
    {3, 2902, u"Wortel zeigen", u"", 11},
    {3, 2903, u"Wortel zurücksetzen", u"", 12},
    {3, 0,    u"-"},
    {3, 2904, u"Präfix zeigen"},
    {3, 2905, u"Präfix zurücksetzen"},
    {3, 0,    u"-"},
    {3, 2906, u"Suffix zeigen"},
    {3, 2907, u"Suffix zurücksetzen"},
    {2, submenu, u"Kernling"},
    {3, 0,    u"-Kernling"},
    {3, 3104, u"Zeigen", u"", 11},
    {3, 3105, u"Zurücksetzen", u"", 12},
    {2, submenu, u"Tonarin"},
    {3, 0,    u"-Tonarin"},
    {3, 3106, u"Zeigen", u"", 11},
    {3, 3107, u"Zurücksetzen", u"", 12},
    {1, submenu, u"Rechtschreib-Tipp", u"", 32},
    {2, 0,    u"-Rechtschreib-Tipp"},
    {2, 275,  u"Tipp zeigen", u"Strg+H", 32},
    {1, submenu, u"Sitzung", u"", 17},
    {2, 0,    u"-Sitzung"},
    {2, 1901, u"Sitzung laden", u"", 21, Rule::NoGameNoRetype},
    {2, 1903, u"Sitzung speichern als", u"", 17},
    {2, 0,    u"-"},
    {2, 1907, u"Sitzung speichern als Webseite", u"", 28},
    {2, 0,    u"-"},
    {2, 1904, u"Sitzung drucken", u"", 24, Rule::NoGameNoRetype},
    {2, 1905, u"Drucker Einstellungen"},
    {1, freshSubmenu, u"Aktion", u"", noIcon, Rule::Undo},
    {2, 0,    u"-Aktion"},
    {2, 2801, u"Rückgängig machen", u"Strg+I", 33, Rule::StepBack},
    {2, 2802, u"Wiederholen", u"Strg+J", 34, Rule::StepForward},
    {1, 901,  u"Optionen", u"", 5, Rule::NoGameNoRetype},
    {1, submenu, u"Hilfe", u"", 16},
    {2, 0,    u"-Hilfe"},
    {2, 1001, u"Inhalt", u"F1", 15},
    {2, 1003, u"Über Wortel-Meister...", u"", 16},
    {1, 0,    u"Menü schließen", u"ESC"},
    {1, 1906, u"Beenden", u"", 6},
};

/// What "Abschreiben" holds once it opens.
inline constexpr Row retypeMenu[] = {
    {1, 0,    u"-Abschreiben"},
    {1, 1600, u"Wörterliste", u"Linksklick auf Abschreiben", noIcon, Rule::RetypeUser},
    {1, 1601, u"Wörterbuch", u"Rechtsklick auf Abschreiben", noIcon, Rule::RetypeRandom},
    {1, 1607, u"Unsinnswörter", u"Umschalt+Rechtsklick auf Abschreiben", noIcon, Rule::RetypePseudo},
    {1, 1608, u"Ausgewählte Wörter", u"", noIcon, Rule::RetypeChosen},
};

/// The rows that the menus of all kinds of tile share; "PrefixMenu" and "WortelMenu" have the capitals before them.
inline constexpr Row tileMenu[] = {
    {1, submenu, u"Kopien hinzufügen", u"", 20},
    {2, 0,    u"-Kopien hinzufügen"},
    {2, 116,  u"Hinzufügen 1", u"Umschalt+Rechtsklick"},
    {2, 117,  u"Hinzufügen 2"},
    {2, 118,  u"Hinzufügen 3"},
    {2, 119,  u"Hinzufügen 4"},
    {2, 120,  u"Hinzufügen 5"},
    {2, 121,  u"Hinzufügen 10"},
    {2, 122,  u"Hinzufügen 15"},
    {2, 123,  u"Hinzufügen: voreingestellte Anzahl"},
    {1, 104,  u"Bearbeiten", u"", 25},
    {1, 105,  u"Entfernen", u"Strg+Rechtsklick", 12},
    {1, 0,    u"Menü schließen", u"ESC"},
};
inline constexpr Row capitalsRow[] = {{1, 106, u"Groß/klein schreiben", u"", 26}};
inline constexpr Row prefixHead[] = {{1, 0, u"-Präfix", u"", 56}};
inline constexpr Row wortelHead[] = {{1, 0, u"-Wortel", u"", 52}};
inline constexpr Row suffixHead[] = {{1, 0, u"-Suffix", u"", 51}};
// clang-format on

} // namespace menu
