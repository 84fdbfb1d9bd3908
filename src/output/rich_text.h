// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/long_pass.h"

#include <QByteArray>
#include <QString>

/// True if the bytes begin as a document in Rich Text Format does.
bool isRichText(const QByteArray &bytes);

/// The letters of a document in Rich Text Format: text, paragraphs and lines ("\n"), tabs, special
/// characters. Fonts, colours, pictures, objects, fields' instructions, notes and whatever else has a
/// destination of its own are left out. Never fails: a broken document gives what can be read of it. If
/// `step` ends the pass, what has been read until then comes back.
QString richTextToPlain(const QByteArray &bytes, const PassStep &step = {});
