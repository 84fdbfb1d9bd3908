// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "games/scores/score_list.h"

#include <cstdint>
#include <functional>
#include <optional>

struct Ground;

/// The games with a list of the best in a file.
enum class ScoredGame : std::uint8_t { Klotar, Tonarin, Kernling };

/// The lists of the best. The three games differ only in their file and their texts, which stand in one
/// table, so each procedure serves them all.
class HighScores
{
public:
    explicit HighScores(const Ground &ground)
        : ground_(ground)
    {}

    /// A game is over: asks for the name if `score` (points) has a place, puts it where it belongs in what
    /// the file holds by then, and shows the list in any case. `count` is what the line with the result tells
    /// beside the points: right words, right vowels, wrong stems; none for Kernling without that option.
    void CheckForHighScore(ScoredGame game, double score, std::optional<int> count);
    /// Shows the list, with a line for the result if `score` is not 0.
    void DisplayHighScores(ScoredGame game, double score = 0, std::optional<int> count = {});
    /// After a question, the initial content.
    void ResetScores(ScoredGame game);

private:
    int insertInFile(ScoredGame game, ScoreList &list, const QString &name, double score);
    /// False, after a message, if the file could not be written.
    bool WriteScores(ScoredGame game, const std::function<void(ScoreList &)> &change);
    void show(ScoredGame game, const ScoreList &list, double score, std::optional<int> count, int place);

    const Ground &ground_;
};
