// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>

class DictionaryPanel;
class QMenu;
class QPoint;
class WordTests;
struct Ground;
struct MainControls;
struct Modes;
struct WordLists;

/// The list of right words as it opens over the board: its two menus, the dialog with which a word is added
/// or changed, saving and copying.
class WordListPanel : public QObject
{
    Q_OBJECT

public:
    WordListPanel(Ground &ground, const MainControls &controls, WordLists &lists, Modes &modes,
                  const WordTests &tests, DictionaryPanel &dictionary, QObject *parent = nullptr);

    /// Shows or hides the list (the left press on `Command4`); an open dictionary closes.
    void Show_Result();
    /// The menu command "Bearbeiten": flips the list, above the band, and opens its menu.
    void editByMenu();
    /// Saves the list as a text file, one word a line (the right press on `Command4`). A failure is told in a
    /// box, and the folder is remembered only after a success.
    void Save_Result();
    /// The words, each with a line end, go to the clipboard; an empty list leaves that as it is.
    void CorrectWordsToClip();
    /// A right press on the list, at a point in its pixels: opens the menu for a filled or for an empty list.
    void CorrectWordList_MouseDown(const QPoint &position);

signals:
    /// The words were edited by hand: a running strip takes them over, an empty one only if `fillEmptyStrip`.
    void wordsEdited(const QStringList &words, bool fillEmptyStrip);
    /// The list was saved, one word a line, to `path` (stored form); column layouts rewrite the file.
    void wordListSaved(const QString &path);

private:
    enum class Entry { Add, Edit };

    QMenu *makeFilledMenu();
    QMenu *makeEmptyMenu();
    void askWord(Entry entry);
    void takeWord(Entry entry);
    void mnuDeleteWord();
    void mnuDeleteAllWords();
    void moveSelection(int step);

    Ground &ground_;
    const MainControls &controls_;
    WordLists &lists_;
    Modes &modes_;
    const WordTests &tests_;
    DictionaryPanel &dictionary_;
    QMenu *mnuTest_;
    QMenu *mnuTest2_;
    QString inputResult_; ///< the last answer of the word dialog
};
