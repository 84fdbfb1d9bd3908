// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>

/// How the options window is divided. Each row of the settings' table names the frame its control lies in;
/// these two tables say which frames there are and which page holds them.
namespace options_layout {

/// One item of the left bar and the page that it shows.
struct PageRow
{
    const char16_t *frame; ///< object name of the page
    const char16_t *caption;
    const char16_t *tip;
};

inline constexpr std::array<PageRow, 7> pages{{
    {u"FrameWortel", u"&Wortel-Meister", u"Allgemeine Optionen für das Wortel-Programm"},
    {u"FrameWörterbuch", u"&Wörterbuch", u"Optionen für das Wörterbuch"},
    {u"FrameWörterliste", u"Wörter&liste", u"Optionen für die Liste der richtigen Wörter"},
    {u"FrameWortkontrolle", u"Wort&kontrolle", u"Optionen für das Überprüfen der Wörter"},
    {u"FrameSpielen", u"&Spielen", u"Optionen für den Spielmodus"},
    {u"FrameAbschreiben", u"&Abschreiben", u"Optionen für den Abschreibmodus"},
    {u"FrameAnzeige", u"An&zeige", u"Größe des Programms, Maus und Finger"},
}};

/// A titled frame: within a page in one of its two columns, or within another frame at its end.
struct FrameRow
{
    const char16_t *frame;
    const char16_t *parent;
    const char16_t *title;
    int column;
};

inline constexpr std::array<FrameRow, 13> frames{{
    {u"FrameGeneral", u"FrameWortel", u"Allgemein", 0},
    {u"FrameBoard", u"FrameWortel", u"Spielfeld", 0},
    {u"Frame4", u"FrameWortel", u"Dateien", 1},
    {u"Frame1", u"FrameWortel", u"Anordnen", 1},
    {u"FramePrint", u"FrameWortel", u"Drucken", 1},
    {u"FrameSave", u"FrameWörterliste", u"Beim Speichern und Drucken", 0},
    {u"Frame3", u"FrameSpielen", u"Klotar", 0},
    {u"FrameLevel", u"Frame3", u"Schwierigkeitsstufe", 0},
    {u"Frame5", u"FrameSpielen", u"Tonarin", 1},
    {u"Frame2", u"FrameSpielen", u"Paarlon", 1},
    {u"FramePlace", u"FrameAbschreiben", u"Platz der Laufschrift", 1},
    {u"FrameView", u"FrameAnzeige", u"Größe", 0},
    {u"FrameTouch", u"FrameAnzeige", u"Maus, Stift und Finger", 0},
}};

} // namespace options_layout
