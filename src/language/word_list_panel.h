// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>

class CommandRouter;
class DictionaryPanel;
class QMenu;
class QPoint;
class PlayState;
class WordTests;
struct Ground;
struct MainControls;
struct WordLists;

/// The list of right words as it opens over the board: its two menus, the dialog with which a word is added
/// or changed, saving and copying.
class WordListPanel : public QObject
{
    Q_OBJECT

public:
    WordListPanel(Ground &ground, const MainControls &controls, WordLists &lists, const PlayState &play,
                  const WordTests &tests, DictionaryPanel &dictionary, QObject *parent = nullptr);

    void registerCommands(CommandRouter &router);
    /// Shows or hides the list (the left press on `Command4`); an open dictionary closes.
    void Show_Result();
    /// The window has another size: an open list stands on the band again.
    void placeOpen();
    /// The menu command "Bearbeiten": flips the list, above the band, and opens its menu.
    void editByMenu();
    /// Saves the list as a text file (the right press on `Command4`).
    void Save_Result();
    /// The words, each with a line end, go to the clipboard; an empty list leaves that as it is.
    void CorrectWordsToClip();
    /// A right press on the list, at a point in its pixels: opens the menu for a filled or for an empty list.
    void CorrectWordList_MouseDown(const QPoint &position);

signals:
    /// The words were edited by hand: a running strip takes them over, an empty one only if `fillEmptyStrip`.
    void wordsEdited(const QStringList &words, bool fillEmptyStrip);

private:
    enum class Entry { Add, Edit };

    void addEntry(QMenu *menu, const char16_t *name, const char16_t *caption, void (WordListPanel::*act)());
    QMenu *makeFilledMenu();
    QMenu *makeEmptyMenu();
    void askWord(Entry entry);
    void takeWord(Entry entry);
    void mnuAddWord() { askWord(Entry::Add); }
    void mnuEditWord() { askWord(Entry::Edit); }
    void mnuDeleteWord();
    void mnuDeleteAllWords();
    void mnuMoveUp() { moveSelection(-1); }
    void mnuMoveDown() { moveSelection(1); }
    void moveSelection(int step);

    Ground &ground_;
    const MainControls &controls_;
    WordLists &lists_;
    const PlayState &play_;
    const WordTests &tests_;
    DictionaryPanel &dictionary_;
    QMenu *mnuTest_;
    QMenu *mnuTest2_;
    QString inputResult_; ///< the last answer of the word dialog
};
