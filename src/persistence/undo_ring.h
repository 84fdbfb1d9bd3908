// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "persistence/snapshot_ring.h"

#include <QObject>

class BoardNews;
class Canvas;
class CommandRouter;
struct Ground;

/// Undo and redo of the board: takes a snapshot after each change and puts an earlier or later one back. Only
/// tiles are in it: no lists, no options. The setting "UseUndo" is read from the store at each use.
class UndoRing : public QObject
{
    Q_OBJECT

public:
    UndoRing(Ground &ground, Canvas &canvas, BoardNews &news, QObject *parent = nullptr);
    /// The menu's entries and the keys; each acts only if there is a step.
    void registerCommands(CommandRouter &router);

    /// What undo knows, to be handed to the ring of another window.
    struct Steps
    {
        SnapshotRing ring;
        bool canUndo = false;
        bool canRedo = false;
    };
    Steps steps() const { return {ring_, CanUndo_, CanRedo_}; }
    void takeSteps(const Steps &steps);

    bool CanUndo() const { return CanUndo_; }
    bool CanRedo() const { return CanRedo_; }

public slots:
    /// Takes a snapshot after a change.
    void SetCollBuffer();
    /// Starts anew with the present board.
    void ClearCollBuffer();
    /// Tiles were moved by hand: the present state takes them as they lie now, without a step of its own.
    void refreshPresent();
    /// One step back. Whether there is one is the business of menu and keys; a stray call moves round the
    /// ring.
    void UndoAction();
    void RedoAction();
    /// The settings were applied: undo that was switched on begins with the board as it is.
    void takeSetting();

signals:
    /// What can be undone or redone has changed.
    void changed();

private:
    bool isOn() const;
    void putBack(const Snapshot &state);
    void setSteps(bool canUndo, bool canRedo);

    Ground &ground_;
    Canvas &canvas_;
    BoardNews &news_;
    SnapshotRing ring_;
    bool CanUndo_ = false;
    bool CanRedo_ = false;
    bool wasOn_ = false;
};
