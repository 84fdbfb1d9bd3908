// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/crash_filter.h"

#include "platform/log.h"

#include <QByteArray>

#include <array>
#include <csignal>
#include <cstdint>
#include <cstdio>
#include <cstring>
#include <ctime>
#include <ucontext.h>
#include <unistd.h>

namespace {

struct ExceptionRow
{
    std::uint32_t code;
    const char *name;
};

constexpr std::uint32_t stackOverflow = 0xC00000FD;

constexpr std::array<ExceptionRow, 23> exceptions{{
    {0x80000001, "Guard Page Violation"},
    {0x80000002, "Data Type Misalignment"},
    {0x80000003, "Breakpoint"},
    {0x80000004, "Single Step"},
    {0xC0000005, "Access Violation"},
    {0xC0000006, "In Page Error"},
    {0xC0000008, "Invalid Handle"},
    {0xC000001D, "Illegal Instruction"},
    {0xC0000025, "Non Continuable Exception"},
    {0xC0000026, "Invalid Disposition"},
    {0xC000008C, "Array Bounds Exceeded"},
    {0xC000008D, "Float Denormal Operand"},
    {0xC000008E, "Divide By Zero"},
    {0xC000008F, "Floating Point Inexact Result"},
    {0xC0000090, "Invalid Operation"},
    {0xC0000091, "Float Overflow"},
    {0xC0000092, "Float Stack Check"},
    {0xC0000093, "Float Underflow"},
    {0xC0000094, "Integer Divide By Zero"},
    {0xC0000095, "Integer Overflow"},
    {0xC0000096, "Privileged Instruction"},
    {stackOverflow, "Stack Overflow"},
    {0xC000013A, "Control-C Exit"},
}};

struct SignalRow
{
    int number;
    int signalCode; ///< si_code, or anyCode
    std::uint32_t exception;
};

constexpr int anyCode = -1000;
constexpr std::array<SignalRow, 12> signalTable{{
    {SIGSEGV, anyCode, 0xC0000005},
    {SIGBUS, BUS_ADRALN, 0x80000002},
    {SIGBUS, anyCode, 0xC0000006},
    {SIGILL, ILL_PRVOPC, 0xC0000096},
    {SIGILL, anyCode, 0xC000001D},
    {SIGFPE, FPE_INTDIV, 0xC0000094},
    {SIGFPE, FPE_INTOVF, 0xC0000095},
    {SIGFPE, FPE_FLTDIV, 0xC000008E},
    {SIGFPE, FPE_FLTOVF, 0xC0000091},
    {SIGFPE, FPE_FLTUND, 0xC0000093},
    {SIGFPE, anyCode, 0xC0000090},
    {SIGABRT, anyCode, 0xC0000025},
}};

constexpr std::array<int, 5> fatalSignals{SIGSEGV, SIGBUS, SIGILL, SIGFPE, SIGABRT};

// What the handler reads. A signal handler has no other way to know it, so this is the one place with
// file-wide state.
std::array<char, 4096> logPath{};
long secondsEastOfGreenwich = 0;
std::array<char, 64 * 1024> handlerStack{};

const char *nameOrNull(std::uint32_t code)
{
    for (const ExceptionRow &row : exceptions)
        if (row.code == code)
            return row.name;
    return nullptr;
}

void putTwoDigits(char *&out, long number)
{
    *out++ = static_cast<char>('0' + number / 10);
    *out++ = static_cast<char>('0' + number % 10);
}

void put(char *&out, const char *text)
{
    while (*text != '\0')
        *out++ = *text++;
}

/// The line "*** Unhandled Exception: <name> at 0 *** - hh:nn:ss", with nothing but arithmetic.
std::size_t formatLine(char *line, std::uint32_t code, std::time_t now)
{
    char *out = line;
    put(out, "*** Unhandled Exception: ");
    if (const char *name = nameOrNull(code)) {
        put(out, name);
    } else {
        put(out, "Unknown (&H");
        for (int shift = 28; shift >= 0; shift -= 4)
            *out++ = "0123456789ABCDEF"[(code >> shift) & 0xF];
        put(out, ")");
    }
    put(out, " at 0 *** - ");
    const long inDay = (static_cast<long>(now) + secondsEastOfGreenwich) % 86400;
    putTwoDigits(out, inDay / 3600);
    *out++ = ':';
    putTwoDigits(out, inDay / 60 % 60);
    *out++ = ':';
    putTwoDigits(out, inDay % 60);
    put(out, "\r\n");
    return static_cast<std::size_t>(out - line);
}

/// Where the stack ended when the signal came; 0 where it is not known how to ask.
std::uintptr_t stackPointerOf(const void *context)
{
    [[maybe_unused]] const mcontext_t &machine = static_cast<const ucontext_t *>(context)->uc_mcontext;
#if defined(__x86_64__)
    return static_cast<std::uintptr_t>(machine.gregs[REG_RSP]);
#elif defined(__i386__)
    return static_cast<std::uintptr_t>(machine.gregs[REG_ESP]);
#elif defined(__aarch64__)
    return machine.sp;
#elif defined(__arm__)
    return machine.arm_sp;
#else
    return 0;
#endif
}

/// True for a fault beside the stack pointer: a call writes below it, a large frame anywhere above.
bool isStackOverflow(int number, const siginfo_t &info, const void *context)
{
    constexpr std::uintptr_t below = 64 * 1024;
    constexpr std::uintptr_t above = 1024 * 1024;
    const std::uintptr_t pointer = stackPointerOf(context);
    const auto address = reinterpret_cast<std::uintptr_t>(info.si_addr);
    return number == SIGSEGV && pointer != 0 && address + below >= pointer && address <= pointer + above;
}

void handle(int number, siginfo_t *info, void *context)
{
    if (logPath[0] != '\0') {
        const int file = Log::openForAppending(logPath.data());
        if (file >= 0) {
            char line[160];
            const std::uint32_t code = isStackOverflow(number, *info, context)
                                           ? stackOverflow
                                           : crash_filter::codeOfSignal(number, info->si_code);
            const std::size_t length = formatLine(line, code, time(nullptr));
            [[maybe_unused]] const ssize_t written = write(file, line, length);
            close(file);
        }
    }
    // The handler was installed for one shot, so the signal raised again ends the program in the system's own
    // way.
    raise(number);
}

} // namespace

