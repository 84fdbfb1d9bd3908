// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
// The steps of retype mode: the words are prepared, run in the strip, leave it one by one, and there is
// praise.
#include "games/retype/retype_mode.h"

#include "board/canvas/canvas.h"
#include "board/tiles/tile_store.h"
#include "games/retype/retype_sources.h"
#include "games/retype/strip_control.h"
#include "generators/word_maker.h"
#include "language/list_stand.h"
#include "language/word_check.h"
#include "language/word_tests.h"
#include "platform/boxes.h"
#include "platform/clock.h"
#include "platform/ground.h"
#include "platform/modes.h"
#include "platform/options.h"
#include "platform/procedure.h"
#include "platform/sound.h"
#include "platform/text.h"
#include "platform/word_lists.h"
#include "widgets/click_label.h"
#include "widgets/dropper.h"
#include "widgets/gradient.h"
#include "widgets/guards.h"
#include "widgets/main_controls.h"
#include "widgets/msg_scroller.h"
#include "widgets/preparing.h"
#include "widgets/press_button.h"
#include "widgets/progress_bar.h"
#include "widgets/store_list.h"

#include <QLabel>
#include <QLineEdit>
#include <QScopedValueRollback>
#include <QSignalBlocker>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

constexpr int soundAllCopied = 103;
constexpr int lowestList = 60; ///< pixels
constexpr QColor runningFace{0xFF, 0xC8, 0x3C};

using C = MainControls;
using Row = SheetRow;

#define CONTROL(member) [](const C &c) -> QWidget * { return c.member; }
/// While the strip runs: the board is switched to typing.
constexpr SheetRow typingSheet[] = {
    {CONTROL(Check1), Row::Hidden | Row::Disabled},
    {CONTROL(Check2), Row::Hidden | Row::Disabled},
    {CONTROL(Label3), Row::Hidden | Row::Disabled},
    {CONTROL(Label6), Row::Hidden | Row::Disabled},
    {CONTROL(Command3), Row::Disabled},
    {CONTROL(Command4), Row::Disabled},
    {CONTROL(Option1[0]), Row::Disabled},
    {CONTROL(CorrectWordList), Row::Hidden},
    {CONTROL(Dropper1), Row::Enabled | Row::Shown},
};
/// The same, but for the vowel modes, where these two stay.
constexpr SheetRow wordsSheet[] = {
    {CONTROL(Text1), Row::Hidden | Row::Disabled},
    {CONTROL(Command6), Row::Hidden},
};
#undef CONTROL

QString counted(int count, const char16_t *text) { return QString::number(count) + QString::fromUtf16(text); }

/// The tools rest while one of these lives, and the pointer is the hourglass.
class PreparingTools
{
public:
    explicit PreparingTools(const MainControls &controls)
        : controls_(controls)
    {
        ToggleButtonsOnPreparing(controls_, false);
    }
    ~PreparingTools() { ToggleButtonsOnPreparing(controls_, true); }
    PreparingTools(const PreparingTools &) = delete;
    PreparingTools &operator=(const PreparingTools &) = delete;

private:
    const MainControls &controls_;
    Hourglass hourglass_;
};

} // namespace

WordStore &RetypeMode::wordsOf(const RetypeSource &source) const
{
    return source.origin == RetypeSource::Nonsense ? lists_.PseudoWordList : lists_.CorrectWordList;
}

bool RetypeMode::belongs(const QString &word, const RetypeSource &source) const
{
    return source.vowels == nullptr ||
           rooms_.tests.InKurzLangVokalList(word, QString::fromUtf16(source.vowels));
}

/// A word of the player's own is shown in the dictionary's spelling, in which it will be checked; one that
/// the dictionary does not know could never be copied, and is not shown.
QString RetypeMode::inStrip(const QString &word, const RetypeSource &source) const
{
    return source.properCase ? rooms_.tests.ProperCase2(word) : word;
}

bool RetypeMode::isCancelled() const { return modes_.CancelPreparing || stopWanted_ || modes_.Closing; }

// Preparing
// ------------------------------------------------------------------------------------------------------------

