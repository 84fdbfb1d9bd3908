// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QProxyStyle>

class QStyleOptionMenuItem;

/// How the popup menus of the board look: rows high enough for a finger, pictures at the left, hints in grey
/// at the right, title strips in the menu's colour. Long menus scroll.
class MenuStyle : public QProxyStyle
{
    Q_OBJECT

public:
    MenuStyle();

    /// Height of a row in pixels. On a low screen the menu's owner lowers it so that the longest menu fits.
    void setRowHeight(int pixels) { rowHeight_ = pixels; }
    int rowHeight() const { return rowHeight_; }

    int pixelMetric(PixelMetric metric, const QStyleOption *option, const QWidget *widget) const override;
    int styleHint(StyleHint hint, const QStyleOption *option, const QWidget *widget,
                  QStyleHintReturn *data) const override;
    QSize sizeFromContents(ContentsType type, const QStyleOption *option, const QSize &contents,
                           const QWidget *widget) const override;
    void drawPrimitive(PrimitiveElement element, const QStyleOption *option, QPainter *painter,
                       const QWidget *widget) const override;
    void drawControl(ControlElement element, const QStyleOption *option, QPainter *painter,
                     const QWidget *widget) const override;

private:
    void drawHeading(const QStyleOptionMenuItem &item, QPainter &painter) const;
    void drawRow(const QStyleOptionMenuItem &item, QPainter &painter) const;

    int rowHeight_ = 30;
};
