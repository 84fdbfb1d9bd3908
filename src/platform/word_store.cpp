// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/word_store.h"

#include "platform/text.h"

#include <algorithm>
#include <limits>

namespace {

constexpr int largestCount = std::numeric_limits<std::int16_t>::max();

bool comesBefore(const QString &a, const QString &b) { return compareCollated(a, b) < 0; }

/// Puts `items`, sorted among themselves, between the sorted `rows`; of equals the old ones stay in front.
void mergeSorted(QStringList &rows, QStringList items)
{
    std::stable_sort(items.begin(), items.end(), comesBefore);
    const qsizetype middle = rows.size();
    rows.append(std::move(items));
    std::inplace_merge(rows.begin(), rows.begin() + middle, rows.end(), comesBefore);
}

} // namespace

WordStore::WordStore(Order order, QObject *parent)
    : QObject(parent)
    , order_(order)
{}

int WordStore::add(const QString &item)
{
    if (count() >= largestCount)
        throw RuntimeError::of(RuntimeError::Overflow);
    const int row = insert(item);
    emit changed();
    return row;
}

int WordStore::insert(const QString &item)
{
    if (order_ == KeptSorted) {
        const auto at = std::upper_bound(rows_.cbegin(), rows_.cend(), item, comesBefore);
        const int row = static_cast<int>(at - rows_.cbegin());
        if (row < count()) {
            rows_.insert(row, item);
            index_.insert(rows_, row);
            return row;
        }
    }
    rows_.append(item);
    return count() - 1;
}

void WordStore::addAll(const QStringList &items)
{
    if (items.isEmpty())
        return;
    const qsizetype room = largestCount - count();
    const QStringList fitting = items.size() > room ? items.first(room) : items;
    if (order_ == Appending) {
        if (rows_.isEmpty())
            rows_ = fitting; // shared, not copied
        else
            rows_.append(fitting);
    } else if (std::is_sorted(rows_.cbegin(), rows_.cend(), comesBefore)) {
        index_.clear();
        mergeSorted(rows_, fitting);
    } else { // a row was overwritten out of its order
        for (const QString &item : fitting)
            insert(item);
    }
    emit changed();
    if (fitting.size() < items.size())
        throw RuntimeError::of(RuntimeError::Overflow);
}

void WordStore::replace(int row, const QString &item)
{
    checkRow(row);
    rows_[row] = item;
    index_.clear();
    emit changed();
}

void WordStore::removeAt(int row)
{
    checkRow(row);
    index_.remove(rows_, row);
    rows_.removeAt(row);
    emit changed();
}

void WordStore::clear()
{
    if (rows_.isEmpty())
        return;
    rows_.clear();
    index_.clear();
    emit changed();
}

int WordStore::findExact(const QString &item) const
{
    if (index_.size() < count())
        index_.extend(rows_);
    return index_.find(rows_, item);
}

int WordStore::findPrefix(const QString &start, int after) const
{
    const int size = count();
    const int first = after < 0 || after >= size ? 0 : after + 1;
    for (int i = 0; i < size; ++i) {
        const int row = (first + i) % size;
        if (StartsWith(rows_.at(row), start))
            return row;
    }
    return -1;
}

void WordStore::removeNeighbouringDuplicates()
{
    const auto end = std::unique(rows_.begin(), rows_.end());
    if (end == rows_.end())
        return;
    rows_.erase(end, rows_.end());
    index_.clear();
    emit changed();
}

void WordStore::checkRow(int row) const
{
    if (row < 0 || row >= count())
        throw RuntimeError::of(RuntimeError::SubscriptOutOfRange);
}
