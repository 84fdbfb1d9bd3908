// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/text_encoding.h"

#include "platform/windows1252.h"

#include <QStringDecoder>

#include <algorithm>

namespace {

/// Bytes that mean nothing in Windows-1252 count as none of its characters.
bool standsInWindows1252(const QString &text)
{
    const auto isControl = [](QChar c) { return c.unicode() >= 0x80 && c.unicode() < 0xA0; };
    return std::none_of(text.begin(), text.end(), isControl) && windows1252::encode(text).has_value();
}

} // namespace

TextEncoding encodingOf(const QByteArray &bytes)
{
    if (bytes.startsWith(utf8Mark))
        return TextEncoding::Utf8;
    if (bytes.startsWith("\xFF\xFE") || bytes.startsWith("\xFE\xFF"))
        return TextEncoding::Utf16;
    const auto isAscii = [](char byte) { return static_cast<signed char>(byte) >= 0; };
    const bool isUtf8 = bytes.isValidUtf8() && !std::all_of(bytes.begin(), bytes.end(), isAscii) &&
                        standsInWindows1252(decodeText(bytes, TextEncoding::Utf8));
    return isUtf8 ? TextEncoding::Utf8 : TextEncoding::Windows1252;
}

QString decodeText(const QByteArray &bytes) { return decodeText(bytes, encodingOf(bytes)); }

QString decodeText(const QByteArray &bytes, TextEncoding encoding)
{
    if (encoding == TextEncoding::Windows1252)
        return windows1252::decode(bytes);
    const QString text = encoding == TextEncoding::Utf8
                             ? QString::fromUtf8(bytes)
                             : QString(QStringDecoder(QStringDecoder::Utf16).decode(bytes));
    return text.normalized(QString::NormalizationForm_C);
}

QByteArray encodeText(const QString &text)
{
    const std::optional<QByteArray> bytes = windows1252::encode(text);
    return bytes && encodingOf(*bytes) == TextEncoding::Windows1252 ? *bytes : utf8Mark + text.toUtf8();
}
