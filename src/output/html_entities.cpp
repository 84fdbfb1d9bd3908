// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "output/html_entities.h"

#include "platform/text.h"
#include "platform/windows1252.h"

#include <array>

using namespace Qt::StringLiterals;

namespace {

struct Entity
{
    QLatin1StringView name; ///< in small letters
    char16_t small;         ///< 0: the empty text
    char16_t capital = 0;   ///< of a name that begins with a capital; 0: there is none
};

constexpr Entity entity(const char *name, char16_t small, char16_t capital = 0)
{
    return {QLatin1StringView(name), small, capital};
}

/// The first row with a name counts. That "quot" gives nothing, that the name of code 185 ends in the letter
/// l, and that "otilde" stands twice has always been so.
constexpr std::array entities{
    entity("quot", 0),          entity("amp", u'&'),        entity("lt", u'<'),
    entity("gt", u'>'),         entity("nbsp", 160),        entity("iexcl", 161),
    entity("cent", 162),        entity("pound", 163),       entity("curren", 164),
    entity("yen", 165),         entity("brvbar", 166),      entity("sect", 167),
    entity("uml", 168),         entity("copy", 169),        entity("ordf", 170),
    entity("laquo", 171),       entity("not", 172),         entity("shy", 173),
    entity("reg", 174),         entity("macr", 175),        entity("deg", 176),
    entity("plusmn", 177),      entity("sup2", 178),        entity("sup3", 179),
    entity("acute", 180),       entity("micro", 181),       entity("para", 182),
    entity("middot", 183),      entity("cedil", 184),       entity("supl", 185),
    entity("ordm", 186),        entity("raquo", 187),       entity("frac14", 188),
    entity("frac12", 189),      entity("frac34", 190),      entity("iquest", 191),
    entity("agrave", 224, 192), entity("aacute", 225, 193), entity("acirc", 226, 194),
    entity("atilde", 227, 195), entity("auml", 228, 196),   entity("aring", 229, 197),
    entity("aelig", 230, 198),  entity("ccedil", 231, 199), entity("egrave", 232, 200),
    entity("eacute", 233, 201), entity("ecirc", 234, 202),  entity("euml", 235, 203),
    entity("igrave", 236, 204), entity("iacute", 237, 205), entity("icirc", 238, 206),
    entity("iuml", 239, 207),   entity("eth", 240, 208),    entity("ntilde", 241, 209),
    entity("ograve", 242, 210), entity("oacute", 243, 211), entity("ocirc", 244, 212),
    entity("otilde", 245, 213), entity("otilde", 245, 213), entity("ouml", 246, 214),
    entity("times", 215),       entity("oslash", 248, 216), entity("ugrave", 249, 217),
    entity("uacute", 250, 218), entity("ucirc", 251, 219),  entity("uuml", 252, 220),
    entity("yacute", 253, 221), entity("thorn", 254, 222),  entity("szlig", 223),
    entity("divide", 247),      entity("yuml", 255),
};

const Entity *entityOf(QStringView smallName)
{
    for (const Entity &row : entities)
        if (smallName == row.name)
            return &row;
    return nullptr;
}

/// The letters À to ÿ, which the last sweep knows beside a few signs.
bool isLetter(const Entity &row) { return row.capital != 0 || row.small == u'ß' || row.small == u'ÿ'; }

QString characterOf(uint code)
{
    if (code < 256)
        return code == 0 ? QString() : windows1252::decode(QByteArray(1, static_cast<char>(code)));
    if (code > QChar::LastValidCodePoint || QChar::isSurrogate(code))
        return {};
    const char32_t character = code;
    return QString::fromUcs4(&character, 1);
}

constexpr qsizetype longestName = 7; ///< with its ";"

/// What stands at the start of `text` behind an "&" in the last sweep, and for what.
struct Left
{
    qsizetype length;
    QChar with;
};
Left leftAt(QStringView text)
{
    if (text.startsWith(u'#'))
        return {1, u'#'};
    const qsizetype end = text.first(std::min(longestName, text.size())).indexOf(u';');
    if (end < 0)
        return {0, {}};
    const QString name = text.first(end).toString().toLower();
    if (name == "quot"_L1)
        return {end + 1, u'\''};
    if (name == "nbsp"_L1)
        return {end + 1, u' '};
    const Entity *row = entityOf(name);
    if (row == nullptr || !(isLetter(*row) || row->small == u'<' || row->small == u'>'))
        return {0, {}};
    // Case is ignored here, and the capitals come first.
    return {end + 1, QChar(row->capital != 0 ? row->capital : row->small)};
}

} // namespace

QString HTMLSpecChar2ASCII(const QString &name)
{
    QString small = LCase(name);
    if (small.startsWith(u'#'))
        small.remove(0, 1);
    const bool hexadecimal = small.startsWith(u'x');
    bool numeric = false;
    const uint code = QStringView(small).sliced(hexadecimal ? 1 : 0).toUInt(&numeric, hexadecimal ? 16 : 10);
    if (numeric)
        return characterOf(code);
    const Entity *row = entityOf(small);
    if (row == nullptr || row->small == 0)
        return {};
    const bool capital = row->capital != 0 && name.at(0).isUpper();
    return QChar(capital ? row->capital : row->small);
}

/// The replacements follow one another, "&amp;" first, each through the whole text; as none but the first
/// gives an "&", one walk does the same.
QString replaceLeftEntities(const QString &text)
{
    QString result;
    result.reserve(text.size());
    const QStringView all(text);
    qsizetype from = 0; // not copied yet
    for (qsizetype i = 0; i < all.size(); ++i) {
        if (all[i] == u'%' && all.sliced(i).startsWith("%20"_L1)) {
            result += all.sliced(from, i - from);
            result += u' ';
            from = i + 3;
            i += 2;
        } else if (all[i] == u'&') {
            result += all.sliced(from, i - from);
            i += all.sliced(i).startsWith("&amp;"_L1, Qt::CaseInsensitive) ? 4 : 0;
            const Left left = leftAt(all.sliced(i + 1));
            result += left.length > 0 ? left.with : QChar(u'&');
            i += left.length;
            from = i + 1;
        }
    }
    return from == 0 ? text : result += all.sliced(from);
}
