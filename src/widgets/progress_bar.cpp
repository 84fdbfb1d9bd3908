// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "widgets/progress_bar.h"

#include "widgets/colour.h"

#include <QAccessible>
#include <QLinearGradient>
#include <QPainter>
#include <QPainterPath>

#include <algorithm>

namespace {

constexpr QColor barColour{0x5C, 0xC8, 0x5A};
constexpr QColor textColour{0x10, 0x20, 0x38};
constexpr double cornerRadius = 5;

QString waitCaption() { return QStringLiteral("Bitte warten..."); }

} // namespace

GameProgressBar::GameProgressBar(QWidget *parent)
    : QWidget(parent)
    , caption_(waitCaption())
{}

void GameProgressBar::setMaximum(int maximum)
{
    maximum_ = std::max(1, maximum);
    setValue(value_);
    update();
}

void GameProgressBar::setValue(int value)
{
    const int kept = std::clamp(value, 0, maximum_);
    if (kept == value_)
        return;
    const bool isHeard = kept * 100LL / maximum_ != value_ * 100LL / maximum_;
    value_ = kept;
    update();
    if (isHeard) { // by whole per cents: a long work counts thousands
        QAccessibleValueChangeEvent event(this, kept);
        QAccessible::updateAccessibility(&event);
    }
    emit ValueChanged(kept);
}

void GameProgressBar::setCaption(const QString &caption)
{
    if (caption == caption_)
        return;
    caption_ = caption;
    update();
}

void GameProgressBar::resetAndHide()
{
    setValue(0);
    setCaption(waitCaption());
    hide();
}

void GameProgressBar::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const QRectF frame = QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5);
    QPainterPath outline;
    outline.addRoundedRect(frame, cornerRadius, cornerRadius);
    painter.fillPath(outline, Qt::white);
    painter.save();
    painter.setClipPath(outline);
    QLinearGradient shine(frame.topLeft(), frame.bottomLeft());
    shine.setColorAt(0, barColour.lighter(135));
    shine.setColorAt(1, barColour);
    painter.fillRect(QRectF(frame.topLeft(), QSizeF(frame.width() * value_ / maximum_, frame.height())),
                     shine);
    painter.restore();
    painter.setPen(paint::frame);
    painter.drawPath(outline);
    painter.setPen(textColour);
    const QRect inside = rect().adjusted(4, 0, -4, 0);
    painter.drawText(inside, Qt::AlignCenter | Qt::TextSingleLine,
                     fontMetrics().elidedText(caption_, Qt::ElideRight, inside.width()));
}
