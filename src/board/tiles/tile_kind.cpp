// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "board/tiles/tile_kind.h"

#include "platform/text.h"

const TileKind *kindOfWord(const QString &sessionWord)
{
    for (const TileKind &kind : tileKinds)
        if (equalsIgnoreCase(sessionWord, QString::fromUtf16(kind.sessionWord)))
            return &kind;
    return nullptr;
}
