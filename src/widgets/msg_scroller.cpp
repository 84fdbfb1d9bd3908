// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "widgets/msg_scroller.h"

#include "platform/text.h"
#include "widgets/colour.h"
#include "widgets/long_press.h"

#include <QEvent>
#include <QFontMetrics>
#include <QLinearGradient>
#include <QMouseEvent>
#include <QPainter>
#include <QScreen>

#include <algorithm>
#include <cmath>

namespace {

constexpr int steps = 4;             ///< places within a pixel of the screen in which letters are drawn
constexpr double slowestScreen = 30; ///< pictures a second
constexpr double fastestScreen = 120;
constexpr int fadeWidth = 18; ///< pixels in which words come up and fade at the edges of a running strip

} // namespace

MsgScroller::MsgScroller(QWidget *parent)
    : QWidget(parent)
    , strip_([this](const QString &text) { return fontMetrics().horizontalAdvance(text); })
    , backColor_(palette().color(QPalette::Button))
    , foreColor_(palette().color(QPalette::ButtonText))
{
    setEnabled(false);
    setMouseTracking(true);
    setAttribute(Qt::WA_OpaquePaintEvent);
    setAccessibleName(QStringLiteral("Laufschrift"));
    LongPress::offer(this);
    tmrScroll_.setSingleShot(true);
    tmrScroll_.setTimerType(Qt::PreciseTimer);
    connect(&tmrScroll_, &QTimer::timeout, this, [this] { advance(clock_.elapsed()); });
    decideScroll();
}

QSize MsgScroller::sizeHint() const
{
    const int border = 2 * borderStyle_;
    return {-ScrollerStrip::restOffset + border, fontMetrics().height() + 12 + border};
}

QRect MsgScroller::inside() const
{
    return rect().adjusted(borderStyle_, borderStyle_, -borderStyle_, -borderStyle_);
}

// Properties
// ------------------------------------------------------------------------------------------------------------

void MsgScroller::setBorderStyle(int style)
{
    borderStyle_ = style == 0 ? 0 : 1;
    update();
}

void MsgScroller::setBackColor(const QColor &colour)
{
    backColor_ = colour;
    update();
}

void MsgScroller::setForeColor(const QColor &colour)
{
    foreColor_ = colour;
    update();
}

void MsgScroller::setScrollInterval(int milliseconds)
{
    scrollInterval_ = std::max(0, milliseconds);
    if (timerOn_)
        startTimer();
}

void MsgScroller::setScrollSpeed(int pixels)
{
    if (pixels >= 1)
        scrollSpeed_ = pixels;
}

void MsgScroller::setSeperator(const QString &text)
{
    strip_.setSeperator(text);
    decideScroll();
}

void MsgScroller::setAutoScroll(bool on)
{
    autoScroll_ = on;
    decideScroll();
}

void MsgScroller::setScroll(bool on)
{
    forceScroll_ = on;
    strip_.measureAll();
    decideScroll();
}

// Methods
// ------------------------------------------------------------------------------------------------------------

void MsgScroller::Refresh() { draw(); }

void MsgScroller::ToggleScroll()
{
    if (panning_)
        timerBeforePan_ = !timerBeforePan_;
    else if (timerOn_)
        pauseTimer();
    else if (strip_.Running())
        startTimer();
}

void MsgScroller::AddItem(const QString &Text, const QString &Key, int Before)
{
    strip_.AddItem(Text, Key, Before);
    decideScroll();
}

void MsgScroller::RemoveItem(int Index)
{
    strip_.RemoveItem(Index);
    decideScroll();
}

void MsgScroller::Clear()
{
    strip_.Clear();
    decideScroll();
}

void MsgScroller::setItemData(int Index, const cMessageData &item)
{
    strip_.setItem(Index, item);
    decideScroll();
}

void MsgScroller::setItemColor(int Index, int colour)
{
    strip_.setColour(Index, colour);
    if (panning_)
        draw();
}

void MsgScroller::setList(int Index, const QString &text)
{
    strip_.setText(Index, text);
    decideScroll();
}

// Run
// ------------------------------------------------------------------------------------------------------------

void MsgScroller::decideScroll()
{
    decisionPutOff_ = panning_;
    if (!panning_) {
        if (!strip_.decide(forceScroll_, autoScroll_, width()))
            stopTimer();
        else if (!timerOn_)
            startTimer();
    }
    draw();
}

void MsgScroller::draw()
{
    // What slides in before the next tick is there already.
    strip_.draw(width() + (strip_.Running() ? scrollSpeed_ : 0));
    update();
}

void MsgScroller::tick()
{
    strip_.setOffset(strip_.Offset() + scrollSpeed_);
    glide_ = 0;
    draw();
}

void MsgScroller::startTimer()
{
    timerOn_ = true;
    clock_.start();
    // The part of a tick that was run before a pause counts.
    due_ = scrollInterval_ - std::lround(glide_ * scrollInterval_ / scrollSpeed_);
    scheduleFrame(0);
}

void MsgScroller::pauseTimer()
{
    timerOn_ = false;
    tmrScroll_.stop();
}

void MsgScroller::stopTimer()
{
    pauseTimer();
    setGlide(0);
}

/// Milliseconds between two pictures of the run: as often as the screen shows one, unless nothing would have
/// moved. Unseen, the strip only ticks.
double MsgScroller::frameTime() const
{
    if (!isVisible())
        return scrollInterval_;
    const double ofScreen = 1000.0 / std::clamp(screen()->refreshRate(), slowestScreen, fastestScreen);
    const double ofStep = scrollInterval_ / (scrollSpeed_ * devicePixelRatioF() * steps);
    return std::clamp(ofStep, ofScreen, static_cast<double>(std::max(scrollInterval_, 1)));
}

