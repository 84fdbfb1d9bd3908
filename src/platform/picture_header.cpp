// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/picture_header.h"

#include <QtEndian>

#include <cstdlib>
#include <limits>

namespace {

/// The number at byte `at`, or 0 if the bytes end before.
template <typename Number> Number big(QByteArrayView bytes, qsizetype at)
{
    const auto size = static_cast<qsizetype>(sizeof(Number));
    return at + size <= bytes.size() ? qFromBigEndian<Number>(bytes.data() + at) : Number(0);
}
template <typename Number> Number little(QByteArrayView bytes, qsizetype at)
{
    const auto size = static_cast<qsizetype>(sizeof(Number));
    return at + size <= bytes.size() ? qFromLittleEndian<Number>(bytes.data() + at) : Number(0);
}

PictureHeader ofBmp(QByteArrayView bytes)
{
    constexpr quint32 oldHeader = 12; // with sizes of 16 bits
    if (little<quint32>(bytes, 14) == oldHeader)
        return {"bmp", little<quint16>(bytes, 18), little<quint16>(bytes, 20)};
    const qint64 height = little<qint32>(bytes, 22); // below 0 for one that is told from its top
    return {"bmp", little<qint32>(bytes, 18), std::abs(height)};
}

PictureHeader ofGif(QByteArrayView bytes)
{
    return {"gif", little<quint16>(bytes, 6), little<quint16>(bytes, 8)};
}

PictureHeader ofPng(QByteArrayView bytes)
{
    return {"png", big<quint32>(bytes, 16), big<quint32>(bytes, 20)};
}

/// The size stands in the frame header, behind any count of other segments.
PictureHeader ofJpeg(QByteArrayView bytes)
{
    qsizetype at = 2;
    while (at + 1 < bytes.size()) {
        if (bytes[at++] != '\xFF')
            continue;
        const auto marker = static_cast<unsigned char>(bytes[at]);
        if (marker == 0xFF || marker == 0)
            continue;
        ++at;
        if (marker == 0x01 || (marker >= 0xD0 && marker <= 0xD8))
            continue; // stands alone
        if (marker == 0xD9 || marker == 0xDA)
            break; // the points begin, or the picture has ended
        const bool isTable = marker == 0xC4 || marker == 0xC8 || marker == 0xCC;
        if (marker >= 0xC0 && marker <= 0xCF && !isTable)
            return {"jpeg", big<quint16>(bytes, at + 5), big<quint16>(bytes, at + 3)};
        at += big<quint16>(bytes, at);
    }
    return {"jpeg"};
}

/// No format has longer ones; so the points can be counted.
bool isSide(qint64 points) { return points > 0 && points <= std::numeric_limits<qint32>::max(); }

struct Format
{
    QByteArrayView begin;
    PictureHeader (*read)(QByteArrayView bytes);
};

constexpr Format formats[] = {
    {"BM", ofBmp},
    {"GIF87a", ofGif},
    {"GIF89a", ofGif},
    {"\xFF\xD8\xFF", ofJpeg},
    {"\x89PNG\r\n\x1A\n", ofPng},
};

} // namespace

std::optional<PictureHeader> pictureHeader(QByteArrayView bytes)
{
    for (const Format &format : formats)
        if (bytes.startsWith(format.begin)) {
            const PictureHeader header = format.read(bytes);
            return isSide(header.width) && isSide(header.height) ? std::optional(header) : std::nullopt;
        }
    return std::nullopt;
}
