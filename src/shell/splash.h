// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QImage>
#include <QWidget>

#include <memory>

class Clock;

/// The grey drop shadow of the splash: a window of its own, painted with the dimmed copy of the screen behind
/// it.
class frmShadow : public QWidget
{
    Q_OBJECT

public:
    static constexpr int offset = 6; ///< pixels right of and below the form that casts it (90 twips)

    frmShadow();
    /// Takes the place of `form`'s shadow (pixels of the screen), waits 20 ms and shows itself.
    void Init(const QRect &form, Clock &clock);

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    QImage behind_;
};

/// The splash: a borderless box in the middle of the screen with the program's name and version. It goes,
/// with its shadow, when it is destroyed.
class frmSplash : public QWidget
{
    Q_OBJECT

public:
    explicit frmSplash(Clock &clock);
    ~frmSplash() override;

    void showWithShadow();
    /// Splash and shadow leave the always-on-top band.
    void leaveTop();

protected:
    bool event(QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    Clock &clock_;
    std::unique_ptr<frmShadow> shadow_;
};
