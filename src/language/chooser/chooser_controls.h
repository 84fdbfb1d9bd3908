// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>

class ClickLabel;
class GameProgressBar;
class MarkList;
class PressButton;
class QAbstractButton;
class QCheckBox;
class QLabel;
class QLineEdit;
class QStackedWidget;
class QWidget;

/// The window of the word chooser as a designer drew it: the named controls in their panels, and no logic.
/// The window owns them.
struct ChooserControls
{
    enum Kind { Prefix, Stem, Suffix };

    /// What there is for each kind of morpheme; the page shows when its `OptSearchType` is set.
    struct Morphemes
    {
        PressButton *OptSearchType = nullptr;
        MarkList *list = nullptr; ///< `ListPrefix`, `List1`, `ListSuffix`
        QLabel *count = nullptr;  ///< rows and marks
        PressButton *markAll = nullptr;
        PressButton *unmark = nullptr;
        PressButton *random = nullptr; ///< "Zufall", with the number in:
        QLineEdit *number = nullptr;
        PressButton *add = nullptr;
    };
    std::array<Morphemes, 3> morphemes{};
    QStackedWidget *pages = nullptr;

    PressButton *Check4 = nullptr; ///< "Wörter suchen"
    QCheckBox *ChkClearListBefore = nullptr;
    QCheckBox *ChkUseKurzVokal = nullptr;
    QCheckBox *ChkUseLangVokal = nullptr;
    QCheckBox *ChkUseAdjektiv = nullptr;
    QCheckBox *ChkUseNomen = nullptr;
    std::array<QAbstractButton *, 5> OptWordFilter{};
    GameProgressBar *sProgressBar = nullptr;
    QLabel *Label7 = nullptr;     ///< the stem that is searched
    ClickLabel *Label6 = nullptr; ///< cancels a search

    MarkList *List2 = nullptr;     ///< the words found
    QLabel *Label3 = nullptr;      ///< how many they are
    QLabel *Label4 = nullptr;      ///< how many of them are marked
    PressButton *Check5 = nullptr; ///< "Zufällige Wörter", with the number in:
    QLineEdit *TxtNumWords = nullptr;
    QCheckBox *ChkUsePrefixes = nullptr;
    QCheckBox *ChkUseSuffixes = nullptr;
    PressButton *Check20 = nullptr; ///< "Duplikate entfernen"
    PressButton *cmdSave = nullptr; ///< "Speichern"
    PressButton *Check21 = nullptr; ///< "Löschen"
    ClickLabel *Label8 = nullptr;   ///< the wait text of a draw; cancels it

    PressButton *Check1 = nullptr; ///< hands over all words,
    PressButton *Check3 = nullptr; ///< the marked ones
    PressButton *Check2 = nullptr; ///< "Abbrechen"
};

/// Makes all controls as children of `form`, with a layout that fits into 820 by 430 pixels and grows.
ChooserControls makeChooserControls(QWidget *form);
