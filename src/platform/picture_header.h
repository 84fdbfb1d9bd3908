// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArrayView>

#include <optional>

/// What the first bytes of a picture tell. The formats that are shown are known by these bytes alone, never
/// by a name: what is no raster picture might draw without end or lead to other files.
struct PictureHeader
{
    const char *format; ///< "bmp", "gif", "jpeg" or "png"
    qint64 width = 0;   ///< points, above 0 and below 2^31
    qint64 height = 0;

    qint64 points() const { return width * height; }
};

/// Nothing for bytes that are none of the four formats, or whose header is cut short or tells no size.
std::optional<PictureHeader> pictureHeader(QByteArrayView bytes);
