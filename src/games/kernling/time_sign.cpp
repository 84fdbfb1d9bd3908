// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "games/kernling/time_sign.h"

#include "platform/clock.h"
#include "widgets/colour.h"

#include <QPainter>

#include <algorithm>
#include <cmath>

namespace {

constexpr int lookEvery = 200; ///< milliseconds
constexpr int side = 34;       ///< pixels, the least
constexpr QColor timeLeft{0xE0, 0x20, 0x20};
constexpr double lateShare = 0.25;
constexpr QColor timeEarly{0x3C, 0xA8, 0x3A};

} // namespace

TimeSign::TimeSign(QWidget *parent)
    : QWidget(parent)
{
    look_.setInterval(lookEvery);
    connect(&look_, &QTimer::timeout, this, qOverload<>(&QWidget::update));
}

void TimeSign::start(const Clock &clock, int milliseconds)
{
    clock_ = &clock;
    begun_ = clock.elapsed();
    length_ = std::max(1, milliseconds);
    look_.start();
    show();
}

void TimeSign::stop()
{
    look_.stop();
    hide();
}

QSize TimeSign::sizeHint() const
{
    const int wanted = std::max(side, 2 * fontMetrics().height());
    return {wanted, wanted};
}

double TimeSign::left() const
{
    if (clock_ == nullptr)
        return 0;
    return std::clamp(1 - static_cast<double>(clock_->elapsed() - begun_) / length_, 0.0, 1.0);
}

void TimeSign::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const double size = std::min(width(), height()) - 6;
    QRectF face(0, 0, size, size);
    face.moveCenter(QRectF(rect()).center());
    painter.setPen(QPen(paint::frame, 2));
    painter.setBrush(Qt::white);
    painter.drawEllipse(face);
    painter.setPen(Qt::NoPen);
    painter.setBrush(left() < lateShare ? timeLeft : timeEarly);
    constexpr int top = 90 * 16; // sixteenths of a degree
    painter.drawPie(face.adjusted(3, 3, -3, -3), top, static_cast<int>(std::lround(left() * 360 * 16)));
}
