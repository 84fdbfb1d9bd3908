// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

class Canvas;
class QRect;
struct Ground;

/// "Einpassen": a board from a larger screen has tiles beyond the window or under the band. The view is made
/// smaller until all are seen; the tiles keep their places. The view stays until no tile needs it any more.
class BoardFit
{
public:
    BoardFit(Ground &ground, Canvas &canvas);

    bool isOn() const;
    /// True if the middle of a tile lies where the plain board does not show it.
    bool isWanted() const;

    /// A board was opened: asks, if it has tiles out of sight. Whoever calls it stands at the gate.
    void offer();
    /// Makes the view as small as all tiles need; plain, if none does.
    void fit();
    /// On if it is off and there is something to be seen by it, otherwise off.
    void toggle();
    /// Other tiles lie on the board: a view that is on follows them, and ends when nobody needs it.
    void follow();
    /// The window has another size.
    void resized();

private:
    QRect room() const;
    QRect allTiles() const;
    void leave();

    Ground &ground_;
    Canvas &canvas_;
};
