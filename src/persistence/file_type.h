// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <QStringList>

#include <functional>

class Log;

/// Ties session files (`.wlx`) to the program for this user, so that a double click opens one: on a desktop
/// of the freedesktop kind a MIME type, a desktop entry and an icon below the user's data folder, on the
/// original platform the classic entries of its registry. Nothing is reported; faults go to the log.
class FileType
{
public:
    static inline const QString mimeType = QStringLiteral("application/x-wortel-session");

    /// Starts a program that brings a desktop's index up to date and does not wait for it.
    using Start = std::function<void(const QString &program, const QStringList &arguments)>;

    /// `program` is the native path of the executable. `start` is given by tests; else the program is started
    /// if the system has it.
    FileType(Log &log, const QString &program, Start start = {});

    void registerSessions();
    void removeSessions();

private:
    void refreshIndexes();

    Log &log_;
    QString program_;
    Start start_;
};
