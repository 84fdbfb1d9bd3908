// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

#include <cstdint>

/// A lock that one process holds until it ends, however it ends. The system keeps it with the open file, so
/// what is in the file, who wrote it and how old it is say nothing, and the file stays where it is.
class InstanceLock
{
public:
    enum class State : std::uint8_t {
        Held,  ///< by this object
        Taken, ///< by another, who lives
        None   ///< there can be no lock here: no such folder, no right, a system without locks
    };

    /// `file` is a native path.
    explicit InstanceLock(const QString &file);
    ~InstanceLock();
    InstanceLock(const InstanceLock &) = delete;
    InstanceLock &operator=(const InstanceLock &) = delete;

    /// Does not wait.
    State take();
    void release();

private:
    int openFile() const;

    QString file_;
    int descriptor_ = -1;
};
