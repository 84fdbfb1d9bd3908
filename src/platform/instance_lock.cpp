// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/instance_lock.h"

#include <QFile>

#include <cerrno>
#include <cstdio>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

bool isOwn(int file)
{
    struct stat facts
    {};
    return fstat(file, &facts) == 0 && facts.st_uid == geteuid();
}

} // namespace

InstanceLock::InstanceLock(const QString &file)
    : file_(file)
{}

InstanceLock::~InstanceLock() { release(); }

InstanceLock::State InstanceLock::take()
{
    if (descriptor_ >= 0)
        return State::Held;
    const int file = openFile();
    if (file < 0)
        return State::None;
    if (flock(file, LOCK_EX | LOCK_NB) == 0) {
        descriptor_ = file;
        return State::Held;
    }
    const State result = errno == EWOULDBLOCK ? State::Taken : State::None;
    close(file);
    return result;
}

void InstanceLock::release()
{
    if (descriptor_ >= 0)
        close(descriptor_);
    descriptor_ = -1;
}

/// What cannot be opened (a link, a folder) or belongs to another user, who may hold it for ever, is no lock
/// of this user's and makes room.
int InstanceLock::openFile() const
{
    const QByteArray path = QFile::encodeName(file_);
    constexpr int how = O_RDWR | O_CREAT | O_CLOEXEC | O_NOFOLLOW | O_NONBLOCK;
    const int file = open(path.constData(), how, S_IRUSR | S_IWUSR);
    if (file >= 0 && isOwn(file))
        return file;
    if (file >= 0)
        close(file);
    else if (errno != EACCES && errno != ELOOP && errno != EISDIR)
        return -1;
    return std::remove(path.constData()) == 0 ? open(path.constData(), how, S_IRUSR | S_IWUSR) : -1;
}
