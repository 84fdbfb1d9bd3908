// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/text_masks.h"

namespace {

template <typename Admits> QString keepOnly(const QString &text, int *caret, Admits admits)
{
    QString kept;
    kept.reserve(text.size());
    int droppedBefore = 0;
    for (qsizetype at = 0; at < text.size(); ++at) {
        if (admits(text.at(at), kept))
            kept += text.at(at);
        else if (caret && at < *caret)
            ++droppedBefore;
    }
    if (caret)
        *caret -= droppedBefore;
    return kept;
}

bool isPlainDigit(QChar character) { return character >= u'0' && character <= u'9'; }

} // namespace

QString Integer_Pos(const QString &text, int *caret)
{
    return keepOnly(text, caret, [](QChar character, const QString &) { return isPlainDigit(character); });
}

QString Integer_All(const QString &text, int *caret)
{
    return keepOnly(text, caret, [](QChar character, const QString &kept) {
        return isPlainDigit(character) || (character == u'-' && kept.isEmpty());
    });
}
