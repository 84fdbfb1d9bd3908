// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/notes.h"

#include "platform/note_texts.h"
#include "platform/windows1252.h"

void Notes::tell(const QString &note) { emit told(note); }

void Notes::tell(const char16_t *text, const QString &what)
{
    tell(QString::fromUtf16(text).replace(QStringLiteral("%1"), what));
}

void Notes::tellSaved(const QString &name, const QString &text)
{
    const QString strange = windows1252::missing(text);
    if (strange.isEmpty())
        tell(note::saved, name);
    else
        tell(QString::fromUtf16(note::savedWith).arg(name, strange));
}
