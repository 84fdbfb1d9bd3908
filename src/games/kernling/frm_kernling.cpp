// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "games/kernling/frm_kernling.h"

#include "games/kernling/frm_kernling_options.h"
#include "games/kernling/frm_kernling_parts.h"
#include "games/kernling/time_sign.h"
#include "games/scores/high_scores.h"
#include "language/word_tests.h"
#include "platform/boxes.h"
#include "platform/ground.h"
#include "platform/options.h"
#include "platform/procedure.h"
#include "platform/product.h"
#include "platform/text.h"
#include "widgets/window_style.h"

#include <QCloseEvent>
#include <QKeyEvent>
#include <QLabel>
#include <QScreen>
#include <QTextDocument>

using namespace Qt::StringLiterals;

namespace {

constexpr auto form = "FrmKernling";
constexpr QSize smallestWish{853, 450};

} // namespace

FrmKernling::Parts::Parts(Ground &ground, const FrmKernling::Hall &hall, QWidget *window)
    : controls(makeKernlingControls(window))
    , view(controls)
    , desk(ground, controls, view, hall.lists)
    , marking(desk, hall.tests)
    , words(desk, {hall.maker, hall.tiles, hall.resetVowelBoxes})
    , source(desk)
    , options(ground, window)
    , game(desk, marking, hall.scores, options.Frame1(), window)
{}

FrmKernling::FrmKernling(Ground &ground, const Hall &hall, QWidget *parent)
    : QDialog(parent)
    , ground_(ground)
    , hall_(hall)
{
    setObjectName(QLatin1String(form));
    setWindowTitle(u"Kernling - Trainiere deine Fähigkeit, den Wortstamm zu erkennen"_s);
    setWindowFlags(Qt::Dialog | Qt::WindowTitleHint | Qt::WindowSystemMenuHint |
                   Qt::WindowMaximizeButtonHint | Qt::WindowCloseButtonHint);
}

FrmKernling::~FrmKernling() = default;

const KernlingControls &FrmKernling::controls() const { return parts_->controls; }

void FrmKernling::Form_Load()
{
    Procedure step{ground_.log, "Form_Load", form};
    if (!parts_) {
        parts_ = std::make_unique<Parts>(ground_, hall_, this);
        wire();
    }
    step([&] { ground_.options.GetSettings(SettingsWindow::frmKernlingOptions); });
    step([&] { showToolTips(); });
    step([&] { showLists(); });
    step([&] { showWayOfMarking(); });
    if (!parts_->controls.RTF->isEmpty())
        return; // a text that was kept is judged by the stems it had
    step([&] { parts_->desk.Init(); });
    parts_->desk.showTitle({});
}

bool FrmKernling::keepsText() const { return parts_ && !parts_->controls.RTF->text().trimmed().isEmpty(); }

void FrmKernling::openModally()
{
    Form_Load();
    const Gate::Passage open = ground_.gate.openBox();
    if (!open)
        return;
    window_style::fitToScreen(*this, (screen()->availableSize() * 4 / 5).expandedTo(smallestWish));
    parts_->controls.RTF->setFocus();
    exec();
    parts_->game.stop();
}

void FrmKernling::closeEvent(QCloseEvent *event)
{
    if (parts_ && !parts_->desk.doors.isFree() && !ground_.gate.isClosing()) {
        // A work still stands on the stack: it is stopped, and the window goes behind it.
        event->ignore();
        ground_.gate.cancelWork();
        parts_->desk.doors.whenFree([this] { done(Rejected); });
        return;
    }
    QDialog::closeEvent(event);
}

void FrmKernling::keyPressEvent(QKeyEvent *event)
{
    if (event->key() == Qt::Key_Escape) {
        ground_.gate.cancelWork(); // and the window stays: the text in it is the work of an hour
        event->accept();
        return;
    }
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
        event->accept(); // no button is meant
        return;
    }
    QDialog::keyPressEvent(event);
}

void FrmKernling::resizeEvent(QResizeEvent *event)
{
    QDialog::resizeEvent(event);
    if (parts_)
        scaleKernlingControls(parts_->controls, size());
}

void FrmKernling::showWayOfMarking()
{
    parts_->controls.Check7->setVisible(parts_->controls.OptManualHighlight->isChecked());
}

void FrmKernling::showToolTips()
{
    const bool shown = ground_.options.isOn(Setting::KernlingShowTooltip);
    const QString menuTip = shown ? u"Rechtsklick: Menü zeigen"_s : QString();
    parts_->controls.RTF->setToolTip(menuTip);
    parts_->controls.wortellist->setToolTip(menuTip);
    parts_->controls.List1->setToolTip(shown ? u"Wörter in den Text ziehen"_s : QString());
}

void FrmKernling::showLists()
{
    const bool shown = ground_.options.isOn(Setting::KernlingShowLists);
    parts_->controls.Check3->setChecked(shown);
    parts_->controls.Check4->setChecked(shown);
    parts_->controls.UserFoundWortelList->setVisible(shown);
    parts_->controls.UserFalseWortelList->setVisible(shown);
}

void FrmKernling::showStemList(bool shown)
{
    parts_->controls.stemPanel->setVisible(shown);
    parts_->controls.Check1->setText(shown ? u">"_s : u"<"_s);
}

void FrmKernling::Check7_Click()
{
    if (parts_->controls.RTF->selection().length == 0)
        parts_->desk.tell(u"Bitte markiere erst einen Wortstamm !"_s);
    else
        parts_->marking.HighLightSelection();
}

void FrmKernling::Command8_Click()
{
    if (parts_->controls.RTF->isEmpty()) {
        parts_->desk.tell(u"Der Text ist leer"_s);
        return;
    }
    const QString word =
        ground_.boxes.ShowIBox(u"Bitte schreibe einen Wortstamm, den du im gesamten Text suchen möchtest"_s,
                               BoxStyle::Plain, u"wirk"_s, u"Wortel suchen"_s);
    if (word.isEmpty() || ground_.gate.isClosing())
        return;
    if (parts_->desk.lists.ChkForDuplicates(word))
        parts_->marking.Locate_and_Higlight({word});
    else
        parts_->desk.tell(word + u" ist kein Wortstamm"_s);
}

void FrmKernling::editOptions()
{
    if (!parts_->options.edit())
        return;
    showToolTips();
    showLists();
}

void FrmKernling::mnuSearch_Click()
{
    parts_->marking.Locate_and_Higlight(parts_->controls.wortellist->selectedWords());
}

void FrmKernling::mnuCheckWord_Click()
{
    const QString word = Trim(kernling::CleanSelection(parts_->controls.RTF->selectedText()));
    if (word.isEmpty()) {
        parts_->desk.tell(u"Bitte Text markieren !"_s);
        return;
    }
    const QString asked = u"Das gesuchte Wort \"%1\""_s.arg(word.left(200));
    if (hall_.tests.In_Lexicon(word))
        ground_.boxes.ShowInfoBox(asked + u"\nist richtig."_s, BoxSign::Smiley, u"Richtig !"_s);
    else
        ground_.boxes.ShowInfoBox(asked + u" steht nicht im Wörterbuch."_s, BoxSign::Info,
                                  u"Wort nicht gefunden !"_s);
}

void FrmKernling::mnuPrintRTF_Click()
{
    constexpr int paperSize = 10; ///< points
    const std::unique_ptr<QTextDocument> paper(parts_->controls.RTF->document()->clone());
    paper->setDefaultFont(QFont(u"Arial"_s, paperSize));
    emit PrintRTF(paper.get());
}
