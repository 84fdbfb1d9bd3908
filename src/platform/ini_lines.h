// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArrayView>

/// One line of an ini file, without decoding it: what both the file that is edited key by key and those who
/// only walk through it once take a line for.
struct IniLine
{
    enum class Kind { Section, Entry, Other };

    Kind kind = Kind::Other;
    QByteArrayView name;  ///< of the section, or the key; blanks may stand at its ends
    QByteArrayView value; ///< of an entry, without blanks at its ends and the quotes around it

    static IniLine of(QByteArrayView line)
    {
        const QByteArrayView text = trimmed(line);
        const qsizetype end = text.startsWith('[') ? text.lastIndexOf(']') : -1;
        if (end > 0)
            return {Kind::Section, text.sliced(1, end - 1), {}};
        const qsizetype equals = text.startsWith(';') ? -1 : text.indexOf('=');
        if (equals < 0)
            return {};
        return {Kind::Entry, text.first(equals), unquoted(trimmed(text.sliced(equals + 1)))};
    }

    /// Without the blanks at its ends. Inline, because thousands of lines come by.
    static QByteArrayView trimmed(QByteArrayView text)
    {
        const auto isBlank = [](char c) { return c == ' ' || (c >= '\t' && c <= '\r'); };
        const char *from = text.begin();
        const char *to = text.end();
        while (from < to && isBlank(*from))
            ++from;
        while (from < to && isBlank(to[-1]))
            --to;
        return {from, to};
    }

private:
    static QByteArrayView unquoted(QByteArrayView value)
    {
        const bool quoted = value.size() >= 2 && value.startsWith('"') && value.endsWith('"');
        return quoted ? value.sliced(1, value.size() - 2) : value;
    }
};

/// Calls `take` for each line with its line end: CR LF, CR or LF.
template <typename Take> void forEachIniLine(QByteArrayView bytes, Take take)
{
    qsizetype from = 0;
    while (from < bytes.size()) {
        qsizetype to = from;
        while (to < bytes.size() && bytes[to] != '\r' && bytes[to] != '\n')
            ++to;
        if (to < bytes.size())
            to += bytes[to] == '\r' && to + 1 < bytes.size() && bytes[to + 1] == '\n' ? 2 : 1;
        take(bytes.sliced(from, to - from));
        from = to;
    }
}
