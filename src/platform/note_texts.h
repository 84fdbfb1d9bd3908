// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

/// What short notes say, all of it in one place, in words that a child knows. "%1" stands for what it is
/// about.
namespace note {

// clang-format off
// What was done
inline constexpr char16_t saved[]           = u"Gespeichert: %1";
inline constexpr char16_t loaded[]          = u"Geladen: %1";
inline constexpr char16_t printed[]         = u"Gedruckt: %1";
inline constexpr char16_t oneWordCopied[]   = u"1 Wort kopiert";
inline constexpr char16_t wordsCopied[]     = u"%1 Wörter kopiert";
inline constexpr char16_t wordAdded[]       = u"In deiner Wörterliste: %1";
inline constexpr char16_t listCleared[]     = u"Deine Wörterliste ist jetzt leer";
inline constexpr char16_t copiedWordsBack[] = u"Alle Wörter sind wieder in deiner Liste";
inline constexpr char16_t boardRecovered[]  = u"Dein Spielfeld ist wieder da";

// What was missing
inline constexpr char16_t wordListEmpty[]   = u"Deine Wörterliste ist noch leer";
inline constexpr char16_t dictionaryEmpty[] = u"Das Wörterbuch ist leer";
inline constexpr char16_t listEmpty[]       = u"Die %1-Liste ist leer";
inline constexpr char16_t noTiles[]         = u"Auf dem Spielfeld liegen keine %1";
inline constexpr char16_t boardEmpty[]      = u"Das Spielfeld ist leer";
inline constexpr char16_t numberIsNought[]  = u"In dem Feld \"Anzahl Wortel\" steht 0";
inline constexpr char16_t kindHidden[]      = u"Zeige zuerst die %1";
inline constexpr char16_t nothingToUndo[]   = u"Es gibt nichts rückgängig zu machen";
inline constexpr char16_t nothingToRedo[]   = u"Es gibt nichts zu wiederholen";
inline constexpr char16_t undoIsOff[]       = u"Rückgängig ist in den Optionen ausgeschaltet";
inline constexpr char16_t wordFieldEmpty[]  = u"Das Wortfeld ist schon leer";
inline constexpr char16_t noWordMarked[]    = u"Klicke zuerst auf ein Wort in der Liste";
inline constexpr char16_t firstWord[]       = u"Das ist schon das erste Wort";
inline constexpr char16_t lastWord[]        = u"Das ist schon das letzte Wort";
inline constexpr char16_t noSuchWord[]      = u"Kein Wort im Wörterbuch beginnt mit \"%1\"";
inline constexpr char16_t noSound[]         = u"Zu \"%1\" gibt es keinen Ton";
inline constexpr char16_t soundsOff[]       = u"Die Töne sind in den Optionen ausgeschaltet";
inline constexpr char16_t tipIsOpen[]       = u"Der Tipp ist schon zu sehen";
inline constexpr char16_t noTileThere[]     = u"Hier liegt kein Baustein";
inline constexpr char16_t leftPressOnly[]   = u"Diese Taste hat nur einen Linksklick";
inline constexpr char16_t noRoom[]          = u"Auf dem Spielfeld ist kein Platz mehr";
inline constexpr char16_t noVowelWord[]     = u"Kein Wort deiner Wörterliste hat diesen Vokal";
inline constexpr char16_t noKnownWord[]     = u"Kein Wort deiner Wörterliste steht im Wörterbuch";

// About the size of the program and of the board
inline constexpr char16_t allSeen[]         = u"Alle Bausteine sind schon zu sehen";
inline constexpr char16_t sizeIs[]          = u"Größe: %1";
inline constexpr char16_t noLarger[]        = u"Größer geht es auf diesem Bildschirm nicht";
inline constexpr char16_t notSoLarge[]      = u"Auf diesem Bildschirm geht es nur bis %1";
inline constexpr char16_t noSmaller[]       = u"Kleiner geht es nicht";
inline constexpr char16_t sizeAfterGame[]   = u"Die neue Größe gilt, sobald das Spiel zu Ende ist";
inline constexpr char16_t sizeAfterRetype[] = u"Die neue Größe gilt, sobald das Abschreiben zu Ende ist";
inline constexpr char16_t sizeAfterWork[]   = u"Die neue Größe gilt gleich, wenn das hier fertig ist";
inline constexpr char16_t sizeNextStart[]   = u"Die neue Größe gilt ab dem nächsten Start: In Kernling steht noch ein Text";
inline constexpr char16_t sizeAfterWindow[] = u"Die neue Größe gilt, sobald dieses Fenster geschlossen ist";

// Where Esc closes nothing
inline constexpr char16_t kernlingStays[]   = u"Kernling bleibt offen. Alt+F4 schließt das Fenster";

// What has to end first
inline constexpr char16_t afterBuilding[]   = u"Jetzt baust du Wörter auf dem Spielfeld. Schreiben kommt danach";
inline constexpr char16_t afterDictionary[] = u"Schließe zuerst das Wörterbuch";
inline constexpr char16_t afterWork[]       = u"Einen Augenblick noch";
inline constexpr char16_t wholeList[]       = u"Bei \"Alle\" wird die ganze Liste gelegt";
inline constexpr char16_t afterGame[]       = u"Das geht erst, wenn das Spiel zu Ende ist";
inline constexpr char16_t afterRetype[]     = u"Das geht erst, wenn das Abschreiben zu Ende ist";
inline constexpr char16_t afterVowels[]     = u"Das geht nicht, solange \"kurz\" oder \"lang\" an ist";

// What a file cannot hold
inline constexpr char16_t savedWith[]       = u"Gespeichert: %1. Andere Programme kennen vielleicht nicht: %2";
inline constexpr char16_t notInBackup[]     = u"Die Sicherung kennt diese Buchstaben nicht: %1";
// clang-format on

} // namespace note
