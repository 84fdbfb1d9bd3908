// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>

class QMenu;
class QPoint;
class WordStore;
class CommandRouter;
class ControlSheet;
struct Ground;
struct MainControls;
struct WordLists;

/// The dictionary as it opens over the board: its list, the search box above it, its menu, and what the tools
/// beside the word field may do meanwhile.
class DictionaryPanel : public QObject
{
    Q_OBJECT

public:
    DictionaryPanel(Ground &ground, const MainControls &controls, ControlSheet &sheet, WordLists &lists,
                    QObject *parent = nullptr);
    void registerCommands(CommandRouter &router);

    bool isOpen() const;
    /// The left press on `Command3`: shows or hides the dictionary.
    void toggle();
    /// The right press on `Command2`, "Wortsuche": the same toggle in which `Command4` is locked.
    void toggleForSearch();
    /// A list file is being loaded into `store`: if it is the dictionary, the open panel closes and stays
    /// closed.
    void storeLoading(const WordStore *store);
    /// The window has another size: what is open stands on the band again.
    void placeOpen();
    /// Closes it, if it is open, and leaves the focus alone.
    void close();
    /// A new text in the search box: selects the first entry that begins with it.
    void Text2_Change();
    /// A right press on the list, at a point in its pixels: opens the menu, if there is a word.
    void LexiconList_MouseDown(const QPoint &position);

signals:
    void tipRequested();
    void startRetypeFromList();
    void chooserRequested();

private:
    void openList();
    template <typename Slot> auto play(Slot slot);
    QMenu *makeMenu();
    void mnuAddToRetypeList();
    void mnuClearRetypeList();

    Ground &ground_;
    const MainControls &controls_;
    ControlSheet &sheet_;
    WordLists &lists_;
    QMenu *mnuLex_;
};
