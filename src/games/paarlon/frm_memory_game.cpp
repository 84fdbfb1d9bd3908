// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
// A game in the window: the list, the cards, the turns and the end.
#include "games/paarlon/frm_memory.h"

#include "games/paarlon/best_lists.h"
#include "games/paarlon/memory_card.h"
#include "language/list_loader.h"
#include "platform/boxes.h"
#include "platform/clock.h"
#include "platform/files.h"
#include "platform/gate.h"
#include "platform/ground.h"
#include "platform/procedure.h"
#include "platform/product.h"
#include "platform/sounds.h"
#include "platform/word_lists.h"
#include "platform/work.h"
#include "widgets/colour.h"
#include "widgets/guards.h"

#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScopedValueRollback>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

constexpr auto form = "frmMemory";
constexpr int lookEvery = 20; ///< milliseconds

const QString listTooShort = u"Für 18 Paare sind in dieser Liste zu wenig Einträge.\n\n"
                             u"Wähle andere Karten und „Anfangen“, oder schließe das Fenster mit "
                             u"„Abbrechen“ und nimm eine längere Liste."_s;

} // namespace

// The list
// ------------------------------------------------------------------------------------------------------------

QString frmMemory::fileOf(const MemoryKind &kind) const
{
    return isWortel(kind)           ? lists_.CurrentWortelFile
           : &kind == &prefixMemory ? lists_.PrefixFile
                                    : lists_.SuffixFile;
}

bool frmMemory::EnoughWortelInFile()
{
    Procedure step{ground_.log, "EnoughWortelInFile", form};
    QStringList lines;
    step([&] { readMorphemeFile(fileOf(wortelMemory), lines); });
    MorphemeList_.clear();
    return lines.size() >= morphemes::leastEntries;
}

/// Fills `MorphemeList` from the file. False if that is missing, which is told.
bool frmMemory::readMorphemeFile(const QString &path, QStringList &lines)
{
    MorphemeList_.clear();
    if (!IsTextFile(path)) {
        ground_.boxes.plainBox(Boxes::Icon::Critical, product::faultTitle,
                               missingListFile(path, "ProgInit", __LINE__));
        return false;
    }
    lines = readListOrTell(ground_, path);
    MorphemeList_.addAll(lines);
    return true;
}

/// False if there is nothing to be dealt.
bool frmMemory::loadMorphemes(const MemoryKind &kind)
{
    Procedure step{ground_.log, "LoadMorphemes", form};
    QStringList lines;
    bool isThere = true;
    step([&] { isThere = readMorphemeFile(fileOf(kind), lines); });
    if (!isThere || (step.failed() && !morphemes::canPick(MorphemeList_)))
        return false;
    if (isWortel(kind))
        step([&] { morphemes::addNumberedTwins(MorphemeList_, lines); });
    if (morphemes::canPick(MorphemeList_))
        return true;
    waitForLongerList();
    return false;
}

/// A list that is too short never fills: the game waits for entries that do not come, until the window is
/// closed. It has no limit of its own, but it lets events through and says what is wrong.
void frmMemory::waitForLongerList()
{
    const QScopedValueRollback waits(waitsForList_, true);
    controls_.lblNotice->setText(listTooShort);
    controls_.lblNotice->setAccessibleName(listTooShort.simplified());
    controls_.lblNotice->show();
    controls_.lblNotice->raise();
    Work work(ground_, {WorkPlan::Cancel, 1});
    while (work.goesOn())
        ground_.clock.wait(lookEvery);
}

// The game
// ------------------------------------------------------------------------------------------------------------

void frmMemory::startGame()
{
    Procedure step{ground_.log, "cmdCommand_Click", form};
    tmrTime_.stop();
    controls_.lblNotice->hide();
    const MemoryKind &kind = checkedKind();
    bool loaded = false;
    step([&] { loaded = loadMorphemes(kind); });
    if (!loaded || ground_.gate.isClosing())
        return;
    tmrFlipMorpheme_.stop();
    step([&] {
        const Hourglass busy;
        setKindColours(kind);
        const QStringList gameMorphemes = morphemes::pick(MorphemeList_, ground_.rnd);
        MorphemeList_.clear();
        rules_.deal(gameMorphemes);
    });
    step([&] {
        for (MemoryCard *card : controls_.picMorphemeCard)
            card->show();
        showCards();
        controls_.picCover->hide();
        setGradient();
        controls_.Picture1->setGradient();
        setInk(paint::ink);
        setCurrentCard(0);
    });
    step([&] {
        controls_.txtScores[2]->setText(u"1"_s);
        showClicks();
        controls_.LblCurrentScore->show();
    });
    step([&] { DisplayLeader(kind); });
    BestScore_ = 0; // so that every game that is finished counts as a record
    tmrTime_.start();
}

void frmMemory::showClicks()
{
    controls_.LblCurrentScore->setText(QString::number(rules_.Clicks()));
    controls_.LblCurrentScore->setAccessibleName(u"%1 Klicks"_s.arg(rules_.Clicks()));
}

