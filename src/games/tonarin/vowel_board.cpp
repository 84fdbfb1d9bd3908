// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "games/tonarin/vowel_board.h"

#include "board/canvas/bulk_tiles.h"
#include "board/canvas/canvas.h"
#include "board/tiles/board_news.h"
#include "board/tiles/tile_kind.h"
#include "games/tonarin/frm_play_vokal.h"
#include "games/tonarin/vowel_stems.h"
#include "language/list_loader.h"
#include "language/word_check.h"
#include "platform/boxes.h"
#include "platform/files.h"
#include "platform/gate.h"
#include "platform/ground.h"
#include "platform/note_texts.h"
#include "platform/notes.h"
#include "platform/options.h"
#include "platform/procedure.h"
#include "platform/product.h"
#include "platform/sound.h"
#include "platform/sounds.h"
#include "platform/word_lists.h"
#include "platform/work.h"
#include "widgets/alpha_panel.h"
#include "widgets/dropper.h"
#include "widgets/main_controls.h"
#include "widgets/plain_tool_tip.h"
#include "widgets/press_button.h"

#include <QLabel>
#include <QSignalBlocker>

using namespace Qt::StringLiterals;

namespace {

constexpr auto form = "frmMain";

void check(PressButton *box, bool on)
{
    const QSignalBlocker quietly(box);
    box->setChecked(on);
}

} // namespace

VowelBoard::VowelBoard(Ground &ground, const MainControls &controls, WordLists &lists, const Rooms &rooms)
    : ground_(ground)
    , controls_(controls)
    , lists_(lists)
    , rooms_(rooms)
{}

void VowelBoard::ChkVokal_MouseDown(int Index, Qt::MouseButton button)
{
    Procedure step{ground_.log, "ChkVokal_MouseDown", form};
    PressButton *const box = controls_.ChkVokal[static_cast<std::size_t>(Index)];
    if (button == Qt::RightButton) {
        if (box->isChecked()) {
            ground_.notes.tell(note::afterVowels);
            return;
        }
        step([&] {
            if (const Gate::Passage open = ground_.gate.openBox())
                FrmPlayVokal(ground_, controls_.form).exec();
        });
        return;
    }
    if (box->isChecked())
        check(controls_.ChkVokal[static_cast<std::size_t>(1 - Index)], false);
    step([&] { rooms_.check.ChkVokal_Click(); });
    if (rooms_.check.boxVowels() != Vowels::None)
        step([&] { load(); });
}

void VowelBoard::load()
{
    Procedure step{ground_.log, "ChkVokal_MouseDown", form, Procedure::Silent};
    rooms_.check.readVowelBoxes();
    const QStringList stems = lists_.kurzvokalList.rows() + lists_.langvokalList.rows();
    if (stems.isEmpty()) {
        giveUp();
        ground_.boxes.ShowInfoBox(u"Die Listen mit kurzen und langen Vokalen sind leer"_s, BoxSign::Info,
                                  product::name);
        return;
    }
    const std::optional<int> count = rooms_.bulk.countInText1();
    if (!count) {
        giveUp();
        return;
    }
    if (usedBefore_.isEmpty()) {
        usedBefore_ = lists_.CurrentWortelFile;
        boardBefore_ = copyOf(rooms_.canvas.store().tiles());
    }
    controls_.PicAlpha->hide(); // a tip shows the board that was
    step([&] {
        const Work work(ground_);
        lists_.WortelList.clear();
        lists_.WortelList.addAll(stems);
        rooms_.bulk.Refill_Vokals(*count);
        rooms_.news.Commit();
        removeAffixes();
    });
    step([&] { lists_.CorrectWordList.clear(); });
    controls_.Dropper1->takeFocus(); // it rests in a work
}

void VowelBoard::removeAffixes()
{
    for (const TileKind &kind : {prefixKind, suffixKind}) {
        if (ground_.gate.isClosing() || rooms_.canvas.store().countOf(kind.back) == 0)
            continue;
        rooms_.canvas.CanvasEraseAllAffix(kind.back);
        playSound(ground_, SoundId::TilesErased);
        rooms_.news.Commit();
    }
}

/// The box was pressed, but there is no board for it. The stems of one that stood are no list to go on with.
void VowelBoard::giveUp()
{
    if (!usedBefore_.isEmpty())
        restoreLists();
    switchOff();
}

void VowelBoard::switchOff()
{
    for (PressButton *box : controls_.ChkVokal)
        check(box, false);
    rooms_.check.readVowelBoxes();
}

void VowelBoard::restoreLists()
{
    Procedure step{ground_.log, "RestoreAfterVokal", form, Procedure::Silent};
    QString path = ground_.options.text(Setting::WortelFile);
    if (!IsTextFile(path))
        path = usedBefore_;
    usedBefore_.clear();
    step([&] { lists_.CorrectWordList.clear(); });
    step([&] { lists_.WortelList.clear(); });
    step([&] { lists_.LexiconList.clear(); });
    step([&] { rooms_.loader.FillWortelList(path); });
    const QString name = listBaseName(lists_.CurrentWortelFile);
    controls_.Label3->setText(name);
    controls_.Label3->setToolTip(plainToolTip(name));
}

void VowelBoard::RestoreAfterVokal()
{
    Procedure step{ground_.log, "RestoreAfterVokal", form};
    if (usedBefore_.isEmpty())
        return; // there was no such board
    const Work work(ground_);
    controls_.PicAlpha->hide();
    step([&] { restoreLists(); });
    bool dealt = false;
    step([&] { dealt = rooms_.bulk.Refill(); });
    if (dealt)
        step([&] { rooms_.news.Commit(); });
}

void VowelBoard::makeRoom()
{
    Procedure step{ground_.log, "RestoreAfterVokal", form};
    if (usedBefore_.isEmpty())
        return;
    step([&] { restoreLists(); });
    switchOff();
}

void VowelBoard::boardSteps()
{
    if (usedBefore_.isEmpty() || copyOf(rooms_.canvas.store().tiles()) != boardBefore_)
        return;
    makeRoom();
    ground_.notes.tell(note::boardRecovered);
}

void VowelBoard::goOn(const QString &usedBefore, const Snapshot &boardBefore)
{
    usedBefore_ = usedBefore;
    boardBefore_ = boardBefore;
}

void VowelBoard::PlayTheVokal(const QString &Word)
{
    const vowel_stems::Row *row = vowel_stems::find(Word);
    if (!ground_.options.isOn(Setting::SoundOnActions))
        return;
    if (row == nullptr ||
        !ground_.sound.playFile(vowel_stems::soundFile(ground_.AppFolder, QString::fromUtf16(row->file))))
        ground_.notes.tell(note::noSound, Word);
}
