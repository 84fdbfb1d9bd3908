// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "widgets/scroller_strip.h"

#include <QColor>
#include <QElapsedTimer>
#include <QTimer>
#include <QWidget>

/// The running strip: a list of texts, one behind the other, that runs from right to left as on a news
/// ticker. A text under the pointer is a hot spot. The player can stop the run and pull the strip by hand.
///
/// `Offset` moves once a tick. Between two ticks the picture glides with the clock, as often as the screen
/// shows a new one, and by parts of a pixel, so that the run is even. The ticks keep to the clock, however
/// late the timer is; a strip that was held up longer goes on from where it stood. A strip that stands has no
/// timer and paints only when it is uncovered. Indexes are 1-based; one that is not there throws
/// RuntimeError 9.
class MsgScroller : public QWidget
{
    Q_OBJECT

public:
    explicit MsgScroller(QWidget *parent = nullptr);

    // Properties
    int BorderStyle() const { return borderStyle_; }
    /// 0 none, 1 a line around.
    void setBorderStyle(int style);
    QColor BackColor() const { return backColor_; }
    void setBackColor(const QColor &colour);
    QColor ForeColor() const { return foreColor_; }
    void setForeColor(const QColor &colour);
    int ScrollInterval() const { return scrollInterval_; }
    /// Milliseconds from tick to tick; at 0 the strip stands still.
    void setScrollInterval(int milliseconds);
    int ScrollSpeed() const { return scrollSpeed_; }
    /// Pixels a tick; a value under 1 is ignored.
    void setScrollSpeed(int pixels);
    QString Seperator() const { return strip_.Seperator(); }
    void setSeperator(const QString &text);
    bool AutoScroll() const { return autoScroll_; }
    /// Runs if the texts do not fit.
    void setAutoScroll(bool on);
    bool Scroll() const { return forceScroll_; }
    /// Runs whatever the width, from this moment on.
    void setScroll(bool on);
    bool AllowPan() const { return allowPan_; }
    void setAllowPan(bool on) { allowPan_ = on; }

    // Methods
    void Refresh();
    /// Stops a running timer or starts a stopped one; a strip that does not run has none.
    void ToggleScroll();
    /// A text of blanks is not added. `Key` counts if it is not blank (RuntimeError 457 if it is taken),
    /// `Before` if it is above 0: the item in front of which the new one goes.
    void AddItem(const QString &Text, const QString &Key = {}, int Before = 0);
    /// The first item of exactly that text, or -1.
    int FindItem(const QString &Text) const { return strip_.FindItem(Text); }
    int FindKey(const QString &Key) const { return strip_.FindKey(Key); }
    void RemoveItem(int Index);
    int ListCount() const { return strip_.ListCount(); }
    void Clear();
    cMessageData ItemData(int Index) const { return strip_.item(Index); }
    void setItemData(int Index, const cMessageData &item);
    int ItemColor(int Index) const { return strip_.item(Index).Colour; }
    /// `colour` is 0x00BBGGRR, or -1. Seen at the next tick, during a pan at once.
    void setItemColor(int Index, int colour);
    QString List(int Index) const { return strip_.item(Index).Text; }
    void setList(int Index, const QString &text);

    // State
    int Offset() const { return strip_.Offset(); }
    bool Running() const { return strip_.Running(); }
    bool Panning() const { return panning_; }
    bool isTimerOn() const { return timerOn_; }
    int CurrentHotSpot() const { return currentHotSpot_; }
    const ScrollerStrip &strip() const { return strip_; }

    /// One step of the run, as the timer makes it.
    void tick();
    /// Does what is due of the run at `now`, milliseconds since its timer was started; but after a pause of
    /// the whole program two ticks at most.
    void advance(qint64 now);

    QSize sizeHint() const override;

signals:
    void HotSpotClick(int Index);
    /// The item under the moving pointer, or -1.
    void HotSpotMove(int Index);
    void clicked();
    void mouseDown(QMouseEvent *event);
    void mouseMoved(QMouseEvent *event);
    void mouseUp(QMouseEvent *event);

protected:
    void paintEvent(QPaintEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void hideEvent(QHideEvent *event) override;
    void changeEvent(QEvent *event) override;

private:
    QRect inside() const;
    void decideScroll();
    void draw();
    void startTimer();
    void pauseTimer();
    /// Puts the picture back to `Offset`, too.
    void stopTimer();
    void scheduleFrame(qint64 now);
    double frameTime() const;
    void setGlide(double pixels);
    void startPan(int x);
    void endPan();
    int hotSpotUnder(const QPointF &position) const;
    void paintPieces(QPainter &painter) const;
    void paintFade(QPainter &painter, const QRect &inner) const;

    ScrollerStrip strip_;
    QTimer tmrScroll_;
    QElapsedTimer clock_;
    qint64 due_ = 0; ///< when the next tick is, on `clock_`
    QColor backColor_;
    QColor foreColor_;
    int borderStyle_ = 1;
    int scrollInterval_ = 120;
    int scrollSpeed_ = 3;
    bool autoScroll_ = false;
    bool forceScroll_ = false;
    bool allowPan_ = true;

    bool timerOn_ = false;
    double glide_ = 0; ///< pixels that the picture is ahead of `Offset`
    int currentHotSpot_ = ScrollerStrip::none;

    bool panning_ = false;
    int panStartX_ = 0;
    int panStartOffset_ = 0;
    bool timerBeforePan_ = false;
    bool decisionPutOff_ = false; ///< something changed during the pan
};
