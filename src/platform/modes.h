// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

/// The modes of play. They exclude each other through disabled buttons. Owned by the main window, passed
/// where they are read.
struct Modes
{
    bool GameActive = false;
    int GameLevel = 1;
    bool GameShortVowels = false;
    bool GameLongVowels = false;
    bool RetypeActive = false;
    bool RetypeUserWords = false;
    bool RetypeRandomWords = false;
    bool RetypePseudoWords = false;
    bool RetypeChosenWords = false;
    bool KurzVokalMode = false;
    bool LangVokalMode = false;

    bool CancelPreparing = false;
    bool KernlingCancel = false;
    bool PlacingBusy = false;
    bool StopPlacing = false;
    bool Closing = false; ///< the window is going: a search that would run on ends
    bool MoveAllowed = true;
    bool WordCheckDrag = false;
    bool CheckButtonsAct = true; ///< false while a report stands over the board
    bool BackupBusy = false;
    bool CanUndo = false;
    bool CanRedo = false;

    void clearRetypeSources()
    {
        RetypeUserWords = RetypeRandomWords = RetypePseudoWords = RetypeChosenWords = false;
    }
};
