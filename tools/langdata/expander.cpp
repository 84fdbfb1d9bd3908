// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "expander.h"

#include "textfiles.h"

#include <QRegularExpression>
#include <QStringList>

using namespace Qt::StringLiterals;

namespace langdata {
namespace {

constexpr QChar onlyInCompound = u'o';
constexpr QChar forbidden = u'd';
constexpr QChar needsAffix = u'h';
constexpr QStringView verbFlags = u"IXYDWOZ";
constexpr QStringView adjectiveFlags = u"AC";

bool hasAny(const QString &flags, QStringView wanted)
{
    for (const QChar flag : wanted)
        if (flags.contains(flag))
            return true;
    return false;
}

bool endsLikeInfinitive(const QString &word)
{
    return word.endsWith(u"en") || word.endsWith(u"eln") || word.endsWith(u"ern");
}

std::vector<QString> conditionOf(const QString &text)
{
    std::vector<QString> places;
    if (text == u".")
        return places;
    for (qsizetype i = 0; i < text.size(); ++i) {
        if (text[i] == u'[') {
            const qsizetype end = text.indexOf(u']', i);
            places.push_back(text.mid(i + 1, end - i - 1));
            i = end;
        } else {
            places.emplace_back(text[i]);
        }
    }
    return places;
}

bool fits(const QString &set, QChar letter)
{
    return set.startsWith(u'^') ? !QStringView(set).mid(1).contains(letter) : set.contains(letter);
}

} // namespace

Expander::Expander(const QByteArray &affixFile, const QByteArray &dictionary)
{
    readRules(affixFile);
    readEntries(dictionary);
    if (flags_.empty() || entries_.empty())
        throw InputError(u"the affix file or the dictionary holds nothing to expand"_s);
}

void Expander::readRules(const QByteArray &affixFile)
{
    if (!affixFile.contains("SET ISO8859-1"))
        throw InputError(u"the affix file is not in ISO 8859-1"_s);
    static const QRegularExpression blanks(u"\\s+"_s);
    const QStringList lines = QString::fromLatin1(affixFile).split(u'\n');
    for (const QString &line : lines) {
        const QStringList words = line.split(blanks, Qt::SkipEmptyParts);
        if (words.size() < 4 || (words[0] != u"SFX" && words[0] != u"PFX"))
            continue;
        Flag &flag = flags_[words[1][0]];
        flag.prefix = words[0] == u"PFX";
        if (words.size() == 4) {
            flag.crosses = words[2] == u"Y";
        } else if (!words[3].contains(u'/') && !words[3].contains(u'-')) {
            flag.rules.push_back({words[2] == u"0" ? QString() : words[2],
                                  words[3] == u"0" ? QString() : words[3], conditionOf(words[4])});
        }
    }
}

void Expander::readEntries(const QByteArray &dictionary)
{
    const QStringList lines = QString::fromLatin1(dictionary).split(u'\n');
    static const QRegularExpression word(u"^[A-Za-zÄÖÜäöüß]+(/.*)?$"_s);
    for (const QString &raw : lines) {
        const QString line = raw.trimmed();
        if (!word.match(line).hasMatch())
            continue;
        const Entry entry{line.section(u'/', 0, 0), line.section(u'/', 1)};
        if (isInfinitive(entry))
            infinitives_.insert(entry.word);
        if (!entry.flags.contains(onlyInCompound) && !entry.flags.contains(forbidden))
            entries_.push_back(entry);
    }
}

bool Expander::isInfinitive(const Entry &entry)
{
    if (!entry.word[0].isLower())
        return false;
    // strong verbs with a prefix stand form by form, without flags; of some verbs only the part
    // for compounds stands there
    return entry.flags.isEmpty() || entry.flags.contains(onlyInCompound)
               ? endsLikeInfinitive(entry.word)
               : entry.word.endsWith(u'n') && hasAny(entry.flags, verbFlags);
}

unsigned Expander::originOf(const Entry &entry, bool base, QChar suffixFlag) const
{
    const bool noun = entry.word[0].isUpper();
    if (noun) {
        QString lower = entry.word;
        lower[0] = lower[0].toLower();
        const bool verb = infinitives_.contains(lower);
        return verb && (base || suffixFlag == u'S') ? OriginNominalInfinitive : OriginOther;
    }
    if (base && infinitives_.contains(entry.word))
        return hasAny(entry.flags, adjectiveFlags) ? OriginInfinitive | OriginAdjective : OriginInfinitive;
    if (base ? hasAny(entry.flags, adjectiveFlags) : adjectiveFlags.contains(suffixFlag))
        return OriginAdjective;
    return OriginOther;
}

bool Expander::applySuffix(const Rule &rule, const QString &word, QString &result)
{
    const auto places = qsizetype(rule.condition.size());
    if (word.size() < places || word.size() <= rule.strip.size() || !word.endsWith(rule.strip))
        return false;
    for (qsizetype i = 0; i < places; ++i)
        if (!fits(rule.condition[size_t(i)], word[word.size() - places + i]))
            return false;
    result = word.left(word.size() - rule.strip.size()) + rule.add;
    return true;
}

void Expander::expandEntry(const Entry &entry, const Sink &sink) const
{
    QStringList leads{QString()};
    for (const QChar letter : entry.flags) {
        const auto found = flags_.find(letter);
        if (found != flags_.end() && found->second.prefix)
            for (const Rule &rule : found->second.rules)
                leads << rule.add;
    }
    const auto put = [&](const QString &form, unsigned origin, bool crosses) {
        for (const QString &lead : std::as_const(leads))
            if (lead.isEmpty() || crosses)
                sink(entry.word, lead + form, origin);
    };
    if (!entry.flags.contains(needsAffix))
        put(entry.word, originOf(entry, true, QChar()), true);
    QString form;
    for (const QChar letter : entry.flags) {
        const auto found = flags_.find(letter);
        if (found == flags_.end() || found->second.prefix)
            continue;
        for (const Rule &rule : found->second.rules)
            if (applySuffix(rule, entry.word, form))
                put(form, originOf(entry, false, letter), found->second.crosses);
    }
}

void Expander::expand(const Sink &sink) const
{
    for (const Entry &entry : entries_)
        expandEntry(entry, sink);
}

} // namespace langdata
