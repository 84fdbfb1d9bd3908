// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/link_message.h"

#include <QHash>
#include <QLocalServer>
#include <QLockFile>
#include <QObject>
#include <QString>

class QLocalSocket;

/// The link between two starts of the program. The first start of a user on a display holds a lock file for
/// its whole life and listens at a local socket that only this user can reach; a later start hands its
/// command line over and ends. Which start is the first is decided by the lock alone, so that two starts in
/// one instant never both are, and a socket left behind by a crash is replaced.
/// What arrives and is no LinkMessage is dropped.
class InstanceLink : public QObject
{
    Q_OBJECT

public:
    /// `address` is the native path of the socket; tests give their own.
    explicit InstanceLink(const QString &address = defaultAddress(), QObject *parent = nullptr);
    ~InstanceLink() override;

    /// A path in the user's runtime folder, of its own for each display.
    static QString defaultAddress();

    /// True if no other instance runs. Decided when the link is made. True as well if the folder allows no
    /// lock.
    bool isFirst() const { return first_; }
    /// Lets later starts connect. To be called by the first instance; false if the socket cannot be made.
    bool listen();
    /// Lets nobody connect until the next `listen`, and stays the first: the program's event loop ends, and
    /// another begins.
    void rest();
    /// Hands `text` over to the first instance, which may still be starting. False if that failed within
    /// `timeoutMs`.
    bool send(const QString &text, int timeoutMs = 3000) const;

signals:
    /// A later start has handed over this text.
    void textReceived(const QString &text);

private:
    void accept();
    void read(QLocalSocket *peer);
    void finish(QLocalSocket *peer);

    QString address_;
    QLockFile lock_;
    QLocalServer server_;
    QHash<QLocalSocket *, LinkMessage> received_;
    bool first_ = true;
};
