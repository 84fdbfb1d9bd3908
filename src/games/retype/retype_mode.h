// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/play_state.h"

#include <QObject>
#include <QString>
#include <QStringList>

class BoardNews;
class Canvas;
class CommandRouter;
class ControlSheet;
class DictionaryPanel;
class StatusLine;
class StripControl;
class Work;
class WordCheck;
class WordMaker;
class WordStore;
class WordTests;
struct Ground;
struct MainControls;
struct RetypeSource;
struct WordLists;

/// The mode "Abschreiben": words run over the board in the strip, and the player copies them one by one into
/// the word field. A word that is copied rightly leaves the strip; when it is empty, there is praise and the
/// mode ends. The mode is off, preparing (a work: hourglass, the cancel "X", a cancel at any moment) or
/// running, and every way out of it takes its sheets off the tools again.
class RetypeMode : public QObject
{
    Q_OBJECT

public:
    /// A list of that many words or more cannot be practised.
    static constexpr int wordLimit = 1024;

    /// The rooms that the mode calls.
    struct Rooms
    {
        ControlSheet &sheet;
        StatusLine &status;
        StripControl &strip;
        WordMaker &words;
        WordCheck &check;
        const WordTests &tests;
        DictionaryPanel &dictionary;
        Canvas &canvas;
        BoardNews &news;
    };

    RetypeMode(Ground &ground, const MainControls &controls, WordLists &lists, PlayState &play,
               const Rooms &rooms, QObject *parent = nullptr);
    /// The menu's entries 1600, 1601, 1607 and 1608.
    void registerCommands(CommandRouter &router);

    /// Left: starts from the word list or stops. Right: from the dictionary by the tiles on the board, with
    /// Shift from nonsense words, or stops. While words are prepared, each is a cancel; otherwise it passes
    /// the gate, and rests while a report stands over the board.
    void Check4_MouseDown(Qt::MouseButton button, Qt::KeyboardModifiers keys);
    void StartTheRetyping(WordSource words);
    void StopTheRetyping();
    /// Takes `Word` out of the running list and fills the strip with the others; the last one ends the mode.
    void FillScroller(const QString &Word);
    /// The word check has found `word` right.
    void wordCopied(const QString &word);
    /// Starts from the word list that the chooser has filled, if it is not empty and not too long.
    void RetypeWithChoosenWortel();
    /// The same from the dictionary's menu, which closes the dictionary first.
    void mnuStartRetypeFromList();
    /// The word list was edited by hand: the strip takes it over, unless nonsense words run in it. A list
    /// that was emptied ends a run without praise.
    void wordsEdited(const QStringList &words, bool fillEmptyStrip);
    /// A game has ended with its words in the word list: they are copied.
    void retypeAfterGame() { leftPress(WordSource::UserWords); }
    /// Other lists were chosen: a run ends.
    void endRun();
    /// Esc: a run ends, and what was copied of a player's own words is in the word list again.
    void breakOff();

    /// Lets the chooser open, unless one group of vowels is practised, which only knows stems.
    void openChooser();

    bool isPreparing() const { return state_ == State::Preparing; }
    const QStringList &KeptWords() const { return KeptWords_; }

signals:
    /// The word chooser is to open.
    void chooserWanted();

private:
    enum class State { Rest, Preparing, Ending };

    void leftPress(WordSource words);
    void rightPress(bool shift);
    void startFromList(WordSource words);
    void leave();
    void notice(const QString &text);
    void colourWords(const QColor &colour);

    bool prepare(const RetypeSource &source);
    bool makeWords(const RetypeSource &source);
    void gatherWords(const RetypeSource &source, Work &work);
    void showStrip(const RetypeSource &source);
    WordStore &wordsOf(const RetypeSource &source) const;
    bool belongs(const QString &word, const RetypeSource &source) const;
    QString inStrip(const QString &word, const RetypeSource &source) const;
    void removeWord(const QString &word, WordStore &words);
    void eraseTile(const QString &word);
    void finish(const RetypeSource &source);

    Ground &ground_;
    const MainControls &controls_;
    WordLists &lists_;
    PlayState &play_;
    Rooms rooms_;
    const RetypeSource *running_; ///< the source of the last start
    QStringList KeptWords_;
    QStringList copied_; ///< what has left the running list, as it stood there
    State state_ = State::Rest;
    bool stopWanted_ = false; ///< the button was pressed while words were prepared
};
