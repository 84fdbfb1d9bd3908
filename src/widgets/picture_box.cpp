// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "widgets/picture_box.h"

#include <QAccessible>
#include <QMouseEvent>
#include <QPaintEvent>
#include <QPainter>
#include <QtMath>

#include <utility>

namespace {

constexpr int frameReach = 6; ///< pixels that a frame needs round what it frames
constexpr QColor darkLine{0x12, 0x2A, 0x5C};

} // namespace

PictureBox::PictureBox(QWidget *parent)
    : QWidget(parent)
{
    setAttribute(Qt::WA_OpaquePaintEvent);
    ensureImage();
}

void PictureBox::setBackColour(const QColor &colour) { backColour_ = colour; }

void PictureBox::setPicture(const QImage &picture)
{
    picture_ = picture.isNull() ? QImage() : picture.convertToFormat(QImage::Format_RGB32);
    picture_.setDevicePixelRatio(1);
    cls();
}

void PictureBox::cls()
{
    ensureImage();
    clearImage(image_);
    update();
}

void PictureBox::setFrame(const QRect &around)
{
    if (around == frame_)
        return;
    for (const QRect &rect : {frame_, around})
        if (!rect.isEmpty())
            update(rect.adjusted(-frameReach, -frameReach, frameReach, frameReach));
    frame_ = around;
}

/// Whoever has spoken for the picture so far goes: Qt keeps the first one that it was given.
void PictureBox::setSpeaker(Speaker speaker)
{
    if (QAccessibleInterface *before = QAccessible::queryAccessibleInterface(this))
        QAccessible::deleteAccessibleInterface(QAccessible::uniqueId(before));
    speaker_ = std::move(speaker);
}

void PictureBox::LockWindow(bool locked)
{
    locked_ = locked;
    setUpdatesEnabled(!locked);
}

void PictureBox::clearImage(QImage &image) const
{
    image.fill(backColour_);
    if (!picture_.isNull())
        QPainter(&image).drawImage(QPoint(0, 0), picture_);
}

void PictureBox::ensureImage()
{
    const double ratio = devicePixelRatioF();
    const bool sameRatio = qFuzzyCompare(ratio, image_.devicePixelRatio());
    const QSizeF old = image_.isNull() ? QSizeF() : image_.deviceIndependentSize();
    if (sameRatio && old.width() >= width() && old.height() >= height())
        return;
    const QSizeF logical = QSizeF(size()).expandedTo(old).expandedTo(QSizeF(1, 1));
    QImage grown(qCeil(logical.width() * ratio), qCeil(logical.height() * ratio), QImage::Format_RGB32);
    grown.setDevicePixelRatio(ratio);
    clearImage(grown);
    if (!image_.isNull()) {
        QPainter painter(&grown);
        painter.setRenderHint(QPainter::SmoothPixmapTransform, !sameRatio);
        painter.drawImage(QPoint(0, 0), image_);
    }
    image_ = grown;
}

void PictureBox::paintEvent(QPaintEvent *event)
{
    ensureImage(); // the window may have come to a screen with another ratio
    const double ratio = image_.devicePixelRatio();
    QPainter painter(this);
    for (const QRect &part : event->region())
        painter.drawImage(QRectF(part), image_,
                          QRectF(QPointF(part.topLeft()) * ratio, QSizeF(part.size()) * ratio));
    paintFrame(painter);
}

/// A dark line between two white ones.
void PictureBox::paintFrame(QPainter &painter) const
{
    if (frame_.isEmpty())
        return;
    const auto line = [&](const QColor &colour, double width) {
        painter.setPen(QPen(colour, width, Qt::SolidLine, Qt::SquareCap, Qt::MiterJoin));
        painter.drawRect(QRectF(frame_).adjusted(-2.5, -2.5, 2.5, 2.5));
    };
    line(Qt::white, 5);
    line(darkLine, 3);
}

void PictureBox::resizeEvent(QResizeEvent *event)
{
    QWidget::resizeEvent(event);
    ensureImage();
    emit resized();
}

void PictureBox::mousePressEvent(QMouseEvent *event) { emit mouseDown(event); }

void PictureBox::mouseMoveEvent(QMouseEvent *event) { emit mouseMoved(event); }

void PictureBox::mouseReleaseEvent(QMouseEvent *event) { emit mouseUp(event); }
