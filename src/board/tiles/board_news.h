// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/gate.h"

/// What happened to the board as a whole, for those who keep it: undo and backup. Every command that changes
/// tiles, wherever it comes from, ends with `Commit`. Nothing is told once the window is to close.
class BoardNews : public QObject
{
    Q_OBJECT

public:
    explicit BoardNews(const Gate &gate)
        : gate_(gate)
    {}

    /// A command has changed tiles.
    void Commit() { tell(&BoardNews::committed); }
    /// Tiles were moved by hand: no step of its own.
    void move() { tell(&BoardNews::moved); }
    /// Another board was opened or recovered: there is nothing before it.
    void open() { tell(&BoardNews::opened); }
    /// Undo or redo has put a board back.
    void stepTo() { tell(&BoardNews::stepped); }

signals:
    void committed();
    void moved();
    void opened();
    void stepped();

private:
    void tell(void (BoardNews::*news)())
    {
        if (!gate_.isClosing())
            (this->*news)();
    }

    const Gate &gate_;
};
