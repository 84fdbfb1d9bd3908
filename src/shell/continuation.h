// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "board/tiles/affix_homes.h"
#include "output/printing/printer_set_up.h"
#include "persistence/undo_ring.h"
#include "platform/play_state.h"
#include "platform/settings_table.h"

#include <QImage>
#include <QRect>
#include <QStringList>
#include <QUrl>

#include <array>

class frmMain;

/// All that a player would miss if the window was made anew without it: kept in memory while the program
/// starts anew within itself at another size. Whatever is not here is as after a start.
struct Continuation
{
    // The board
    Snapshot tiles;
    UndoRing::Steps undo;
    AffixHomes homes;
    QImage background;
    int filter = 3;

    // Words
    static constexpr std::size_t stores = 12;
    std::array<QStringList, stores> words;
    std::array<QString, 4> files;
    QString listName, listTip;
    QString entry; ///< of the word field
    QString sessionFile;

    // Tools
    QString count;
    bool wholeList = false;
    int dragMode = 1; ///< -1: none
    Vowels vowels = Vowels::None;
    QString listBeforeVowels;
    Snapshot boardBeforeVowels;
    bool wordListOpen = false, dictionaryOpen = false;
    std::array<bool, 3> morphemeListsOpen{}; ///< Wortel, prefix, suffix
    bool tipIsDue = false;
    QUrl handbookPage; ///< empty: not open
    PrinterSetUp printer;
    QString clipboard; ///< empty: it is not ours

    /// The settings as they are edited, which may not have been stored.
    std::array<QString, static_cast<std::size_t>(Setting::Count)> options;

    // The window
    bool maximised = true;
    QRect geometry;  ///< pixels as at 100 %
    QString logFile; ///< empty: no log is written
};

/// What stands in the window now. A tile that is held is let go first.
Continuation continuationOf(frmMain &form, int percent);
/// Puts it into a window that has been wired and has filled nothing yet.
void goOnWith(const Continuation &kept, frmMain &form);
/// Lists and the handbook open again, over the window that is shown.
void openAgain(const Continuation &kept, frmMain &form);
