// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
// The steps of retype mode: the words are prepared, run in the strip, leave it one by one, and there is
// praise.
#include "games/retype/retype_mode.h"

#include "board/canvas/canvas.h"
#include "board/tiles/board_news.h"
#include "board/tiles/tile_store.h"
#include "games/retype/retype_sources.h"
#include "games/retype/strip_control.h"
#include "generators/word_maker.h"
#include "language/word_check.h"
#include "language/word_tests.h"
#include "platform/boxes.h"
#include "platform/clock.h"
#include "platform/ground.h"
#include "platform/note_texts.h"
#include "platform/notes.h"
#include "platform/options.h"
#include "platform/procedure.h"
#include "platform/sounds.h"
#include "platform/text.h"
#include "platform/word_lists.h"
#include "platform/work.h"
#include "widgets/colour.h"
#include "widgets/control_sheet.h"
#include "widgets/dropper.h"
#include "widgets/list_stand.h"
#include "widgets/main_controls.h"
#include "widgets/msg_scroller.h"
#include "widgets/press_button.h"
#include "widgets/status_line.h"
#include "widgets/store_list.h"

#include <QLabel>
#include <QLineEdit>
#include <QScopedValueRollback>

using namespace Qt::StringLiterals;

namespace {

using C = MainControls;

/// While the strip runs: the board is switched to typing.
constexpr SheetRow typingSheet[] = {
    {tool<&C::Check1>, SheetRow::Hidden},       {tool<&C::Check2>, SheetRow::Hidden},
    {tool<&C::Label3>, SheetRow::Hidden},       {tool<&C::Label6>, SheetRow::Hidden},
    {tool<&C::Option1, 0>, SheetRow::Disabled},
};
/// The same, but for the vowel modes, where these two stay.
constexpr SheetRow wordsSheet[] = {{tool<&C::Text1>, SheetRow::Hidden},
                                   {tool<&C::Command6>, SheetRow::Hidden}};
/// While words are searched on the board.
constexpr SheetRow searchSheet[] = {{tool<&C::Picture3>, SheetRow::Hidden}};

QString counted(int count, const char16_t *text) { return QString::number(count) + QString::fromUtf16(text); }

} // namespace

WordStore &RetypeMode::wordsOf(const RetypeSource &source) const
{
    return source.origin == RetypeSource::Nonsense ? lists_.PseudoWordList : lists_.CorrectWordList;
}

bool RetypeMode::belongs(const QString &word, const RetypeSource &source) const
{
    return source.vowels == Vowels::None || rooms_.tests.InKurzLangVokalList(word, source.vowels);
}

/// A word of the player's own is shown in the dictionary's spelling, in which it will be checked; one that
/// the dictionary does not know could never be copied, and is not shown.
QString RetypeMode::inStrip(const QString &word, const RetypeSource &source) const
{
    return source.properCase ? rooms_.tests.ProperCase2(word) : word;
}

// Preparing
// ------------------------------------------------------------------------------------------------------------

/// True if there are words in the strip and nobody has cancelled.
bool RetypeMode::prepare(const RetypeSource &source)
{
    Work work(ground_, {WorkPlan::Bar | WorkPlan::Cancel | WorkPlan::Words, 1});
    controls_.Scroller->Clear();
    if (makeWords(source))
        gatherWords(source, work);
    if (work.isCancelled() || stopWanted_) {
        wordsOf(source).clear();
        controls_.Scroller->Clear();
        return false;
    }
    const bool any = controls_.Scroller->ListCount() > 0;
    if (!any && source.origin == RetypeSource::WordList)
        ground_.notes.tell(source.vowels == Vowels::None ? note::noKnownWord : note::noVowelWord);
    return any;
}

/// Nonsense words that were made before a cancel are used, unless it came from the mode's own button: the
/// generator keeps no cancel for its caller.
bool RetypeMode::makeWords(const RetypeSource &source)
{
    if (source.origin == RetypeSource::WordList)
        return true;
    const bool nonsense = source.origin == RetypeSource::Nonsense;
    const int count =
        CInt(ground_.options.number(nonsense ? Setting::NumPseudoReTypeWords : Setting::NumReTypeWords));
    if (nonsense) {
        rooms_.words.MakePseudoWordsTorvin(count);
        return !stopWanted_;
    }
    rooms_.sheet.lay(Reason::Preparing, searchSheet);
    const bool made = rooms_.words.MakeDummyWordsInDic(count);
    rooms_.sheet.takeOff(Reason::Preparing);
    return made;
}

