// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QAccessibleInterface>

class BoardReader;
class cWortel;

/// A tile as a screen reader meets it: its text and kind, its place, whether it is held or chosen, a press
/// that puts it into the word field, and its menu. Made when a reader asks, forgotten with its tile.
class AccessibleTile : public QAccessibleInterface, public QAccessibleActionInterface
{
public:
    /// `tile` is looked into only while the store has it.
    AccessibleTile(BoardReader &reader, const cWortel *tile)
        : reader_(reader)
        , tile_(tile)
    {}

    const cWortel *tile() const { return tile_; }

    bool isValid() const override; ///< also for the moment in which a reader is told that it goes
    QObject *object() const override { return nullptr; }
    QWindow *window() const override;
    QAccessibleInterface *parent() const override;
    QAccessibleInterface *child(int) const override { return nullptr; }
    QAccessibleInterface *childAt(int, int) const override { return nullptr; }
    int childCount() const override { return 0; }
    int indexOfChild(const QAccessibleInterface *) const override { return -1; }
    QString text(QAccessible::Text kind) const override;
    void setText(QAccessible::Text, const QString &) override {} // changed by its menu
    QRect rect() const override;
    QAccessible::Role role() const override { return QAccessible::ListItem; }
    QAccessible::State state() const override;
    void *interface_cast(QAccessible::InterfaceType type) override;

    QStringList actionNames() const override;
    QString localizedActionDescription(const QString &action) const override;
    void doAction(const QString &action) override;
    QStringList keyBindingsForAction(const QString &action) const override;

private:
    const cWortel *present() const;

    BoardReader &reader_;
    const cWortel *tile_;
};
