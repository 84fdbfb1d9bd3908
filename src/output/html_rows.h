// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "output/html_tokens.h"

#include <deque>

/// Measures the rows of tables ahead, from a row's tag to the next "/TR" or "/TABLE". Rows that are not
/// closed share one walk, so that all walks together pass each place of the page once.
class HtmlRows
{
public:
    /// Whether the row that begins where `tokens` stands has a length below `longRow`.
    bool isShort(const HtmlTokens &tokens);

private:
    struct Row
    {
        qsizetype start;
        qsizetype before; ///< length of the walk in front of it
        bool isShort;
    };

    void walk(HtmlTokens tokens);

    std::deque<Row> rows_; ///< measured and not yet asked for
};
