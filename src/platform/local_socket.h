// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

/// Sockets that live at a path of the file system, for two processes of one user. A path of any length will
/// do, also one that is longer than a socket's address.
namespace local_socket {

/// Listens at the native `path`, in place of whatever a dead process has left there; nobody but the user may
/// connect. The descriptor, which the caller closes, or -1.
int listenAt(const QString &path);
/// Connects without waiting. The descriptor, which the caller closes, or -1 if nobody listens there, or one
/// of another user.
int connectTo(const QString &path);
/// The next one who has connected to a listening socket and is of the same user; -1 if there is none.
int acceptFrom(int listening);
/// True if the other end has closed.
bool isHungUp(int socket);

} // namespace local_socket
