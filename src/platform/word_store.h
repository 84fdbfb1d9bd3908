// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/case_blind_index.h"
#include "platform/int16.h"

#include <QObject>
#include <QString>
#include <QStringList>

/// An ordered list of strings with the semantics of a list box: 0-based rows, a signed 16-bit count, a
/// whole-item find that ignores case, and an order that is either that of appending or kept sorted (German
/// collation, case-blind). Reading a row that is not there gives the empty string. It keeps its own
/// case-blind hash index, so that a find is constant time however long the list is; a list control shows a
/// store, it is not the store.
class WordStore : public QObject
{
    Q_OBJECT

public:
    enum Order { Appending, KeptSorted };
    explicit WordStore(Order order = Appending, QObject *parent = nullptr);

    int count() const { return static_cast<int>(rows_.size()); }
    bool isEmpty() const { return rows_.isEmpty(); }
    QString at(int row) const { return rows_.value(row); }
    const QStringList &rows() const { return rows_; }

    /// Adds one item at its place and returns its row. Throws RuntimeError 6 beyond 32,767 items.
    int add(const QString &item);
    /// Appends many at once with one signal; on overflow those that fit stay and RuntimeError 6 is thrown.
    void addAll(const QStringList &items);
    /// Overwrites a row at its place, also in a kept-sorted list. Throws RuntimeError 9 for a row that is not
    /// there.
    void replace(int row, const QString &item);
    /// Throws RuntimeError 9 for a row that is not there.
    void removeAt(int row);
    void clear();

    /// The first row that equals `item` without regard to case, or -1. Constant time.
    int findExact(const QString &item) const;
    bool contains(const QString &item) const { return findExact(item) >= 0; }
    /// The first row behind `after` (wrapping round) that begins with `start`, case ignored, or -1.
    int findPrefix(const QString &start, int after = -1) const;
    /// Removes row i where it equals row i - 1 exactly, from the end to the start.
    void removeNeighbouringDuplicates();

signals:
    /// Emitted after any change of the rows.
    void changed();

private:
    int insert(const QString &item);
    void checkRow(int row) const;

    Order order_;
    QStringList rows_;
    /// Filled by the first find, grows with appended rows, and is made anew by the first find behind any
    /// other change.
    mutable CaseBlindIndex index_;
};
