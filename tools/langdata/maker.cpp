// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "maker.h"

#include "expander.h"
#include "textfiles.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace langdata {
namespace {

constexpr size_t longestDictionary = 32767;

/// Place of a form among those that differ in case alone; the lowest is the spelling taught.
int twinRank(const QString &form, unsigned origins)
{
    if (form[0].isUpper())
        return 1;
    return (origins & (OriginInfinitive | OriginAdjective)) != 0 ? 0 : 2;
}

/// Whether a capital stands inside, as in "LeserIn": no spelling for a school.
bool hasInnerCapital(const QString &form)
{
    return std::any_of(form.begin() + 1, form.end(), [](QChar letter) { return letter.isUpper(); });
}

QString capitalised(const QString &lower) { return lower[0].toUpper() + lower.mid(1); }

/// "vor" and "Schlag" make "Vorschlag".
QString compound(const QString &prefix, const QString &noun) { return capitalised(prefix) + noun.toLower(); }

/// Whether `form` is the noun `base` in another case or number; only the plain endings, since old and
/// chance forms ("Vorraten") would come in by the others.
bool inflects(const QString &base, const QString &form)
{
    if (!form.startsWith(base))
        return false;
    const QStringView ending = QStringView(form).mid(base.size());
    if (ending == u"en")
        return base.endsWith(u"ung") || base.endsWith(u"schaft");
    return ending == u"s" || ending == u"es" || (ending == u"n" && base.endsWith(u'e'));
}

void sortInPlace(QStringList &words)
{
    std::sort(words.begin(), words.end(), [](const QString &left, const QString &right) {
        const QString leftKey = collationKey(left);
        const QString rightKey = collationKey(right);
        return leftKey != rightKey ? leftKey < rightKey : left < right;
    });
}

} // namespace

QString collationKey(const QString &word)
{
    QString key;
    const QString lower = word.toLower();
    for (const QChar letter : lower) {
        switch (letter.unicode()) {
        case u'ä':
            key += u'a';
            break;
        case u'ö':
            key += u'o';
            break;
        case u'ü':
            key += u'u';
            break;
        case u'ß':
            key += u"ss"_s;
            break;
        default:
            key += letter;
        }
    }
    return key + u' ' + lower;
}

Maker::Maker(const Expander &expander, const Segmenter &segmenter, const Judges &judges)
    : segmenter_(segmenter)
    , judges_(judges)
{
    gather(expander);
    judge();
    origins_.clear();
    buildable_.clear();
    for (QStringList &reason : dropped_)
        sortInPlace(reason);
}

void Maker::offer(const QString &form, unsigned origin)
{
    if (form.isEmpty() || hasInnerCapital(form))
        return;
    const QString lower = form.toLower();
    auto known = buildable_.constFind(lower);
    if (known == buildable_.constEnd())
        known = buildable_.insert(lower, !segmenter_.readings(lower).empty());
    if (*known)
        origins_[form] |= origin;
}

void Maker::gather(const Expander &expander)
{
    expander.expand([&](const QString &, const QString &form, unsigned origin) { offer(form, origin); });

    // familiar words that the dictionary only knows as compounds; a capital that a sentence's beginning gave
    // does not make a noun
    for (const QString &form : judges_.familiar)
        if (!form.isEmpty() && !origins_.contains(form) &&
            (form[0].isLower() || !judges_.accepts(form.toLower())))
            offer(form, OriginOther);
    QString noun;
    QStringList prefixes;
    expander.expand([&](const QString &base, const QString &form, unsigned origin) {
        if (base != noun) {
            noun = base;
            prefixes = base[0].isUpper() ? familiarPrefixes(base) : QStringList();
        }
        if (inflects(base, form))
            for (const QString &prefix : std::as_const(prefixes))
                offer(compound(prefix, form), origin);
    });
}

QStringList Maker::familiarPrefixes(const QString &noun) const
{
    QStringList prefixes;
    for (const QString &prefix : segmenter_.prefixes())
        if (judges_.familiar.contains(compound(prefix, noun)))
            prefixes << prefix;
    return prefixes;
}

bool Maker::isFamiliar(const QString &form) const
{
    const QString lower = form.toLower();
    return judges_.familiar.contains(lower) || judges_.familiar.contains(capitalised(lower));
}

void Maker::judge()
{
    for (const QString &form : judges_.include)
        origins_[form] |= 0;
    QStringList unbuildable;
    QStringList candidates = origins_.keys();
    sortInPlace(candidates);
    for (const QString &form : std::as_const(candidates)) {
        const unsigned origins = origins_[form];
        const std::vector<Segmenter::Reading> readings = segmenter_.readings(form.toLower());
        const bool oneOfEach =
            std::any_of(readings.begin(), readings.end(),
                        [](const Segmenter::Reading &reading) { return reading.oneOfEach; });
        const auto drop = [&](Drop reason) { dropped_[size_t(reason)] << form; };
        if (judges_.include.contains(form)) {
            if (readings.empty())
                unbuildable << form;
            keep(form, origins, readings);
        } else if (judges_.exclude.contains(form)) {
            drop(Drop::Excluded);
        } else if (judges_.blocklist.blocks(form)) {
            drop(Drop::Blocked);
        } else if (!judges_.accepts(form)) {
            drop(Drop::Rejected);
        } else if (origins == OriginNominalInfinitive) {
            drop(Drop::NominalInfinitive);
        } else if (!oneOfEach && !isFamiliar(form)) {
            drop(Drop::Unfamiliar);
        } else {
            keep(form, origins, readings);
        }
    }
    if (!unbuildable.isEmpty())
        throw InputError(u"the include list: no stem and affixes build %1"_s.arg(unbuildable.join(u", ")));
    for (const QString &form : judges_.exclude)
        if (!origins_.contains(form))
            idleExcludes_ << form;
    sortInPlace(idleExcludes_);
}

void Maker::keep(const QString &form, unsigned origins, const std::vector<Segmenter::Reading> &readings)
{
    words_.push_back({form, origins});
    for (const Segmenter::Reading &reading : readings) {
        std::vector<size_t> &words = wordsOfStem_[reading.stem];
        if (words.empty() || words.back() != words_.size() - 1)
            words.push_back(words_.size() - 1);
    }
}

bool Maker::before(const Word &left, const Word &right)
{
    const QString leftKey = collationKey(left.form);
    const QString rightKey = collationKey(right.form);
    if (leftKey != rightKey)
        return leftKey < rightKey;
    return twinRank(left.form, left.origins) < twinRank(right.form, right.origins);
}

QStringList Maker::dictionaryOf(const QString &list, const QStringList &stems) const
{
    QSet<size_t> chosen;
    QStringList unknown;
    for (const QString &stem : stems) {
        const auto words = wordsOfStem_.constFind(stem);
        if (words == wordsOfStem_.constEnd())
            unknown << stem;
        else
            chosen.unite(QSet<size_t>(words->begin(), words->end()));
    }
    if (!unknown.isEmpty())
        throw InputError(u"%1: unknown stems, no word holds them: %2"_s.arg(list, unknown.join(u", ")));
    if (chosen.size() > qsizetype(longestDictionary))
        throw InputError(
            u"%1: %2 words, the game takes %3"_s.arg(list).arg(chosen.size()).arg(longestDictionary));
    std::vector<Word> words;
    for (const size_t index : std::as_const(chosen))
        words.push_back(words_[index]);
    std::sort(words.begin(), words.end(), before);
    QStringList forms;
    for (const Word &word : words)
        forms << word.form;
    return forms;
}

} // namespace langdata
