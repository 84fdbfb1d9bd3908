// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QString>

/// The bytes of a web page as text, in normal form C: by the charset that the page names itself (a mark, an
/// XML declaration, a meta element near its start), else as UTF-8 where they are valid UTF-8, else as
/// Windows-1252. A name that nobody knows counts as none.
QString decodePage(const QByteArray &bytes);
