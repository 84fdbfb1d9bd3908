// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/long_pass.h"

#include <QString>

/// Web pages as text, as far as the program's own needs go: one pass that keeps what is to be read and turns
/// a few tags into line breaks. It builds no tree and reads no styles. Nothing in a page is fetched, run or
/// resolved.

struct PageText
{
    QString text; ///< with "\n" for line breaks
    QString title;
    QString complaint; ///< for a box "Wortel - Fehler [Out Of Memory]"; empty if the memory was enough
};

/// The text and the title of a page. Never fails: what a page does not close ends with it. If `step` ends the
/// pass or the memory is full, what has been read until then comes back. Time grows with the length, whatever
/// the page holds.
PageText HTML2Text(const QString &page, const PassStep &step = {});
