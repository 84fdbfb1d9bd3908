// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QLatin1StringView>
#include <QStringView>

/// Cuts a page into what a reader of it has to know: runs of text, blanks in front of them, line ends,
/// entities and tags. Comments and scripts are passed over, other control characters too. A copy looks ahead
/// from where it was made.
class HtmlTokens
{
public:
    struct Token
    {
        enum Kind { Text, Blank, LineEnd, Entity, Tag, Title, End };
        Kind kind = End;
        QStringView view; ///< the run (no blank is its first), the name of entity or tag, the title
    };

    explicit HtmlTokens(QStringView page)
        : page_(page)
    {}

    /// The next token. A tag's name is without what stands behind a blank; it begins with "/" if it closes.
    Token next();
    /// Where the next token begins.
    qsizetype position() const { return at_; }

private:
    Token run();
    Token entity();
    bool readTag(QStringView &name);
    void passComment();
    void passScript();

    QStringView page_;
    qsizetype at_ = 0;
};

/// True if a tag's name is `capitals`, case ignored.
inline bool isTag(QStringView name, QLatin1StringView capitals)
{
    return name.size() == capitals.size() && name.compare(capitals, Qt::CaseInsensitive) == 0;
}
