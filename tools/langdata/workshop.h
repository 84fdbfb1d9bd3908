// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

#include <functional>

namespace langdata {

class Sources;

using WordCheck = std::function<bool(const QString &form)>;

/// Makes the dictionary of every stem list in `dataFolder`/text and the report in `toolFolder`, by the word
/// rules in `toolFolder`. All of it is made before the first file is written, so that a fault in the input,
/// told by InputError, leaves the old files alone. `accepts` is the spelling library's word check.
void makeDictionaries(const Sources &sources, const QString &toolFolder, const QString &dataFolder,
                      const WordCheck &accepts);

} // namespace langdata
