// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "output/printing/page_fit.h"

bool page_fit::goesAcross(const QSizeF &picture) { return !(picture.width() < picture.height()); }

QSizeF page_fit::fitted(const QSizeF &picture, const QSizeF &page)
{
    if (picture.isEmpty() || page.isEmpty())
        return {};
    const double ratio = picture.width() / picture.height();
    if (page.width() / page.height() > ratio)
        return {page.height() * ratio, page.height()};
    return {page.width(), page.width() / ratio};
}
