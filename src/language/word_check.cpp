// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "language/word_check.h"

#include "language/dictionary_panel.h"
#include "language/word_tests.h"
#include "platform/boxes.h"
#include "platform/clock.h"
#include "platform/ground.h"
#include "platform/note_texts.h"
#include "platform/notes.h"
#include "platform/options.h"
#include "platform/procedure.h"
#include "platform/report_popup.h"
#include "platform/text.h"
#include "platform/word_lists.h"
#include "widgets/accessible_tools.h"
#include "widgets/announce.h"
#include "widgets/dropper.h"
#include "widgets/main_controls.h"
#include "widgets/press_button.h"

#include <QLabel>
#include <QLineEdit>
#include <QSignalBlocker>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

QString quoted(const QString &word) { return u'"' + word + u'"'; }

/// What the eye is not told of a vowel: only a sound, or the word's own voice, says it.
QString vowelOf(const QString &word, Vowels vowels)
{
    return quoted(word) +
           (vowels == Vowels::Short ? u" hat einen kurzen Vokal."_s : u" hat einen langen Vokal."_s);
}

/// Which letters of `"word"`, in quotation marks, teach how large it is written: the capitals of the
/// dictionary's spelling, or if it has none, what was written as one. None if the two do not differ.
QList<int> wrongCapitals(const QString &typed, const QString &proper)
{
    QList<int> capitals;
    QList<int> differing;
    if (typed.size() != proper.size())
        return {};
    for (int letter = 0; letter < proper.size(); ++letter) {
        if (proper.at(letter).isUpper())
            capitals << letter + 1;
        if (typed.at(letter) != proper.at(letter))
            differing << letter + 1;
    }
    return differing.isEmpty() || capitals.isEmpty() ? differing : capitals;
}

} // namespace

WordCheck::WordCheck(Ground &ground, const MainControls &controls, WordLists &lists, PlayState &play,
                     const WordTests &tests, DictionaryPanel &dictionary, ReportPopup &popup, QObject *parent)
    : QObject(parent)
    , ground_(ground)
    , controls_(controls)
    , lists_(lists)
    , play_(play)
    , tests_(tests)
    , dictionary_(dictionary)
    , popup_(popup)
{}

void WordCheck::Command2_MouseDown(Qt::MouseButton button)
{
    Procedure step{ground_.log, "Command2_MouseDown", "frmMain"};
    if (button == Qt::RightButton) {
        if (play_.GameActive() || play_.RetypeActive()) {
            ground_.notes.tell(play_.GameActive() ? note::afterGame : note::afterRetype);
            return;
        }
        step([&] {
            if (takeEntry())
                dictionary_.toggleForSearch();
        });
        return;
    }
    if (button != Qt::LeftButton)
        return;
    readVowelBoxes();
    bool filled = false;
    step([&] { filled = takeEntry(); });
    if (!filled)
        return;
    const QString word = controls_.Dropper1->Caption();
    step([&] {
        if (play_.RetypePseudoWords())
            checkNonsense(word);
        else if (play_.checkedVowels() != Vowels::None)
            checkVowel(word, play_.checkedVowels());
        else
            checkInDictionary(word);
    });
}

void WordCheck::readVowelBoxes()
{
    if (!controls_.ChkVokal[0]->isChecked() || !controls_.ChkVokal[1]->isChecked())
        play_.setCheckedVowels(boxVowels());
}

Vowels WordCheck::boxVowels() const
{
    return controls_.ChkVokal[0]->isChecked()   ? Vowels::Short
           : controls_.ChkVokal[1]->isChecked() ? Vowels::Long
                                                : Vowels::None;
}

/// False, with a notice, if nothing is entered; else the entry is trimmed by the option.
bool WordCheck::takeEntry()
{
    if (controls_.Dropper1->Caption().isEmpty()) {
        askForWord();
        return false;
    }
    if (ground_.options.isOn(Setting::TrimEnteredWords))
        controls_.Dropper1->setCaption(Trim(controls_.Dropper1->Caption()));
    return true;
}

void WordCheck::askForWord()
{
    ground_.boxes.ShowInfoBox(u"Gib bitte ein Wort ein"_s, BoxSign::Write,
                              u"Wortel-Meister: Wortkontrolle"_s);
}

int WordCheck::verifySeconds() const
{
    constexpr double aDay = 24 * 3600; // what no number of the store may pass, to stay an int
    return static_cast<int>(std::clamp(Fix(Val(ground_.options.stored(Setting::VerifyWinTime))), 0.0, aDay));
}

void WordCheck::checkInDictionary(const QString &word)
{
    const QString proper = tests_.ProperCase(word);
    const QList<int> marked = wrongCapitals(word, proper);
    if (!tests_.In_Lexicon(word)) {
        popup_.Display(u"Wort nicht gefunden"_s, u"Das gesuchte Wort \n"_s, quoted(word) + u'\n',
                       u" steht nicht im Wörterbuch."_s, verifySeconds(), SoundId::WordNotFound, false, false,
                       marked);
        offerAgain();
        return;
    }
    // The dictionary's spelling is shown, so that a hit teaches the right capitals; the list keeps the
    // learner's.
    popup_.Display(u"Richtig !"_s, u"Das gesuchte Wort \n"_s, quoted(proper) + u'\n', u"ist richtig."_s,
                   verifySeconds(), SoundId::WordRight, true, true, marked);
    if (play_.RetypeActive()) {
        emit retypeWordFound(word);
        ground_.pump.yield();
    } else {
        keep(word);
    }
    collectForGame(word);
    clearEntry();
}

