// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "games/scores/high_scores.h"

#include "games/scores/score_file.h"
#include "platform/boxes.h"
#include "platform/gate.h"
#include "platform/ground.h"
#include "platform/procedure.h"
#include "platform/product.h"

#include <source_location>

using namespace Qt::StringLiterals;

namespace {

struct GameRow
{
    ScoredGame game;
    const char16_t *name;
    const char16_t *file; ///< without ".lst"
    const char16_t *entryTitle;
    const char16_t *counted; ///< behind the count in the line with the result
    const char16_t *fault;
    const char16_t *module;
    const char16_t *question;
};

// clang-format off
constexpr GameRow games[] = {
    {ScoredGame::Klotar, u"Klotar", u"scores", u"Bestenliste Wortelspiele", u" richtige Wörter). Sehr gut !",
     u".lst-Datei (Bestenliste wortelspiele) könnte nicht gespeichert werden.", u" ModHighScore ",
     u"Möchtest du die Bestenliste zurücksetzen ?"},
    {ScoredGame::Tonarin, u"Tonarin", u"ScoresVokal", u"Bestenliste Vokale", u" richtige Vokale). Sehr gut !",
     u".lst-Datei (Bestenliste vokale) könnte nicht gespeichert werden.", u" ModHighScore ",
     u"Möchtest du die Bestenliste zurücksetzen ?"},
    {ScoredGame::Kernling, u"Kernling", u"ScoresKernling", u"Bestenliste Kernling", u" falsche Wortele). Sehr gut !",
     u".lst-Datei (Bestenliste Kernling) könnte nicht gespeichert werden.", u" ModHiKernling ",
     u"Möchtest du die Bestenliste (Kernling) zurücksetzen ?"},
};
// clang-format on

const GameRow &rowOf(ScoredGame game) { return games[static_cast<std::size_t>(game)]; }

QString text(const char16_t *words) { return QString::fromUtf16(words); }

ScoreFile fileOf(const Ground &ground, ScoredGame game)
{
    return ScoreFile(ground.AppFolder + text(rowOf(game).file) + u".lst"_s);
}

QString resultLine(ScoredGame game, double score, std::optional<int> count)
{
    if (score == 0)
        return {};
    const QString points = u"Punkte: "_s + scoreText(score);
    return count ? points + u"\n("_s + QString::number(*count) + text(rowOf(game).counted)
                 : points + u" Sehr gut !"_s;
}

} // namespace

void HighScores::CheckForHighScore(ScoredGame game, double score, std::optional<int> count)
{
    Procedure step{ground_.log, "CheckForHighScore", ""};
    ScoreList list = fileOf(ground_, game).read();
    int place = 0;
    if (list.placeOf(score) > 0) {
        QString name;
        step([&] { name = ground_.boxes.ShowEnterName(text(rowOf(game).entryTitle)); });
        if (ground_.gate.isClosing())
            return;
        place = insertInFile(game, list, ScoreList::nameFor(name), score);
    }
    step([&] { show(game, list, score, count, place); });
}

/// While the name was typed, another computer may have written: the score goes where it belongs now. After a
/// write that failed, `list` has it for this one display. Returns the place.
int HighScores::insertInFile(ScoredGame game, ScoreList &list, const QString &name, double score)
{
    int place = 0;
    const bool written = WriteScores(game, [&](ScoreList &now) {
        place = now.insert(name, score);
        list = now;
    });
    return written ? place : list.insert(name, score);
}

bool HighScores::WriteScores(ScoredGame game, const std::function<void(ScoreList &)> &change)
{
    Procedure step{ground_.log, "WriteScores", ""};
    if (step([&] { fileOf(ground_, game).update(change); }))
        return true;
    const unsigned line = std::source_location::current().line();
    ground_.boxes.plainBox(Boxes::Icon::Warning, product::faultTitle,
                           text(rowOf(game).file) + text(rowOf(game).fault) + u'\n' +
                               text(rowOf(game).module) + u"(Line: "_s + QString::number(line) + u')');
    return false;
}

void HighScores::DisplayHighScores(ScoredGame game, double score, std::optional<int> count)
{
    Procedure step{ground_.log, "DisplayHighScores", ""};
    step([&] { show(game, fileOf(ground_, game).read(), score, count, 0); });
}

void HighScores::show(ScoredGame game, const ScoreList &list, double score, std::optional<int> count,
                      int place)
{
    const QString name = text(rowOf(game).name);
    HighScoreSheet sheet{u"Bestenliste - "_s + name, name, resultLine(game, score, count), {}, place};
    for (int row = 1; row <= ScoreList::places; ++row)
        sheet.rows.append({list.name(row), scoreText(list.score(row))});
    ground_.boxes.ShowHighScores(sheet);
}

void HighScores::ResetScores(ScoredGame game)
{
    Procedure step{ground_.log, "ResetScores", ""};
    bool agreed = false;
    step([&] { agreed = ground_.boxes.agrees(text(rowOf(game).question), u"Bestätigen"_s); });
    if (agreed)
        WriteScores(game, [](ScoreList &list) { list = ScoreList::initial(); });
}
