// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>
#include <QPoint>

class QWidget;

/// Lets a window be moved by one of its parts: a drag on `handle` moves the window it stands in. The window
/// system does the moving where it can; elsewhere the window follows the pointer, within the screen.
class Mover : public QObject
{
    Q_OBJECT

public:
    explicit Mover(QWidget *handle);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void follow(const QPoint &pointer);

    QWidget *handle_;
    bool moving_ = false;
    QPoint grip_; ///< where the window was taken, from its top left corner
};
