// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "games/kernling/stem_marking.h"

#include "games/kernling/kernling_controls.h"
#include "games/kernling/kernling_desk.h"
#include "games/kernling/kernling_work_view.h"
#include "games/kernling/text_words.h"
#include "platform/boxes.h"
#include "platform/ground.h"
#include "platform/options.h"
#include "platform/procedure.h"
#include "platform/product.h"
#include "platform/sound.h"
#include "widgets/colour.h"

#include <QApplication>
#include <QLabel>
#include <QLineEdit>

#include <algorithm>

using namespace Qt::StringLiterals;
using kernling::Verdict;

namespace {

constexpr auto form = "FrmKernling";
constexpr int rightSound = 112;
constexpr std::size_t runsAtOnce = 2000; ///< painted between two looks at the hand
constexpr int halfBar = 1000;            ///< of the search; the other half is the painting

void AppendColoured(QTextEdit &rtf, const QString &text, Colour colour)
{
    QTextCharFormat format;
    format.setForeground(toQColor(colour));
    rtf.textCursor().insertText(text, format);
}

} // namespace

StemMarking::StemMarking(KernlingDesk &desk, const WordTests &tests)
    : desk_(desk)
    , judge_(desk.lists, tests, desk.ground.AppFolder)
{}

kernling::VerdictOptions StemMarking::options() const
{
    const Options &options = desk_.ground.options;
    return {.KernlingShowNoDup = options.box(Setting::KernlingShowNoDup),
            .KernlingShowFalse = options.box(Setting::KernlingShowFalse),
            .KernlingUseSounds = options.box(Setting::KernlingUseSounds),
            .storedUseSounds = options.storedIsOn(Setting::KernlingUseSounds)};
}

void StemMarking::HighLightSelection()
{
    Procedure step{desk_.ground.log, "HighLightSelection", form};
    KernlingText &text = *desk_.controls.RTF;
    const KernlingText::Run run = text.selection();
    Verdict verdict;
    step([&] { verdict = judge_.judge(text.selectedText(), options()); });
    if (run.length == 0 || verdict.kind == Verdict::Kind::Nothing)
        return;
    if (verdict.kind == Verdict::Kind::Stem) {
        step([&] { text.paintRuns({run}, toQColor(kernling::stemColour)); });
        text.select({run.start, 0});
    }
    step([&] { keep(verdict); });
    step([&] { show(verdict); });
}

/// Adds the verdict's rows to the result lists and shows their counts.
void StemMarking::keep(const Verdict &verdict)
{
    if (verdict.foundRow) {
        desk_.lists.UserFoundWortelList.add(*verdict.foundRow);
        showFound();
    }
    if (verdict.falseRow) {
        desk_.lists.UserFalseWortelList.add(*verdict.falseRow);
        showFalse();
    }
}

/// The count of right answers, which are the points as well.
void StemMarking::showFound()
{
    const QString count = QString::number(desk_.lists.UserFoundWortelList.count());
    desk_.controls.Label3->setText(count);
    desk_.controls.Label8->setText(count);
}

void StemMarking::showFalse()
{
    desk_.controls.Label14->setText(QString::number(desk_.lists.UserFalseWortelList.count()));
}

void StemMarking::show(Verdict verdict)
{
    judge_.remind(verdict);
    QTextEdit &answer = *desk_.controls.rtfResponse;
    answer.clear();
    for (const kernling::VerdictPiece &piece : verdict.pieces)
        AppendColoured(answer, piece.text, piece.colour);
    answer.moveCursor(QTextCursor::Start);
    answer.setAccessibleDescription(answer.toPlainText());
    desk_.controls.Text1->setText(verdict.Text1);
    desk_.controls.Image1->setVisible(verdict.Image1);
    if (verdict.tone == Verdict::Tone::Right)
        desk_.ground.sound.PlayResourceSound(rightSound);
    else if (verdict.tone == Verdict::Tone::Beep)
        QApplication::beep();
    if (!verdict.complaint.isEmpty())
        desk_.ground.boxes.plainBox(Boxes::Icon::Warning, product::name, verdict.complaint);
}

void StemMarking::Locate_and_Higlight(const QStringList &words)
{
    Procedure step{desk_.ground.log, "Locate_and_Higlight", form};
    const QString letters = desk_.controls.RTF->text();
    Verdict last;
    bool found = true;
    {
        Work work(desk_.ground, {WorkPlan::Bar | WorkPlan::Cancel, 2 * halfBar}, &desk_.view);
        work.appear();
        Runs runs;
        step([&] { runs = hitsOf(words, letters, work); });
        if (!work.isCancelled()) {
            found = !runs.empty();
            last = paintHits(runs, letters, work);
        }
    }
    if (desk_.ground.gate.isClosing())
        return;
    if (last.kind != Verdict::Kind::Nothing)
        step([&] { show(last); });
    else if (!found)
        desk_.tell(words.size() == 1 ? u"„%1“ steht nicht als Wort im Text"_s.arg(words.first())
                                     : u"Von diesen Wortstämmen steht keiner als Wort im Text"_s);
}

/// The places of each word after those of the one before it.
StemMarking::Runs StemMarking::hitsOf(const QStringList &words, const QString &letters, Work &work)
{
    Runs runs;
    int done = 0;
    for (const QString &word : words) {
        desk_.view.setValue(static_cast<int>(halfBar * done++ / words.size()));
        for (const qsizetype hit :
             kernling::wholeWordHits(letters, word, [&work](qsizetype) { return work.goesOn(); }))
            runs.push_back({static_cast<int>(hit), static_cast<int>(word.size())});
        if (work.isCancelled())
            break;
    }
    return runs;
}

/// The last verdict. A cancel leaves what is painted.
Verdict StemMarking::paintHits(const Runs &runs, const QString &letters, Work &work)
{
    Procedure step{desk_.ground.log, "Locate_and_Higlight", form};
    Verdict last;
    for (std::size_t begin = 0; begin < runs.size() && work.goesOn(); begin += runsAtOnce) {
        const std::size_t end = std::min(runs.size(), begin + runsAtOnce);
        Runs painted;
        for (std::size_t at = begin; at < end; ++at) {
            const Verdict verdict = judge_.judge(letters.mid(runs[at].start, runs[at].length), options());
            if (verdict.kind == Verdict::Kind::Stem)
                painted.push_back(runs[at]);
            step([&] { keep(verdict); });
            last = verdict;
        }
        std::sort(painted.begin(), painted.end(),
                  [](const auto &one, const auto &other) { return one.start < other.start; });
        step([&] { desk_.controls.RTF->paintRuns(painted, toQColor(kernling::stemColour), begin > 0); });
        desk_.view.setValue(halfBar + static_cast<int>(halfBar * end / runs.size()));
    }
    return last;
}

void StemMarking::cmdUnHighlight_Click() { desk_.controls.RTF->unpaint(desk_.controls.RTF->selection()); }

void StemMarking::cmdResetColors_Click() { desk_.controls.RTF->unpaintAll(); }

void StemMarking::clearFound()
{
    desk_.lists.UserFoundWortelList.clear();
    showFound();
}

void StemMarking::clearFalse()
{
    desk_.lists.UserFalseWortelList.clear();
    showFalse();
}
