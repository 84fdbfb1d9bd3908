// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>

class GameProgressBar;
class QWidget;
class TileStore;
class WordTests;
struct Ground;
struct MainControls;
struct Modes;
struct WordLists;

/// Runs the generators in front of the player: progress, the cancel label, and a yield between two candidates
/// when input waits. There is deliberately no bound on the number of tries: a board that cannot yield the
/// words keeps a run going until it is cancelled.
class WordMaker : public QObject
{
    Q_OBJECT

public:
    /// The bar and the cancel label of the stem game's window.
    struct KernlingStage
    {
        GameProgressBar *FillProgress;
        QWidget *Label9;
    };

    WordMaker(Ground &ground, const MainControls &controls, WordLists &lists, Modes &modes,
              const WordTests &tests, const TileStore &tiles, QObject *parent = nullptr);

    /// Fills `CorrectWordList` with `WordCount` words of the dictionary that the tiles can make.
    /// `CancelPreparing` stays set after a cancel.
    void MakeDummyWordsInDic(int WordCount);
    /// The same for the stem game, which keeps what was found before a cancel.
    void MakeWordsForKernling(int WordCount, const KernlingStage &stage);
    /// Fills `PseudoWordList` with `WordCount` nonsense words; after a cancel those made so far stay.
    void MakePseudoWordsTorvin(int WordCount);
    void MakePseudoWordsForKernling(int WordCount, const KernlingStage &stage);

signals:
    /// A run begins: the strip is to be emptied.
    void stripToClear();
    /// A cancelled run has cleared the flags of retype mode: the menus are to be built anew.
    void modesCleared();

private:
    struct Stage;

    Stage mainStage() const;
    Stage kernlingStage(const KernlingStage &stage) const;
    void makeRealWords(int wordCount, const Stage &stage);
    void searchRealWords(int wordCount, const Stage &stage);
    void abandonRealWords(const Stage &stage);
    void makeNonsenseWords(int wordCount, const Stage &stage);
    void searchNonsenseWords(int wordCount, const Stage &stage);
    void startProgress(int wordCount, const Stage &stage);
    void freeGameTools();
    void yieldToInput();

    Ground &ground_;
    const MainControls &controls_;
    WordLists &lists_;
    Modes &modes_;
    const WordTests &tests_;
    const TileStore &tiles_;
};
