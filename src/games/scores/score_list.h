// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QString>

#include <array>
#include <optional>

/// The ten best of one game, place 1 first. As a text it is ten lines "name:score", each ended by CR LF.
class ScoreList
{
public:
    static constexpr int places = 10;
    /// Letters of a name that are kept.
    static constexpr int longestName = 40;

    /// What a name has to be to come back as it was written: one line of at most `longestName` letters
    /// without ":", which ends a name in the file. An empty one becomes "Sieger".
    static QString nameFor(const QString &typed);

    /// "Wortel" on every place, with 10 points on the first and 1 on the last.
    static ScoreList initial();
    /// The list in the bytes of a file; nothing if they hold fewer than ten lines. A name ends at the first
    /// ":" of its line; without one it is empty, and the whole line is the score. What is no number is 0.
    static std::optional<ScoreList> parse(const QByteArray &bytes);
    QByteArray bytes() const;

    /// The first place, 1 to 10, whose score is not above `score`: a tie ranks the new score above the old
    /// one. 0 if there is none.
    int placeOf(double score) const;
    /// Puts an entry on its place and moves those behind it one place back; the last one is lost. Returns the
    /// place, or 0 if there is none for it.
    int insert(const QString &name, double score);

    /// Names and scores by place, 1 to 10.
    QString name(int place) const { return Names_[index(place)]; }
    double score(int place) const { return Scores_[index(place)]; }

private:
    static std::size_t index(int place) { return static_cast<std::size_t>(place - 1); }

    std::array<QString, places> Names_;
    std::array<double, places> Scores_{};
};

/// A score as it is shown and written.
QString scoreText(double score);
