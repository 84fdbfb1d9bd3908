// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "soak/soak_callers.h"

#include "platform/link_message.h"
#include "platform/local_socket.h"

#include <algorithm>
#include <cerrno>
#include <sys/socket.h>
#include <unistd.h>
#include <utility>

SoakCallers::SoakCallers(QString address)
    : address_(std::move(address))
{}

SoakCallers::~SoakCallers()
{
    for (const Caller &caller : callers_)
        close(caller.socket);
}

bool SoakCallers::call(const QStringList &arguments)
{
    return begin(LinkMessage::encode(arguments).value_or(QByteArray()), true);
}

void SoakCallers::babble(const QByteArray &bytes, bool stays)
{
    if (begin(bytes, false) && !stays) {
        close(callers_.back().socket);
        callers_.pop_back();
    }
}

bool SoakCallers::begin(const QByteArray &bytes, bool wantsAnswer)
{
    const int socket = local_socket::connectTo(address_);
    if (socket < 0)
        return false;
    callers_.push_back({socket, wantsAnswer});
    return send(socket, bytes.constData(), static_cast<std::size_t>(bytes.size()), MSG_NOSIGNAL) ==
           bytes.size();
}

bool SoakCallers::look()
{
    std::erase_if(callers_, [](const Caller &caller) {
        char answer = 0;
        if (recv(caller.socket, &answer, 1, 0) < 0 && errno == EAGAIN)
            return false;
        close(caller.socket);
        return true;
    });
    return std::ranges::none_of(callers_, &Caller::wantsAnswer);
}
