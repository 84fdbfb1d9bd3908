// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "output/html_to_text.h"

#include "platform/text_encoding.h"

PageText HTML2Text(const QString &page, const PassStep &step)
{
    PageText result;
    bool inTag = false;
    for (qsizetype i = 0; i < page.size() && passGoesOn(step, i); ++i) {
        const QChar character = page.at(i);
        if (character == u'<')
            inTag = true;
        else if (character == u'>')
            inTag = false;
        else if (!inTag)
            result.text += character;
    }
    return result;
}

QString HTMLSpecChar2ASCII(const QString &) { return {}; }

QString RemoveAllSpaces(const QString &text) { return QString(text).remove(u' '); }

QString decodePage(const QByteArray &bytes) { return decodeText(bytes); }
