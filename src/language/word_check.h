// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/play_state.h"

#include <QObject>
#include <QString>

class DictionaryPanel;
class ReportPopup;
class WordTests;
struct Ground;
struct MainControls;
struct WordLists;

/// The word check: asks the list of the running mode whether the word in the entry field exists, reports it,
/// and keeps the right words. What retype mode and the vowel sounds do with a hit they learn by signals.
class WordCheck : public QObject
{
    Q_OBJECT

public:
    WordCheck(Ground &ground, const MainControls &controls, WordLists &lists, PlayState &play,
              const WordTests &tests, DictionaryPanel &dictionary, ReportPopup &popup,
              QObject *parent = nullptr);

    /// Left: checks the word. Right: "Wortsuche", opens or closes the dictionary, outside of game and retype
    /// mode.
    void Command2_MouseDown(Qt::MouseButton button);
    /// Left: clears the entry. Right: "Großschreibung", a capital first letter and small ones behind it.
    void Command5_MouseDown(Qt::MouseButton button);
    /// Enter in the word field: the check, while `Command5` is enabled and the field is the active control.
    void Dropper1_EnterPress();
    /// Any key but Enter in the word field: its sound.
    void Dropper1_KeyPress();
    /// A vowel box was switched: sets the flags and thins out the word list at once.
    void ChkVokal_Click();
    /// What the two boxes ask for; the short vowels where both are on.
    Vowels boxVowels() const;
    /// Sets the vowel flags from the two boxes; both on, which no click brings about, leaves them as they
    /// are.
    void readVowelBoxes();
    /// Switches a box off that is on, as its press does: the vowel board ends.
    void clearVowelBoxes();

signals:
    /// In retype mode `word` was copied rightly.
    void retypeWordFound(const QString &word);
    /// In a game a word was collected for the first time.
    void gameWordCollected(const QString &word);
    /// A stem of the asked vowel group is to be said aloud.
    void vowelWordFound(const QString &word);
    /// Both vowel boxes were switched off: the stem list of the options is to return.
    void vowelsSwitchedOff();

private:
    bool takeEntry();
    void checkInDictionary(const QString &word);
    void checkNonsense(const QString &word);
    void checkVowel(const QString &word, Vowels group);
    void collectForGame(const QString &word);
    void keep(const QString &word);
    void thinOut(Vowels group);
    void clearEntry();
    void showEntry();
    void offerAgain();
    void askForWord();
    int verifySeconds() const;

    Ground &ground_;
    const MainControls &controls_;
    WordLists &lists_;
    PlayState &play_;
    const WordTests &tests_;
    DictionaryPanel &dictionary_;
    ReportPopup &popup_;
};
