// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

/// What the system needs to know of session files, so that a double click opens one.
namespace file_type {

inline const QString mimeType = QStringLiteral("application/x-wortel-session");

} // namespace file_type
