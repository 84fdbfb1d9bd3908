// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "games/kernling/stem_verdict.h"

#include "games/kernling/kernling_lists.h"
#include "language/word_tests.h"
#include "platform/files.h"
#include "platform/ini_file.h"
#include "platform/runtime_error.h"
#include "platform/text.h"

#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;

namespace kernling {

namespace {

constexpr Colour blue = 0xFF0000;
constexpr Colour red = 0x0000FF;
constexpr qsizetype longestShown = 200;

/// What a right answer is reminded of.
enum class Reminder { LookAlikes, Suffix, Prefix, NoPrefix };

struct ReminderRow
{
    QStringView stem; ///< in capitals, of which "ß" has none
    Reminder reminder;
};

/// The first row that fits decides.
constexpr std::array<ReminderRow, 39> reminders{{
    {u"RENN", Reminder::LookAlikes},  {u"IRR", Reminder::LookAlikes},  {u"LASS", Reminder::LookAlikes},
    {u"ESS", Reminder::LookAlikes},   {u"ECK", Reminder::LookAlikes},  {u"NICK", Reminder::LookAlikes},
    {u"LOCK", Reminder::LookAlikes},  {u"RUCK", Reminder::LookAlikes}, {u"RÜCK", Reminder::LookAlikes},
    {u"RANK", Reminder::LookAlikes},  {u"HALT", Reminder::LookAlikes}, {u"LEB", Reminder::LookAlikes},
    {u"LAG", Reminder::LookAlikes},   {u"LEG", Reminder::LookAlikes},  {u"RAT", Reminder::LookAlikes},
    {u"Aß", Reminder::LookAlikes},    {u"LAS", Reminder::LookAlikes},  {u"EIS", Reminder::LookAlikes},
    {u"LIEß", Reminder::LookAlikes},  {u"LEIT", Reminder::LookAlikes}, {u"LIEB", Reminder::LookAlikes},
    {u"RIEB", Reminder::LookAlikes},  {u"LIEF", Reminder::LookAlikes}, {u"LIEG", Reminder::LookAlikes},
    {u"RIECH", Reminder::LookAlikes}, {u"LIES", Reminder::LookAlikes}, {u"AHN", Reminder::LookAlikes},
    {u"EHR", Reminder::LookAlikes},   {u"LIEH", Reminder::LookAlikes}, {u"END", Reminder::Suffix},
    {u"LOS", Reminder::Suffix},       {u"EIN", Reminder::Prefix},      {u"HERR", Reminder::NoPrefix},
    {u"HERZ", Reminder::NoPrefix},    {u"BET", Reminder::NoPrefix},    {u"ERB", Reminder::NoPrefix},
    {u"GEB", Reminder::NoPrefix},     {u"GEH", Reminder::NoPrefix},    {u"ZERR", Reminder::NoPrefix},
}};

/// A marking as it is shown: of the whole text, nobody wants to read more than its start.
QString shown(const QString &text)
{
    return text.size() <= longestShown ? text : text.first(longestShown) + u'…';
}

bool isLineBreak(QChar character)
{
    return character == u'\r' || character == u'\n' || character == QChar::ParagraphSeparator ||
           character == QChar::LineSeparator;
}

} // namespace

QString CleanSelection(const QString &text)
{
    QString result;
    result.reserve(text.size());
    QChar before;
    for (const QChar character : text) {
        const bool secondHalf = before == u'\r' && character == u'\n';
        if (isLineBreak(character) || character == u'\t') {
            if (!secondHalf)
                result += u' ';
        } else if (character >= u' ') {
            result += character;
        }
        before = character;
    }
    return result;
}

ExtraStammInfo GetExtraStammInfo(const QString &stem, const QString &appFolder)
{
    const QString path = appFolder + u"Wortel enthalten.ini"_s;
    if (!IsTextFile(path))
        return {{}, u"Die Stamm-Datei (Wortel enthalten.ini) fehlt"_s};
    const QString section = u"Stamm"_s;
    try {
        const IniFile file(path);
        // This key stands in every whole file.
        if (!file.read(section, u"renn"_s).isEmpty())
            return {file.read(section, stem), {}};
    } catch (const RuntimeError &) { // it cannot be read
    }
    return {{}, u"Die Stamm-Datei (Wortel enthalten.ini) ist beschädigt oder unvollständig"_s};
}

Verdict StemJudge::judge(const QString &marked, const VerdictOptions &options) const
{
    if (marked.isEmpty())
        return {};
    const QString sel = Trim(CleanSelection(marked));
    return lists_.ChkForDuplicates(sel) ? right(sel, options) : wrong(sel, marked, options);
}

Verdict StemJudge::right(const QString &sel, const VerdictOptions &options) const
{
    Verdict verdict;
    verdict.kind = Verdict::Kind::Stem;
    verdict.sel = sel;
    verdict.Text1 = sel;
    verdict.Image1 = true;
    const bool known = lists_.ChkForDuplicates2(sel);
    if (options.KernlingShowNoDup == 0 || (options.KernlingShowNoDup == 1 && !known)) {
        verdict.foundRow = sel;
    }
    verdict.pieces = {{u"ist ein Wortstamm\n"_s, blue}};
    verdict.tone = options.KernlingUseSounds == 1 ? Verdict::Tone::Right : Verdict::Tone::None;
    return verdict;
}

void StemJudge::remind(Verdict &verdict) const
{
    if (verdict.kind != Verdict::Kind::Stem)
        return;
    const QString capitals = UCase(verdict.sel);
    const auto *const row = std::find_if(reminders.begin(), reminders.end(),
                                         [&](const ReminderRow &one) { return one.stem == capitals; });
    if (row == reminders.end())
        return;
    const auto say = [&](const QString &text, Colour colour = colours::black) {
        verdict.pieces.push_back({text, colour});
    };
    switch (row->reminder) {
    case Reminder::LookAlikes: {
        const ExtraStammInfo info = GetExtraStammInfo(verdict.sel, appFolder_);
        say(u"aber prüfe selbst, ob "_s);
        say(verdict.sel, red);
        say(u"\nhier nicht zu einem anderen Stamm gehört, wie z.B.:\n"_s);
        say(info.text, red);
        verdict.complaint = info.complaint;
        break;
    }
    case Reminder::Suffix:
        say(u"aber prüfe selbst,\nob es sich hierbei auch nicht um ein Suffix handelt !"_s);
        break;
    case Reminder::Prefix:
        say(u"aber prüfe selbst,\nob es sich hierbei auch nicht um ein Präfix handelt !"_s);
        break;
    case Reminder::NoPrefix:
        say(u"aber prüfe selbst, ob "_s);
        say(verdict.sel, red);
        say(u"\nhier kein Präfix ist !\n"_s);
        break;
    }
}

Verdict StemJudge::wrong(const QString &sel, const QString &marked, const VerdictOptions &options) const
{
    Verdict verdict;
    verdict.kind = Verdict::Kind::NoStem;
    verdict.sel = sel;
    verdict.tone = options.storedUseSounds ? Verdict::Tone::Beep : Verdict::Tone::None;
    verdict.pieces = {{shown(sel), red}};
    const auto affix = [&](const QString &kind) {
        verdict.pieces.push_back({u"\nist kein Wortstamm\nsondern "_s});
        verdict.pieces.push_back({kind, red});
        verdict.pieces.push_back({u"\n"_s});
    };
    if (lists_.ChkForDuplicates3(sel)) {
        affix(u"ein Präfix"_s);
    } else if (lists_.ChkForDuplicates4(sel)) {
        affix(u"ein Suffix"_s);
    } else {
        verdict.pieces.push_back({u"\nsteht nicht in der Wortstamm-Liste"_s, red});
        if (tests_.In_Lexicon(sel)) {
            verdict.pieces.push_back({u"\n"_s + shown(sel), red});
            verdict.pieces.push_back({u"\nist ein Wort im Wörterbuch"_s});
        }
    }
    if (options.KernlingShowFalse == 1)
        verdict.falseRow = shown(marked);
    return verdict;
}

} // namespace kernling
