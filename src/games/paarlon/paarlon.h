// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "games/paarlon/best_lists.h"

#include <QObject>

#include <memory>

class CommandRouter;
class frmMemory;
struct WordLists;

/// The card game as the main window knows it: it opens the window of a game and shows and resets the lists of
/// the best.
class Paarlon : public QObject
{
    Q_OBJECT

public:
    /// `owner` is the main window.
    Paarlon(Ground &ground, const WordLists &lists, QWidget *owner);
    ~Paarlon() override;
    /// The menu's entries 150, 250, 350 and 2902 to 2907.
    void registerCommands(CommandRouter &router);

    void Display(const MemoryKind &kind);
    /// Asks and resets all three lists.
    void resetAll() { best_.ResetMemoryMaster(nullptr); }

    /// The open window, or nullptr.
    frmMemory *window() const { return window_.get(); }

signals:
    /// A game was opened.
    void displayed();
    void closed();

private:
    void drop();

    Ground &ground_;
    const WordLists &lists_;
    QWidget *owner_;
    BestLists best_;
    std::unique_ptr<frmMemory> window_;
};
