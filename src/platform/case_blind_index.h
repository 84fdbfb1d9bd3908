// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QStringList>

#include <cstdint>
#include <vector>

/// Finds the first row of a list that equals a word without regard to case, in constant time. It holds row
/// numbers and hash values only, in one flat table with open addressing: the words stay in the list, which
/// the caller hands over with each call, and no folded copy is ever made.
class CaseBlindIndex
{
public:
    /// Forgets everything.
    void clear();
    /// Takes in the rows from `size()` on. Rows that were taken in before must not have changed.
    void extend(const QStringList &rows);
    /// A row was put into `rows` at `row`. If all the others were taken in, it is too, and those behind it
    /// move up by one.
    void insert(const QStringList &rows, int row);
    /// The row `row` is about to leave `rows`. The same, with those behind it moving down.
    void remove(const QStringList &rows, int row);
    /// The count of rows taken in.
    int size() const { return size_; }
    /// The first row that equals `word`, or -1.
    int find(const QStringList &rows, QStringView word) const;

private:
    struct Slot
    {
        std::uint32_t hash;
        std::int32_t row; ///< -1: free
    };

    void reserve(const QStringList &rows);
    void put(const QStringList &rows, std::int32_t row);
    std::size_t slotOf(const QStringList &rows, QStringView word, std::uint32_t hash) const;
    void freeSlot(std::size_t at);

    std::vector<Slot> slots_; ///< a power of two of them, at most half in use
    int size_ = 0;
};
