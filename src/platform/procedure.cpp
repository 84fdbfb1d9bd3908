// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/procedure.h"

#include <new>

using namespace Qt::StringLiterals;

namespace {

/// " in procedure X of Form Y", or " in procedure X of modMain" for the procedures that belong to no form.
QString place(const char *name, const char *form)
{
    const QString where = QString::fromUtf8(form);
    return u" procedure "_s + QString::fromUtf8(name) +
           (where.isEmpty() ? u" of modMain"_s : u" of Form "_s + where);
}

/// The exception that is being handled, as an error of the runtime.
RuntimeError currentError()
{
    try {
        throw;
    } catch (const RuntimeError &error) {
        return error;
    } catch (const std::bad_alloc &) {
        return RuntimeError::of(7);
    } catch (...) {
        return RuntimeError::of(RuntimeError::InvalidCall);
    }
}

} // namespace

Procedure::Procedure(Log &log, const char *name, const char *form, Trace trace, const QString &detail)
    : log_(log)
    , name_(name)
    , form_(form)
{
    if (trace == Traced && log_.enabled())
        log_.WriteLog(u"Event: In"_s + place(name_, form_) + (detail.isEmpty() ? QString() : u' ' + detail));
}

void Procedure::report(unsigned line)
{
    failed_ = true;
    const RuntimeError error = currentError();
    log_.WriteLog(prefix_ + u"Error %1 ("_s.arg(error.number()) + error.description() +
                  u") %1 in"_s.arg(line) + place(name_, form_) + suffix_);
}
