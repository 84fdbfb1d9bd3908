// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "games/kernling/work_list.h"

#include "board/tiles/tile_store.h"
#include "games/kernling/kernling_controls.h"
#include "games/kernling/kernling_desk.h"
#include "games/kernling/kernling_text.h"
#include "games/kernling/kernling_work_view.h"
#include "games/kernling/text_words.h"
#include "games/kernling/word_list_box.h"
#include "generators/word_maker.h"
#include "platform/boxes.h"
#include "platform/ground.h"
#include "platform/options.h"
#include "platform/procedure.h"
#include "platform/runtime_error.h"
#include "platform/text.h"
#include "platform/word_lists.h"

#include <QLabel>
#include <QLineEdit>
#include <QRadioButton>

#include <algorithm>
#include <limits>

using namespace Qt::StringLiterals;

namespace {

constexpr auto form = "FrmKernling";
constexpr int mostWords = std::numeric_limits<qint16>::max();

// The sources, as `OptFilltype` numbers them.
enum Source { CollectedWords, Dictionary, PseudoWords, LetterMix, MorphemScramble, BoardWords };

const QString emptyList = u"Die Liste ist leer"_s;
const QString emptyListToo = u"Die Liste ist leer !"_s;

} // namespace

WorkList::WorkList(KernlingDesk &desk, Sources sources)
    : desk_(desk)
    , sources_(std::move(sources))
{}

void WorkList::Command3_Click()
{
    Procedure step{desk_.ground.log, "Command3_Click", form};
    step([&] { desk_.Init(); });
    const auto &options = desk_.controls.OptFilltype;
    const auto chosen = std::find_if(options.begin(), options.end(),
                                     [](const QRadioButton *one) { return one->isChecked(); });
    step([&] { fillFrom(static_cast<int>(chosen - options.begin())); });
}

void WorkList::fillFrom(int source)
{
    WordLists &lists = desk_.mainLists;
    switch (source) {
    case CollectedWords:
        add(lists.CorrectWordList.rows());
        break;
    case Dictionary:
        sources_.resetVowelBoxes();
        add(lists.LexiconList.rows());
        break;
    default:
        if (fillFromTiles(source) && !desk_.ground.gate.isClosing())
            add(source == BoardWords ? lists.CorrectWordList.rows() : lists.PseudoWordList.rows());
    }
}

/// Lets the generator run that makes the words of that source. False if it could not begin.
bool WorkList::fillFromTiles(int source)
{
    constexpr std::array counts{Setting::KernlingNumPseudoWords, Setting::KernlingNumLetterMixWords,
                                Setting::KernlingNumScrambleWords, Setting::KernlingNumRandomWords};
    if ((source == LetterMix || source == MorphemScramble) &&
        !kernling::suitsScrambles(desk_.controls.Label16->text())) {
        desk_.tell(u"Mit dieser Wortel-Liste geht das leider nicht"_s);
        return false;
    }
    if (source == BoardWords && sources_.tiles.tiles().empty()) {
        desk_.tell(u"Es sind keine Wortele auf dem Bildschirm"_s);
        return false;
    }
    const std::optional<int> count = countOf(counts[static_cast<std::size_t>(source - PseudoWords)]);
    if (!count)
        return false;
    WordMaker &maker = sources_.maker;
    if (source == PseudoWords)
        maker.MakePseudoWordsForKernling(*count, desk_.view);
    else if (source == BoardWords)
        maker.MakeWordsForKernling(*count, desk_.view);
    else if (source == LetterMix)
        maker.MakeLetterMix(*count, Trim(desk_.controls.Text4->text()), desk_.view);
    else
        maker.MakeMorphemScramble(*count, desk_.view);
    return true;
}

/// How many words are to be made, or nothing if the options hold no such number.
std::optional<int> WorkList::countOf(Setting setting) const
{
    const double count = desk_.ground.options.number(setting);
    if (count >= 1 && count <= mostWords)
        return static_cast<int>(count);
    desk_.tell(u"In den Optionen steht als Anzahl der Wörter „%1“.\nMöglich sind die Zahlen von 1 bis %2."_s
                   .arg(desk_.ground.options.text(setting).left(20))
                   .arg(mostWords));
    return std::nullopt;
}

void WorkList::add(const QStringList &words)
{
    try {
        desk_.List1.addAll(words);
    } catch (const RuntimeError &) {
        desk_.tell(u"Die Liste ist voll. Mehr als %1 Wörter passen nicht hinein."_s.arg(mostWords));
        throw;
    }
}

bool WorkList::hasWords(const QString &otherwise) const
{
    if (!desk_.List1.isEmpty())
        return true;
    desk_.tell(otherwise);
    return false;
}

void WorkList::intoText(const QStringList &words)
{
    Procedure step{desk_.ground.log, "intoText", form};
    step([&] { desk_.controls.RTF->replaceText(words.join(u'\n')); });
    desk_.showTitle({}); // they are of no file
}

void WorkList::Command9_Click()
{
    if (!hasWords(emptyListToo))
        return;
    desk_.controls.List1->clearSelection();
    kernling::ShuffleAllWords(desk_.List1, desk_.ground.rnd);
}

void WorkList::Command13_Click()
{
    if (hasWords(emptyListToo))
        desk_.List1.clear();
}

void WorkList::Command14_Click()
{
    if (hasWords(emptyList))
        desk_.controls.List1->clearSelection();
}

void WorkList::Command7_Click()
{
    if (!hasWords(emptyListToo))
        return;
    const double wanted = std::min<double>(Val(desk_.controls.Text3->text()), mostWords);
    const std::vector<int> rows =
        kernling::randomRows(desk_.List1.count(), static_cast<int>(wanted), desk_.ground.rnd);
    desk_.controls.List1->selectRows({rows.begin(), rows.end()});
}

void WorkList::Command11_Click()
{
    if (hasWords(emptyList))
        intoText(desk_.List1.rows());
}

void WorkList::Command12_Click()
{
    if (!hasWords(emptyList))
        return;
    const QStringList words = desk_.controls.List1->selectedWords();
    if (words.isEmpty())
        desk_.tell(u"Es wurden keine Wörter ausgewählt"_s);
    else
        intoText(words);
}

void WorkList::Command15_Click()
{
    if (desk_.ground.boxes.agrees(u"Wortliste von Klotar löschen ?"_s, u"Wortel - Bestätigen"_s))
        desk_.mainLists.CorrectWordList.clear();
}

void WorkList::moveUp()
{
    const QList<int> rows = desk_.controls.List1->selectedRows();
    if (rows.size() == 1)
        desk_.controls.List1->setListIndex(kernling::list_move_up(desk_.List1, rows.first()));
}

void WorkList::moveDown()
{
    const QList<int> rows = desk_.controls.List1->selectedRows();
    if (rows.size() == 1)
        desk_.controls.List1->setListIndex(kernling::list_move_down(desk_.List1, rows.first()));
}
