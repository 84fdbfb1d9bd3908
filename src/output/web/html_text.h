// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/colours.h"

#include <QByteArray>
#include <QLatin1StringView>
#include <QString>

#include <charconv>
#include <string>

/// Pages are put together in ASCII, in a string that takes many small pieces quickly.
namespace html {

/// A text as HTML that shows it and can be nothing else, in ASCII whatever its letters are: a browser reads
/// it the same in every charset. Fits into attributes between double quotes, too.
void append(std::string &page, const QString &text);
void append(std::string &page, QLatin1StringView text);
/// What is HTML already.
inline void append(std::string &page, const QByteArray &html)
{
    page.append(html.constData(), static_cast<std::size_t>(html.size()));
}
template <std::size_t Size> void append(std::string &page, const char (&html)[Size])
{
    page.append(html, Size - 1);
}
inline void append(std::string &page, int number)
{
    char digits[12];
    page.append(digits, std::to_chars(digits, digits + sizeof digits, number).ptr);
}

/// All parts, one after the other.
template <typename... Parts> QByteArray of(const Parts &...parts)
{
    std::string page;
    (append(page, parts), ...);
    return QByteArray::fromStdString(page);
}

/// A colour as HTML has it: "#RRGGBB".
QByteArray colour(Colour colour);

} // namespace html
