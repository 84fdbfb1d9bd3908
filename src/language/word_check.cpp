// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "language/word_check.h"

#include "language/dictionary_panel.h"
#include "language/word_tests.h"
#include "platform/boxes.h"
#include "platform/clock.h"
#include "platform/ground.h"
#include "platform/modes.h"
#include "platform/options.h"
#include "platform/procedure.h"
#include "platform/report_popup.h"
#include "platform/sound.h"
#include "platform/text.h"
#include "platform/word_lists.h"
#include "widgets/dropper.h"
#include "widgets/main_controls.h"
#include "widgets/press_button.h"

#include <QLabel>
#include <QLineEdit>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

constexpr int soundRight = 101;
constexpr int soundNotFound = 102;
constexpr int soundCleared = 105;
constexpr int soundKey = 106;
constexpr int soundCapitals = 111;
constexpr int soundWrongVowel = 124;

QString quoted(const QString &word) { return u'"' + word + u'"'; }

} // namespace

/// What tells the two vowel branches apart.
struct WordCheck::VowelGroup
{
    const char16_t *kind;
    const char16_t *otherKind;
    const char16_t *stripKind;
    bool speaksOnlyIfFilled; ///< missing from the short branch: the field is never empty there
};

const WordCheck::VowelGroup WordCheck::shortVowels{u"KURZ", u"LANG", u"KURZVOKAL", false};
const WordCheck::VowelGroup WordCheck::longVowels{u"LANG", u"KURZ", u"LANGVOKAL", true};

WordCheck::WordCheck(Ground &ground, const MainControls &controls, WordLists &lists, Modes &modes,
                     const WordTests &tests, DictionaryPanel &dictionary, ReportPopup &popup, QObject *parent)
    : QObject(parent)
    , ground_(ground)
    , controls_(controls)
    , lists_(lists)
    , modes_(modes)
    , tests_(tests)
    , dictionary_(dictionary)
    , popup_(popup)
{}

void WordCheck::Command2_MouseDown(Qt::MouseButton button)
{
    Procedure step{ground_.log, "Command2_MouseDown", "frmMain"};
    if (button == Qt::RightButton) {
        if (modes_.GameActive || modes_.RetypeActive)
            return;
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
        if (modes_.RetypePseudoWords)
            checkNonsense(word);
        else if (modes_.KurzVokalMode)
            checkVowel(word, shortVowels);
        else if (modes_.LangVokalMode)
            checkVowel(word, longVowels);
        else
            checkInDictionary(word);
    });
}

void WordCheck::readVowelBoxes()
{
    const bool shortOn = controls_.ChkVokal[0]->isChecked();
    const bool longOn = controls_.ChkVokal[1]->isChecked();
    if (shortOn && longOn)
        return;
    modes_.KurzVokalMode = shortOn;
    modes_.LangVokalMode = longOn;
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
    ground_.boxes.ShowInfoBox(u"Gib bitte ein Wort ein"_s, u"WRITE"_s, u"Wortel-Meister: Wortkontrolle"_s);
}

int WordCheck::verifySeconds() const
{
    constexpr double aDay = 24 * 3600; // what no number of the store may pass, to stay an int
    return static_cast<int>(std::clamp(Fix(Val(ground_.options.stored(Setting::VerifyWinTime))), 0.0, aDay));
}

void WordCheck::checkInDictionary(const QString &word)
{
    if (!tests_.In_Lexicon(word)) {
        popup_.Display(u"Wort nicht gefunden"_s, u"Das gesuchte Wort \n"_s, quoted(word) + u'\n',
                       u" steht nicht im Wörterbuch."_s, verifySeconds(), soundNotFound, false, false);
        offerAgain();
        return;
    }
    // The dictionary's spelling is shown, so that a hit teaches the right capitals; the list keeps the
    // learner's.
    popup_.Display(u"Richtig !"_s, u"Das gesuchte Wort \n"_s, quoted(tests_.ProperCase(word)) + u'\n',
                   u"ist richtig."_s, verifySeconds(), soundRight, true, true);
    if (modes_.RetypeActive) {
        emit retypeWordFound(word, u"CORRECT_WORDS"_s);
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
                       u" steht nicht in der Wörterliste."_s, verifySeconds(), soundNotFound, false, false);
        offerAgain();
        return;
    }
    popup_.Display(u"Richtig !"_s, u"Das Unsinnswort \n"_s, quoted(word), u"ist richtig abgeschrieben."_s,
                   verifySeconds(), soundRight, true, true);
    if (modes_.RetypeActive)
        emit retypeWordFound(word, u"PSEUDO_WORDS"_s);
    clearEntry();
}

