// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "board/tiles/tile_kind.h"

const TileKind *kindOfWord(const QString &styleWord)
{
    for (const TileKind &kind : tileKinds)
        if (styleWord == QStringView(kind.styleWord))
            return &kind;
    return nullptr;
}