void WordCheck::checkNonsense(const QString &word)
{
    if (!tests_.In_PseudoWordsList(word)) {
        popup_.Display(u"Wort nicht gefunden"_s, u"Das Unsinnswort \n"_s, quoted(word),
                       u" steht nicht in der Wörterliste."_s, verifySeconds(), SoundId::WordNotFound, false,
                       false);
        offerAgain();
        return;
    }
    popup_.Display(u"Richtig !"_s, u"Das Unsinnswort \n"_s, quoted(word), u"ist richtig abgeschrieben."_s,
                   verifySeconds(), SoundId::WordRight, true, true);
    if (play_.RetypeActive())
        emit retypeWordFound(word);
    clearEntry();
}

void WordCheck::checkVowel(const QString &word, Vowels group)
{
    const Vowels other = group == Vowels::Short ? Vowels::Long : Vowels::Short;
    if (tests_.InKurzLangVokalList(word, group)) {
        announce(*controls_.form, u"Richtig ! "_s + vowelOf(word, group));
        // The short branch speaks without this test, since the field is never empty there.
        if (group == Vowels::Short || !controls_.Dropper1->Caption().isEmpty())
            emit vowelWordFound(word);
        if (play_.RetypeActive())
            emit retypeWordFound(word);
        else
            keep(word);
        collectForGame(word);
        clearEntry();
        return;
    }
    if (tests_.InKurzLangVokalList(word, other)) {
        announce(*controls_.form, u"Falsch ! "_s + vowelOf(word, other));
        playSound(ground_, SoundId::WrongVowels);
    } else {
        ground_.boxes.ShowInfoBox(u"Bitte schreibe einen Wortstamm"_s, BoxSign::Write,
                                  u"Wortel-Meister: Lang/Kurz-Vokale"_s);
    }
    offerAgain();
}

void WordCheck::keep(const QString &word)
{
    if (!word.isEmpty() && !tests_.ChkForDuplicates(word))
        lists_.CorrectWordList.add(word);
}

/// A game never blocks on a repeated word: it is found right and simply not counted.
void WordCheck::collectForGame(const QString &word)
{
    if (!play_.GameActive() || tests_.GameChkCollectedDupl(word))
        return;
    lists_.GameCollectedList.add(word);
    controls_.Label1->setText(QString::number(lists_.GameCollectedList.count()));
    announce(*controls_.form, spokenCount(*controls_.Label1));
    emit gameWordCollected(word);
}

void WordCheck::showEntry() { controls_.Dropper1->takeFocus(); }

void WordCheck::clearEntry()
{
    controls_.Dropper1->setCaption(QString());
    showEntry();
}

/// The word stays, all of it selected, so that the next key replaces it.
void WordCheck::offerAgain()
{
    ground_.pump.yield();
    showEntry();
    if (!controls_.Dropper1->Caption().isEmpty())
        controls_.Dropper1->selectAll();
}

void WordCheck::Command5_MouseDown(Qt::MouseButton button)
{
    Procedure step{ground_.log, "Command5_MouseDown", "frmMain"};
    if (button == Qt::LeftButton) {
        if (controls_.Dropper1->Caption().isEmpty() && !dictionary_.isOpen())
            ground_.notes.tell(note::wordFieldEmpty);
        clearEntry();
        if (dictionary_.isOpen()) {
            controls_.Text2->show();
            controls_.Text2->clear();
            controls_.Text2->setFocus();
        }
        step([&] { playSound(ground_, SoundId::EntryCleared); });
    } else if (button == Qt::RightButton) {
        const QString word = controls_.Dropper1->Caption();
        if (word.isEmpty()) {
            step([&] { askForWord(); });
            showEntry();
            return;
        }
        controls_.Dropper1->setCaption(InitCapWord(word));
        showEntry();
        step([&] { playSound(ground_, SoundId::Capitals); });
    }
}

void WordCheck::Dropper1_EnterPress()
{
    if (controls_.Command5->isEnabled() && controls_.Dropper1->isActiveControl())
        Command2_MouseDown(Qt::LeftButton);
}

void WordCheck::Dropper1_KeyPress() { playSound(ground_, SoundId::KeyTyped); }

void WordCheck::ChkVokal_Click()
{
    Procedure step{ground_.log, "ChkVokal_Click", "frmMain"};
    readVowelBoxes();
    if (controls_.ChkVokal[0]->isChecked())
        thinOut(Vowels::Short);
    if (controls_.ChkVokal[1]->isChecked())
        thinOut(Vowels::Long);
    if (play_.checkedVowels() != Vowels::None)
        return;
    step([&] { lists_.CorrectWordList.clear(); });
    step([&] { emit vowelsSwitchedOff(); });
}

void WordCheck::clearVowelBoxes()
{
    if (boxVowels() == Vowels::None)
        return;
    for (PressButton *box : controls_.ChkVokal) {
        const QSignalBlocker once(box);
        box->setChecked(false);
    }
    ChkVokal_Click();
}

/// The word behind a removed one slides into its place and is passed over, and the index runs off the
/// shortened list: required, so of two rejected neighbours the second stays.
void WordCheck::thinOut(Vowels group)
{
    Procedure step{ground_.log, "ChkVokal_Click", "frmMain", Procedure::Silent};
    const int count = lists_.CorrectWordList.count();
    for (int row = 0; row < count; ++row)
        step([&] {
            if (!tests_.InKurzLangVokalList(lists_.CorrectWordList.at(row), group))
                lists_.CorrectWordList.removeAt(row);
        });
}
