// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "dialogs/report_window.h"
#include "platform/report_popup.h"

#include <QObject>

#include <array>

class ControlSheet;
class PlayState;
struct Ground;
struct MainControls;

/// The small popup that slides up at the lower left corner of the board to report a check. Reports that come
/// before an earlier one has gone stack in up to four rows. While one stands, the buttons of the word check
/// rest.
class frmMsnStyle : public QObject, public ReportPopup
{
    Q_OBJECT

public:
    static constexpr int rows = 4;

    frmMsnStyle(Ground &ground, MainControls &controls, ControlSheet &sheet, const PlayState &play);

    /// Shows a report for `seconds` after it has slid up, with the sound `sound` if sounds are on. Returns
    /// while it slides.
    void Display(const QString &title, const QString &line1, const QString &line2, const QString &line3,
                 int seconds, SoundId sound, bool boldLine2, bool showSmiley,
                 const QList<int> &marked = {}) override;
    /// The slot of the last report, 1 to 4, or 0.
    int slot() const { return slot_; }

signals:
    /// A report has gone; buttons and strip are back.
    void closed();

private:
    ReportWindow *windowOf(int slot);
    void restButtons(bool resting);
    void leave(int slot);
    void wakeTools();

    Ground &ground_;
    MainControls &controls_;
    ControlSheet &sheet_;
    const PlayState &play_;
    std::array<ReportWindow *, rows> windows_{};
    int slot_ = 0;
};
