// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDBusConnection>
#include <QDBusMessage>
#include <QProcess>

/// A screen reader on an accessibility bus of its own: it hears what programs tell, and looks into their
/// trees and presses what it finds there. Every wait has an end.
class ReaderBus : public QObject
{
    Q_OBJECT

public:
    /// A node of a program's tree; without a path none.
    struct Node
    {
        QString service, path;
    };

    ~ReaderBus() override;

    /// Starts a session's bus with that environment, and the accessibility bus on it.
    bool start(const QProcessEnvironment &environment);
    QString address() const { return address_; }

    /// Waits until `text` is spoken as an alert.
    bool hears(const QString &text);
    /// Waits for the name of what gets the keyboard next, or returns nothing.
    QString nextFocus();

    /// The first node of that name in the programs' trees.
    Node find(const QString &name);
    /// Does a node's first action, its press. False if it has none.
    bool press(const Node &node);

private slots:
    void onState(const QDBusMessage &message);

private:
    QVariant ask(const Node &node, const QString &method, const QVariantList &arguments = {},
                 const QString &interface = QStringLiteral("org.a11y.atspi.Accessible"));
    QString name(const Node &node);
    Node findBelow(const Node &node, const QString &name);

    QProcess daemon_;
    QString address_;
    QDBusConnection bus_{QString()};
    QStringList alerts_, focused_;
};
