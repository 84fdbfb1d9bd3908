// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>
#include <QPoint>
#include <QString>
#include <QStringList>

class QMouseEvent;
struct Ground;
struct MainControls;

/// What the main window does with the running strip: its settings, its place on the board, moving it with
/// Shift and the left button, holding it with the right one, and the word that was clicked last. Connects
/// itself to the strip.
class StripControl : public QObject
{
    Q_OBJECT

public:
    StripControl(Ground &ground, const MainControls &controls, QObject *parent = nullptr);

    /// The window's own values, with the settings for speed and pan; also after the options were applied.
    void SetUpMsgScroller();
    /// Puts the strip where the options want it, as wide as the board lets it there, with letters that a
    /// class reads.
    void PlaceTheMsgScroller();
    /// The window has another size: the strip takes what there is now, unless a hand has moved it.
    void boardResized();
    /// The word list was edited by hand: the strip shows `words` instead of its own; an empty strip takes
    /// them only if `fillEmptyStrip`.
    void takeWords(const QStringList &words, bool fillEmptyStrip);

    QString LastScrollerWord() const { return LastScrollerWord_; }

    void MsgScroller_HotSpotClick(int Index);
    void MsgScroller_MouseDown(QMouseEvent *event);
    void MsgScroller_MouseMove(QMouseEvent *event);
    void MsgScroller_MouseUp();

private:
    void takeLetters();
    void fitToBoard();

    Ground &ground_;
    const MainControls &controls_;
    QString LastScrollerWord_;
    bool ScrollerMoving_ = false;
    bool movedByHand_ = false;
    QPoint movedFrom_; ///< the pointer in the strip's pixels
};
