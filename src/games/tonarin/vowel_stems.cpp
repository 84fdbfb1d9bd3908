// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "games/tonarin/vowel_stems.h"

#include "platform/text.h"

#include <algorithm>

namespace vowel_stems {

const Row *find(const QString &word)
{
    const QString stem = LCase(word);
    const auto has = [&stem](const Row &row) {
        const auto stems = QStringView(row.stems).split(u' ');
        return std::find(stems.begin(), stems.end(), stem) != stems.end();
    };
    const auto row = std::find_if(std::begin(rows), std::end(rows), has);
    return row == std::end(rows) ? nullptr : row;
}

QString soundFile(const QString &appFolder, const QString &file)
{
    return appFolder + QStringLiteral("sounds kurz lang\\") + file + QStringLiteral(".wav");
}

} // namespace vowel_stems
