// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/instance_link.h"

#include "platform/local_socket.h"

#include <QCryptographicHash>
#include <QDeadlineTimer>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QLocalSocket>
#include <QScopeGuard>
#include <QSocketNotifier>
#include <QStandardPaths>
#include <QThread>
#include <QTimer>

#include <cerrno>
#include <poll.h>
#include <sys/socket.h>
#include <unistd.h>
#include <utility>

using namespace Qt::StringLiterals;

namespace {

constexpr int mostPeers = 16;
constexpr int patienceMs = 5000; ///< for a peer that does not finish its message
constexpr int retryMs = 50;
constexpr char taken = 'T'; ///< the answer to a message

int millisecondsLeft(const QDeadlineTimer &deadline)
{
    return static_cast<int>(qMax<qint64>(0, deadline.remainingTime()));
}

/// Waits until the socket is ready for `what`. False at the deadline.
bool waitFor(int socket, short what, const QDeadlineTimer &deadline)
{
    pollfd state{socket, what, 0};
    for (;;) {
        const int ready = poll(&state, 1, millisecondsLeft(deadline));
        if (ready >= 0 || errno != EINTR)
            return ready > 0;
    }
}

/// A folder that nobody else can write to. The system gives each user one for the time he is logged in.
bool isOwnAlone(const QString &folder)
{
    const QFileInfo info(folder);
    constexpr QFile::Permissions others = QFile::WriteGroup | QFile::WriteOther;
    return !folder.isEmpty() && info.isDir() && info.isWritable() && info.ownerId() == geteuid() &&
           !(info.permissions() & others);
}

} // namespace

InstanceLink::InstanceLink(const QString &address, QObject *parent)
    : QObject(parent)
    , address_(address)
    , lock_(address + u".lock"_s)
{
    QDir().mkpath(QFileInfo(address).path());
    becomeFirst();
}

InstanceLink::~InstanceLink() { stopListening(); }

QString InstanceLink::defaultAddress()
{
    QString folder = qEnvironmentVariable("XDG_RUNTIME_DIR");
    if (!isOwnAlone(folder))
        folder = QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation) + u"/Wortel-Meister"_s;
    const QString whose = QDir::homePath() + u'\n' + qEnvironmentVariable("WAYLAND_DISPLAY") + u'\n' +
                          qEnvironmentVariable("DISPLAY");
    const QByteArray key =
        QCryptographicHash::hash(whose.toUtf8(), QCryptographicHash::Sha256).toHex().first(12);
    return folder + u"/wortel-meister-"_s + QString::fromLatin1(key);
}

// The first start
// -----------------------------------------------------------------------------------------------

bool InstanceLink::becomeFirst()
{
    if (first_)
        return true;
    if (lock_.take() == InstanceLock::State::Taken)
        return false;
    // Somebody may have deleted the lock's file under its holder, or there can be no lock here.
    if (const int other = local_socket::connectTo(address_); other >= 0) {
        close(other);
        lock_.release();
        return false;
    }
    first_ = true;
    listening_ = local_socket::listenAt(address_);
    goOn();
    return true;
}

// Who connects meanwhile waits in the socket's own queue.
void InstanceLink::rest()
{
    delete std::exchange(notifier_, nullptr);
    const QList<QLocalSocket *> peers = received_.keys();
    for (QLocalSocket *peer : peers)
        finish(peer);
}

void InstanceLink::goOn()
{
    if (listening_ < 0)
        return;
    notifier_ = new QSocketNotifier(listening_, QSocketNotifier::Read, this);
    connect(notifier_, &QSocketNotifier::activated, this, &InstanceLink::accept);
}

void InstanceLink::stopListening()
{
    if (listening_ < 0)
        return;
    rest();
    close(std::exchange(listening_, -1));
    QFile::remove(address_);
}

std::optional<QStringList> InstanceLink::takeNext()
{
    if (waiting_.empty())
        return std::nullopt;
    QStringList next = std::move(waiting_.front());
    waiting_.pop_front();
    return next;
}

void InstanceLink::accept()
{
    for (int socket = local_socket::acceptFrom(listening_); socket >= 0;
         socket = local_socket::acceptFrom(listening_)) {
        auto *peer = new QLocalSocket(this);
        if (received_.size() >= mostPeers || !peer->setSocketDescriptor(socket)) {
            delete peer;
            close(socket);
            continue;
        }
        received_.insert(peer, {});
        peer->setReadBufferSize(LinkMessage::headerSize + qint64(LinkMessage::largestText) + 1);
        connect(peer, &QLocalSocket::readyRead, this, [this, peer] { read(peer); });
        connect(peer, &QLocalSocket::disconnected, this, [this, peer] { finish(peer); });
        QTimer::singleShot(patienceMs, peer, [this, peer] { finish(peer); });
        read(peer);
    }
}

void InstanceLink::read(QLocalSocket *peer)
{
    const auto entry = received_.find(peer);
    if (entry == received_.end())
        return;
    const LinkMessage::State state = entry->take(peer->readAll());
    if (state == LinkMessage::State::Incomplete)
        return;
    const QStringList arguments = entry->arguments();
    // Who has not waited for the answer has told his user that nobody gave one.
    const bool isTaken = state == LinkMessage::State::Whole &&
                         !local_socket::isHungUp(static_cast<int>(peer->socketDescriptor()));
    if (isTaken) {
        peer->write(&taken, 1);
        peer->flush();
    }
    finish(peer);
    if (!isTaken || arguments.isEmpty())
        return;
    waiting_.push_back(arguments);
    emit arrived();
}

void InstanceLink::finish(QLocalSocket *peer)
{
    if (received_.remove(peer) == 0)
        return;
    peer->disconnect(this);
    peer->close();
    peer->deleteLater();
}

// A later start
// -------------------------------------------------------------------------------------------------

InstanceLink::Outcome InstanceLink::handOver(const QStringList &arguments, int patience)
{
    const std::optional<QByteArray> message = LinkMessage::encode(arguments);
    if (!message)
        return Outcome::TooLong;
    const QDeadlineTimer deadline(patience);
    for (;;) {
        if (becomeFirst())
            return Outcome::IsFirst;
        const Reply reply = deliver(*message, deadline);
        if (reply == Reply::Taken)
            return Outcome::Taken;
        if (reply == Reply::None || deadline.hasExpired())
            return Outcome::NoAnswer;
        QThread::msleep(retryMs); // the first start ends and holds its lock until it has
    }
}

InstanceLink::Reply InstanceLink::deliver(const QByteArray &message, const QDeadlineTimer &deadline) const
{
    const int socket = local_socket::connectTo(address_);
    if (socket < 0)
        return Reply::Gone;
    const auto closeAtEnd = qScopeGuard([socket] { close(socket); });
    for (qsizetype done = 0; done < message.size();) {
        if (!waitFor(socket, POLLOUT, deadline))
            return Reply::None;
        const ssize_t count = ::send(socket, message.constData() + done,
                                     static_cast<std::size_t>(message.size() - done), MSG_NOSIGNAL);
        if (count < 0 && errno != EAGAIN && errno != EINTR)
            return Reply::Gone;
        done += qMax<ssize_t>(0, count);
    }
    if (!waitFor(socket, POLLIN, deadline))
        return Reply::None;
    char answer = 0;
    return recv(socket, &answer, 1, 0) == 1 && answer == taken ? Reply::Taken : Reply::Gone;
}
