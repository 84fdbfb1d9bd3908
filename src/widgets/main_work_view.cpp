// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "widgets/main_work_view.h"

#include "widgets/click_label.h"
#include "widgets/control_sheet.h"
#include "widgets/dropper.h"
#include "widgets/main_controls.h"
#include "widgets/press_button.h"
#include "widgets/status_line.h"

#include <QGuiApplication>
#include <QLabel>
#include <QLineEdit>

using namespace Qt::StringLiterals;

namespace {

#define CONTROL(member) [](const MainControls &c) -> QWidget * { return c.member; }
// The filters rest as well: the board is frozen, and would not show what they choose.
constexpr SheetRow restingTools[] = {
    {CONTROL(OptType[0]), SheetRow::Disabled},  {CONTROL(OptType[1]), SheetRow::Disabled},
    {CONTROL(OptType[2]), SheetRow::Disabled},  {CONTROL(OptType[3]), SheetRow::Disabled},
    {CONTROL(Check1), SheetRow::Disabled},      {CONTROL(Check2), SheetRow::Disabled},
    {CONTROL(Check3), SheetRow::Disabled},      {CONTROL(Text1), SheetRow::Disabled},
    {CONTROL(Label3), SheetRow::Disabled},      {CONTROL(Option1[0]), SheetRow::Disabled},
    {CONTROL(Option1[1]), SheetRow::Disabled},  {CONTROL(Command2), SheetRow::Disabled},
    {CONTROL(Command3), SheetRow::Disabled},    {CONTROL(Command4), SheetRow::Disabled},
    {CONTROL(Command5), SheetRow::Disabled},    {CONTROL(Command6), SheetRow::Disabled},
    {CONTROL(Label2), SheetRow::Disabled},      {CONTROL(Dropper1), SheetRow::Disabled},
    {CONTROL(Option2[0]), SheetRow::Disabled},  {CONTROL(Option2[1]), SheetRow::Disabled},
    {CONTROL(Option2[2]), SheetRow::Disabled},  {CONTROL(ChkVokal[0]), SheetRow::Disabled},
    {CONTROL(ChkVokal[1]), SheetRow::Disabled},
};
/// The mode's own button, unless its words are prepared: then it cancels.
constexpr SheetRow modeTool[] = {{CONTROL(Check4), SheetRow::Disabled}};
constexpr SheetRow hiddenModes[] = {{CONTROL(Check3), SheetRow::Hidden}, {CONTROL(Check4), SheetRow::Hidden}};
constexpr SheetRow cancelSign[] = {{CONTROL(Label4), SheetRow::Shown}};
#undef CONTROL

} // namespace

MainWorkView::MainWorkView(ControlSheet &sheet, StatusLine &status)
    : sheet_(sheet)
    , status_(status)
{}

void MainWorkView::begin(const WorkPlan &plan)
{
    QGuiApplication::setOverrideCursor(Qt::WaitCursor);
    sheet_.lay(Reason::Work, restingTools);
    if ((plan.marks & WorkPlan::Words) == 0)
        sheet_.lay(Reason::Work, modeTool);
    if ((plan.marks & WorkPlan::HidesModes) != 0)
        sheet_.lay(Reason::Work, hiddenModes);
    if ((plan.marks & WorkPlan::Cancel) != 0)
        offerCancel();
    if ((plan.marks & WorkPlan::Bar) != 0)
        status_.show(StatusLine::Layer::Work, plan.maximum, u"Bitte warten..."_s);
}

void MainWorkView::tell(const QString &caption) { status_.setCaption(StatusLine::Layer::Work, caption); }

void MainWorkView::offerCancel() { sheet_.lay(Reason::Work, cancelSign); }

void MainWorkView::end()
{
    sheet_.takeOff(Reason::Work);
    status_.hide(StatusLine::Layer::Work);
    QGuiApplication::restoreOverrideCursor();
}
