// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "output/html_rows.h"

using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype longRow = 65; ///< characters of a row whose cells stand below one another

} // namespace

bool HtmlRows::isShort(const HtmlTokens &tokens)
{
    while (!rows_.empty() && rows_.front().start < tokens.position())
        rows_.pop_front();
    if (rows_.empty())
        walk(tokens);
    return rows_.front().isShort;
}

void HtmlRows::walk(HtmlTokens tokens)
{
    using Token = HtmlTokens::Token;
    rows_.push_back({tokens.position(), 0, true});
    qsizetype length = 0;
    qsizetype lastDivided = -1; // a nested table or a break makes its row long
    bool inCell = false;
    for (Token token = tokens.next(); token.kind != Token::End; token = tokens.next()) {
        if (token.kind == Token::Text) {
            length += token.view.size();
            inCell = true;
        } else if (token.kind == Token::Entity || (token.kind == Token::Blank && inCell)) {
            ++length;
        } else if (token.kind == Token::Tag) {
            const QStringView name = token.view;
            if (isTag(name, "/TR"_L1) || isTag(name, "/TABLE"_L1))
                break;
            if (isTag(name, "TR"_L1))
                rows_.push_back({tokens.position(), length, true});
            else if (isTag(name, "TABLE"_L1) || isTag(name, "P"_L1) || isTag(name, "BR"_L1))
                lastDivided = tokens.position();
            if (isTag(name, "TD"_L1) || isTag(name, "TH"_L1))
                inCell = true;
            else if (isTag(name, "TR"_L1) || isTag(name, "/TD"_L1) || isTag(name, "/TH"_L1))
                inCell = false;
        }
    }
    for (Row &row : rows_)
        row.isShort = lastDivided <= row.start && length - row.before < longRow;
}
