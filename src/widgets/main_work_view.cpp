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

using C = MainControls;

// The filters rest as well: the board is frozen, and would not show what they choose.
constexpr SheetRow restingTools[] = {
    {tool<&C::OptType, 0>, SheetRow::Disabled},  {tool<&C::OptType, 1>, SheetRow::Disabled},
    {tool<&C::OptType, 2>, SheetRow::Disabled},  {tool<&C::OptType, 3>, SheetRow::Disabled},
    {tool<&C::Check1>, SheetRow::Disabled},      {tool<&C::Check2>, SheetRow::Disabled},
    {tool<&C::Check3>, SheetRow::Disabled},      {tool<&C::Text1>, SheetRow::Disabled},
    {tool<&C::Label3>, SheetRow::Disabled},      {tool<&C::Option1, 0>, SheetRow::Disabled},
    {tool<&C::Option1, 1>, SheetRow::Disabled},  {tool<&C::Command2>, SheetRow::Disabled},
    {tool<&C::Command3>, SheetRow::Disabled},    {tool<&C::Command4>, SheetRow::Disabled},
    {tool<&C::Command5>, SheetRow::Disabled},    {tool<&C::Command6>, SheetRow::Disabled},
    {tool<&C::Label2>, SheetRow::Disabled},      {tool<&C::Dropper1>, SheetRow::Disabled},
    {tool<&C::Option2, 0>, SheetRow::Disabled},  {tool<&C::Option2, 1>, SheetRow::Disabled},
    {tool<&C::Option2, 2>, SheetRow::Disabled},  {tool<&C::ChkVokal, 0>, SheetRow::Disabled},
    {tool<&C::ChkVokal, 1>, SheetRow::Disabled}, {tool<&C::CmdMenu>, SheetRow::Disabled},
};
/// The mode's own button, unless its words are prepared: then it cancels.
constexpr SheetRow modeTool[] = {{tool<&C::Check4>, SheetRow::Disabled}};
constexpr SheetRow hiddenModes[] = {{tool<&C::Check3>, SheetRow::Hidden},
                                    {tool<&C::Check4>, SheetRow::Hidden}};
constexpr SheetRow cancelSign[] = {{tool<&C::Label4>, SheetRow::Shown}};

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
