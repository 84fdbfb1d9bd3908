// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QImage>
#include <QJsonObject>
#include <QProcess>
#include <QTemporaryDir>

/// A real browser without a window, driven over its own protocol through a pair of pipes. Every wait has an
/// end: what does not come fails the running test.
class Chromium
{
public:
    Chromium();
    ~Chromium();
    Q_DISABLE_COPY_MOVE(Chromium)

    /// Loads a page and waits until it is there.
    void open(const QString &path);
    /// The value of an expression, as text.
    QString value(const QString &expression);
    QImage picture();

    void mouse(const QString &type, QPoint at);
    /// Fingers on the screen: "touchStart", "touchMove" or "touchEnd". A finger is known by its place in the
    /// list.
    void touch(const QString &type, const QList<QPoint> &fingers);
    /// `modifiers` 8 is Shift.
    void key(const QString &name, int modifiers = 0);

    QStringList complaints; ///< errors and words on the console
    QStringList requests;   ///< addresses that were asked for

private:
    QJsonObject call(const QString &method, const QJsonObject &parameters = {});
    QJsonObject read();
    void note(const QJsonObject &event);

    QTemporaryDir home_;
    QProcess process_;
    int toBrowser_ = -1;
    int fromBrowser_ = -1;
    QByteArray pending_;
    QString session_;
    int lastId_ = 0;
    bool loaded_ = false;
};
