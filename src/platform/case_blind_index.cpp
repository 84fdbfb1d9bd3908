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
    }
    return static_cast<std::uint32_t>(hash >> 32); // every character has reached the upper half
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

void CaseBlindIndex::remove(const QStringList &rows, int row)
{
    if (size_ != rows.size()) {
        clear();
        return;
    }
    const std::size_t at = slotOf(rows, rows.at(row), foldedHash(rows.at(row)));
    if (slots_[at].row == row) {
        const auto next = std::find_if(rows.cbegin() + row + 1, rows.cend(), [&](const QString &other) {
            return equalsIgnoreCase(other, rows.at(row));
        });
        if (next == rows.cend())
            freeSlot(at);
        else
            slots_[at].row = static_cast<std::int32_t>(next - rows.cbegin());
    }
    for (Slot &slot : slots_)
        slot.row -= slot.row > row ? 1 : 0;
    --size_;
}

/// Slots behind the freed one that stand off their own place move up, so that every search still ends at a
/// free slot.
void CaseBlindIndex::freeSlot(std::size_t at)
{
    const std::size_t mask = slots_.size() - 1;
    std::size_t gap = at;
    for (std::size_t next = (gap + 1) & mask; slots_[next].row >= 0; next = (next + 1) & mask) {
        const std::size_t home = slots_[next].hash & mask;
        if (((next - home) & mask) < ((next - gap) & mask))
            continue;
        slots_[gap] = slots_[next];
        gap = next;
    }
    slots_[gap].row = -1;
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
    const std::uint32_t hash = foldedHash(rows.at(row));
    Slot &slot = slots_[slotOf(rows, rows.at(row), hash)];
    if (slot.row < 0)
        slot = {hash, row};
    else
        slot.row = std::min(slot.row, row); // the first row is the one that is found
}

/// The slot that holds `word`, or the free one where it belongs.
std::size_t CaseBlindIndex::slotOf(const QStringList &rows, QStringView word, std::uint32_t hash) const
{
    const std::size_t mask = slots_.size() - 1;
    std::size_t at = hash & mask;
    while (slots_[at].row >= 0 &&
           !(slots_[at].hash == hash && equalsIgnoreCase(rows.at(slots_[at].row), word)))
        at = (at + 1) & mask;
    return at;
}

int CaseBlindIndex::find(const QStringList &rows, QStringView word) const
{
    return slots_.empty() ? -1 : slots_[slotOf(rows, word, foldedHash(word))].row;
}
