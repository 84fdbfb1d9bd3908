// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QStringList>

#include <cstdint>

/// Whether the program can store anything: settings, scores, the backup.
namespace storage {

enum class State : std::uint8_t {
    Writable,
    Protected, ///< the folder cannot be made, or not be written to
    Full       ///< no room is left
};

/// Tries it in each folder (native paths), which is made where it is missing; nothing stays behind. A full
/// one counts for more than a protected one: beside a full home an installed copy runs from its installed
/// data.
State stateOf(const QStringList &folders);

/// What the user is told once, in German; empty if all is well.
QString complaint(State state);

} // namespace storage