void RetypeMode::gatherWords(const RetypeSource &source, Work &work)
{
    Procedure step(ground_.log, "StartTheRetyping", "frmMain", Procedure::Silent);
    MsgScroller &strip = *controls_.Scroller;
    const WordStore &words = wordsOf(source);
    const QStringList rows = words.rows(); // a copy: events run on the way
    const bool keeps = source.keepsWords && ground_.options.isOn(Setting::ShowCorrectListAfterReType);
    for (const QString &row : rows) {
        if (work.isCancelled())
            return;
        if (!belongs(row, source))
            continue;
        const QString word = inStrip(row, source);
        // The same word twice is an error of the strip's keys, and shown once.
        step([&] { strip.AddItem(word, word); });
        if (keeps && !word.isEmpty())
            KeptWords_.append(word);
        const int count = source.countsWholeList ? words.count() : strip.ListCount();
        work.tell(counted(count, source.preparing));
        work.goesOn();
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
    rooms_.status.show(StatusLine::Layer::Mode, count,
                       QString::fromUtf16(source.before) + counted(count, source.ready));

    rooms_.sheet.lay(Reason::Typing, typingSheet);
    if (source.vowels == Vowels::None)
        rooms_.sheet.lay(Reason::Typing, wordsSheet);
    controls_.Option1[1]->setChecked(true);
    controls_.Check4->setFace(paint::running);
    controls_.Dropper1->takeFocus();
    controls_.Dropper1->selectAll(); // what still stands there goes with the first letter
}

void RetypeMode::wordCopied(const QString &word)
{
    if (!play_.RetypeActive() || state_ != State::Rest)
        return;
    controls_.Scroller->setAutoScroll(false);
    controls_.Scroller->setScroll(false);
    FillScroller(word);
}

void RetypeMode::FillScroller(const QString &Word)
{
    Procedure step(ground_.log, "FillScroller", "frmMain");
    const RetypeSource &source = *running_;
    MsgScroller &strip = *controls_.Scroller;
    strip.Clear();
    if (Word.isEmpty())
        return;
    WordStore &words = wordsOf(source);
    step([&] { removeWord(Word, words); });
    for (const QString &word : words.rows()) {
        if (belongs(word, source))
            step([&] { strip.AddItem(inStrip(word, source)); });
    }
    if (!words.isEmpty())
        rooms_.status.show(StatusLine::Layer::Mode, words.count(), counted(words.count(), source.left));
    if (source.vowels != Vowels::None)
        step([&] { eraseTile(Word); });
    strip.setEnabled(true);
    if (strip.ListCount() == 0)
        finish(source);
    else
        strip.setScroll(true);
}

/// The index goes on past a removal and the loop's end stays, so of two equal neighbours the second stays:
/// required.
void RetypeMode::removeWord(const QString &word, WordStore &words)
{
    const QString capitals = UCase(word);
    const int count = words.count();
    for (int row = 0; row < count; ++row) {
        if (UCase(words.at(row)) != capitals)
            continue;
        copied_.append(words.at(row));
        words.removeAt(row);
    }
}

void RetypeMode::eraseTile(const QString &word)
{
    rooms_.canvas.store().EraseSpecifiedWortel(word);
    rooms_.canvas.repaint();
    rooms_.news.move();
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
    step([&] { playSound(ground_, SoundId::AllCopied); });
    controls_.Dropper1->setCaption({});
    rooms_.status.setCaption(StatusLine::Layer::Mode, counted(0, source.left));
    if (source.returnsWords && ground_.options.isOn(Setting::ShowCorrectListAfterReType))
        step([&] { lists_.CorrectWordList.addAll(KeptWords_); });

    int answer = 0;
    step([&] {
        answer = ground_.boxes.ShowInfoBox(u"Prima !\nDu hast jetzt "_s + QString::fromUtf16(source.praised) +
                                               u" richtig abgeschrieben !"_s,
                                           source.sign, u"Abschreiben: Fertig"_s);
    });
    // A praise that was closed with Esc leaves the lists and the vowel board alone, but not the mode half on.
    if (answer != 1) {
        lists_.PseudoWordList.clear();
        controls_.Scroller->Clear();
        step([&] { rooms_.check.clearVowelBoxes(); });
    }
    leave();
    if (!lists_.CorrectWordList.isEmpty())
        showDownToBand(controls_, controls_.CorrectWordList);
}
