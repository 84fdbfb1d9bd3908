// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "board/canvas/canvas_surface.h"

#include "board/tiles/tile_store.h"
#include "widgets/colour.h"
#include "widgets/picture_box.h"

#include <utility>

CanvasSurface::CanvasSurface(PictureBox &box)
    : box_(box)
    , font_(box.font())
{
    font_.setBold(true);
    box_.setBackColour(toQColor(colours::board));
    box_.cls();
}

void CanvasSurface::fillBox(int left, int top, int right, int bottom, Colour colour)
{
    run({Step::Fill, QRect(QPoint(left, top), QPoint(right, bottom)), colour, {}});
}

void CanvasSurface::outlineBox(int left, int top, int right, int bottom, Colour colour)
{
    run({Step::Outline, QRect(QPoint(left, top), QPoint(right, bottom)), colour, {}});
}

void CanvasSurface::printText(int x, int y, const QString &text, Colour colour)
{
    run({Step::Text, QRect(x, y, 0, 0), colour, text});
}

void CanvasSurface::clear()
{
    noted_.clear();
    run({Step::Clear, {}, 0, {}});
}

void CanvasSurface::LockWindow(bool locked)
{
    if (!locked && !noted_.empty()) {
        const Batch batch(*this);
        for (const Step &step : std::exchange(noted_, {}))
            paint(step);
    }
    box_.LockWindow(locked);
}

bool CanvasSurface::isLocked() const { return box_.isLocked(); }

void CanvasSurface::run(const Step &step)
{
    if (isLocked()) {
        noted_.push_back(step);
        return;
    }
    const Batch batch(*this);
    paint(step);
}

void CanvasSurface::paint(const Step &step)
{
    QPainter &painter = *painter_;
    const QRect &box = step.box;
    switch (step.kind) {
    case Step::Fill:
        painter.fillRect(box, toQColor(step.colour));
        break;
    case Step::Outline: {
        const QColor colour = toQColor(step.colour);
        if (!view_.isPlain()) {
            painter.setPen(QPen(colour, 0)); // as thin as a line can be, however small the view is
            painter.setBrush(Qt::NoBrush);
            painter.drawRect(box.adjusted(0, 0, -1, -1));
            break;
        }
        // Four filled lines stay sharp at any device pixel ratio.
        painter.fillRect(box.left(), box.top(), box.width(), 1, colour);
        painter.fillRect(box.left(), box.bottom(), box.width(), 1, colour);
        painter.fillRect(box.left(), box.top() + 1, 1, box.height() - 2, colour);
        painter.fillRect(box.right(), box.top() + 1, 1, box.height() - 2, colour);
        break;
    }
    case Step::Text:
        painter.setPen(toQColor(step.colour));
        painter.drawStaticText(box.topLeft(), laidOut(step.text));
        break;
    case Step::Clear:
        close(); // the box paints its picture with a painter of its own
        box_.cls();
        open();
        break;
    }
}

const QStaticText &CanvasSurface::laidOut(const QString &text)
{
    return texts_.get(text, [this](const QString &unknown) {
        QStaticText laid(tileText(unknown));
        laid.setTextFormat(Qt::PlainText);
        laid.prepare(painter_->transform(), font_);
        return laid;
    });
}

void CanvasSurface::open()
{
    painter_.emplace(&box_.image());
    painter_->setFont(font_);
    if (!view_.isPlain())
        painter_->setTransform(view_.transform());
}

void CanvasSurface::close() { painter_.reset(); }

CanvasSurface::Batch::Batch(CanvasSurface &surface)
    : surface_(surface)
{
    if (surface_.batches_++ == 0)
        surface_.open();
}

CanvasSurface::Batch::~Batch()
{
    if (--surface_.batches_ > 0)
        return;
    surface_.close();
    surface_.box_.update();
}
