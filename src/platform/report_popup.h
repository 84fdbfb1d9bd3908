// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/sounds.h"

#include <QList>
#include <QString>

/// The seam of the small popup that slides up and reports a word check. The program gives `frmMsnStyle`, a
/// test notes what was reported.
class ReportPopup
{
public:
    virtual ~ReportPopup() = default;
    /// Shows a title and three lines (each with the line end it wants, if any) for `seconds`, with sound
    /// `sound` if sounds are on. The letters of line 2 at these indexes stand out: those whose size was
    /// wrong.
    virtual void Display(const QString &title, const QString &line1, const QString &line2,
                         const QString &line3, int seconds, SoundId sound, bool boldLine2, bool showSmiley,
                         const QList<int> &marked = {}) = 0;
};
