// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "output/rich_text.h"

#include "output/rich_text_words.h"
#include "platform/windows1252.h"

#include <QStringDecoder>

#include <algorithm>
#include <optional>
#include <vector>

using namespace Qt::StringLiterals;

namespace {

constexpr int windowsPage = 1252;

/// Reads a document byte by byte. Groups stand on a stack of its own, so that their depth costs no call.
class RichTextReader
{
public:
    RichTextReader(const QByteArray &bytes, QString &out)
        : bytes_(bytes)
        , out_(out)
    {
        out_.reserve(bytes.size() / 2);
    }

    void run(const PassStep &step);

private:
    /// What a group keeps for itself.
    struct Group
    {
        bool skipped = false; ///< a destination that is no text
        bool hidden = false;
        quint16 fallbacks = 1; ///< characters that stand behind a \u for readers that do not know it
    };
    struct Word
    {
        QByteArrayView name;
        std::optional<int> number;
    };

    void openGroup();
    void closeGroup();
    void control();
    Word readWord();
    void act(const Word &word);
    void unicode(int number);
    void byte(char value);
    void character(QChar value);
    void endBytes();
    bool isShown() const { return !group_.skipped && !group_.hidden; }
    /// True if what comes next is one of the fallbacks of a \u, and counts as read.
    bool isFallback();
    void setPage(int page);

    const QByteArray &bytes_;
    QString &out_;
    qsizetype at_ = 0;
    Group group_;
    std::vector<Group> outer_;
    int fallbacksLeft_ = 0;
    QByteArray pending_;                 ///< bytes of the document's page that are not decoded yet
    std::optional<QStringDecoder> page_; ///< none: Windows-1252
};

void RichTextReader::run(const PassStep &step)
{
    qsizetype next = passStride;
    do {
        const char c = bytes_[at_];
        if (c == '{')
            openGroup();
        else if (c == '}')
            closeGroup();
        else if (c == '\\')
            control();
        else {
            ++at_;
            if (static_cast<unsigned char>(c) >= ' ' && !isFallback())
                byte(c);
        }
        if (at_ >= next) {
            next = at_ - at_ % passStride;
            if (!passGoesOn(step, next))
                break;
            next += passStride;
        }
    } while (at_ < bytes_.size() && !outer_.empty());
    endBytes();
}

void RichTextReader::openGroup()
{
    ++at_;
    fallbacksLeft_ = 0;
    outer_.push_back(group_);
}

void RichTextReader::closeGroup()
{
    ++at_;
    fallbacksLeft_ = 0;
    group_ = outer_.back();
    outer_.pop_back();
}

void RichTextReader::control()
{
    const char next = at_ + 1 < bytes_.size() ? bytes_[at_ + 1] : '\0';
    if (rich_text::isLetter(next)) {
        const Word word = readWord();
        if (word.name == "bin" || !isFallback()) // what \bin announces is never looked at
            act(word);
        return;
    }
    at_ = std::min(at_ + 2, bytes_.size());
    if (next == '\'') {
        const int high = at_ < bytes_.size() ? rich_text::hexDigit(bytes_[at_]) : -1;
        const int low = at_ + 1 < bytes_.size() ? rich_text::hexDigit(bytes_[at_ + 1]) : -1;
        if (high < 0 || low < 0)
            return;
        at_ += 2;
        if (!isFallback())
            byte(static_cast<char>(high * 16 + low));
        return;
    }
    if (next == '*') {
        group_.skipped = true;
        return;
    }
    if (isFallback())
        return;
    if (next == '~')
        character(QChar::Nbsp);
    else if (next == '_')
        character(u'-');
    else if (next == '\n' || next == '\r')
        character(u'\n');
    else if (next == '\t')
        character(u'\t');
    else if (next == '\\' || next == '{' || next == '}')
        byte(next);
}

RichTextReader::Word RichTextReader::readWord()
{
    const qsizetype from = ++at_;
    while (at_ < bytes_.size() && rich_text::isLetter(bytes_[at_]))
        ++at_;
    Word word{QByteArrayView(bytes_).sliced(from, at_ - from), {}};
    const bool negative =
        at_ + 1 < bytes_.size() && bytes_[at_] == '-' && rich_text::isDigit(bytes_[at_ + 1]);
    if (negative)
        ++at_;
    int number = 0;
    const qsizetype digits = at_;
    for (; at_ < bytes_.size() && rich_text::isDigit(bytes_[at_]); ++at_)
        number = std::min(number * 10 + (bytes_[at_] - '0'), rich_text::largestNumber);
    if (at_ > digits)
        word.number = negative ? -number : number;
    if (at_ < bytes_.size() && bytes_[at_] == ' ')
        ++at_; // a blank ends the word and is part of it
    return word;
}

void RichTextReader::act(const Word &word)
{
    using Effect = rich_text::WordRow::Effect;
    const rich_text::WordRow *row = rich_text::find(word.name);
    if (row == nullptr)
        return;
    switch (row->effect) {
    case Effect::Character:
        character(row->character);
        break;
    case Effect::Skip:
        group_.skipped = true;
        break;
    case Effect::Unicode:
        unicode(word.number.value_or(0));
        break;
    case Effect::Fallbacks:
        group_.fallbacks = static_cast<quint16>(std::clamp(word.number.value_or(1), 0, 255));
        break;
    case Effect::Binary:
        at_ += std::clamp<qsizetype>(word.number.value_or(0), 0, bytes_.size() - at_);
        break;
    case Effect::Hidden:
        group_.hidden = word.number.value_or(1) != 0;
        break;
    case Effect::Plain:
        group_.hidden = false;
        break;
    case Effect::Page:
        setPage(word.number.value_or(windowsPage));
        break;
    }
}

void RichTextReader::unicode(int number)
{
    fallbacksLeft_ = group_.fallbacks;
    character(QChar(static_cast<char16_t>(number))); // a negative number is one above 32,767
}

bool RichTextReader::isFallback()
{
    if (fallbacksLeft_ == 0)
        return false;
    --fallbacksLeft_;
    return true;
}

/// An unknown page is read as Windows-1252.
void RichTextReader::setPage(int page)
{
    endBytes();
    page_.reset();
    if (page == windowsPage)
        return;
    const QByteArray number = QByteArray::number(page);
    for (const char *family : {"windows-", "IBM"}) {
        page_.emplace((family + number).constData());
        if (page_->isValid())
            return;
    }
    page_.reset();
}

/// Bytes are decoded together: on some pages two of them make a character.
void RichTextReader::byte(char value)
{
    if (isShown())
        pending_ += value;
}

void RichTextReader::character(QChar value)
{
    endBytes();
    const bool shown = value >= u' ' || value == u'\t' || value == u'\n';
    if (shown && isShown())
        out_ += value;
}

void RichTextReader::endBytes()
{
    if (pending_.isEmpty())
        return;
    const QString decoded = page_ ? QString(page_->decode(pending_)) : windows1252::decode(pending_);
    for (const QChar letter : decoded)
        if (letter >= u' ')
            out_ += letter;
    pending_.clear();
}

} // namespace

bool isRichText(const QByteArray &bytes) { return bytes.startsWith("{\\rtf"); }

QString richTextToPlain(const QByteArray &bytes, const PassStep &step)
{
    QString text;
    if (!isRichText(bytes))
        return text;
    RichTextReader(bytes, text).run(step);
    if (text.endsWith(u'\n')) // ends the last paragraph and begins none
        text.chop(1);
    return text;
}
