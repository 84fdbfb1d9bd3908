// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "games/kernling/kernling_work_view.h"

#include "games/kernling/kernling_controls.h"
#include "games/kernling/kernling_text.h"
#include "widgets/click_label.h"
#include "widgets/press_button.h"
#include "widgets/progress_bar.h"

#include <QGuiApplication>

KernlingWorkView::KernlingWorkView(KernlingControls &controls)
    : controls_(controls)
{}

void KernlingWorkView::begin(const WorkPlan &plan)
{
    QGuiApplication::setOverrideCursor(Qt::WaitCursor);
    // Each gets back what it had: some rest because of a running game.
    for (PressButton *button : controls_.form->findChildren<PressButton *>()) {
        if (!button->isEnabled())
            continue;
        button->setEnabled(false);
        resting_.push_back(button);
    }
    textWasLocked_ = controls_.RTF->isLocked();
    controls_.RTF->setLocked(true);
    if ((plan.marks & WorkPlan::Bar) != 0) {
        controls_.FillProgress->resetAndHide();
        controls_.FillProgress->setMaximum(plan.maximum);
        controls_.FillProgress->show();
    }
    if ((plan.marks & WorkPlan::Cancel) != 0)
        offerCancel();
}

void KernlingWorkView::tell(const QString &caption) { controls_.FillProgress->setCaption(caption); }

void KernlingWorkView::setValue(int value) { controls_.FillProgress->setValue(value); }

void KernlingWorkView::offerCancel() { controls_.Label9->show(); }

void KernlingWorkView::end()
{
    controls_.FillProgress->resetAndHide();
    controls_.Label9->hide();
    controls_.RTF->setLocked(textWasLocked_);
    for (QWidget *tool : resting_)
        tool->setEnabled(true);
    resting_.clear();
    QGuiApplication::restoreOverrideCursor();
}
