// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "output/html_tokens.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype entityReach = 7; ///< characters behind an "&" in which its ";" is looked for

bool isControl(QChar character) { return character < u' '; }

/// The place behind the mark that opens a comment, with or without blanks in it; 0 if there is none.
qsizetype behindCommentMark(QStringView tag)
{
    qsizetype at = 0;
    for (const char16_t wanted : {u'!', u'-', u'-'}) {
        while (at < tag.size() && tag[at] == u' ')
            ++at;
        if (at == tag.size() || tag[at++] != wanted)
            return 0;
    }
    return at;
}

} // namespace

HtmlTokens::Token HtmlTokens::next()
{
    while (at_ < page_.size()) {
        const QChar character = page_[at_];
        if (character == u'<') {
            QStringView name;
            if (!readTag(name))
                continue;
            if (!isTag(name, "TITLE"_L1))
                return {Token::Tag, name};
            const qsizetype end = page_.indexOf(u'<', at_);
            const qsizetype from = std::exchange(at_, end < 0 ? page_.size() : end);
            return {Token::Title, page_.sliced(from, at_ - from)};
        }
        if (character == u'&')
            return entity();
        if (character > u' ')
            return run();
        ++at_;
        if (character == u' ')
            return {Token::Blank, page_.sliced(at_ - 1, 1)};
        if (character == u'\r' || character == u'\n')
            return {Token::LineEnd, {}};
    }
    return {};
}

HtmlTokens::Token HtmlTokens::run()
{
    const auto endsRun = [](QChar c) { return isControl(c) || c == u'<' || c == u'&'; };
    const auto *const end = std::find_if(page_.begin() + at_, page_.end(), endsRun);
    const qsizetype from = std::exchange(at_, end - page_.begin());
    return {Token::Text, page_.sliced(from, at_ - from)};
}

HtmlTokens::Token HtmlTokens::entity()
{
    const qsizetype from = ++at_;
    const qsizetype reach = std::min(page_.size(), from + entityReach);
    for (qsizetype i = from; i < reach && page_[i] != u'&'; ++i) {
        if (page_[i] != u';')
            continue;
        at_ = i + 1;
        return {Token::Entity, page_.sliced(from, i - from)};
    }
    return {Token::Text, page_.sliced(from - 1, 1)};
}

/// Reads the tag that opens here. False if there is nothing to be told of it: it was a comment, a script, or
/// ends nowhere.
bool HtmlTokens::readTag(QStringView &name)
{
    qsizetype from = at_ + 1;
    while (from < page_.size() && isControl(page_[from]))
        ++from;
    if (const qsizetype inside = behindCommentMark(page_.sliced(from)); inside > 0) {
        at_ = from + inside;
        passComment();
        return false;
    }
    const auto *const end =
        std::find_if(page_.begin() + from, page_.end(), [](QChar c) { return c == u'>' || c == u'<'; });
    at_ = end - page_.begin();
    if (at_ == page_.size())
        return false;
    const QStringView tag = page_.sliced(from, at_ - from);
    if (page_[at_] == u'>') // else the next tag opens within this one
        ++at_;
    const auto *const blank = std::find_if(tag.begin(), tag.end(), [](QChar c) { return c <= u' '; });
    name = tag.first(blank - tag.begin());
    if (name.size() > 1 && name.endsWith(u'/')) // as XHTML closes a tag that has no end of its own
        name.chop(1);
    if (!isTag(name, "SCRIPT"_L1))
        return true;
    passScript();
    return false;
}

/// Ends at a ">" whose text before it, blanks removed, ends in "--"; those that opened the comment count.
void HtmlTokens::passComment()
{
    for (int dashes = 2; at_ < page_.size(); ++at_) {
        const QChar character = page_[at_];
        if (character == u'>' && dashes >= 2) {
            ++at_;
            return;
        }
        if (character == u'-')
            dashes = std::min(dashes + 1, 2);
        else if (character != u' ')
            dashes = 0;
    }
}

/// A script knows no tag but its own end.
void HtmlTokens::passScript()
{
    for (;;) {
        const qsizetype open = page_.indexOf(u'<', at_);
        if (open < 0) {
            at_ = page_.size();
            return;
        }
        at_ = open + 1;
        const QStringView name = page_.sliced(at_, std::min<qsizetype>(7, page_.size() - at_));
        if (!isTag(name, "/SCRIPT"_L1))
            continue;
        const qsizetype close = page_.indexOf(u'>', at_);
        at_ = close < 0 ? page_.size() : close + 1;
        return;
    }
}
