// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "output/html_to_text.h"

#include "output/html_entities.h"
#include "output/html_rows.h"
#include "output/html_tokens.h"

#include <algorithm>
#include <limits>
#include <new>
#include <vector>

using namespace Qt::StringLiterals;

namespace {

constexpr QChar bullet(u'•');

bool endsLine(const QString &text) { return text.isEmpty() || text.endsWith(u'\n'); }

/// A title on one line, with its entities.
QString titleOf(QStringView text)
{
    using Token = HtmlTokens::Token;
    QString title;
    HtmlTokens tokens(text);
    for (Token token = tokens.next(); token.kind != Token::End; token = tokens.next()) {
        if (token.kind == Token::Entity)
            title += HTMLSpecChar2ASCII(token.view.toString());
        else if (token.kind == Token::LineEnd)
            title += u' ';
        else
            title += token.view;
    }
    return title.simplified();
}

/// One pass over a page. What it has written stands in `out` at any moment.
class PagePass
{
public:
    PagePass(const QString &page, PageText &result)
        : tokens_(page)
        , out_(result.text)
        , title_(result.title)
    {
        out_.reserve(page.size());
    }

    void run(const PassStep &step);

private:
    using Token = HtmlTokens::Token;
    using Handler = void (PagePass::*)();
    struct TagRow
    {
        QLatin1StringView name;
        Handler handler;
    };
    static const TagRow tags[];

    struct List
    {
        bool numbered;
        int counter;
    };
    /// What is still to be written before the next text.
    enum class Owed { Nothing, Blank, Line };

    void body() { inBody_ = true; }
    void paragraph();
    void lineBreak() { write(u"\n"_s); }
    void option() { write(u"\n\t"_s); }
    void openOrdered() { openList(true); }
    void openUnordered() { openList(false); }
    void openList(bool numbered);
    void closeList();
    void item();
    void openTable();
    void closeTable();
    void openRow();
    void closeRow();
    void openCell();

    bool passGoesOnTo(qsizetype position, const PassStep &step);
    bool takeRun(const Token &token, const PassStep &step);
    void take(const Token &token);
    void tag(QStringView name);
    void text(QStringView run);
    void blank();
    void write(QStringView what);
    void pay();
    void leaveCell();

