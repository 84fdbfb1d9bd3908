// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/long_pass.h"

#include <QByteArray>
#include <QString>

/// Web pages as text, as far as the program's own needs go: one pass that keeps what is to be read and turns
/// a few tags into line breaks. Nothing in a page is fetched, run or resolved.

struct PageText
{
    QString text; ///< with "\n" for line breaks
    QString title;
    QString complaint; ///< for a box "Wortel - Fehler [Out Of Memory]"; empty if the memory was enough
};

/// The text and the title of a page. Never fails: what a page does not close ends with it. If `step` ends the
/// pass or the memory is full, what has been read until then comes back.
PageText HTML2Text(const QString &page, const PassStep &step = {});

/// What an entity's name, without "&" and ";", stands for; empty for an unknown one. "quot" deliberately
/// gives nothing, and the name of code 185 is "supl".
QString HTMLSpecChar2ASCII(const QString &name);

/// The text without any blank.
QString RemoveAllSpaces(const QString &text);

/// The bytes of a page by the charset that it names itself (mark, meta element, XML declaration), else as
/// UTF-8 where they are that, else as Windows-1252.
QString decodePage(const QByteArray &bytes);
