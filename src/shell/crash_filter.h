// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

#include <cstdint>

/// The last resort: a handler for the fatal signals. It writes one line to the log with calls that are safe
/// in a signal handler, and lets the program end as the system wants it to. The backup file stays, and the
/// next start offers it.
namespace crash_filter {

/// The name of an exception code, "Unknown (&H........)" for one that has none.
QString exceptionName(std::uint32_t code);
/// The exception code of a fatal signal (`number` and si_code), 0xE0000000 plus the number for one that has
/// no counterpart.
std::uint32_t codeOfSignal(int number, int signalCode);

/// Installs the handler. `logFile` is the native path of the log, empty while logging is off.
void install(const QString &logFile);
void remove();

} // namespace crash_filter
