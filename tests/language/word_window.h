// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "support/reports.h"

using namespace Qt::StringLiterals;

/// The house as a learner of words looks at it: the dictionary holds "Haus", "laufen" and "Läufer".
struct WordWindow : TestHouse
{
    const MainControls &c = controls;
    QStringList reports;

    explicit WordWindow(const QSize &size = {1366, 768})
        : TestHouse(1, size)
    {}

    /// Enters a word and presses "Wortkontrolle". What is reported is noted and closed.
    void enter(const QString &word)
    {
        c.Dropper1->setCaption(word);
        tool(c.Command2);
        reports << takeReports(*this);
    }
    QString entry() const { return c.Dropper1->Caption(); }
    bool entrySelected() const { return c.Dropper1->SelLength() == entry().size() && !entry().isEmpty(); }
};
