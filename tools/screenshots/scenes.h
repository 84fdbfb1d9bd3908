// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

class Stage;

/// What is played on the stage. Each scene opens the main window, plays, stores its pictures and closes the
/// window.
namespace scenes {

void wholeBoard(Stage &stage);
void boardAndBand(Stage &stage);
void wordOfTiles(Stage &stage);
void menus(Stage &stage);
void wordsAndLists(Stage &stage);
void retyping(Stage &stage);
void tip(Stage &stage);
void options(Stage &stage);
void chooser(Stage &stage);
void stemGame(Stage &stage);
void webPage(Stage &stage);
void cards(Stage &stage);

} // namespace scenes