    HtmlTokens tokens_;
    qsizetype nextStep_ = passStride;
    HtmlRows ahead_;
    QString &out_;
    QString &title_;
    bool inBody_ = false;
    std::vector<List> lists_;
    bool inRow_ = false;
    bool rowIsShort_ = false;
    bool rowHasCells_ = false;
    bool inCell_ = false;
    bool cellHasText_ = false;
    bool betweenCells_ = false; ///< blanks here are no text
    Owed owed_ = Owed::Nothing;
};

const PagePass::TagRow PagePass::tags[] = {
    {"P"_L1, &PagePass::paragraph},      {"BR"_L1, &PagePass::lineBreak},
    {"TD"_L1, &PagePass::openCell},      {"TH"_L1, &PagePass::openCell},
    {"/TD"_L1, &PagePass::leaveCell},    {"/TH"_L1, &PagePass::leaveCell},
    {"TR"_L1, &PagePass::openRow},       {"/TR"_L1, &PagePass::closeRow},
    {"TABLE"_L1, &PagePass::openTable},  {"/TABLE"_L1, &PagePass::closeTable},
    {"LI"_L1, &PagePass::item},          {"OL"_L1, &PagePass::openOrdered},
    {"UL"_L1, &PagePass::openUnordered}, {"/OL"_L1, &PagePass::closeList},
    {"/UL"_L1, &PagePass::closeList},    {"OPTION"_L1, &PagePass::option},
    {"BODY"_L1, &PagePass::body},
};

void PagePass::run(const PassStep &step)
{
    for (Token token = tokens_.next(); token.kind != Token::End; token = tokens_.next()) {
        if (token.kind == Token::Text) {
            if (!takeRun(token, step))
                return;
            continue;
        }
        take(token);
        if (!passGoesOnTo(tokens_.position(), step))
            return;
    }
}

bool PagePass::passGoesOnTo(qsizetype position, const PassStep &step)
{
    if (position < nextStep_)
        return true;
    nextStep_ = position - position % passStride;
    const bool goesOn = passGoesOn(step, nextStep_);
    nextStep_ += passStride;
    return goesOn;
}

/// A run is written piece by piece, so that the pass can be ended within a long one.
bool PagePass::takeRun(const Token &token, const PassStep &step)
{
    const qsizetype start = tokens_.position() - token.view.size();
    for (qsizetype from = 0; from < token.view.size();) {
        const qsizetype piece = std::clamp<qsizetype>(nextStep_ - start - from, 1, token.view.size() - from);
        text(token.view.sliced(from, piece));
        from += piece;
        if (!passGoesOnTo(start + from, step))
            return false;
    }
    return true;
}

void PagePass::take(const Token &token)
{
    switch (token.kind) {
    case Token::Blank:
        blank();
        break;
    case Token::LineEnd:
        if (owed_ == Owed::Nothing && !out_.isEmpty() && out_.back() > u' ') // only behind text
            blank();
        break;
    case Token::Entity:
        text(HTMLSpecChar2ASCII(token.view.toString()));
        break;
    case Token::Tag:
        tag(token.view);
        break;
    case Token::Title:
        if (title_.isEmpty())
            title_ = titleOf(token.view);
        break;
    case Token::Text: // piece by piece
    case Token::End:
        break;
    }
}

void PagePass::tag(QStringView name)
{
    for (const TagRow &row : tags) {
        if (isTag(name, row.name)) {
            (this->*row.handler)();
            return;
        }
    }
}

// What is written
// ------------------------------------------------------------------------------------------------------------

void PagePass::text(QStringView run)
{
    if (run.isEmpty())
        return;
    pay();
    write(run);
    cellHasText_ = true;
    betweenCells_ = false;
}

void PagePass::blank()
{
    if (betweenCells_)
        return;
    pay();
    write(u" "_s);
}

void PagePass::write(QStringView what)
{
    if (inBody_)
        out_ += what;
}

void PagePass::pay()
{
    if (owed_ == Owed::Nothing)
        return;
    const Owed owed = std::exchange(owed_, Owed::Nothing);
    if (owed == Owed::Line && !endsLine(out_))
        write(u"\n"_s);
    else if (owed == Owed::Blank && !out_.isEmpty() && out_.back() > u' ')
        write(u" "_s);
}

// Paragraphs and lists
// ------------------------------------------------------------------------------------------------------------

/// Within a cell the paragraphs stay on the cell's line.
void PagePass::paragraph()
{
    if (inCell_ && cellHasText_)
        owed_ = Owed::Blank;
    else
        write(u"\n\n"_s);
}

void PagePass::openList(bool numbered)
{
    write(u"\n\n"_s);
    lists_.push_back({numbered, 1});
}

void PagePass::closeList()
{
    if (lists_.size() < 2)
        write(u"\n\n"_s);
    if (!lists_.empty())
        lists_.pop_back();
}

void PagePass::item()
{
    lineBreak();
    if (lists_.empty())
        return;
    List &list = lists_.back();
    if (!list.numbered) {
        write(u" "_s + bullet);
        return;
    }
    write(QString::number(list.counter) + u". "_s);
    if (list.counter < std::numeric_limits<std::int16_t>::max())
        ++list.counter;
}

// Tables
// ------------------------------------------------------------------------------------------------------------

void PagePass::openTable()
{
    leaveCell();
    inRow_ = false;
    lineBreak();
}

void PagePass::closeTable()
{
    leaveCell();
    inRow_ = false;
    betweenCells_ = false;
    owed_ = Owed::Line;
}

void PagePass::openRow()
{
    leaveCell();
    owed_ = Owed::Line;
    inRow_ = true;
    rowIsShort_ = ahead_.isShort(tokens_);
    rowHasCells_ = false;
}

void PagePass::closeRow()
{
    leaveCell();
    inRow_ = false;
    owed_ = Owed::Line;
}

void PagePass::openCell()
{
    if (owed_ == Owed::Blank)
        owed_ = Owed::Nothing;
    if (!inRow_) {
        owed_ = Owed::Line;
    } else if (rowHasCells_) {
        pay();
        write(rowIsShort_ ? u"   "_s : u"\n"_s);
    }
    rowHasCells_ = true;
    inCell_ = true;
    cellHasText_ = false;
    betweenCells_ = false;
}

void PagePass::leaveCell()
{
    if (owed_ == Owed::Blank)
        owed_ = Owed::Nothing;
    inCell_ = false;
    betweenCells_ = true;
}

} // namespace

PageText HTML2Text(const QString &page, const PassStep &step)
{
    PageText result;
    try {
        PagePass(page, result).run(step);
        result.text = replaceLeftEntities(result.text);
    } catch (const std::bad_alloc &) {
        result.complaint = u"Error 7 (Out of memory)\n\nSub: HTML2Text"_s;
    }
    return result;
}
