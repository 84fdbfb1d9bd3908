// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/picture_file.h"

#include "platform/fault_words.h"
#include "platform/files.h"
#include "platform/picture_header.h"
#include "platform/runtime_error.h"

#include <QBuffer>
#include <QGuiApplication>
#include <QImageReader>
#include <QScreen>

using namespace Qt::StringLiterals;

namespace {

constexpr qint64 mostPoints = 24'000'000;          ///< that are read as they are
constexpr qint64 mostPointsToShrink = 200'000'000; ///< of a picture that is read smaller; it takes seconds
constexpr qsizetype mostScans = 64;  ///< of a jpg; a picture of thousands is decoded for minutes
constexpr int imageUnreadable = 481; // the classic number for a picture that is none

RuntimeError pictureError(const QString &description) { return {imageUnreadable, description}; }

QSize sizeToCoverScreen(const QSize &picture)
{
    const QScreen *screen = QGuiApplication::primaryScreen();
    const QSize wanted = screen ? screen->size() : QSize(1920, 1080);
    return picture.scaled(wanted, Qt::KeepAspectRatioByExpanding);
}

} // namespace

QImage readPicture(const QString &path)
{
    QByteArray bytes;
    try {
        bytes = ReadWholeFile(path);
    } catch (const RuntimeError &error) {
        throw pictureError(faultWords(error));
    }
    return pictureFrom(bytes);
}

QImage pictureFrom(const QByteArray &bytes)
{
    const std::optional<PictureHeader> header = pictureHeader(bytes);
    const auto scans = [&] { return bytes.count("\xFF\xDA"); };
    if (!header || (QByteArrayView(header->format) == "jpeg" && scans() > mostScans))
        throw pictureError(u"Die Datei ist kein Bild oder sie ist beschädigt."_s);
    QBuffer buffer;
    buffer.setData(bytes);
    QImageReader reader(&buffer, header->format);
    reader.setAutoDetectImageFormat(false);
    reader.setAutoTransform(true);
    if (header->points() > mostPoints) {
        if (header->points() > mostPointsToShrink || !reader.supportsOption(QImageIOHandler::ScaledSize))
            throw pictureError(
                u"Das Bild ist zu groß: %1 × %2 Bildpunkte."_s.arg(header->width).arg(header->height));
        reader.setScaledSize(sizeToCoverScreen(reader.size()));
    }
    QImage picture;
    if (!reader.read(&picture))
        throw pictureError(u"Das Bild ist beschädigt oder zu groß."_s);
    return picture;
}
