// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/text.h"

#include "platform/runtime_error.h"

#include <QCollator>
#include <QLocale>

#include <cmath>
#include <limits>
#include <locale>
#include <sstream>

namespace {

/// Maps one character to one character. Pairs of surrogates are taken as one character, lone ones stay.
template <char32_t (*Map)(char32_t)> QString mapped(const QString &text)
{
    QString result = text;
    for (qsizetype i = 0; i < text.size(); ++i) {
        const QChar unit = text.at(i);
        if (unit.isHighSurrogate() && i + 1 < text.size() && text.at(i + 1).isLowSurrogate()) {
            const char32_t whole = Map(QChar::surrogateToUcs4(unit, text.at(i + 1)));
            if (QChar::requiresSurrogates(whole)) {
                result[i] = QChar(QChar::highSurrogate(whole));
                result[i + 1] = QChar(QChar::lowSurrogate(whole));
            }
            ++i;
            continue;
        }
        const char32_t other = Map(unit.unicode());
        if (other != unit.unicode() && !QChar::requiresSurrogates(other))
            result[i] = QChar(static_cast<char16_t>(other));
    }
    return result;
}

char32_t upper(char32_t character) { return QChar::toUpper(character); }
char32_t lower(char32_t character) { return QChar::toLower(character); }

/// The count of characters at the start of `text` that form a number, with the blanks in front of it taken
/// off by the caller.
qsizetype numberLength(QStringView text)
{
    const auto isDigit = [&](qsizetype i) { return i < text.size() && text[i] >= u'0' && text[i] <= u'9'; };
    const auto isSign = [&](qsizetype i) { return i < text.size() && (text[i] == u'+' || text[i] == u'-'); };
    qsizetype i = isSign(0) ? 1 : 0;
    qsizetype digits = 0;
    for (; isDigit(i); ++i)
        ++digits;
    if (i < text.size() && text[i] == u'.') {
        ++i;
        for (; isDigit(i); ++i)
            ++digits;
    }
    if (digits == 0)
        return 0;
    if (i < text.size() && (text[i] == u'e' || text[i] == u'E')) {
        const qsizetype exponent = isSign(i + 1) ? i + 2 : i + 1;
        if (isDigit(exponent)) {
            i = exponent;
            while (isDigit(i))
                ++i;
        }
    }
    return i;
}

/// The value of a text that numberLength has measured. What lies beyond the range of a double is its largest
/// value.
double numberValue(QStringView number)
{
    const QByteArray digits = number.toLatin1();
    bool inRange = false;
    const double plain = digits.toDouble(&inRange);
    if (inRange)
        return plain;
    std::istringstream stream(digits.toStdString()); // a stream clamps where QByteArray gives 0
    stream.imbue(std::locale::classic());
    double clamped = 0.0;
    stream >> clamped;
    return clamped;
}

template <typename Whole> int checkedRound(double value)
{
    const double whole = Round(value);
    if (!(whole >= std::numeric_limits<Whole>::min() && whole <= std::numeric_limits<Whole>::max()))
        throw RuntimeError::of(RuntimeError::Overflow);
    return static_cast<int>(whole);
}

QCollator germanCollator()
{
    QCollator collator(QLocale(QLocale::German, QLocale::Germany));
    collator.setCaseSensitivity(Qt::CaseInsensitive);
    return collator;
}

} // namespace

QString UCase(const QString &text) { return mapped<upper>(text); }

QString LCase(const QString &text) { return mapped<lower>(text); }

QString Trim(const QString &text)
{
    qsizetype from = 0;
    qsizetype to = text.size();
    while (from < to && text.at(from) == u' ')
        ++from;
    while (to > from && text.at(to - 1) == u' ')
        --to;
    return to - from == text.size() ? text : text.mid(from, to - from);
}

bool equalsIgnoreCase(QStringView a, QStringView b)
{
    if (a.size() != b.size())
        return false;
    for (qsizetype i = 0; i < a.size(); ++i)
        if (a[i] != b[i] && a[i].toUpper() != b[i].toUpper())
            return false;
    return true;
}

bool containsIgnoreCase(const QString &text, const QString &part)
{
    return UCase(text).contains(UCase(part));
}

bool EndsWith(const QString &text, const QString &ending)
{
    return ending.size() <= text.size() && equalsIgnoreCase(QStringView(text).last(ending.size()), ending);
}

bool StartsWith(const QString &text, const QString &start)
{
    return start.size() <= text.size() && equalsIgnoreCase(QStringView(text).first(start.size()), start);
}

bool StartsWithExact(const QString &text, const QString &start) { return text.startsWith(start); }

QString RTrimText(const QString &text, const QString &ending)
{
    return EndsWith(text, ending) ? text.chopped(ending.size()) : text;
}

QString InitCapWord(const QString &text) { return UCase(text.left(1)) + LCase(text.mid(1)); }

bool FirstIsInitCap(const QString &text)
{
    if (text.isEmpty())
        return false;
    const QChar first = text.at(0);
    return !((first >= u'a' && first <= u'z') || first == u'ß' || first == u'ü');
}

QString ToggleInitChar(const QString &text)
{
    const QString first = text.left(1);
    return (FirstIsInitCap(text) ? LCase(first) : UCase(first)) + LCase(text.mid(1));
}

QString CleanText(const QString &text, bool keepLineEnds)
{
    QString result;
    result.reserve(text.size());
    for (const QChar character : text) {
        const bool lineEnd = character == u'\r' || character == u'\n';
        if (lineEnd && keepLineEnds)
            result += character;
        else if (lineEnd || character == u'\t')
            result += u' ';
        else if (character.unicode() >= 32)
            result += character;
    }
    return result;
}

double Val(const QString &text)
{
    QString packed;
    packed.reserve(qMin<qsizetype>(text.size(), 64));
    for (const QChar character : text)
        if (character != u' ' && character != u'\t' && character != u'\n' && character != u'\r')
            packed += character;
    const qsizetype length = numberLength(packed);
    return length == 0 ? 0.0 : numberValue(QStringView(packed).first(length));
}

double Int(double value) { return std::floor(value); }

double Fix(double value) { return std::trunc(value); }

double Round(double value)
{
    const double below = std::floor(value);
    const double rest = value - below;
    if (rest != 0.5)
        return rest < 0.5 ? below : below + 1.0;
    return std::fmod(below, 2.0) == 0.0 ? below : below + 1.0;
}

int CInt(double value) { return checkedRound<std::int16_t>(value); }

int CLng(double value) { return checkedRound<std::int32_t>(value); }

double CDbl(const QString &text)
{
    const QStringView trimmed = QStringView(text).trimmed();
    if (trimmed.isEmpty() || numberLength(trimmed) != trimmed.size())
        throw RuntimeError::of(RuntimeError::TypeMismatch);
    return numberValue(trimmed);
}

QString FormatNumber(int value, int digits)
{
    const QString plain =
        QString::number(std::abs(static_cast<long long>(value))).rightJustified(digits, u'0');
    return value < 0 ? u'-' + plain : plain;
}

QString FormatTime(const QTime &time) { return time.toString(QStringLiteral("HH:mm:ss")); }

QString FormatDateTime(const QDateTime &moment)
{
    return QLocale::c().toString(moment, QStringLiteral("MM/dd/yyyy  hh:mm AP"));
}

int compareCollated(const QString &a, const QString &b)
{
    // Making a collator costs far more than a comparison; one for each thread is never shared.
    thread_local const QCollator collator = germanCollator();
    return collator.compare(a, b);
}
