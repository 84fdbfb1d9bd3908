// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QImage>

/// The one way in which files become pictures: bmp, gif, jpg and png by their contents, whatever the name
/// says, with a look at the header before anything is decoded. A picture of more points than any screen has
/// is read smaller where its format allows that, and refused else.

/// The picture of `path` (native). Throws RuntimeError 481 with a sentence for the user.
QImage readPicture(const QString &path);
/// The same of bytes.
QImage pictureFrom(const QByteArray &bytes);
