// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "dialogs/msn_style.h"

#include "platform/ground.h"
#include "platform/play_state.h"
#include "widgets/announce.h"
#include "widgets/control_sheet.h"
#include "widgets/gradient.h"
#include "widgets/main_controls.h"
#include "widgets/msg_scroller.h"
#include "widgets/press_button.h"

namespace {

using C = MainControls;

constexpr int left = 31;  ///< pixels: 465 twips
constexpr int below = 14; ///< pixels under the upper edge of the lower band
constexpr int firstPixels = ReportWindow::firstHeight / 15;

constexpr SheetRow reportSheet[] = {
    {tool<&C::Command5>, SheetRow::Disabled}, {tool<&C::Command2>, SheetRow::Disabled},
    {tool<&C::Check2>, SheetRow::Resting},    {tool<&C::Check3>, SheetRow::Resting},
    {tool<&C::Check4>, SheetRow::Resting},
};
/// Unless a game runs, which goes on.
constexpr SheetRow listsSheet[] = {{tool<&C::Command3>, SheetRow::Disabled},
                                   {tool<&C::Command4>, SheetRow::Disabled}};

} // namespace

frmMsnStyle::frmMsnStyle(Ground &ground, MainControls &controls, ControlSheet &sheet, const PlayState &play)
    : QObject(controls.form)
    , ground_(ground)
    , controls_(controls)
    , sheet_(sheet)
    , play_(play)
{}

ReportWindow *frmMsnStyle::windowOf(int slot)
{
    ReportWindow *&window = windows_[static_cast<std::size_t>(slot - 1)];
    if (window == nullptr) {
        window = new ReportWindow(controls_.form);
        window->setObjectName(QStringLiteral("frmMsnStyle(%1)").arg(slot));
        connect(window, &ReportWindow::sunk, this, [this, slot] { leave(slot); });
        connect(window, &ReportWindow::closePressed, this, [this, slot] { leave(slot); });
        connect(window, &ReportWindow::overstays, this, [this] { wakeTools(); });
    }
    return window;
}

void frmMsnStyle::Display(const QString &title, const QString &line1, const QString &line2,
                          const QString &line3, int seconds, SoundId sound, bool boldLine2, bool showSmiley,
                          const QList<int> &marked)
{
    if (++slot_ > rows)
        slot_ = 1;
    ReportWindow *window = windowOf(slot_);
    const int bandTop = controls_.Picture1->mapTo(controls_.form, QPoint(0, 0)).y();
    QPoint foot(left, bandTop + below + firstPixels);
    const Report report{title, line1, line2, line3, boldLine2, showSmiley, marked};
    window->setReport(report, foot);
    foot.ry() -= (slot_ - 1) * window->fullHeight();
    window->setReport(report, foot);
    playSound(ground_, sound);
    restButtons(true);
    window->slide(seconds);
    announce(*controls_.form, QStringList{title, line1, line2, line3}.join(u' '));
}

void frmMsnStyle::restButtons(bool resting)
{
    sheet_.set(Reason::Report, reportSheet, resting);
    if (resting && !play_.GameActive())
        sheet_.lay(Reason::Report, listsSheet);
}

void frmMsnStyle::leave(int slot)
{
    windowOf(slot)->drop();
    if (slot_ == slot)
        slot_ = 0;
    wakeTools();
    emit closed();
}

void frmMsnStyle::wakeTools()
{
    restButtons(false);
    if (!controls_.Scroller->isHidden())
        controls_.Scroller->setEnabled(true);
}
