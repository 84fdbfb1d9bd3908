// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "fuzz/targets.h"
#include "platform/ini_file.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

/// Names and values as the program has them: nothing that would end or change an entry.
bool isPlain(const QString &text)
{
    const auto isLetter = [](QChar c) { return c.isLetterOrNumber() && c.unicode() < 128; };
    return !text.isEmpty() && text.size() < 700 && std::all_of(text.begin(), text.end(), isLetter);
}

} // namespace

/// The first three lines are section, key and value of a write; the rest is the file.
void fuzz::ini(const QByteArray &bytes)
{
    const QList<QByteArray> parts = bytes.split('\n');
    const QString section = QString::fromLatin1(parts.value(0));
    const QString key = QString::fromLatin1(parts.value(1));
    const QString value = QString::fromLatin1(parts.value(2));
    const QString path = asFile(parts.mid(3).join('\n'));

    IniFile file(path);
    const QString other = file.read(u"Name"_s, u"LexiconInUse"_s, u"-"_s);
    const QString old = file.read(section, key, u"-"_s, 5);
    promise(old.size() <= 5, "a value is cut at the limit");
    promise(!other.contains(u'\n') && !other.contains(QChar::Null), "a value is one line");
    file.write(section, key, value);
    if (!isPlain(section) || !isPlain(key) || !isPlain(value))
        return;

    promise(file.read(section, key) == value, "a written value is read");
    file.save();
    const IniFile again(path);
    promise(again.read(section, key) == value, "a saved value is read");
    const bool isOther = section.compare(u"Name"_s, Qt::CaseInsensitive) != 0 ||
                         key.compare(u"LexiconInUse"_s, Qt::CaseInsensitive) != 0;
    promise(!isOther || again.read(u"Name"_s, u"LexiconInUse"_s, u"-"_s) == other, "other values stay");
}
