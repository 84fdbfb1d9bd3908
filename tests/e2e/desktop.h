// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QImage>
#include <QMap>
#include <QProcess>
#include <QTemporaryDir>

#include <functional>

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

    /// Adds a setting to those the program finds at its next start.
    void setSetting(const QString &key, const QString &value);
    /// The settings as the program has written them.
    QString storedSettings() const;
    /// A variable of the environment that the program is started in.
    void setVariable(const QString &name, const QString &value) { variables_.insert(name, value); }
    QProcessEnvironment environment() const;
    /// Writes a file into the program's folder and returns its name.
    QString writeFile(const QString &name, const QByteArray &content);

    /// Starts the program in its folder.
    void start(const QStringList &arguments = {});
    /// Starts it once more while it runs, and returns the second one's exit code; -1 if that did not end.
    int startAgain(const QStringList &arguments);
    bool isRunning() const;
    /// Waits for the end, true if the program ended by itself, not by a crash.
    bool waitForEnd(int milliseconds = 10000);
    int exitCode() const { return game_.exitCode(); }
    /// Asks the window to close and waits for the end.
    bool close();
    /// Kills with SIGKILL.
    void kill();
    /// Sends a signal: SIGSTOP for a program that is busy, SIGCONT for the end of that, SIGTERM.
    void signal(int number);

    /// The id of a visible window whose title matches the regular expression, waited for; empty if none came.
    QString waitForWindow(const QString &titlePattern, int milliseconds = 15000);
    bool waitForNoWindow(const QString &titlePattern, int milliseconds = 5000);
    /// Waits for a window or box, presses keys in it and waits until it has gone; false if it does not come
    /// or go.
    bool answer(const QString &titlePattern, const QString &keys = QStringLiteral("Return"));
    /// The same with a text that is entered into it.
    bool answerWith(const QString &titlePattern, const QString &text);

    /// Place and size of a window's inside on the screen.
    QRect geometry(const QString &window);
    /// The place of a tool of the main window, on the screen.
    QRect toolArea(const QString &name);
    QPoint tool(const QString &name) { return toolArea(name).center(); }
    /// The board above the band of tools, on the screen.
    QRect boardArea();
    /// The middle of a child of a window that is open under that title; `same` is a window of the same kind
    /// in the test's own process, which takes its size.
    QPoint childOf(const QString &titlePattern, QWidget &same, const QString &name);

    QImage screenshot();
    QImage boardPicture() { return screenshot().copy(boardArea()); }
    /// Waits until the board looks like that, or no longer does.
    bool boardBecomes(const QImage &board, bool same = true);
    /// Looks at the screen until it is as wished; false if that does not come.
    bool waitForPicture(const std::function<bool(const QImage &)> &isAsWished, int milliseconds = 15000);
    /// Stores the picture below the build folder, for looking at.
    void keepPicture(const QString &name);

    void move(QPoint position);
    void click(QPoint position, int button = 1);
    void drag(QPoint from, QPoint to);
    /// Right-clicks, waits for the menu and presses the keys in it ("Down Down Return").
    void chooseFromMenu(QPoint position, const QString &keys);
    /// Presses keys one after the other, divided by blanks.
    void key(const QString &keys);
    /// Holds a key down while something else is done.
    void hold(const QString &key, const std::function<void()> &meanwhile);
    void type(const QString &text);
    /// Types and presses Return.
    void enter(const QString &text);
    static void pause(int milliseconds);

    /// Runs a command on the display and returns what it printed.
    QByteArray run(const QString &program, const QStringList &arguments);

private:
    void makePortableCopy();

    QTemporaryDir place_;
    QMap<QString, QString> variables_;
    QProcess display_;
    QProcess manager_;
    QProcess game_;
    QString displayName_;
    bool ready_ = false;
};

/// Connected areas of a colour (exact) that are at least `least` pixels wide and high: the tiles of a kind,
/// since each has a white outline.
QVector<QRect> areasOfColour(const QImage &picture, QRgb colour, QSize least);

/// How many pixels of an area have the colour.
int pixelsOfColour(const QImage &picture, const QRect &area, QRgb colour);
