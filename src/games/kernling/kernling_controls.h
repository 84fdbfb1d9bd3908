// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>

class ClickLabel;
class GameProgressBar;
class KernlingText;
class PressButton;
class QCheckBox;
class QComboBox;
class QGroupBox;
class QLabel;
class QLineEdit;
class QRadioButton;
class QSize;
class QSplitter;
class QTextEdit;
class QWidget;
class StoreList;
class TimeSign;
class WordListBox;

/// The window of the stem game as a designer drew it: the named controls with captions and tool tips from one
/// table, in four framed groups, and no logic.
struct KernlingControls
{
    QWidget *form = nullptr;

    // "Wörter einfügen"
    QWidget *sidePanel = nullptr;
    std::array<QRadioButton *, 6> OptFilltype{};
    PressButton *Command3 = nullptr;
    QLineEdit *Text4 = nullptr; ///< length of the words of the letter mix
    WordListBox *List1 = nullptr;
    PressButton *cmdUp = nullptr;
    PressButton *cmdDown = nullptr;
    PressButton *Command9 = nullptr;
    PressButton *Command13 = nullptr;
    PressButton *Command14 = nullptr;
    PressButton *Command7 = nullptr;
    QLineEdit *Text3 = nullptr;
    PressButton *Command11 = nullptr;
    PressButton *Command12 = nullptr;
    PressButton *Command15 = nullptr;

    // "Text auswählen"
    PressButton *Command5 = nullptr;
    QCheckBox *Check8 = nullptr;
    QComboBox *cboWordLen = nullptr;
    QCheckBox *Check10 = nullptr;

    // "Text"
    QGroupBox *textGroup = nullptr;
    PressButton *Command10 = nullptr;
    TimeSign *Picture2 = nullptr;
    QRadioButton *OptManualHighlight = nullptr;
    QRadioButton *OptAutoHighlight = nullptr;
    PressButton *Check7 = nullptr;
    PressButton *Command8 = nullptr;
    PressButton *Command4 = nullptr;
    PressButton *cmdUnHighlight = nullptr;
    PressButton *cmdResetColors = nullptr;
    PressButton *cmdSmaller = nullptr;
    PressButton *cmdLarger = nullptr;
    PressButton *Command6 = nullptr;
    KernlingText *RTF = nullptr;
    GameProgressBar *FillProgress = nullptr;
    ClickLabel *Label9 = nullptr;

    // "Ergebnis"
    QLineEdit *Text1 = nullptr;
    QLabel *Image1 = nullptr;
    QLabel *Label13 = nullptr;
    QLabel *Label8 = nullptr;
    QCheckBox *Check5 = nullptr;
    QTextEdit *rtfResponse = nullptr;
    QLabel *Label3 = nullptr;
    StoreList *UserFoundWortelList = nullptr;
    QCheckBox *Check3 = nullptr;
    PressButton *Command1 = nullptr;
    QLabel *Label14 = nullptr;
    StoreList *UserFalseWortelList = nullptr;
    QCheckBox *Check4 = nullptr;
    PressButton *Command2 = nullptr;

    // The stems
    QSplitter *panels = nullptr;
    PressButton *Check1 = nullptr;
    QWidget *stemPanel = nullptr;
    QLabel *Label16 = nullptr; ///< the name of the current list
    QLabel *Label17 = nullptr; ///< how many stems it has
    StoreList *wortellist = nullptr;
};

/// Makes the controls as children of `form` and lays them out.
KernlingControls makeKernlingControls(QWidget *form);

/// Gives all controls the letters, pixels, that go with a window of that size, larger ones to text, answer
/// and counts, and widths that go with them. Nothing if they have them already.
void scaleKernlingControls(const KernlingControls &controls, const QSize &window);
