// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/colours.h"

#include <QString>

#include <optional>
#include <vector>

class WordTests;
struct KernlingLists;

/// The judgement over a marking of the stem game, without a window: what was marked goes in, what is to be
/// shown, heard, listed and painted comes out.
namespace kernling {

/// The one colour that a marking is judged for, and with which a stem is painted behind its letters.
inline constexpr Colour stemColour = 255;

/// The options as their boxes show them (0, 1 or 2), and the sounds as the settings store has them.
struct VerdictOptions
{
    int KernlingShowNoDup = 1;
    int KernlingShowFalse = 0;
    int KernlingUseSounds = 1;
    bool storedUseSounds = true; ///< any number but 0
};

/// A run of the verdict's text with its colour; "\n" is a line break.
struct VerdictPiece
{
    QString text;
    Colour colour = colours::black;
    bool operator==(const VerdictPiece &) const = default;
};

/// What a marking comes to. Where an optional holds nothing, what it stands for stays as it is.
struct Verdict
{
    enum class Kind {
        Nothing, ///< nothing was marked: nothing changes, the old verdict stays
        Stem,    ///< the marked run is to be painted
        NoStem,
    };
    enum class Tone { None, Right, Beep }; ///< `Right` is sound 112

    Kind kind = Kind::Nothing;
    QString sel;                      ///< what was judged
    std::vector<VerdictPiece> pieces; ///< replace the text of `rtfResponse`
    QString Text1;                    ///< the stem, or empty
    bool Image1 = false;              ///< the sign of a right answer is visible
    Tone tone = Tone::None;
    std::optional<QString> foundRow; ///< for `UserFoundWortelList`
    std::optional<QString> falseRow; ///< for `UserFalseWortelList`
    QString complaint;               ///< a warning for the platform's box, or empty
};

/// The text with a blank for every tab and line break (CR LF is one), without other control characters below
/// 32. The separators with which a text box ends its lines and paragraphs are line breaks too.
QString CleanSelection(const QString &text);

/// Examples of the other stems that look like one.
struct ExtraStammInfo
{
    QString text;
    QString complaint; ///< says what is wrong with the file; empty if nothing is
};
/// The text of `stem` in "Wortel enthalten.ini" in `appFolder` (stored form), found without regard to case;
/// empty if it has none.
ExtraStammInfo GetExtraStammInfo(const QString &stem, const QString &appFolder);

/// Judges markings by lists that others fill. It changes none of them.
class StemJudge
{
public:
    StemJudge(const KernlingLists &lists, const WordTests &tests, QString appFolder)
        : lists_(lists)
        , tests_(tests)
        , appFolder_(std::move(appFolder))
    {}

    /// `HighLightSelection` for the colour 255. `marked` is the selected text as it stands; of a very long
    /// one the verdict names the start. Whoever takes the verdict adds its rows to the lists.
    Verdict judge(const QString &marked, const VerdictOptions &options) const;
    /// Adds to the verdict over a stem what else the letters may be, for whoever shows it.
    void remind(Verdict &verdict) const;

private:
    Verdict right(const QString &sel, const VerdictOptions &options) const;
    Verdict wrong(const QString &sel, const QString &marked, const VerdictOptions &options) const;

    const KernlingLists &lists_;
    const WordTests &tests_;
    QString appFolder_;
};

} // namespace kernling