void WordCheck::checkVowel(const QString &word, const VowelGroup &group)
{
    if (tests_.InKurzLangVokalList(word, QString::fromUtf16(group.kind))) {
        if (!group.speaksOnlyIfFilled || !controls_.Dropper1->Caption().isEmpty())
            emit vowelWordFound(word);
        if (modes_.RetypeActive)
            emit retypeWordFound(word, QString::fromUtf16(group.stripKind));
        else
            keep(word);
        collectForGame(word);
        clearEntry();
        return;
    }
    if (tests_.InKurzLangVokalList(word, QString::fromUtf16(group.otherKind))) {
        if (ground_.options.isOn(Setting::SoundOnActions))
            ground_.sound.PlayResourceSound(soundWrongVowel);
    } else {
        ground_.boxes.ShowInfoBox(u"Bitte schreibe einen Wortstamm"_s, u"WRITE"_s,
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
    if (!modes_.GameActive || tests_.GameChkCollectedDupl(word))
        return;
    lists_.GameCollectedList.add(word);
    controls_.Label1->setText(QString::number(lists_.GameCollectedList.count()));
    emit gameWordCollected(word);
}

void WordCheck::showEntry()
{
    controls_.Dropper1->setEnabled(true);
    controls_.Dropper1->show();
    controls_.Dropper1->takeFocus();
}

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
    // Both sounds answer to boxes of another purpose, on purpose.
    if (button == Qt::LeftButton) {
        clearEntry();
        if (dictionary_.isOpen()) {
            controls_.Text2->show();
            controls_.Text2->clear();
            controls_.Text2->setFocus();
        }
        if (ground_.options.isOn(Setting::GameSoundOnTimeOut))
            step([&] { ground_.sound.PlayResourceSound(soundCleared); });
    } else if (button == Qt::RightButton) {
        const QString word = controls_.Dropper1->Caption();
        if (word.isEmpty()) {
            step([&] { askForWord(); });
            showEntry();
            return;
        }
        controls_.Dropper1->setCaption(InitCapWord(word));
        showEntry();
        if (ground_.options.isOn(Setting::SoundOnAllReTyped))
            step([&] { ground_.sound.PlayResourceSound(soundCapitals); });
    }
}

void WordCheck::Dropper1_EnterPress()
{
    if (controls_.Command5->isEnabled() && controls_.Dropper1->isActiveControl())
        Command2_MouseDown(Qt::LeftButton);
}

void WordCheck::Dropper1_KeyPress()
{
    if (ground_.options.isOn(Setting::UseSounds))
        ground_.sound.PlayResourceSound(soundKey);
}

void WordCheck::ChkVokal_Click()
{
    Procedure step{ground_.log, "ChkVokal_Click", "frmMain"};
    readVowelBoxes();
    if (controls_.ChkVokal[0]->isChecked())
        thinOut(u"KURZ"_s);
    if (controls_.ChkVokal[1]->isChecked())
        thinOut(u"LANG"_s);
    if (modes_.KurzVokalMode || modes_.LangVokalMode)
        return;
    step([&] { lists_.CorrectWordList.clear(); });
    step([&] { emit vowelsSwitchedOff(); });
}

/// The word behind a removed one slides into its place and is passed over, and the index runs off the
/// shortened list: required, so of two rejected neighbours the second stays.
void WordCheck::thinOut(const QString &kind)
{
    Procedure step{ground_.log, "ChkVokal_Click", "frmMain", Procedure::Silent};
    const int count = lists_.CorrectWordList.count();
    for (int row = 0; row < count; ++row)
        step([&] {
            if (!tests_.InKurzLangVokalList(lists_.CorrectWordList.at(row), kind))
                lists_.CorrectWordList.removeAt(row);
        });
}
