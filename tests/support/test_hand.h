// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "support/test_board.h"

#include <QtTest>

/// Calls `onPaint` each time before the widget is painted.
class PaintWatch : public QObject
{
public:
    PaintWatch(QWidget *watched, std::function<void()> onPaint)
        : onPaint_(std::move(onPaint))
    {
        watched->installEventFilter(this);
    }
    bool eventFilter(QObject *, QEvent *event) override
    {
        if (event->type() == QEvent::Paint)
            onPaint_();
        return false;
    }

private:
    std::function<void()> onPaint_;
};

/// The house as the tests of the hand look at it: what the board tells undo and backup is counted.
struct TestHand : TestBoard
{
    explicit TestHand(quint64 seed = 1, const QSize &size = {632, 573})
        : TestBoard(seed, size)
    {
        QObject::connect(&r.news, &BoardNews::committed, &form, [this] { ++commits; });
        QObject::connect(&r.news, &BoardNews::moved, &form, [this] { ++moves; });
    }

    MorphemeLists &morphemeLists = r.morphemeLists;
    MenuModel &menus = r.menus;
    ScriptedMenu &popup = menu;
    BoardPointer &pointer = r.pointer;
    int commits = 0;
    int moves = 0;
};
