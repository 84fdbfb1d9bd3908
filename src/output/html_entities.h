// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

/// What an entity's name, without "&" and ";", stands for; empty for an unknown one. The case of the first
/// letter chooses between a capital and a small letter, the case of the others does not matter. A number is
/// the character with that code (up to 255 in Windows-1252, as in all files of the program).
QString HTMLSpecChar2ASCII(const QString &name);

/// The last sweep over a text: what was escaped twice, or was no entity for the pass, is replaced as far as
/// it is known.
QString replaceLeftEntities(const QString &text);