/// A name as the narrow label holds it, with the clicks still under it: cut, and broken within a long word.
static QString narrow(const QString &name)
{
    constexpr int longest = 24;
    constexpr int line = 12;
    QString shown = name.size() > longest ? name.left(longest - 1) + QChar(0x2026) : name;
    if (shown.size() > line)
        shown.insert(line, QChar(0x200B)); // a place where the line may be broken, invisible
    return shown;
}

void frmMemory::DisplayLeader(const MemoryKind &kind)
{
    const TopTen list = best_.scores().topTen(kind);
    const TopTen::Record &leader = list.records().first();
    BestScore_ = leader.score;
    const QString text = u"MEMORY-\nMEISTER\n\n"_s + narrow(leader.name) + u'\n' +
                         QString::number(leader.score) + u" Klicks"_s;
    controls_.Label1->setText(text);
    controls_.Label1->setAccessibleName(text.simplified());
    controls_.Label1->show();
}

void frmMemory::picMorphemeCard_Click(int card)
{
    Procedure step{ground_.log, "picMorphemeCard_Click", form, Procedure::Silent};
    using Turn = MemoryRules::Turn;
    setCurrentCard(card);
    const Turn turn = rules_.click(card);
    if (turn == Turn::Ignored)
        return;
    showCards();
    showClicks();
    switch (turn) {
    case Turn::First:
        playSound(ground_, SoundId::FirstCard);
        break;
    case Turn::NoPair:
        tmrFlipMorpheme_.start();
        playSound(ground_, SoundId::NoPair);
        break;
    case Turn::Pair:
    case Turn::Finished:
        playSound(ground_, SoundId::PairFound);
        break;
    case Turn::Ignored:
    case Turn::Counted:
        break;
    }
    if (turn == Turn::Finished)
        step([&] { finishGame(); });
}

void frmMemory::tmrFlipMorpheme_Timer()
{
    tmrFlipMorpheme_.stop();
    rules_.turnDown();
    showCards();
}

void frmMemory::tmrTime_Timer() { controls_.txtScores[3]->setText(u"%1 seconds"_s.arg(rules_.seconds())); }

void frmMemory::finishGame()
{
    Procedure step{ground_.log, "GameOver", form};
    const int clicks = rules_.Clicks();
    tmrTime_.stop();
    tmrTime_Timer();
    QString message =
        u"Herzlichen Glückwunsch !\n\nDu hast nur %1 Klicks benötigt, und es hat %2 Sekunden gedauert."_s
            .arg(clicks)
            .arg(rules_.seconds());
    if (clicks < BestScore_ || BestScore_ == 0) {
        message += u"\n\nDU HAST EINEN NEUEN REKORD AUFGESTELLT !!"_s;
        step([&] { best_.scores().saveRecord(clicks); });
        step([&] { best_.GetBestTimes(*kind_, clicks, message); });
        activateWindow(); // behind its boxes the main window may have the keyboard
        BestScore_ = clicks;
        controls_.txtScores[4]->setText(QString::number(clicks));
    }
    if (!ground_.gate.isClosing())
        step([&] { DisplayLeader(checkedKind()); }); // of the option, which may say another kind by now
}

// The cards
// ------------------------------------------------------------------------------------------------------------

void frmMemory::showCards()
{
    for (int card = 0; card < MemoryRules::cards; ++card) {
        MemoryCard::Look look{MemoryCard::Side::Down, toQColor(colours_.FaceDownColor), {}, {}};
        if (rules_.isSolved(card)) {
            // Without its mark, and in the black by which a solved card is known.
            look = {MemoryCard::Side::Solved,
                    toQColor(colours_.SolvedColor),
                    Qt::black,
                    {rules_.printOf(card).text, {}}};
        } else if (rules_.isUp(card)) {
            look = {MemoryCard::Side::Up, toQColor(colours_.TurnedColor), toQColor(colours_.TextColor),
                    rules_.printOf(card)};
        }
        controls_.picMorphemeCard[static_cast<std::size_t>(card)]->setLook(look);
    }
}

/// The one card that the keyboard is on; the tabulator goes from it to the side panel.
void frmMemory::setCurrentCard(int card)
{
    const auto control = [this](int index) {
        return controls_.picMorphemeCard[static_cast<std::size_t>(index)];
    };
    control(currentCard_)->setFocusPolicy(Qt::ClickFocus);
    currentCard_ = card;
    control(card)->setFocusPolicy(Qt::StrongFocus);
    control(card)->setFocus();
}

void frmMemory::moveCurrentCard(int rows, int columns)
{
    constexpr int last = MemoryCard::perRow - 1;
    const int row = std::clamp(currentCard_ / MemoryCard::perRow + rows, 0, last);
    const int column = std::clamp(currentCard_ % MemoryCard::perRow + columns, 0, last);
    setCurrentCard(row * MemoryCard::perRow + column);
}
