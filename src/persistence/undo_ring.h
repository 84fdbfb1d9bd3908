// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "persistence/snapshot_ring.h"

#include <QObject>

class Canvas;
class MenuModel;
struct Ground;
struct Modes;

/// Undo and redo of the board: takes a snapshot after each change and puts an earlier or later one back. Only
/// tiles are in it: no lists, no options. The setting "UseUndo" is read from the store at each use.
class UndoRing : public QObject
{
    Q_OBJECT

public:
    UndoRing(Ground &ground, Modes &modes, MenuModel &menus, Canvas &canvas, QObject *parent = nullptr);

public slots:
    /// Takes a snapshot after a change.
    void SetCollBuffer();
    /// Starts anew with the present board.
    void ClearCollBuffer();
    /// One step back. Whether there is one is the business of menu and keys; a stray call moves round the
    /// ring.
    void UndoAction();
    void RedoAction();

private:
    bool isOn() const;
    void putBack(const Snapshot &state);

    Ground &ground_;
    Modes &modes_;
    MenuModel &menus_;
    Canvas &canvas_;
    SnapshotRing ring_;
};
