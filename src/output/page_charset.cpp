// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "output/page_charset.h"

#include "platform/text_encoding.h"
#include "platform/windows1252.h"

#include <QStringDecoder>

#include <algorithm>
#include <array>
#include <cstring>
#include <optional>

using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype headLength = 4096; ///< bytes in which a page names its charset

bool isBlank(char c) { return c == ' ' || c == '\t' || c == '\r' || c == '\n' || c == '\f'; }

/// The value behind `key` and "=", with or without quotes, in a piece of a page in small letters; empty if
/// there is none.
QByteArray valueOf(const QByteArray &piece, const QByteArray &key)
{
    for (qsizetype at = piece.indexOf(key); at >= 0; at = piece.indexOf(key, at + 1)) {
        qsizetype i = at + key.size();
        const auto passBlanks = [&] {
            while (i < piece.size() && isBlank(piece[i]))
                ++i;
        };
        passBlanks();
        if (i >= piece.size() || piece[i] != '=')
            continue;
        ++i;
        passBlanks();
        if (i < piece.size() && (piece[i] == '"' || piece[i] == '\'')) {
            ++i;
            passBlanks();
        }
        const qsizetype from = i;
        while (i < piece.size() && !isBlank(piece[i]) && !std::strchr("\"';>/?", piece[i]))
            ++i;
        return piece.mid(from, i - from);
    }
    return {};
}

/// The charset that the page names, in small letters. What stands in a comment names nothing.
QByteArray namedCharset(const QByteArray &bytes)
{
    const QByteArray head = bytes.first(std::min(headLength, bytes.size())).toLower();
    if (head.trimmed().startsWith("<?xml"))
        if (QByteArray name = valueOf(head.left(head.indexOf('>')), "encoding"); !name.isEmpty())
            return name;
    qsizetype at = 0;
    for (;;) {
        at = head.indexOf('<', at);
        if (at < 0)
            return {};
        const QByteArray rest = head.mid(at, 5);
        const bool comment = rest.startsWith("<!--");
        const qsizetype end = comment ? head.indexOf("-->", at + 2) : head.indexOf('>', at);
        if (end < 0)
            return {};
        if (rest == "<meta")
            if (QByteArray name = valueOf(head.mid(at, end - at), "charset"); !name.isEmpty())
                return name;
        at = comment ? end + 2 : at + 1;
    }
}

/// Where ISO 8859-15 differs from Windows-1252 in the upper half.
struct Difference
{
    unsigned char byte;
    char16_t character;
};
constexpr std::array<Difference, 8> latin9{{{0xA4, u'€'},
                                            {0xA6, u'Š'},
                                            {0xA8, u'š'},
                                            {0xB4, u'Ž'},
                                            {0xB8, u'ž'},
                                            {0xBC, u'Œ'},
                                            {0xBD, u'œ'},
                                            {0xBE, u'Ÿ'}}};

QString decodeLatin9(const QByteArray &bytes)
{
    QString text = windows1252::decode(bytes);
    for (const Difference &difference : latin9)
        text.replace(QChar(static_cast<char16_t>(difference.byte)), QChar(difference.character));
    return text;
}

bool isOneOf(const QByteArray &name, std::initializer_list<const char *> names)
{
    return std::any_of(names.begin(), names.end(), [&](const char *one) { return name == one; });
}

std::optional<QString> decodeNamed(const QByteArray &bytes, const QByteArray &name)
{
    if (name.isEmpty() || name.startsWith("utf-16") || name.startsWith("utf-32"))
        return std::nullopt; // a page in which the name could be read is in neither
    if (isOneOf(name, {"utf-8", "utf8"}))
        return decodeText(bytes, TextEncoding::Utf8);
    // Pages that say "Latin-1" mean the code page, as browsers have always read them.
    if (isOneOf(name, {"windows-1252", "cp1252", "x-cp1252", "iso-8859-1", "iso8859-1", "latin1", "latin-1",
                       "us-ascii", "ascii"}))
        return windows1252::decode(bytes);
    if (isOneOf(name, {"iso-8859-15", "iso8859-15", "latin9", "latin-9"}))
        return decodeLatin9(bytes);
    QStringDecoder decoder(name.constData());
    if (!decoder.isValid())
        return std::nullopt;
    const QString text = decoder.decode(bytes);
    return text.normalized(QString::NormalizationForm_C);
}

} // namespace

QString decodePage(const QByteArray &bytes)
{
    const TextEncoding encoding = encodingOf(bytes);
    if (encoding == TextEncoding::Utf16 || bytes.startsWith(utf8Mark))
        return decodeText(bytes, encoding);
    if (const std::optional<QString> text = decodeNamed(bytes, namedCharset(bytes)))
        return *text;
    return decodeText(bytes, bytes.isValidUtf8() ? TextEncoding::Utf8 : TextEncoding::Windows1252);
}
