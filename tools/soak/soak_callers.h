// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>

#include <list>

/// Later starts of the program that call the first one over its link, any number at once. They live in the
/// first one's own thread, so none of them waits: a look at them takes the answers that have come.
class SoakCallers
{
public:
    /// `address` is the native path of the link's socket.
    explicit SoakCallers(QString address);
    ~SoakCallers();
    SoakCallers(const SoakCallers &) = delete;
    SoakCallers &operator=(const SoakCallers &) = delete;

    /// False if nobody listens.
    bool call(const QStringList &arguments);
    /// Something calls that sends rubbish, or goes before it has said all.
    void babble(const QByteArray &bytes, bool stays);

    /// Takes answers. True once every call has been answered.
    bool look();

private:
    struct Caller
    {
        int socket;
        bool wantsAnswer;
    };

    bool begin(const QByteArray &bytes, bool wantsAnswer);

    QString address_;
    std::list<Caller> callers_;
};
