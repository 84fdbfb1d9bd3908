// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QSet>
#include <QString>
#include <QStringList>

#include <vector>

namespace langdata {

/// Takes written forms apart into prefixes, a stem and an ending, the way the tiles put them
/// together: up to three prefixes, one stem, then derivations and an inflection.
class Segmenter
{
public:
    struct Reading
    {
        QString stem;
        bool oneOfEach; ///< at most one prefix tile and at most one suffix tile
    };

    Segmenter(const QStringList &prefixes, const QSet<QString> &stems, const QStringList &suffixes);

    const QStringList &prefixes() const { return prefixes_; }

    /// All readings of a word in lower case; empty if the tiles cannot form it.
    std::vector<Reading> readings(const QString &lower) const;

    /// Whether `text` is a run of derivations and an inflection; the empty text is one.
    bool isEnding(QStringView text) const;

private:
    void readAt(const QString &lower, qsizetype at, int prefixes, std::vector<Reading> &found) const;

    QStringList prefixes_;
    QSet<QString> stems_;
    QSet<QString> suffixes_;
    qsizetype longestStem_ = 0;
};

} // namespace langdata