QString crash_filter::exceptionName(std::uint32_t code)
{
    if (const char *name = nameOrNull(code))
        return QLatin1String(name);
    return QStringLiteral("Unknown (&H%1)").arg(QString::number(code, 16).toUpper().rightJustified(8, u'0'));
}

std::uint32_t crash_filter::codeOfSignal(int number, int signalCode)
{
    for (const SignalRow &row : signalTable)
        if (row.number == number && (row.signalCode == anyCode || row.signalCode == signalCode))
            return row.exception;
    return 0xE0000000U + static_cast<std::uint32_t>(number);
}

void crash_filter::install(const QString &logFile)
{
    const QByteArray path = logFile.toLocal8Bit();
    logPath.fill('\0');
    if (static_cast<std::size_t>(path.size()) < logPath.size())
        std::memcpy(logPath.data(), path.constData(), static_cast<std::size_t>(path.size()));
    const std::time_t now = std::time(nullptr);
    std::tm local{};
    localtime_r(&now, &local);
    secondsEastOfGreenwich = local.tm_gmtoff;

    // A stack of its own, or an overflow of the stack could not be told.
    stack_t stack{};
    stack.ss_sp = handlerStack.data();
    stack.ss_size = handlerStack.size();
    sigaltstack(&stack, nullptr);

    struct sigaction action
    {};
    action.sa_sigaction = handle;
    action.sa_flags = SA_SIGINFO | SA_ONSTACK | static_cast<int>(SA_RESETHAND);
    sigemptyset(&action.sa_mask);
    for (const int number : fatalSignals)
        sigaction(number, &action, nullptr);
}

void crash_filter::remove()
{
    for (const int number : fatalSignals)
        std::signal(number, SIG_DFL);
}
