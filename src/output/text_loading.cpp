// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "output/text_loading.h"

#include "output/html_to_text.h"
#include "output/rich_text.h"
#include "platform/files.h"
#include "platform/text.h"
#include "platform/text_encoding.h"

using namespace Qt::StringLiterals;

TextKind textKindOf(const QString &path)
{
    const QString name = path.mid(path.lastIndexOf(u'\\') + 1);
    const qsizetype point = name.lastIndexOf(u'.');
    const QString ending = point < 0 ? QString() : UCase(name.mid(point + 1));
    if (ending == "LEX"_L1)
        return TextKind::Dictionary;
    if (ending == "TXT"_L1)
        return TextKind::Plain;
    if (ending == "RTF"_L1)
        return TextKind::Rich;
    return ending == "HTM"_L1 || ending == "HTML"_L1 ? TextKind::Page : TextKind::Other;
}

LoadedText loadText(const QString &path, const PassStep &step)
{
    return decodeLoadedText(ReadWholeFile(path), textKindOf(path), step);
}

LoadedText decodeLoadedText(const QByteArray &bytes, TextKind kind, const PassStep &step)
{
    if (isRichText(bytes))
        return {richTextToPlain(bytes, step), {}, {}};
    if (kind == TextKind::Page) {
        const PageText page = HTML2Text(decodePage(bytes), step);
        return {page.text, page.title, page.complaint};
    }
    return {decodeText(bytes), {}, {}};
}

QString stemListOfDictionary(const QString &path)
{
    return QString(path)
        .replace(u"\\facit"_s, u"\\text"_s, Qt::CaseInsensitive)
        .replace(u".lex"_s, u".txt"_s, Qt::CaseInsensitive);
}
