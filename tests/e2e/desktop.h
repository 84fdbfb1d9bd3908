// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QImage>
#include <QProcess>
#include <QTemporaryDir>

class QWidget;

/// A virtual display with a window manager, and the real program on it, played with real pointer and keys
/// (xdotool). The program is a portable copy with a home of its own, so that nothing of the user is touched.
/// Every wait has an end.
class Desktop
{
public:
    /// Starts the display. `size` in pixels.
    explicit Desktop(QSize size = {1366, 768});
    ~Desktop();

    bool isReady() const { return ready_; }
    /// The folder of the portable copy, with its data.
    QString programFolder() const { return place_.filePath(QStringLiteral("game")); }
    QString home() const { return place_.filePath(QStringLiteral("home")); }

    /// Starts the program with settings of `settings` lines ("Key=Value") written before the first start.
    void start(const QStringList &arguments = {});
    bool isRunning() const;
    /// Waits for the end, true if the program ended by itself, not by a crash.
    bool waitForEnd(int milliseconds = 10000);
    int exitCode() const { return game_.exitCode(); }
    /// Asks the window to close and waits for the end.
    bool close();
    /// Kills with SIGKILL.
    void kill();

    /// The id of a visible window whose title matches the regular expression, waited for; empty if none came.
    QString waitForWindow(const QString &titlePattern, int milliseconds = 15000);
    bool waitForNoWindow(const QString &titlePattern, int milliseconds = 5000);

    /// Place and size of a window's inside on the screen.
    QRect geometry(const QString &window);
    /// The middle of a tool of the main window, on the screen.
    QPoint tool(const QString &name);
    /// The middle of a child of a window that is open under that title; `same` is a window of the same kind
    /// and size in the test's own process.
    QPoint childOf(const QString &titlePattern, const QWidget &same, const QString &name);

    QImage screenshot();
    /// Stores the picture below the build folder, for looking at.
    void keepPicture(const QString &name);

    void move(QPoint position);
    void click(QPoint position, int button = 1);
    void drag(QPoint from, QPoint to);
    void key(const QString &keys);
    void type(const QString &text);
    static void pause(int milliseconds);

    /// Runs a command on the display and returns what it printed.
    QByteArray run(const QString &program, const QStringList &arguments);

private:
    QProcessEnvironment environment() const;
    void makePortableCopy();

    QTemporaryDir place_;
    QProcess display_;
    QProcess manager_;
    QProcess game_;
    QString displayName_;
    bool ready_ = false;
};

/// Connected areas of a colour (exact) that are at least `least` pixels wide and high: the tiles of a kind,
/// since each has a white outline.
QVector<QRect> areasOfColour(const QImage &picture, QRgb colour, QSize least);
