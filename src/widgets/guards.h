// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QCursor>
#include <QGuiApplication>

#include <vector>

/// The pointer is the hourglass while one of these lives; they may be nested.
class Hourglass
{
public:
    Hourglass() { QGuiApplication::setOverrideCursor(Qt::WaitCursor); }
    ~Hourglass() { QGuiApplication::restoreOverrideCursor(); }
    Hourglass(const Hourglass &) = delete;
    Hourglass &operator=(const Hourglass &) = delete;
};

/// The pointer is no hourglass while one of these lives: somebody is asked in the middle of a work.
class PlainPointer
{
public:
    PlainPointer()
    {
        while (const QCursor *cursor = QGuiApplication::overrideCursor()) {
            cursors_.push_back(*cursor);
            QGuiApplication::restoreOverrideCursor();
        }
    }
    ~PlainPointer()
    {
        for (auto cursor = cursors_.rbegin(); cursor != cursors_.rend(); ++cursor)
            QGuiApplication::setOverrideCursor(*cursor);
    }
    PlainPointer(const PlainPointer &) = delete;
    PlainPointer &operator=(const PlainPointer &) = delete;

private:
    std::vector<QCursor> cursors_;
};
