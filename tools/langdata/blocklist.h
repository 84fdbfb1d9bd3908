// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QRegularExpression>
#include <QString>
#include <QStringList>

#include <vector>

namespace langdata {

/// Word parts that no word for children may hold. A part counts only where a stem stands, behind
/// any number of prefixes and before nothing but endings: so "arsch" blocks "Arsch" and
/// "verarschen" and leaves "Nachbarschaft" alone.
class Blocklist
{
public:
    /// Each line is a part in lower case, or a regular expression for several.
    Blocklist(const QStringList &lines, const QStringList &prefixes, const QStringList &suffixes);

    bool blocks(const QString &word) const;

private:
    QRegularExpression pattern_;
};

} // namespace langdata
