// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "games/kernling/text_words.h"

#include "board/tiles/random_array.h"
#include "games/kernling/stem_verdict.h"
#include "generators/nonsense_tables.h"
#include "platform/case_blind_index.h"
#include "platform/rnd.h"
#include "platform/text.h"
#include "platform/word_store.h"

#include <QStringMatcher>

#include <algorithm>
#include <array>
#include <numeric>

using namespace Qt::StringLiterals;

namespace kernling {

namespace {

constexpr int drawsOfARound = 500;

enum class Letter : std::uint8_t { None, Word, Digit };

constexpr std::array<Letter, 256> makeLetters()
{
    std::array<Letter, 256> letters{};
    for (char16_t c = u'A'; c <= u'Z'; ++c)
        letters[c] = letters[c + u'a' - u'A'] = Letter::Word;
    for (const char16_t c : u"ßüÜåàÅäÄöÖáóñ")
        letters[c] = Letter::Word;
    letters[0] = Letter::None; // the end of the row above
    for (char16_t c = u'0'; c <= u'9'; ++c)
        letters[c] = Letter::Digit;
    return letters;
}

constexpr std::array<Letter, 256> letterTable = makeLetters();

Letter letterOf(QChar character)
{
    return character.unicode() < letterTable.size() ? letterTable[character.unicode()] : Letter::None;
}

/// Picks the words out of a text that is read piece by piece.
class Collector
{
public:
    Collector(QStringView text, int wordLength)
        : text_(text)
        , wordLength_(wordLength)
    {}

    void read(qsizetype from, qsizetype to)
    {
        for (qsizetype i = from; i < to;) {
            if (start_ < 0) {
                while (i < to && letterOf(text_[i]) != Letter::Word)
                    ++i;
                start_ = i < to ? i : -1;
            } else {
                Letter kind = Letter::Word;
                for (; i < to && (kind = letterOf(text_[i])) != Letter::None; ++i)
                    behindLast_ = kind == Letter::Word ? i + 1 : behindLast_;
                if (kind == Letter::None)
                    take();
            }
        }
    }

    QStringList finish()
    {
        if (start_ >= 0)
            take();
        return words_;
    }

private:
    void take()
    {
        const qsizetype start = std::exchange(start_, -1);
        const QStringView word = text_.sliced(start, behindLast_ - start);
        if ((wordLength_ != 0 && word.size() != wordLength_) || index_.find(words_, word) >= 0)
            return;
        words_.append(word.toString());
        index_.extend(words_);
    }

    QStringView text_;
    int wordLength_;
    QStringList words_;
    CaseBlindIndex index_;
    qsizetype start_ = -1;     ///< of the word that is being read
    qsizetype behindLast_ = 0; ///< behind its last letter: digits at its end are no part of it
};

bool isInWord(QStringView text, qsizetype at)
{
    return at >= 0 && at < text.size() && text[at].isLetterOrNumber();
}

int moved(WordStore &list, int row, int by)
{
    const int other = row + by;
    if (row < 0 || row >= list.count() || other < 0 || other >= list.count())
        return row;
    const QString item = list.at(row);
    list.replace(row, list.at(other));
    list.replace(other, item);
    return other;
}

} // namespace

std::optional<QStringList> UniqueWords(const QString &text, int wordLength, const PassStep &step)
{
    Collector words(text, wordLength);
    for (qsizetype from = 0; from < text.size(); from += passStride) {
        if (!passGoesOn(step, from))
            return std::nullopt;
        words.read(from, std::min(text.size(), from + passStride));
    }
    return words.finish();
}

std::optional<QStringList> GetWordsFromText(const QString &text, int wordLength, const PassStep &step)
{
    return UniqueWords(CleanSelection(text), wordLength, step);
}

QString asLines(const QStringList &words)
{
    QString lines;
    for (const QString &word : words)
        lines += u'\r' + word;
    return lines;
}

std::vector<qsizetype> wholeWordHits(const QString &text, const QString &word, const PassStep &step)
{
    std::vector<qsizetype> hits;
    if (word.isEmpty())
        return hits;
    const QStringMatcher matcher(word, Qt::CaseInsensitive);
    qsizetype from = 0; // where the next hit may begin
    for (qsizetype piece = 0; piece < text.size(); piece += hitStride) {
        if (step && !step(piece))
            break;
        // A word that begins in the piece may end behind it.
        const qsizetype end = std::min(text.size(), piece + hitStride + word.size() - 1);
        const QStringView seen = QStringView(text).first(end);
        for (qsizetype at; (at = matcher.indexIn(seen, from)) >= 0;) {
            const bool whole = !isInWord(text, at - 1) && !isInWord(text, at + word.size());
            if (whole)
                hits.push_back(at);
            from = at + (whole ? word.size() : 1);
        }
        from = std::max(from, piece + hitStride);
    }
    return hits;
}

void ShuffleAllWords(WordStore &list, Rnd &rnd)
{
    std::vector<int> rows(static_cast<std::size_t>(list.count()));
    std::iota(rows.begin(), rows.end(), 0);
    std::vector<int> order;
    RandomArray(rows, order, rnd);
    QStringList shuffled;
    shuffled.reserve(list.count());
    for (const int row : order)
        shuffled.append(list.at(row));
    list.clear();
    list.addAll(shuffled);
}

int list_move_up(WordStore &list, int row) { return moved(list, row, -1); }
int list_move_down(WordStore &list, int row) { return moved(list, row, 1); }

std::vector<int> randomRows(int count, int wanted, Rnd &rnd)
{
    std::vector<bool> taken(static_cast<std::size_t>(std::max(0, count)));
    std::vector<int> rows;
    for (int round = 0; round < wanted && static_cast<int>(rows.size()) < count; ++round) {
        for (int draw = 0; draw < drawsOfARound; ++draw) {
            rnd.Randomize();
            const int row = rnd.absInt(count);
            if (taken[static_cast<std::size_t>(row)])
                continue;
            taken[static_cast<std::size_t>(row)] = true;
            rows.push_back(row);
            break;
        }
    }
    std::sort(rows.begin(), rows.end());
    return rows;
}

bool suitsScrambles(const QString &listName)
{
    const QString capitals = UCase(listName);
    return capitals != "IG ODER LICH"_L1 && capitals != QStringView(nonsense::nounListName);
}

} // namespace kernling
