// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/local_socket.h"

#include <QFile>
#include <QFileInfo>

#include <cstring>
#include <fcntl.h>
#include <poll.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <unistd.h>

namespace {

constexpr int mostWaiting = 16;

/// The address of a path. One that is too long is reached through the descriptor of its folder, which stays
/// open as long as this lives.
class Address
{
public:
    explicit Address(const QString &path)
    {
        QByteArray name = QFile::encodeName(path);
        if (static_cast<std::size_t>(name.size()) >= sizeof address_.sun_path) {
            const QFileInfo info(path);
            folder_ = open(QFile::encodeName(info.path()).constData(), O_PATH | O_DIRECTORY | O_CLOEXEC);
            name = "/proc/self/fd/" + QByteArray::number(folder_) + '/' + QFile::encodeName(info.fileName());
        }
        address_.sun_family = AF_UNIX;
        fits_ = static_cast<std::size_t>(name.size()) < sizeof address_.sun_path;
        if (fits_)
            std::memcpy(address_.sun_path, name.constData(), static_cast<std::size_t>(name.size()) + 1);
    }
    ~Address()
    {
        if (folder_ >= 0)
            close(folder_);
    }
    Address(const Address &) = delete;
    Address &operator=(const Address &) = delete;

    explicit operator bool() const { return fits_; }
    const char *path() const { return address_.sun_path; }
    const sockaddr *get() const { return reinterpret_cast<const sockaddr *>(&address_); }
    static socklen_t size() { return sizeof(sockaddr_un); }

private:
    sockaddr_un address_{};
    int folder_ = -1;
    bool fits_ = false;
};

int newSocket() { return socket(AF_UNIX, SOCK_STREAM | SOCK_NONBLOCK | SOCK_CLOEXEC, 0); }

int closed(int socket)
{
    close(socket);
    return -1;
}

bool isOfSameUser(int socket)
{
    ucred other{};
    socklen_t size = sizeof other;
    return getsockopt(socket, SOL_SOCKET, SO_PEERCRED, &other, &size) == 0 && other.uid == geteuid();
}

} // namespace

int local_socket::listenAt(const QString &path)
{
    const Address address(path);
    const int result = address ? newSocket() : -1;
    if (result < 0)
        return -1;
    unlink(address.path());
    // The mode before the name, so that at no moment others may connect.
    const bool listens = fchmod(result, S_IRUSR | S_IWUSR) == 0 &&
                         bind(result, address.get(), Address::size()) == 0 &&
                         listen(result, mostWaiting) == 0;
    return listens ? result : closed(result);
}

int local_socket::connectTo(const QString &path)
{
    const Address address(path);
    const int result = address ? newSocket() : -1;
    if (result < 0)
        return -1;
    const bool connected = connect(result, address.get(), Address::size()) == 0 && isOfSameUser(result);
    return connected ? result : closed(result);
}

int local_socket::acceptFrom(int listening)
{
    for (;;) {
        const int result = accept4(listening, nullptr, nullptr, SOCK_NONBLOCK | SOCK_CLOEXEC);
        if (result < 0 || isOfSameUser(result))
            return result;
        close(result);
    }
}

bool local_socket::isHungUp(int socket)
{
    pollfd state{socket, POLLRDHUP, 0};
    return poll(&state, 1, 0) != 0;
}
