// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>
#include <QString>
#include <QStringList>

class Work;
class WordStore;

/// One search of the word chooser through the dictionary: words that hold a stem, begin with a prefix or end
/// with a suffix are appended to the words found, each only once. It is made for one search and takes its
/// picture of the dictionary then, so that no word is folded twice.
class WordSearch : public QObject
{
    Q_OBJECT

public:
    WordSearch(const WordStore &LexiconList, WordStore &found);

    /// Whether the word has been found already, case ignored. Constant time. The empty word never is.
    bool Duplicate(const QString &word) const;

    /// Each stem in its order, until the work is cancelled: that takes effect behind a stem.
    void findStems(const QStringList &stems, Work &work);
    void AddSelWortelFromLex(const QString &stem, Work &work);
    void AddSelPrefixFromLex(const QStringList &marked, Work &work);
    /// With `adjectives` or `nouns` (or one after the other) their endings are searched instead of those
    /// marked.
    void AddSelSuffixFromLex(const QStringList &marked, bool adjectives, bool nouns, Work &work);

signals:
    /// The size of what is to be done, before it begins.
    void begins(int steps);
    void progressed(int step);
    void stemBegins(const QString &stem);
    /// A word was appended; `count` is that of all words found.
    void found(int count);

private:
    void append(const QString &word);
    template <typename Test> void pass(const Test &test, Work &work);

    const QStringList words_;
    QStringList folded_; ///< the same in upper case
    WordStore &found_;
};
