// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "output/web/html_text.h"

#include <algorithm>

namespace {

constexpr char32_t unknown = 0xFFFD; ///< for what is no character

/// Control characters show nothing, and their numbers mean other letters to a browser.
bool isShown(char32_t character) { return character >= 0xA0 || (character >= 0x20 && character < 0x7F); }

void appendNumber(std::string &page, char32_t character)
{
    html::append(page, "&#");
    html::append(page, static_cast<int>(isShown(character) ? character : unknown));
    page += ';';
}

void appendUnit(std::string &page, char16_t unit)
{
    switch (unit) {
    case u'&':
        return html::append(page, "&amp;");
    case u'<':
        return html::append(page, "&lt;");
    case u'>':
        return html::append(page, "&gt;");
    case u'"':
        return html::append(page, "&quot;");
    case u'\'':
        return html::append(page, "&#39;");
    case u'\t':
        page += ' ';
        return;
    default:
        if (unit < 0x7F && isShown(unit))
            page += static_cast<char>(unit);
        else
            appendNumber(page, QChar::isSurrogate(unit) ? unknown : unit);
    }
}

} // namespace

void html::append(std::string &page, const QString &text)
{
    for (qsizetype i = 0; i < text.size(); ++i) {
        const QChar unit = text.at(i);
        if (unit.isHighSurrogate() && i + 1 < text.size() && text.at(i + 1).isLowSurrogate())
            appendNumber(page, QChar::surrogateToUcs4(unit, text.at(++i)));
        else
            appendUnit(page, unit.unicode());
    }
}

void html::append(std::string &page, QLatin1StringView text)
{
    const auto isPlain = [](char c) {
        return (c >= '0' && c <= '9') || (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z');
    };
    for (const char *at = text.begin(); at != text.end();) {
        const char *const run = std::find_if_not(at, text.end(), isPlain);
        page.append(at, run);
        at = run;
        if (at != text.end())
            appendUnit(page, static_cast<unsigned char>(*at++));
    }
}

QByteArray html::colour(Colour colour)
{
    const Colour turned = (colour & 0xFF) << 16 | (colour & 0xFF00) | (colour >> 16 & 0xFF);
    return '#' + QByteArray::number(turned, 16).toUpper().rightJustified(6, '0');
}