void MsgScroller::scheduleFrame(qint64 now)
{
    tmrScroll_.stop();
    if (timerOn_ && scrollInterval_ > 0)
        tmrScroll_.start(static_cast<int>(std::clamp<qint64>(due_ - now, 0, std::lround(frameTime()))));
}

void MsgScroller::advance(qint64 now)
{
    if (now - due_ >= 2 * scrollInterval_)
        due_ = now - scrollInterval_;
    while (timerOn_ && scrollInterval_ > 0 && due_ <= now) {
        tick();
        due_ += scrollInterval_;
    }
    if (timerOn_ && scrollInterval_ > 0 && isVisible())
        setGlide(scrollSpeed_ * (1 - static_cast<double>(due_ - now) / scrollInterval_));
    scheduleFrame(now);
}

void MsgScroller::setGlide(double pixels)
{
    const double fineness = steps * devicePixelRatioF();
    const double place = std::round(pixels * fineness) / fineness;
    if (qFuzzyCompare(1 + place, 1 + glide_))
        return;
    glide_ = place;
    update();
}

// Pointer
// ------------------------------------------------------------------------------------------------------------

int MsgScroller::hotSpotUnder(const QPointF &position) const
{
    return strip_.hotSpotAt(static_cast<int>(std::lround(position.x() + glide_)));
}

void MsgScroller::startPan(int x)
{
    timerBeforePan_ = timerOn_;
    strip_.setOffset(strip_.Offset() + static_cast<int>(std::lround(glide_)));
    stopTimer();
    panning_ = true;
    panStartX_ = x;
    panStartOffset_ = strip_.Offset();
    setCursor(Qt::ClosedHandCursor);
}

void MsgScroller::endPan()
{
    if (!panning_)
        return;
    panning_ = false;
    unsetCursor();
    if (timerBeforePan_)
        startTimer();
    // A strip that was emptied or stopped under the player's hand must not run on.
    if (decisionPutOff_)
        decideScroll();
}

void MsgScroller::mousePressEvent(QMouseEvent *event)
{
    if (event->button() == Qt::LeftButton && allowPan_ && strip_.Running())
        startPan(event->pos().x());
    emit mouseDown(event);
}

void MsgScroller::mouseMoveEvent(QMouseEvent *event)
{
    if (panning_) {
        strip_.setOffset(panStartOffset_ + panStartX_ - event->pos().x());
        draw();
    }
    currentHotSpot_ = hotSpotUnder(event->position());
    emit HotSpotMove(currentHotSpot_);
    emit mouseMoved(event);
}

void MsgScroller::mouseReleaseEvent(QMouseEvent *event)
{
    if (event->button() == Qt::LeftButton)
        endPan();
    emit mouseUp(event);
    if (event->button() != Qt::LeftButton || !rect().contains(event->pos()))
        return;
    emit clicked();
    currentHotSpot_ = hotSpotUnder(event->position());
    if (currentHotSpot_ >= 0)
        emit HotSpotClick(currentHotSpot_);
}

// Window
// ------------------------------------------------------------------------------------------------------------

void MsgScroller::resizeEvent(QResizeEvent *event)
{
    QWidget::resizeEvent(event);
    decideScroll();
}

void MsgScroller::hideEvent(QHideEvent *event)
{
    QWidget::hideEvent(event);
    endPan();
}

void MsgScroller::changeEvent(QEvent *event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::FontChange) {
        strip_.measureAll();
        decideScroll();
        draw();
    } else if (event->type() == QEvent::EnabledChange && !isEnabled()) {
        endPan();
    }
}

void MsgScroller::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    const QRect inner = inside();
    if (borderStyle_ != 0) {
        painter.fillRect(rect(), paint::frame);
        painter.setClipRect(inner);
    }
    painter.fillRect(inner, backColor_);
    painter.translate(-glide_, 0);
    paintPieces(painter);
    const int restLeft = strip_.restLeft();
    if (restLeft < width())
        painter.fillRect(QRect(restLeft, 0, width() - restLeft, height()), Qt::white);
    painter.resetTransform();
    if (strip_.Running())
        paintFade(painter, inner);
}

void MsgScroller::paintFade(QPainter &painter, const QRect &inner) const
{
    QColor clear = backColor_;
    clear.setAlpha(0);
    QLinearGradient fade(0, 0, fadeWidth, 0);
    fade.setColorAt(0, backColor_);
    fade.setColorAt(1, clear);
    const QRectF left(inner.left(), inner.top(), fadeWidth, inner.height());
    painter.save();
    painter.translate(left.topLeft());
    painter.fillRect(QRectF(QPointF(), left.size()), fade);
    painter.restore();
    painter.translate(inner.left() + inner.width(), inner.top());
    painter.scale(-1, 1);
    painter.fillRect(QRectF(QPointF(), left.size()), fade);
}

void MsgScroller::paintPieces(QPainter &painter) const
{
    const QString separator = strip_.SeparatorText();
    const bool separatorShows = !Trim(separator).isEmpty();
    const int baseline = (height() + fontMetrics().ascent() - fontMetrics().descent()) / 2;
    for (const ScrollerStrip::Piece &piece : strip_.pieces()) {
        painter.setPen(piece.colour == -1 ? foreColor_ : toQColor(static_cast<Colour>(piece.colour)));
        painter.drawText(QPointF(piece.left, baseline), piece.text);
        if (separatorShows)
            painter.drawText(QPointF(piece.left + piece.width, baseline), separator);
    }
}
