// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/termination.h"

#include <QSocketNotifier>

#include <array>
#include <csignal>
#include <sys/socket.h>
#include <unistd.h>
#include <utility>

namespace {

constexpr std::array<int, 3> politeSignals{SIGTERM, SIGINT, SIGHUP};

// A signal handler may only write: the byte wakes the notifier at the other end.
std::array<int, 2> ends{-1, -1};

void handle(int)
{
    const char byte = 1;
    [[maybe_unused]] const ssize_t written = write(ends[0], &byte, 1);
}

} // namespace

Termination::Termination(QObject *parent)
    : QObject(parent)
{
    if (ends[0] < 0 && socketpair(AF_UNIX, SOCK_STREAM, 0, ends.data()) != 0)
        return;
    notifier_ = new QSocketNotifier(ends[1], QSocketNotifier::Read, this);
    connect(notifier_, &QSocketNotifier::activated, this, [this] {
        char byte = 0;
        [[maybe_unused]] const ssize_t got = read(ends[1], &byte, 1);
        emit requested();
    });
    for (const int number : politeSignals)
        std::signal(number, handle);
}

Termination::~Termination()
{
    if (isHandedOn_)
        return;
    for (const int number : politeSignals)
        std::signal(number, SIG_DFL);
    for (int &end : ends)
        if (end >= 0)
            close(std::exchange(end, -1));
}
