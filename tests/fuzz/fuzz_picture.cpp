// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "fuzz/targets.h"
#include "platform/picture_header.h"

void fuzz::picture(const QByteArray &bytes)
{
    const std::optional<PictureHeader> whole = pictureHeader(bytes);
    promise(!whole || (whole->width > 0 && whole->height > 0 && whole->points() > 0),
            "a picture has points, and they can be counted");
    for (qsizetype cut = 0; cut < bytes.size(); ++cut) {
        const std::optional<PictureHeader> part = pictureHeader(QByteArrayView(bytes).first(cut));
        promise(!part || (whole && part->width == whole->width && part->height == whole->height),
                "a picture that is cut short has its size or none");
    }
}
