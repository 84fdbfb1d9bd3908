// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>
#include <QSize>
#include <QTimer>

#include <functional>

class CommandRouter;
class PlayState;
class QKeyEvent;
struct Ground;

/// The wish for another size of the program: by Strg++, Strg+- and Strg+0 in any window, by the menu, by the
/// options. It is kept in the settings, and takes effect as soon as nothing runs, is played or stands open:
/// then `due` is told, and the program starts anew within itself. What has to wait says so in a sentence.
class SizeChange : public QObject
{
    Q_OBJECT

public:
    /// How long the hand may rest between two steps before they take effect, in milliseconds.
    static constexpr int rest = 350;

    /// `percent` is the size that the program has now, `screen` the primary one in pixels as they are at
    /// 100 %.
    SizeChange(Ground &ground, const PlayState &play, int percent, QSize screen, QObject *parent = nullptr);
    void registerCommands(CommandRouter &router);
    /// `sentence` says why the change has to wait for the next start, or gives nullptr.
    void askBefore(std::function<const char16_t *()> sentence) { hindrance_ = std::move(sentence); }

    void larger();
    void smaller();
    void automatic();
    /// The options were applied.
    void takeSetting();
    /// Says that the size that was chosen is more than the screen has room for.
    void tellIfLess();
    /// What it had to wait for has ended, perhaps.
    void act();
    /// The size that the program is to have, in percent.
    int wanted() const { return wanted_; }

signals:
    /// The gate is free, nothing is played: the window may be made anew.
    void due();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    bool isMine(const QKeyEvent &event);
    void want(int wish);
    void settle();
    void tellWait();

    Ground &ground_;
    const PlayState &play_;
    std::function<const char16_t *()> hindrance_;
    QTimer timer_;
    int percent_;
    QSize screen_;
    int wish_; ///< as it is kept
    int wanted_;
    bool queued_ = false;
    bool told_ = false; ///< that this wish has to wait
};
