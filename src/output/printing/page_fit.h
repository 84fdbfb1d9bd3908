// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QSizeF>

/// How a picture goes on a page as large as it fits.
namespace page_fit {

/// A picture that is not higher than wide, a square one too, turns the page.
bool goesAcross(const QSizeF &picture);
/// The size at which `picture` fills the width or the height of `page` and keeps its shape.
QSizeF fitted(const QSizeF &picture, const QSizeF &page);

} // namespace page_fit