/// True if there are words in the strip and nobody has cancelled.
bool RetypeMode::prepare(const RetypeSource &source)
{
    if (source.origin == RetypeSource::WordList) {
        if (wordsOf(source).isEmpty())
            return false;
        const PreparingTools rest(controls_);
        setSourceFlags(source);
        startProgress();
        gatherWords(source);
    } else {
        setSourceFlags(source);
        if (!makeWords(source))
            return false;
        gatherWords(source);
    }
    controls_.Label4->hide();
    if (isCancelled()) {
        wordsOf(source).clear();
        controls_.Scroller->Clear();
        return false;
    }
    return controls_.Scroller->ListCount() > 0;
}

/// The generators show and clear away their own progress. Nonsense words that were made before a cancel are
/// used: the generator keeps no cancel for its caller.
bool RetypeMode::makeWords(const RetypeSource &source)
{
    const bool nonsense = source.origin == RetypeSource::Nonsense;
    const int count =
        CInt(ground_.options.number(nonsense ? Setting::NumPseudoReTypeWords : Setting::NumReTypeWords));
    if (nonsense) {
        rooms_.words.MakePseudoWordsTorvin(count);
    } else {
        // Hidden only while the words are made: later the button in it ends the mode.
        controls_.Picture3->hide();
        rooms_.words.MakeDummyWordsInDic(count);
        controls_.Picture3->show();
        if (modes_.CancelPreparing)
            lists_.CorrectWordList.clear();
    }
    return !isCancelled() && !wordsOf(source).isEmpty();
}

/// The words by the tiles have the flag of the chosen words on as well, so that a later start from a new word
/// list does not replace it.
void RetypeMode::setSourceFlags(const RetypeSource &source)
{
    const bool chosen = modes_.RetypeChosenWords;
    modes_.clearRetypeSources();
    switch (source.origin) {
    case RetypeSource::WordList:
        modes_.RetypeChosenWords = chosen;
        modes_.RetypeUserWords = !chosen;
        break;
    case RetypeSource::Board:
        modes_.RetypeRandomWords = true;
        modes_.RetypeChosenWords = true;
        break;
    case RetypeSource::Nonsense:
        modes_.RetypePseudoWords = true;
        break;
    }
}

void RetypeMode::startProgress()
{
    controls_.GameProgress->setValue(0);
    controls_.GameProgress->setCaption(u"Bitte warten..."_s);
    controls_.GameProgress->show();
    controls_.Scroller->Clear();
    controls_.Label4->show();
    modes_.CancelPreparing = false;
}

void RetypeMode::gatherWords(const RetypeSource &source)
{
    Procedure step(ground_.log, "StartTheRetyping", "frmMain", Procedure::Silent);
    MsgScroller &strip = *controls_.Scroller;
    const WordStore &words = wordsOf(source);
    const bool keeps = source.keepsWords && ground_.options.isOn(Setting::ShowCorrectListAfterReType);
    // The list may change while events run, so its end is asked for each time.
    for (int row = 0; row < words.count() && !isCancelled(); ++row) {
        if (!belongs(words.at(row), source))
            continue;
        const QString word = inStrip(words.at(row), source);
        // The same word twice is an error of the strip's keys, and shown once.
        step([&] { strip.AddItem(word, word); });
        if (keeps && !word.isEmpty())
            KeptWords_.append(word);
        const int count = source.countsWholeList ? words.count() : strip.ListCount();
        controls_.GameProgress->setCaption(counted(count, source.preparing));
        if (ground_.pump.inputWaiting())
            ground_.pump.yield();
    }
}

// Running
// ------------------------------------------------------------------------------------------------------------

void RetypeMode::showStrip(const RetypeSource &source)
{
    const int count = wordsOf(source).count();
    rooms_.strip.PlaceTheMsgScroller();
    controls_.Scroller->setEnabled(true);
    controls_.Scroller->setScroll(true);
    controls_.Scroller->show();
    controls_.GameProgress->setMaximum(count);
    controls_.GameProgress->setValue(0);
    controls_.GameProgress->setCaption(QString::fromUtf16(source.before) + counted(count, source.ready));

    sheet_.layOn(typingSheet);
    if (source.vowels == nullptr)
        sheet_.layOn(wordsSheet);
    controls_.Option1[1]->setChecked(true);
    controls_.Check4->setFace(runningFace);
    controls_.Dropper1->takeFocus();
}

void RetypeMode::wordCopied(const QString &word, const QString &kind)
{
    if (!modes_.RetypeActive || state_ != State::Rest)
        return;
    controls_.Scroller->setAutoScroll(false);
    controls_.Scroller->setScroll(false);
    FillScroller(word, kind);
}

