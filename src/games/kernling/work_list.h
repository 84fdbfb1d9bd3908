// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/settings_table.h"

#include <QStringList>

#include <functional>
#include <optional>

class TileStore;
class WordMaker;
struct KernlingDesk;

/// The work list `List1`: its six sources, its order and selection, and its way into the text.
class WorkList
{
public:
    /// Where words come from that are made of the main window's tiles.
    struct Sources
    {
        WordMaker &maker;
        const TileStore &tiles;
        std::function<void()> resetVowelBoxes;
    };

    WorkList(KernlingDesk &desk, Sources sources);

    /// "Einfügen": adds the words of the chosen source.
    void Command3_Click();
    /// "Mischen"
    void Command9_Click();
    /// "Löschen"
    void Command13_Click();
    /// "Markierung rückgängig"
    void Command14_Click();
    /// "Zufällige Wörter auswählen"
    void Command7_Click();
    /// All words into the text.
    void Command11_Click();
    /// The selected words into the text.
    void Command12_Click();
    /// "Wortliste löschen": the one of the main window.
    void Command15_Click();
    void moveUp();
    void moveDown();

private:
    void fillFrom(int source);
    bool fillFromTiles(int source);
    std::optional<int> countOf(Setting setting) const;
    void add(const QStringList &words);
    bool hasWords(const QString &otherwise) const;
    void intoText(const QStringList &words);

    KernlingDesk &desk_;
    Sources sources_;
};
