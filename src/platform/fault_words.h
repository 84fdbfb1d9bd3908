// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

class RuntimeError;

/// Why a file or a page did not come out, as a sentence for the user; the error itself goes to the log.
QString faultWords(const RuntimeError &error);
