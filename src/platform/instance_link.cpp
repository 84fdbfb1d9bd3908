// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/instance_link.h"

#include <QCryptographicHash>
#include <QDeadlineTimer>
#include <QDir>
#include <QFileInfo>
#include <QLocalSocket>
#include <QStandardPaths>
#include <QThread>
#include <QTimer>

using namespace Qt::StringLiterals;

namespace {

constexpr int mostPeers = 16;
constexpr int patienceMs = 5000; ///< for a peer that does not finish its message
constexpr int retryMs = 50;

} // namespace

InstanceLink::InstanceLink(const QString &address, QObject *parent)
    : QObject(parent)
    , address_(address)
    , lock_(address + u".lock"_s)
{
    lock_.setStaleLockTime(0); // only the death of its holder makes the lock stale, not its age
    QDir().mkpath(QFileInfo(address).path());
    first_ = lock_.tryLock(0) || lock_.error() != QLockFile::LockFailedError;
    connect(&server_, &QLocalServer::newConnection, this, &InstanceLink::accept);
}

InstanceLink::~InstanceLink()
{
    const QList<QLocalSocket *> peers = received_.keys();
    for (QLocalSocket *peer : peers)
        peer->disconnect(this); // the server ends them while this object is half gone
    server_.close();
}

QString InstanceLink::defaultAddress()
{
    QString folder = QStandardPaths::writableLocation(QStandardPaths::RuntimeLocation);
    if (folder.isEmpty())
        folder = QDir::tempPath();
    const QString whose = QDir::homePath() + u'\n' + qEnvironmentVariable("WAYLAND_DISPLAY") + u'\n' +
                          qEnvironmentVariable("DISPLAY");
    const QByteArray key =
        QCryptographicHash::hash(whose.toUtf8(), QCryptographicHash::Sha256).toHex().first(12);
    return folder + u"/wortel-meister-"_s + QString::fromLatin1(key);
}

void InstanceLink::rest() { server_.close(); }

bool InstanceLink::listen()
{
    if (!first_)
        return false;
    QLocalServer::removeServer(address_);
    server_.setSocketOptions(QLocalServer::UserAccessOption);
    server_.setMaxPendingConnections(mostPeers);
    return server_.listen(address_);
}

bool InstanceLink::send(const QString &text, int timeoutMs) const
{
    const std::optional<QByteArray> message = LinkMessage::encode(text);
    if (!message)
        return false;

    const QDeadlineTimer deadline(timeoutMs);
    const auto left = [&] { return static_cast<int>(qMax<qint64>(1, deadline.remainingTime())); };
    QLocalSocket socket;
    for (;;) {
        socket.connectToServer(address_, QIODevice::WriteOnly);
        if (socket.waitForConnected(left()))
            break;
        if (deadline.hasExpired())
            return false;
        QThread::msleep(retryMs); // the first instance holds the lock and does not listen yet
    }
    socket.write(*message);
    while (socket.bytesToWrite() > 0)
        if (!socket.waitForBytesWritten(left()) || deadline.hasExpired())
            return false;
    socket.disconnectFromServer();
    return socket.state() == QLocalSocket::UnconnectedState || socket.waitForDisconnected(left());
}

void InstanceLink::accept()
{
    while (QLocalSocket *peer = server_.nextPendingConnection()) {
        if (received_.size() >= mostPeers) {
            peer->abort();
            peer->deleteLater();
            continue;
        }
        received_.insert(peer, {});
        peer->setReadBufferSize(LinkMessage::headerSize + qint64(LinkMessage::largestText) + 1);
        connect(peer, &QLocalSocket::readyRead, this, [this, peer] { read(peer); });
        connect(peer, &QLocalSocket::disconnected, this, [this, peer] {
            read(peer); // a sender that ends at once has left its message behind
            finish(peer);
        });
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
    const QString text = entry->text();
    finish(peer);
    if (state == LinkMessage::State::Whole)
        emit textReceived(text);
}

void InstanceLink::finish(QLocalSocket *peer)
{
    if (received_.remove(peer) == 0)
        return;
    peer->abort();
    peer->deleteLater();
}
