// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/log.h"
#include "platform/runtime_error.h"

#include <QString>

#include <source_location>
#include <utility>

/// The shell that every procedure has. Made at a procedure's start it writes the trace line; each step called
/// through it that throws is logged with number, description, line, procedure and form, and the next step
/// runs. Hot procedures (one tile's drawing, properties, ticks) have no shell.
class Procedure
{
public:
    enum Trace { Traced, Silent };

    Procedure(Log &log, const char *name, const char *form, Trace trace = Traced, const QString &detail = {});

    /// Runs `step`; returns false if it threw. `std::bad_alloc` is error 7, any other exception error 5.
    template <typename Step>
    bool operator()(Step &&step, std::source_location where = std::source_location::current())
    {
        try {
            std::forward<Step>(step)();
            return true;
        } catch (...) {
            report(where.line());
            return false;
        }
    }

    /// Text that the error line carries at its end, such as ". Index: 12".
    void setErrorSuffix(const QString &suffix) { suffix_ = suffix; }
    /// Text that the error line begins with.
    void setErrorPrefix(const QString &prefix) { prefix_ = prefix; }
    /// True once a step has failed.
    bool failed() const { return failed_; }

private:
    void report(unsigned line);

    Log &log_;
    const char *name_;
    const char *form_; ///< a form's name, or "" for the procedures of modMain
    QString prefix_;
    QString suffix_;
    bool failed_ = false;
};
