// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>
#include <QString>

/// The seam of short notes: one line that is seen for a moment and wants no answer. A room says here what
/// was done ("Gespeichert: Stunde 1") or what a command without effect was missing; the main window shows it,
/// a test keeps it. Telling lets no event run, so it is allowed anywhere, Qt's own walks included.
class Notes : public QObject
{
    Q_OBJECT

public:
    /// `note` is plain text; a later note takes the place of an earlier one.
    void tell(const QString &note);
    /// One of `note_texts.h`, with `what` for its "%1".
    void tell(const char16_t *text, const QString &what = {});
    /// A file of that name holds `text`. It keeps every letter, but a program that knows only the usual code
    /// page reads some of them wrongly: these are named.
    void tellSaved(const QString &name, const QString &text);

signals:
    void told(const QString &note);
};
