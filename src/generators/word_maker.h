// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>

#include <functional>

class TileStore;
class Work;
class WordTests;
class WorkView;
struct Ground;
struct WordLists;

/// Runs the generators in front of the player. A run is a work: progress, the cancel label, and a yield
/// between two candidates when input waits. There is deliberately no bound on the number of tries: a board
/// that cannot yield the words keeps a run going until it is cancelled.
class WordMaker : public QObject
{
    Q_OBJECT

public:
    WordMaker(Ground &ground, WordLists &lists, const WordTests &tests, const TileStore &tiles,
              QObject *parent = nullptr);

    /// Fills `CorrectWordList` with `WordCount` words of the dictionary that the tiles can make. False after
    /// a cancel.
    bool MakeDummyWordsInDic(int WordCount);
    /// The same for the stem game, which shows it on its own window and keeps what was found before a cancel.
    void MakeWordsForKernling(int WordCount, WorkView &view);
    /// Fills `PseudoWordList` with `WordCount` nonsense words; after a cancel those made so far stay, and the
    /// cancel is forgotten.
    void MakePseudoWordsTorvin(int WordCount);
    void MakePseudoWordsForKernling(int WordCount, WorkView &view);
    /// Fills `PseudoWordList` with `WordCount` real words whose parts stand in another order, or with stems
    /// among random letters, each filled up to the number in `Text4`. What was made before a cancel stays.
    void MakeMorphemScramble(int WordCount, WorkView &view);
    void MakeLetterMix(int WordCount, const QString &Text4, WorkView &view);

signals:
    /// A run begins: the strip is to be emptied.
    void stripToClear();
    /// A scramble or a letter mix was cancelled, which ends retyping as well.
    void retypingToEnd();

private:
    void searchRealWords(int wordCount, Work &work);
    void searchScrambles(int wordCount, const QString &made, const std::function<bool()> &tryOne, Work &work);
    void makeNonsenseWords(const char *procedure, int wordCount, Work &work);
    void searchNonsenseWords(int wordCount, Work &work);

    Ground &ground_;
    WordLists &lists_;
    const WordTests &tests_;
    const TileStore &tiles_;
};
