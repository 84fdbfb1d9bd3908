// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QProxyStyle>

/// The look of all windows: the same on every desktop, with rows of lists, trees, menus and popups that a
/// finger can hit.
class RoomyStyle : public QProxyStyle
{
    Q_OBJECT

public:
    static constexpr int lowestRow = 24; ///< pixels

    RoomyStyle();

    QSize sizeFromContents(ContentsType type, const QStyleOption *option, const QSize &contents,
                           const QWidget *widget) const override;
};
