// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/case_blind_index.h"

#include "platform/text.h"

#include <algorithm>
#include <array>
#include <bit>

namespace {

/// The upper-case forms of the characters that nearly all words are made of.
const std::array<char16_t, 256> &latinUpper()
{
    static const std::array<char16_t, 256> table = [] {
        std::array<char16_t, 256> made{};
        for (std::size_t i = 0; i < made.size(); ++i)
            made[i] = QChar(static_cast<char16_t>(i)).toUpper().unicode();
        return made;
    }();
    return table;
}

/// A hash that is the same for all cases of a word.
std::uint32_t foldedHash(QStringView word)
{
    const std::array<char16_t, 256> &upper = latinUpper();
    std::uint64_t hash = static_cast<std::uint64_t>(word.size());
    for (const QChar character : word) {
        const char16_t unit = character.unicode();
        hash = (hash ^ (unit < 256 ? upper[unit] : character.toUpper().unicode())) * 0x9E3779B97F4A7C15ULL;
        hash ^= hash >> 29;
    }
    return static_cast<std::uint32_t>(hash >> 7);
}

} // namespace

void CaseBlindIndex::clear()
{
    slots_.clear();
    size_ = 0;
}

void CaseBlindIndex::extend(const QStringList &rows)
{
    if (static_cast<std::size_t>(rows.size()) * 2 > slots_.size())
        reserve(rows);
    for (; size_ < rows.size(); ++size_)
        put(rows, size_);
}

void CaseBlindIndex::insert(const QStringList &rows, int row)
{
    if (size_ + 1 != rows.size()) {
        clear();
        return;
    }
    for (Slot &slot : slots_)
        slot.row += slot.row >= row ? 1 : 0;
    if (static_cast<std::size_t>(rows.size()) * 2 > slots_.size())
        reserve(rows);
    put(rows, row);
    ++size_;
}

void CaseBlindIndex::reserve(const QStringList &rows)
{
    const std::size_t wanted =
        std::bit_ceil(std::max<std::size_t>(64, static_cast<std::size_t>(rows.size()) * 2));
    std::vector<Slot> old(wanted, Slot{0, -1});
    old.swap(slots_);
    const std::size_t mask = slots_.size() - 1;
    for (const Slot &slot : old) {
        if (slot.row < 0)
            continue;
        std::size_t at = slot.hash & mask;
        while (slots_[at].row >= 0)
            at = (at + 1) & mask;
        slots_[at] = slot;
    }
}

void CaseBlindIndex::put(const QStringList &rows, std::int32_t row)
{
    const QString &word = rows.at(row);
    const std::uint32_t hash = foldedHash(word);
    const std::size_t mask = slots_.size() - 1;
    std::size_t at = hash & mask;
    for (; slots_[at].row >= 0; at = (at + 1) & mask)
        if (slots_[at].hash == hash && equalsIgnoreCase(rows.at(slots_[at].row), word)) {
            slots_[at].row = std::min(slots_[at].row, row); // the first row is the one that is found
            return;
        }
    slots_[at] = {hash, row};
}

int CaseBlindIndex::find(const QStringList &rows, QStringView word) const
{
    if (slots_.empty())
        return -1;
    const std::uint32_t hash = foldedHash(word);
    const std::size_t mask = slots_.size() - 1;
    for (std::size_t at = hash & mask; slots_[at].row >= 0; at = (at + 1) & mask)
        if (slots_[at].hash == hash && equalsIgnoreCase(rows.at(slots_[at].row), word))
            return slots_[at].row;
    return -1;
}
