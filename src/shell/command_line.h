// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QStringList>

/// What stands behind the program's name, of this start or of one that hands over.
namespace command_line {

/// The arguments as the program reads them. One that names a file, by its whole path also one that does not
/// exist, becomes a full stored path (with backslashes, so that it is not taken for a switch).
QStringList read(const QStringList &arguments);

/// The arguments as one text, joined by blanks.
QString text(const QStringList &arguments);

/// The sessions that arguments name, and what of them names none.
struct Sessions
{
    QStringList there;
    QStringList missing;  ///< names without a file
    QStringList switches; ///< pieces that begin with "/"
};

/// An argument that is an existing file is one session, blanks or not. Any other one is cut at its blanks.
Sessions sessionsOf(const QStringList &arguments);

} // namespace command_line
