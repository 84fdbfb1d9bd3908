// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDBusConnection>
#include <QDBusMessage>
#include <QObject>
#include <QProcess>
#include <QStringList>

/// A screen reader on an accessibility bus of its own: it hears what programs tell, and looks into their
/// trees and presses what it finds there. Every wait has an end.
class ReaderBus : public QObject
{
    Q_OBJECT

public:
    /// A node of a program's tree.
    struct Node
    {
        QString service;
        QString path;
        bool isValid() const { return !path.isEmpty(); }
    };

    ~ReaderBus() override;

    /// Starts a session's bus with that environment, and the accessibility bus on it.
    bool start(const QProcessEnvironment &environment);
    QString address() const { return address_; }

    /// Waits until `text` is spoken as an alert.
    bool hears(const QString &text, int milliseconds = 8000);
    /// Waits for the name of what gets the keyboard next, or returns nothing.
    QString nextFocus(int milliseconds = 3000);
    void forget();
    QStringList alerts() const { return alerts_; }

    /// The first node of that name below the programs, whatever their order.
    Node find(const QString &name);
    QString name(const Node &node);
    QStringList actions(const Node &node);
    /// Does the action of that name. False if there is none.
    bool act(const Node &node, const QString &action);

private slots:
    void onState(const QDBusMessage &message);

private:
    QVariant property(const Node &node, const QString &interface, const QString &name);
    QDBusMessage call(const Node &node, const QString &interface, const QString &method,
                      const QVariantList &arguments = {});
    QList<Node> children(const Node &node);
    Node findBelow(const Node &node, const QString &name);

    QProcess daemon_;
    QString address_;
    QDBusConnection bus_{QString()};
    QStringList alerts_;
    QStringList focused_;
};
