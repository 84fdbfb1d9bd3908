// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "output/rich_text.h"

#include "platform/windows1252.h"

bool isRichText(const QByteArray &bytes) { return bytes.startsWith("{\\rtf"); }

QString richTextToPlain(const QByteArray &bytes, const PassStep &) { return windows1252::decode(bytes); }
