// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "widgets/control_sheet.h"

#include <QObject>
#include <QString>
#include <QStringList>

class Canvas;
class DictionaryPanel;
class StripControl;
class WordCheck;
class WordMaker;
class WordStore;
class WordTests;
struct Ground;
struct MainControls;
struct Modes;
struct RetypeSource;
struct WordLists;

/// The mode "Abschreiben": words run over the board in the strip, and the player copies them one by one into
/// the word field. A word that is copied rightly leaves the strip; when it is empty, there is praise and the
/// mode ends. The mode is off, preparing (hourglass, the cancel "X", a cancel at any moment) or running, and
/// every way out of it gives each tool of the window back as it was.
class RetypeMode : public QObject
{
    Q_OBJECT

public:
    /// A list of that many words or more cannot be practised.
    static constexpr int wordLimit = 1024;

    /// The rooms that the mode calls.
    struct Rooms
    {
        StripControl &strip;
        WordMaker &words;
        WordCheck &check;
        const WordTests &tests;
        DictionaryPanel &dictionary;
        Canvas &canvas;
    };

    RetypeMode(Ground &ground, const MainControls &controls, WordLists &lists, Modes &modes,
               const Rooms &rooms, QObject *parent = nullptr);

    /// Left: starts from the word list or stops. Right: from the dictionary by the tiles on the board, with
    /// Shift from nonsense words, or stops. While words are prepared, each is a cancel. Rests while a report
    /// stands over the board, which has taken away tools that the mode must give back.
    void Check4_MouseDown(Qt::MouseButton button, Qt::KeyboardModifiers keys);
    /// The menu's entries 1600, 1601, 1607 and 1608; another number does nothing.
    void command(int id);
    /// `Mode` is "USERWORDS", "RNDWORDSFROMSCREEN", "KURZVOKAL", "LANGVOKAL" or "PSEUDOWORDSFROMSCREEN".
    void StartTheRetyping(const QString &Mode);
    void StopTheRetyping();
    /// Takes `Word` out of the list of the mode and fills the strip with the others; the last one ends the
    /// mode. `Kind` is "CORRECT_WORDS", "KURZVOKAL", "LANGVOKAL" or "PSEUDO_WORDS".
    void FillScroller(const QString &Word, const QString &Kind);
    /// The word check has found `word` right.
    void wordCopied(const QString &word, const QString &kind);
    /// Starts from the word list that the chooser has filled, if it is not empty and not too long.
    void RetypeWithChoosenWortel();
    /// The same from the dictionary's menu, which closes the dictionary first.
    void mnuStartRetypeFromList();

    bool isPreparing() const { return state_ == State::Preparing; }
    const QStringList &KeptWords() const { return KeptWords_; }

signals:
    /// A flag of the modes has changed: the menus are to be built anew.
    void menusChanged();
    /// The chooser is to open, with these captions on its two start buttons.
    void chooserWanted(const QString &allWords, const QString &chosenWords);

private:
    enum class State { Rest, Preparing, Ending };

    void leftPress();
    void rightPress(bool shift);
    void takeBackStart();
    void openChooser();
    void toggleActive();
    void leave();
    void notice(const QString &text);
    void colourWords(const QColor &colour);

    bool prepare(const RetypeSource &source);
    bool makeWords(const RetypeSource &source);
    void setSourceFlags(const RetypeSource &source);
    void startProgress();
    void gatherWords(const RetypeSource &source);
    bool isCancelled() const;
    void showStrip(const RetypeSource &source);
    WordStore &wordsOf(const RetypeSource &source) const;
    bool belongs(const QString &word, const RetypeSource &source) const;
    QString inStrip(const QString &word, const RetypeSource &source) const;
    void removeWord(const QString &word, WordStore &words) const;
    void eraseTile(const QString &word);
    void finish(const RetypeSource &source);
    void clearVowelBoxes();
    void showWordList();

    Ground &ground_;
    const MainControls &controls_;
    WordLists &lists_;
    Modes &modes_;
    Rooms rooms_;
    ControlSheet sheet_;
    QStringList KeptWords_;
    State state_ = State::Rest;
    bool stopWanted_ = false; ///< the button was pressed while words were prepared
};