void RetypeMode::FillScroller(const QString &Word, const QString &Kind)
{
    Procedure step(ground_.log, "FillScroller", "frmMain");
    MsgScroller &strip = *controls_.Scroller;
    strip.Clear();
    const RetypeSource *source = retypeSourceOfKind(Kind);
    if (Word.isEmpty() || source == nullptr)
        return;
    WordStore &words = wordsOf(*source);
    step([&] { removeWord(Word, words); });
    for (const QString &word : words.rows()) {
        if (belongs(word, *source))
            step([&] { strip.AddItem(inStrip(word, *source)); });
    }
    if (!words.isEmpty()) {
        controls_.GameProgress->setMaximum(words.count());
        controls_.GameProgress->setValue(0);
        controls_.GameProgress->setCaption(counted(words.count(), source->left));
    }
    if (source->vowels != nullptr)
        step([&] { eraseTile(Word); });
    // Erasing lets events run, and the button may have been pressed.
    if (!modes_.RetypeActive)
        return;
    strip.setEnabled(true);
    if (strip.ListCount() == 0)
        finish(*source);
    else
        strip.setScroll(true);
}

/// The index goes on past a removal and the loop's end stays, so of two equal neighbours the second stays:
/// required.
void RetypeMode::removeWord(const QString &word, WordStore &words) const
{
    const QString capitals = UCase(word);
    const int count = words.count();
    for (int row = 0; row < count; ++row) {
        if (UCase(words.at(row)) == capitals)
            words.removeAt(row);
    }
}

void RetypeMode::eraseTile(const QString &word)
{
    TileStore &tiles = rooms_.canvas.store();
    const int filter = tiles.filter().selected();
    tiles.EraseSpecifiedWortel(word);
    rooms_.canvas.RecallFilter(filter);
}

// The end
// ------------------------------------------------------------------------------------------------------------

void RetypeMode::finish(const RetypeSource &source)
{
    Procedure step(ground_.log, "FillScroller", "frmMain", Procedure::Silent);
    const QScopedValueRollback ending(state_, State::Ending);
    controls_.Scroller->setEnabled(false);
    controls_.Scroller->setScroll(false);
    controls_.Scroller->hide();
    if (ground_.options.isOn(Setting::SoundOnAllReTyped))
        step([&] { ground_.sound.PlayResourceSound(soundAllCopied); });
    controls_.Dropper1->setCaption({});
    controls_.GameProgress->setCaption(counted(0, source.left));
    const bool keepsWords = QStringView(source.kind) == u"CORRECT_WORDS";
    if (keepsWords && ground_.options.isOn(Setting::ShowCorrectListAfterReType))
        step([&] { lists_.CorrectWordList.addAll(KeptWords_); });

    int answer = 0;
    step([&] {
        answer = ground_.boxes.ShowInfoBox(u"Prima !\nDu hast jetzt "_s + QString::fromUtf16(source.praised) +
                                               u" richtig abgeschrieben !"_s,
                                           QString::fromUtf16(source.boxStyle), u"Abschreiben: Fertig"_s);
    });
    // A praise that was closed with Esc leaves the lists and the vowel board alone, but not the mode half on.
    if (answer != 1) {
        lists_.PseudoWordList.clear();
        controls_.Scroller->Clear();
        // Before the boxes: the board that returns then says itself which tools act.
        sheet_.takeOff();
        step([&] { clearVowelBoxes(); });
    }
    leave();
    if (!lists_.CorrectWordList.isEmpty())
        showWordList();
}

void RetypeMode::clearVowelBoxes()
{
    const auto isOn = [](const PressButton *box) { return box->isChecked(); };
    if (std::none_of(controls_.ChkVokal.begin(), controls_.ChkVokal.end(), isOn))
        return;
    for (PressButton *box : controls_.ChkVokal) {
        const QSignalBlocker once(box);
        box->setChecked(false);
    }
    rooms_.check.ChkVokal_Click();
}

void RetypeMode::showWordList()
{
    StoreList *list = controls_.CorrectWordList;
    standOnBand(controls_, list);
    list->resize(list->width(), std::max(lowestList, controls_.Picture1->y() - list->y()));
    list->show();
}
