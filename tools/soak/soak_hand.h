// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "soak/soak_ground.h"

#include <QElapsedTimer>
#include <QEventLoop>
#include <QFile>
#include <QPointer>
#include <QWidget>

#include <random>

class frmMain;

/// A hand without sense: it presses, drags, types, chooses, resizes, drops files, starts the program a second
/// time and lets time pass, whatever stands on the screen, in an order that its seed decides. Each event is
/// given to the window as the window system gives it, so that modal windows and popups take what is theirs.
/// Every now and then it comes to rest and looks whether the house is in order; at last it closes the window,
/// wherever it is just then.
class SoakHand : public QObject
{
public:
    /// Every event is noted in `trail`, with one write, so that it outlives a crash.
    SoakHand(frmMain &form, SoakGround &ground, std::uint32_t seed, QFile &trail);

    /// Plays that many events and closes the window. Returns what was wrong, or nothing.
    QString play(int events);
    int done() const { return done_; }

private:
    using Random = std::mt19937;

    int below(int bound) { return static_cast<int>(random_() % static_cast<unsigned>(std::max(1, bound))); }
    bool oneIn(int times) { return below(times) == 0; }
    void note(const QString &what);
    void fail(const QString &what);

    void stepLater();
    void step();
    void act();
    void rest();
    void endIt();

    QWidget *front() const;
    QWidget *anyWindow();
    QPoint pointIn(QWidget *window);
    void sendMouse(QEvent::Type type, QWidget *window, const QPoint &point, Qt::MouseButton button);
    void sendKey(QWidget *window, int key, Qt::KeyboardModifiers shift, const QString &text);

    void pointer();
    void letGo();
    void key();
    void command();
    void resizeWindow();
    void secondStart();
    void dropFile();
    void closeFront();

    frmMain &form_;
    SoakGround &ground_;
    Random random_;
    QFile &trail_;
    QEventLoop loop_;
    QString fault_;
    int events_ = 0;
    int done_ = 0;
    int untilRest_ = 0;
    int calm_ = -1;       ///< steps in a row in which nothing stood on the stack; below 0 while it plays
    QElapsedTimer since_; ///< coming to rest, or closing, has begun
    int playsOn_ = 30;    ///< events that the closing window gets
    bool closing_ = false;
    bool ended_ = false;
    Qt::MouseButton held_ = Qt::NoButton;
    QPointer<QWidget> pressed_; ///< the window that the button went down in
    QPoint at_;
};
