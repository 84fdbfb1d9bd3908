// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "output/text_loading.h"

#include "output/html_to_text.h"
#include "output/page_charset.h"
#include "output/rich_text.h"
#include "platform/files.h"
#include "platform/text.h"
#include "platform/text_encoding.h"

#include <array>

using namespace Qt::StringLiterals;

namespace {

struct Ending
{
    QLatin1StringView letters;
    TextKind kind;
};
constexpr std::array<Ending, 5> endings{{{"LEX"_L1, TextKind::Dictionary},
                                         {"TXT"_L1, TextKind::Plain},
                                         {"RTF"_L1, TextKind::Rich},
                                         {"HTM"_L1, TextKind::Page},
                                         {"HTML"_L1, TextKind::Page}}};

/// What no text box shows and a word must not hold: control characters, the place of an object, a mark of the
/// byte order, and the two by which a text box marks its frames.
bool isNoLetter(QChar character)
{
    return (character < u' ' && character != u'\t' && character != u'\n') ||
           character == QChar::ObjectReplacementCharacter || character == QChar::ByteOrderMark ||
           character == QChar(0xFDD0) || character == QChar(0xFDD1);
}

/// Line ends of all kinds become one.
QString withPlainLines(const QString &text)
{
    QString result;
    result.reserve(text.size());
    QChar before;
    for (const QChar character : text) {
        const bool secondHalf = before == u'\r' && character == u'\n';
        if (character == u'\r' || character == QChar::ParagraphSeparator || character == QChar::LineSeparator)
            result += u'\n';
        else if (!secondHalf && !isNoLetter(character))
            result += character;
        before = character;
    }
    return result;
}

/// Breaks lines beyond the limit behind their last blank within it, or at it where they have none.
QString withShortLines(const QString &text)
{
    QString result;
    qsizetype from = 0; // not copied yet
    qsizetype line = 0; // where the line begins
    qsizetype blank = -1;
    for (qsizetype i = 0; i < text.size(); ++i) {
        if (text.at(i) == u'\n') {
            line = i + 1;
            blank = -1;
            continue;
        }
        if (i - line == longestLine) {
            qsizetype end = blank >= line ? blank + 1 : i;
            if (text.at(end).isLowSurrogate())
                --end;
            result += QStringView(text).sliced(from, end - from);
            result += u'\n';
            from = line = end;
            blank = -1;
        }
        if (text.at(i) == u' ')
            blank = i;
    }
    return from == 0 ? text : result += QStringView(text).sliced(from);
}

PageText read(const QByteArray &bytes, TextKind kind, const PassStep &step)
{
    if (isRichText(bytes))
        return {richTextToPlain(bytes, step), {}, {}};
    if (kind != TextKind::Page)
        return {decodeText(bytes), {}, {}};
    return HTML2Text(decodePage(bytes), step);
}

} // namespace

TextKind textKindOf(const QString &path)
{
    const QString name = path.mid(std::max(path.lastIndexOf(u'\\'), path.lastIndexOf(u'/')) + 1);
    const qsizetype point = name.lastIndexOf(u'.');
    const QString capitals = UCase(name.mid(point + 1));
    for (const Ending &ending : endings)
        if (point >= 0 && capitals == ending.letters)
            return ending.kind;
    return TextKind::Other;
}

PageText decodeLoadedText(const QByteArray &bytes, TextKind kind, const PassStep &step)
{
    PageText loaded = read(bytes, kind, step);
    loaded.text = textForBox(loaded.text);
    return loaded;
}

QString textForBox(const QString &text) { return withShortLines(withPlainLines(text)); }

PageText loadText(const QString &path, const PassStep &step)
{
    return decodeLoadedText(ReadWholeFile(path), textKindOf(path), step);
}

QString stemListOfDictionary(const QString &path)
{
    return QString(path)
        .replace(u"\\facit"_s, u"\\text"_s, Qt::CaseInsensitive)
        .replace(u".lex"_s, u".txt"_s, Qt::CaseInsensitive);
}
