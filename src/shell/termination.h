// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>

class QSocketNotifier;

/// Turns the system's polite requests to end (SIGTERM, SIGINT, SIGHUP: logging out, shutting down) into a
/// signal on the interface thread, so that the program ends in its usual order.
class Termination : public QObject
{
    Q_OBJECT

public:
    explicit Termination(QObject *parent = nullptr);
    ~Termination() override;

    /// Another one follows this one in the process: what is asked for between the two comes to that one.
    void handOn() { isHandedOn_ = true; }

signals:
    void requested();

private:
    QSocketNotifier *notifier_ = nullptr;
    bool isHandedOn_ = false;
};
