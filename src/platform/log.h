// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

/// The event and error log, inert unless the program was started with "/L". Each line is one unbuffered write
/// behind what the file holds (Windows-1252, CR LF), so that a crash loses at most one line.
class Log
{
public:
    explicit Log(QString file = {})
        : file_(std::move(file))
    {}

    bool enabled() const { return enabled_; }
    QString file() const { return file_; }
    void enable(const QString &file);

    /// Appends the trimmed `text` with " - " and the time. Returns at once while the log is off; errors of
    /// the writer are swallowed.
    void WriteLog(const QString &text);
    /// The log at `path` (native) for writing behind its end, or -1. A link is not followed, of either kind,
    /// and a pipe not waited for. Safe in a handler of fatal signals.
    static int openForAppending(const char *path);
    /// Writes the last line: what still happens while the program goes is not logged.
    void end();

private:
    QString file_;
    bool enabled_ = false;
};
