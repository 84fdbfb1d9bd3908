// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>

class AlphaPanel;
class ClickLabel;
class Dropper;
class FloatingTile;
class GameProgressBar;
class GradientPanel;
class MsgScroller;
class PictureBox;
class PressButton;
class QLabel;
class QLineEdit;
class QWidget;
class StoreList;

/// The main window as a designer drew it: the named controls, with captions, tool tips and object names from
/// one table, and no logic. Rooms get a reference to it. The window owns the controls.
struct MainControls
{
    static constexpr int morphemeListHeight = 300; ///< pixels, as far as the window reaches

    QWidget *form = nullptr;

    PictureBox *picCanvas = nullptr;
    FloatingTile *BtnMove1 = nullptr; ///< over the lists, too; the board stands in the corner of the form
    QLabel *lblMove = nullptr;
    AlphaPanel *PicAlpha = nullptr; ///< the tip panel with its parts
    QLabel *AlphaText = nullptr;    ///< the tip's words
    ClickLabel *Label5 = nullptr;   ///< "Schließen"
    ClickLabel *Image1 = nullptr;   ///< "Rechtschreib-Tipp zeigen"

    GradientPanel *Picture1 = nullptr; ///< the lower band; its panels:
    QWidget *Picture2 = nullptr;       ///< filters, tiles, drag mode, options, help
    QWidget *Picture3 = nullptr;       ///< game, level, retype, vowels, progress
    QWidget *Picture4 = nullptr;       ///< word field, word check, lists

    std::array<PressButton *, 4> OptType{}; ///< filters; their captions are the tile counters
    PressButton *Check1 = nullptr;
    QLineEdit *Text1 = nullptr;
    PressButton *Check2 = nullptr;
    std::array<PressButton *, 2> Option1{}; ///< drag modes
    QLabel *Label3 = nullptr;
    PressButton *Command6 = nullptr;
    PressButton *Command1 = nullptr;
    PressButton *CmdMenu = nullptr;

    Dropper *Dropper1 = nullptr;
    PressButton *Command2 = nullptr;
    PressButton *Command3 = nullptr;
    PressButton *Command4 = nullptr;
    PressButton *Command5 = nullptr;
    QLabel *Label6 = nullptr;

    PressButton *Check3 = nullptr;
    std::array<PressButton *, 3> Option2{}; ///< levels
    PressButton *Check4 = nullptr;
    std::array<PressButton *, 2> ChkVokal{};
    GameProgressBar *GameProgress = nullptr;
    QLabel *Label1 = nullptr;
    ClickLabel *Label4 = nullptr; ///< the cancel "X"
    ClickLabel *Label2 = nullptr; ///< the window's lower edge

    // Shown on demand over the board, children of the form.
    StoreList *WortelList = nullptr;
    StoreList *PrefixList = nullptr;
    StoreList *SuffixList = nullptr;
    StoreList *LexiconList = nullptr;
    StoreList *CorrectWordList = nullptr;
    QLineEdit *Text2 = nullptr;      ///< search box over the dictionary
    MsgScroller *Scroller = nullptr; ///< object name "MsgScroller"
    QLabel *txtWelcomeMsg = nullptr;
    QLabel *TxtWordHint = nullptr;
};

/// Makes all controls as children of `form`, with the design sizes, hidden ones hidden.
MainControls makeMainControls(QWidget *form);
/// Places band and panels for a form of that size (pixels) and the board above them, as the window's resizing
/// tells.
void layOutMainControls(const MainControls &controls, int width, int height);
