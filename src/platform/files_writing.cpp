// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
// The atomic writer, and what cleans up behind one that was killed. Its files bear a name of their own, so
// that no file of a user is ever taken for one, and each is locked by its writer, whose death frees the lock.
#include "platform/files.h"

#include "platform/runtime_error.h"

#include <QDirIterator>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryFile>

#include <cerrno>
#include <cstdio>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace {

[[noreturn]] void raise(int number) { throw RuntimeError::of(number); }

/// The error of a file that could not be opened for writing.
int openError(const QString &path)
{
    const QFileInfo info(path);
    const QFileInfo folder(info.absolutePath());
    if (!folder.isDir())
        return RuntimeError::PathNotFound;
    if (info.isDir())
        return RuntimeError::PathAccess;
    return !folder.isWritable() || (info.exists() && !info.isWritable()) ? RuntimeError::PermissionDenied
                                                                         : RuntimeError::PathAccess;
}

int writeError(QFileDevice::FileError error)
{
    switch (error) {
    case QFileDevice::ResourceError:
        return RuntimeError::DiskFull;
    case QFileDevice::PermissionsError:
        return RuntimeError::PermissionDenied;
    default:
        return RuntimeError::PathAccess;
    }
}

/// Writes everything or gives false. A disk that fills up takes a part first and tells its error with the
/// next write.
bool writeWhole(QFileDevice &file, const QByteArray &bytes)
{
    qint64 done = 0;
    while (done < bytes.size()) {
        const qint64 count = file.write(bytes.constData() + done, bytes.size() - done);
        if (count <= 0)
            return false;
        done += count;
    }
    return true;
}

/// For a file that may be written in a folder that may not: in place, and the old bytes put back if that
/// fails. Whatever lies there by now, neither a link nor a pipe is opened.
void writeInPlace(const QString &path, const QByteArray &bytes)
{
    const int handle =
        open(QFile::encodeName(path).constData(), O_RDWR | O_NOFOLLOW | O_NONBLOCK | O_NOCTTY | O_CLOEXEC);
    if (handle < 0)
        raise(openError(path));
    QFile file;
    file.open(handle, QIODevice::ReadWrite | QIODevice::Unbuffered, QFile::AutoCloseHandle);
    struct stat facts
    {};
    if (fstat(handle, &facts) != 0 || !S_ISREG(facts.st_mode))
        raise(RuntimeError::PathAccess);
    const QByteArray old = file.readAll();
    if (file.seek(0) && writeWhole(file, bytes) && file.resize(bytes.size()))
        return;
    const int number = writeError(file.error());
    file.seek(0);
    writeWhole(file, old);
    file.resize(old.size());
    raise(number);
}

/// The file beside. Where the file system can do that it has no name until it takes its place, and goes with
/// a writer that is killed before.
class FreshFile : public QTemporaryFile
{
public:
    explicit FreshFile(const QString &folder)
        : QTemporaryFile(folder + u"/.wortel-XXXXXX.tmp"_s)
    {}

    /// Unbuffered, because a buffer that is written only in part when it is flushed counts as written.
    bool openLocked()
    {
        if (!open(QIODevice::ReadWrite | QIODevice::Unbuffered))
            return false;
        flock(handle(), LOCK_EX | LOCK_NB); // where there are no locks, left-overs stay
        return true;
    }

    /// Flushes, as far as the file system (a share of a network, say) can, and renames. Returns 0 or the
    /// number of the error.
    int takePlaceOf(const QString &target)
    {
        const QByteArray to = QFile::encodeName(target);
        struct stat old
        {};
        const bool replaces = lstat(to.constData(), &old) == 0 && S_ISREG(old.st_mode);
        const mode_t mode = replaces ? old.st_mode & 0777 : 0666 & ~creationMask();
        (void)fchmod(handle(), mode); // where modes cannot be set, a private file is better than none
        if (fsync(handle()) != 0 && errno != EINVAL && errno != ENOSYS && errno != EOPNOTSUPP)
            return errno == ENOSPC || errno == EDQUOT ? RuntimeError::DiskFull : RuntimeError::PathAccess;
        if (std::rename(QFile::encodeName(fileName()).constData(), to.constData()) != 0)
            return errno == EPERM || errno == EACCES ? RuntimeError::PermissionDenied
                                                     : RuntimeError::PathAccess;
        setAutoRemove(false);
        return 0;
    }

private:
    static mode_t creationMask()
    {
        const mode_t mask = umask(0);
        umask(mask);
        return mask;
    }
};

/// Where `path` leads by links that may be followed: a file, or nothing yet, or a foreign link.
QString behindLinks(QString path)
{
    constexpr int mostLinks = 40; // as the system
    for (int links = 0; links < mostLinks; ++links) {
        const QFileInfo info(path);
        if (!info.isSymLink() || isForeignLink(path))
            return path;
        path = info.symLinkTarget();
    }
    raise(RuntimeError::PathAccess);
}

} // namespace

bool isForeignLink(const QString &path)
{
    struct stat facts
    {};
    const QByteArray native = QFile::encodeName(nativePath(path));
    return lstat(native.constData(), &facts) == 0 && S_ISLNK(facts.st_mode) && facts.st_uid != geteuid() &&
           facts.st_uid != 0;
}

void writeFileAtomically(const QString &path, const QByteArray &bytes)
{
    const QString target = behindLinks(nativePath(path));
    const QFileInfo old(target);
    const bool mayReplace = old.isSymLink() || !old.exists() || (old.isFile() && old.isWritable());
    FreshFile fresh(old.absolutePath());
    if (!mayReplace || !fresh.openLocked()) {
        writeInPlace(target, bytes);
        return;
    }
    if (!writeWhole(fresh, bytes))
        raise(writeError(fresh.error()));
    const int number = fresh.takePlaceOf(target);
    if (number == RuntimeError::PermissionDenied)
        writeInPlace(target, bytes); // somebody else's file, where each may remove only his own
    else if (number != 0)
        raise(number);
}

void removeLeftOvers(const QString &folder)
{
    if (folder.isEmpty())
        return;
    QDirIterator files(nativePath(folder), {u".wortel-??????.tmp"_s},
                       QDir::Files | QDir::Hidden | QDir::NoSymLinks);
    while (files.hasNext()) {
        const QByteArray path = QFile::encodeName(files.next());
        const int file = open(path.constData(), O_RDWR | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC);
        if (file < 0)
            continue;
        if (flock(file, LOCK_EX | LOCK_NB) == 0) // its writer is gone
            unlink(path.constData());
        close(file);
    }
}
