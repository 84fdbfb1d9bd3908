// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "fuzz/targets.h"
#include "games/kernling/text_words.h"
#include "output/text_loading.h"

#include <algorithm>

using namespace Qt::StringLiterals;

/// The bytes as a file of each kind.
void fuzz::text(const QByteArray &bytes)
{
    for (const TextKind kind : {TextKind::Dictionary, TextKind::Plain, TextKind::Rich, TextKind::Page}) {
        const QString text = decodeLoadedText(bytes, kind).text;
        promise(!text.contains(u'\r') && !text.contains(QChar::Null),
                "line ends are plain and NULs are gone");
        for (const QString &line : text.split(u'\n'))
            promise(line.size() <= longestLine, "no line is too long");
        if (!text.startsWith("{\\rtf"_L1))
            promise(decodeLoadedText("\xEF\xBB\xBF" + text.toUtf8(), TextKind::Plain).text ==
                        QString::fromUtf8(text.toUtf8()).normalized(QString::NormalizationForm_C),
                    "a loaded text is loaded again as it is");
        const auto words = kernling::GetWordsFromText(text, 0);
        promise(words.has_value(), "nobody ended the pass");
        for (const QString &word : *words)
            promise(word.front().isLetter() && word.back().isLetter() && text.contains(word.front()),
                    "a word begins and ends with a letter of the text");
    }
}
