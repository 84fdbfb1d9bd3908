// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/ini_file.h"

#include "platform/files.h"
#include "platform/ini_lines.h"
#include "platform/text.h"
#include "platform/windows1252.h"

#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace {

/// Without the blanks at its ends, in the form in which names are compared.
QString foldedName(const QString &name) { return UCase(name.trimmed()); }

/// On one line, since a line end would end the entry.
QString oneLine(QString text)
{
    for (QChar &character : text)
        if (character == u'\r' || character == u'\n' || character == QChar::Null)
            character = u' ';
    return text;
}

bool isBlank(const QByteArray &line) { return line.trimmed().isEmpty(); }

/// Gives the last line of `lines` a line end, so that another may follow.
void endLastLine(std::vector<QByteArray> &lines)
{
    if (!lines.empty() && !lines.back().endsWith('\n') && !lines.back().endsWith('\r'))
        lines.back() += "\r\n";
}

} // namespace

IniFile::IniFile(const QString &path, Purpose purpose)
    : path_(path)
{
    sections_.emplace_back();
    if (!QFileInfo::exists(nativePath(path)) || (purpose == Purpose::Writing && isForeignLink(path)))
        return;
    const QByteArray bytes = ReadWholeFile(path, largestLineFile);
    encoding_ = encodingOf(bytes);
    marked_ = bytes.startsWith(utf8Mark);
    if (encoding_ == TextEncoding::Utf16) {
        marked_ = true;
        encoding_ = TextEncoding::Utf8;
        parse(decodeText(bytes).toUtf8());
    } else {
        parse(marked_ ? bytes.mid(utf8Mark.size()) : bytes);
    }
}

void IniFile::parse(const QByteArray &bytes)
{
    forEachIniLine(bytes, [this](QByteArrayView line) { addLine(line.toByteArray()); });
}

void IniFile::addLine(const QByteArray &line)
{
    const IniLine parts = IniLine::of(line);
    if (parts.kind == IniLine::Kind::Section)
        addSection(decode(parts.name.toByteArray()));
    sections_.back().push_back(line);
    if (parts.kind != IniLine::Kind::Entry)
        return;
    const int section = static_cast<int>(sections_.size()) - 1;
    const std::pair key{section, foldedName(decode(parts.name.toByteArray()))};
    if (!keyIndex_.contains(key))
        keyIndex_.insert(key, static_cast<int>(sections_.back().size()) - 1);
}

int IniFile::addSection(const QString &name)
{
    const int section = static_cast<int>(sections_.size());
    sections_.emplace_back();
    const QString folded = foldedName(name);
    if (!sectionIndex_.contains(folded))
        sectionIndex_.insert(folded, section);
    return section;
}

QString IniFile::read(const QString &section, const QString &key, const QString &fallback, int limit) const
{
    const auto place = sectionIndex_.constFind(foldedName(section));
    if (place == sectionIndex_.cend())
        return fallback.left(limit);
    const auto row = keyIndex_.constFind({*place, foldedName(key)});
    if (row == keyIndex_.cend())
        return fallback.left(limit);
    const QByteArray &line = sections_[static_cast<std::size_t>(*place)][static_cast<std::size_t>(*row)];
    return decode(IniLine::of(line).value.toByteArray()).remove(QChar::Null).left(limit);
}

void IniFile::write(const QString &section, const QString &key, const QString &value)
{
    changed_ = true;
    makeRoomFor(section + key + value);
    const auto found = sectionIndex_.constFind(foldedName(section));
    int place = 0;
    if (found != sectionIndex_.cend()) {
        place = *found;
    } else {
        endLastLine(sections_.back());
        place = addSection(section);
        sections_.back().push_back(encode(u'[' + oneLine(section) + u']') + "\r\n");
    }
    Lines &lines = sections_[static_cast<std::size_t>(place)];
    const QByteArray tail = encode(u'=' + oneLine(value)) + "\r\n";
    const std::pair name{place, foldedName(key)};
    const auto row = keyIndex_.constFind(name);
    if (row != keyIndex_.cend()) {
        QByteArray &line = lines[static_cast<std::size_t>(*row)];
        line = line.first(line.indexOf('=')) + tail;
        return;
    }
    std::size_t at = lines.size();
    while (at > 1 && isBlank(lines[at - 1]))
        --at; // blank lines stay between the sections
    if (at == lines.size())
        endLastLine(lines);
    lines.insert(lines.begin() + static_cast<std::ptrdiff_t>(at), encode(oneLine(key)) + tail);
    keyIndex_.insert(name, static_cast<int>(at));
}

/// A character that the page does not have turns the file into one that has them all.
void IniFile::makeRoomFor(const QString &text)
{
    if (encoding_ != TextEncoding::Windows1252 || windows1252::encode(text))
        return;
    for (Lines &lines : sections_)
        for (QByteArray &line : lines)
            line = decode(line).toUtf8();
    encoding_ = TextEncoding::Utf8;
}

void IniFile::save()
{
    if (!changed_)
        return;
    QByteArray bytes;
    for (const Lines &lines : sections_)
        for (const QByteArray &line : lines)
            bytes += line;
    // Where the bytes alone would be taken for another encoding, the mark tells.
    if (marked_ || decodeText(bytes) != decode(bytes))
        bytes = utf8Mark + (encoding_ == TextEncoding::Utf8 ? bytes : decode(bytes).toUtf8());
    writeFileAtomically(path_, bytes);
    changed_ = false;
}

QString IniFile::decode(const QByteArray &bytes) const { return decodeText(bytes, encoding_); }

QByteArray IniFile::encode(const QString &text) const
{
    return encoding_ == TextEncoding::Windows1252 ? windows1252::encodeLossy(text) : text.toUtf8();
}
