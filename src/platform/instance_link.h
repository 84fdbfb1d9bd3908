// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/instance_lock.h"
#include "platform/link_message.h"

#include <QHash>
#include <QObject>
#include <QStringList>

#include <cstdint>
#include <deque>
#include <optional>

class QDeadlineTimer;
class QLocalSocket;
class QSocketNotifier;

/// The link between two starts of the program. The first start of a user on a display holds a lock for its
/// whole life and, from the same moment on, listens at a local socket that only this user can reach. A later
/// start hands its arguments over and ends once they have been taken. Whatever was taken waits here until
/// the first start asks for it. Which start is the first is decided by the lock (where there can be none, by
/// who answers), so that two starts in one instant never both are, and what a crash, a damage or a stranger
/// has left in the way is replaced. What arrives and is no LinkMessage is dropped.
class InstanceLink : public QObject
{
    Q_OBJECT

public:
    enum class Outcome : std::uint8_t {
        Taken,    ///< the first start has the arguments
        IsFirst,  ///< the first start has ended meanwhile: this one is the first now
        NoAnswer, ///< the first start lives and does not answer
        TooLong   ///< more than a message holds
    };

    /// `address` is the native path of the socket; tests give their own.
    explicit InstanceLink(const QString &address = defaultAddress(), QObject *parent = nullptr);
    ~InstanceLink() override;

    /// A path of its own for each display: in the user's runtime folder if it is his alone, else in his data
    /// folder, where nobody else can take the name.
    static QString defaultAddress();

    /// True if no other instance runs.
    bool isFirst() const { return first_; }
    /// Hands the arguments over to the first start, which may be starting, busy or ending. Waits until they
    /// are taken, or until this start has become the first itself, but at most `patienceMs`. No arguments
    /// only ask whether somebody answers.
    Outcome handOver(const QStringList &arguments, int patienceMs = 10000);

    /// How many later starts' arguments wait here.
    std::size_t waiting() const { return waiting_.size(); }
    /// The arguments of the start that has waited longest.
    std::optional<QStringList> takeNext();
    /// The user goes: what waits is not wanted any more.
    void forgetAll() { waiting_.clear(); }

    /// The program ends: nothing is taken any more. Who hands over then waits until this process is gone.
    void stopListening();
    /// The program's event loop ends, and another begins: who hands over between `rest` and `goOn` just waits
    /// a little longer.
    void rest();
    void goOn();

signals:
    /// A later start has handed over its arguments.
    void arrived();

private:
    enum class Reply : std::uint8_t { Taken, Gone, None };

    bool becomeFirst();
    Reply deliver(const QByteArray &message, const QDeadlineTimer &deadline) const;
    void accept();
    void read(QLocalSocket *peer);
    void finish(QLocalSocket *peer);

    QString address_;
    InstanceLock lock_;
    int listening_ = -1;
    QSocketNotifier *notifier_ = nullptr;
    QHash<QLocalSocket *, LinkMessage> received_;
    std::deque<QStringList> waiting_;
    bool first_ = false;
};
