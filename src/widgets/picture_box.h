// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QImage>
#include <QWidget>

#include <functional>

class QAccessibleInterface;

/// A picture box that keeps its image: what was painted on it survives being covered. The image has the
/// screen's device pixel ratio, so that tiles are sharp on a fine display; all coordinates are logical
/// pixels. Painting can be frozen during bulk work, which hides the steps between. Who paints on the image
/// calls `update` for what changed.
class PictureBox : public QWidget
{
    Q_OBJECT

public:
    explicit PictureBox(QWidget *parent = nullptr);

    /// The persistent image. Grows with the widget (old content stays) and never shrinks.
    QImage &image() { return image_; }
    const QImage &image() const { return image_; }

    /// Takes effect with the next `cls`.
    void setBackColour(const QColor &colour);
    QColor backColour() const { return backColour_; }
    /// A picture that lies at the top left corner in its own size (one picture point a logical pixel); a null
    /// image removes it. Clears the surface, so that the owner draws on it anew.
    void setPicture(const QImage &picture);
    QImage picture() const { return picture_; }
    /// Clears the image to the back colour and the picture.
    void cls();

    /// A frame round that rectangle (logical pixels) that lies over the picture and is no part of it; an
    /// empty one removes it. It is seen on every colour.
    void setFrame(const QRect &around);
    QRect frame() const { return frame_; }

    /// Who speaks for the picture to a screen reader, made when one asks; nothing for the plain picture.
    using Speaker = std::function<QAccessibleInterface *()>;
    void setSpeaker(Speaker speaker);
    QAccessibleInterface *makeAccessible() const { return speaker_ ? speaker_() : nullptr; }

    /// Suspends (True) or resumes repainting of this surface. Not counted: one resume ends any number of
    /// suspends.
    void LockWindow(bool locked);
    bool isLocked() const { return locked_; }

signals:
    void mouseDown(QMouseEvent *event);
    void mouseMoved(QMouseEvent *event);
    void mouseUp(QMouseEvent *event);
    void resized();

protected:
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;

private:
    void paintFrame(QPainter &painter) const;
    void ensureImage();
    void clearImage(QImage &image) const;

    QImage image_;
    QImage picture_;
    QColor backColour_{Qt::white};
    QRect frame_;
    Speaker speaker_;
    bool locked_ = false;
};
