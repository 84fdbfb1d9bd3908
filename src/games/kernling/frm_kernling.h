// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDialog>

#include <functional>
#include <memory>

class HighScores;
class PressButton;
class QTextDocument;
class TileStore;
class WordMaker;
class WordTests;
struct Ground;
struct KernlingControls;
struct WordLists;

/// The window of the stem game: a text in which letters are marked and judged, the workshop in which it is
/// made, and the game against the clock. It makes its parts, wires them and forwards events; what a procedure
/// does stands in the part that owns it. It is made when it is first opened, and keeps its text until the
/// program ends.
class FrmKernling : public QDialog
{
    Q_OBJECT

public:
    /// What the window takes from the house.
    struct Hall
    {
        WordLists &lists;
        const WordTests &tests;
        WordMaker &maker;
        const TileStore &tiles;
        HighScores &scores;
        std::function<void()> resetVowelBoxes; ///< both vowel filters off
    };

    FrmKernling(Ground &ground, const Hall &hall, QWidget *parent = nullptr);
    ~FrmKernling() override;

    /// Shows the window modally. Returns when it is closed.
    void openModally();
    /// The window, open or closed, holds a text that would go with it.
    bool keepsText() const;
    /// Makes the window ready without showing it.
    void Form_Load();
    const KernlingControls &controls() const;

signals:
    /// This copy of the text is to be printed, with "Wortstamm" in the header and "Kernling" in the footer.
    void PrintRTF(QTextDocument *text);

protected:
    void closeEvent(QCloseEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

private:
    struct Parts;

    void wire();
    void wireWords();
    void wireText();
    void wireResult();
    template <typename Action> auto play(Action action);
    template <typename Action> void onClick(PressButton *button, Action action);
    template <typename Action> void onKeys(const QKeySequence &keys, Action action);
    void makeMenus();
    void showTextMenu(const QPoint &position);
    void showStemMenu(const QPoint &position);

    void showWayOfMarking();
    void showToolTips();
    void showLists();
    void showStemList(bool shown);
    void Check7_Click();
    void Command8_Click();
    void editOptions();
    void mnuSearch_Click();
    void mnuCheckWord_Click();
    void mnuPrintRTF_Click();

    Ground &ground_;
    Hall hall_;
    std::unique_ptr<Parts> parts_;
};
