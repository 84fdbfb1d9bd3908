// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/windows1252.h"

#include <array>
#include <cstddef>

namespace {

/// The characters of the bytes 0x80 to 0x9F, where the page differs from Latin-1.
constexpr std::array<char16_t, 32> differing{
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, // 80 to 87
    0x02C6, 0x2030, 0x0160, 0x2039, 0x0152, 0x008D, 0x017D, 0x008F, // 88 to 8F
    0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014, // 90 to 97
    0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178, // 98 to 9F
};

constexpr std::array<char16_t, 256> makeTable()
{
    std::array<char16_t, 256> table{};
    for (std::size_t byte = 0; byte < table.size(); ++byte)
        table[byte] = byte >= 0x80 && byte < 0xA0 ? differing[byte - 0x80] : static_cast<char16_t>(byte);
    return table;
}

constexpr std::array<char16_t, 256> table = makeTable();

/// The byte of a character, or -1.
int byteOf(char16_t character)
{
    if (character < 0x80 || (character >= 0xA0 && character <= 0xFF))
        return character;
    for (std::size_t i = 0; i < differing.size(); ++i)
        if (differing[i] == character)
            return static_cast<int>(i) + 0x80;
    return -1;
}

} // namespace

namespace windows1252 {

QString decode(QByteArrayView bytes)
{
    QString text(bytes.size(), Qt::Uninitialized);
    QChar *out = text.data();
    for (const char byte : bytes)
        *out++ = QChar(table[static_cast<unsigned char>(byte)]);
    return text; // each character of the page is its own normal form C
}

std::optional<QByteArray> encode(const QString &text)
{
    const QString composed = text.normalized(QString::NormalizationForm_C);
    QByteArray bytes(composed.size(), Qt::Uninitialized);
    char *out = bytes.data();
    for (const QChar character : composed) {
        const int byte = byteOf(character.unicode());
        if (byte < 0)
            return std::nullopt;
        *out++ = static_cast<char>(byte);
    }
    return bytes;
}

QString missing(const QString &text)
{
    QStringList found;
    for (const char32_t character : text.normalized(QString::NormalizationForm_C).toUcs4()) {
        if (character <= 0xFFFF && byteOf(static_cast<char16_t>(character)) >= 0)
            continue; // nearly all
        if (const QString shown = QString::fromUcs4(&character, 1); !found.contains(shown))
            found << shown;
    }
    return found.join(u' ');
}

QByteArray encodeLossy(const QString &text)
{
    const QString composed = text.normalized(QString::NormalizationForm_C);
    QByteArray bytes;
    bytes.reserve(composed.size());
    for (qsizetype i = 0; i < composed.size(); ++i) {
        const QChar character = composed.at(i);
        const int byte = byteOf(character.unicode());
        bytes += byte < 0 ? '?' : static_cast<char>(byte);
        if (character.isHighSurrogate() && i + 1 < composed.size() && composed.at(i + 1).isLowSurrogate())
            ++i; // one "?" for one character
    }
    return bytes;
}

} // namespace windows1252
