// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "output/web/session_texts.h"

#include "platform/files.h"
#include "platform/ini_lines.h"
#include "platform/text.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

bool isAscii(QByteArrayView text)
{
    return std::all_of(text.begin(), text.end(), [](char c) { return static_cast<signed char>(c) >= 0; });
}

/// Plain letters without regard to case.
bool isSame(QByteArrayView name, QByteArrayView upperCase)
{
    const auto raised = [](char c) { return c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c; };
    return std::equal(name.begin(), name.end(), upperCase.begin(), upperCase.end(),
                      [raised](char a, char b) { return raised(a) == b; });
}

/// The number behind "Morpheme", written as the program writes it; 0 for any other name.
int tileNumber(QByteArrayView name)
{
    constexpr QByteArrayView word = "MORPHEME";
    const QByteArrayView digits = name.sliced(std::min(name.size(), word.size()));
    const bool isNumbered =
        isSame(name.first(name.size() - digits.size()), word) && !digits.isEmpty() && digits.size() <= 5 &&
        digits.front() != '0' &&
        std::all_of(digits.begin(), digits.end(), [](char c) { return c >= '0' && c <= '9'; });
    if (!isNumbered)
        return 0;
    const int number = digits.toInt();
    return number <= SessionTexts::mostTiles ? number : 0;
}

} // namespace

/// The name of a section or a key. Some letters beyond ASCII have plain capitals, so that such a name has to
/// be decoded first.
class SessionTexts::Name
{
public:
    Name(const SessionTexts &texts, QByteArrayView name)
        : name_(IniLine::trimmed(name))
    {
        if (!isAscii(name_))
            decoded_ = UCase(texts.text(name).trimmed()).toUtf8();
    }
    QByteArrayView bytes() const { return decoded_ ? QByteArrayView(*decoded_) : name_; }
    bool is(QByteArrayView upperCase) const { return isSame(bytes(), upperCase); }

private:
    QByteArrayView name_;
    std::optional<QByteArray> decoded_;
};

SessionTexts::SessionTexts(const QString &path)
    : bytes_(ReadWholeFile(path, largestLineFile))
    , encoding_(encodingOf(bytes_))
{
    if (encoding_ == TextEncoding::Utf16) {
        bytes_ = decodeText(bytes_, encoding_).toUtf8();
        encoding_ = TextEncoding::Utf8;
    }
    QByteArrayView lines = bytes_;
    if (lines.startsWith(utf8Mark))
        lines = lines.sliced(utf8Mark.size());
    constexpr qsizetype leastTile = 60; ///< bytes of one in the file
    tiles_.reserve(static_cast<std::size_t>(std::min<qsizetype>(lines.size() / leastTile, mostTiles) + 1));
    forEachIniLine(lines, [this](QByteArrayView line) { take(line); });
}

void SessionTexts::take(QByteArrayView line)
{
    const IniLine parts = IniLine::of(line);
    if (parts.kind == IniLine::Kind::Section)
        enterSection(parts.name);
    if (parts.kind != IniLine::Kind::Entry || !(tile_ != nullptr || counts_[0].isOpen || counts_[1].isOpen))
        return;
    const Name name(*this, parts.name);
    const auto keep = [&](QByteArrayView &value, QByteArrayView key) {
        if (value.isNull() && name.is(key))
            value = parts.value;
    };
    if (tile_ != nullptr) {
        keep(tile_->type, "TYPE");
        keep(tile_->left, "LEFT");
        keep(tile_->top, "TOP");
        keep(tile_->caption, "CAPTION");
    }
    for (Count &count : counts_)
        if (count.isOpen)
            keep(count.value, count.key);
}

void SessionTexts::enterSection(QByteArrayView text)
{
    tile_ = nullptr;
    const Name name(*this, text);
    for (Count &count : counts_) {
        count.isOpen = !count.isSeen && name.is(count.section);
        count.isSeen = count.isSeen || count.isOpen;
    }
    const auto number = static_cast<std::size_t>(tileNumber(name.bytes()));
    if (number == 0)
        return;
    if (tiles_.size() <= number)
        tiles_.resize(std::max(number + 1, 2 * tiles_.size()));
    if (!tiles_[number])
        tile_ = &tiles_[number].emplace();
}

QString SessionTexts::count() const
{
    for (const Count &count : counts_)
        if (!count.value.isEmpty())
            return text(count.value);
    return {};
}

const SessionTexts::Tile *SessionTexts::tile(int number) const
{
    const auto at = static_cast<std::size_t>(number);
    return at < tiles_.size() && tiles_[at] ? &*tiles_[at] : nullptr;
}

std::optional<QLatin1StringView> SessionTexts::plainText(QByteArrayView value) const
{
    // The code page differs from Latin-1 in 32 characters only.
    const int beyondAscii = encoding_ == TextEncoding::Windows1252 ? 0xA0 : 0x100;
    const auto isPlain = [beyondAscii](char c) {
        const int code = static_cast<unsigned char>(c);
        return (code > 0 && code < 0x80) || code >= beyondAscii;
    };
    if (!std::all_of(value.begin(), value.end(), isPlain))
        return {};
    return QLatin1StringView(value.data(), value.size());
}

QString SessionTexts::text(QByteArrayView value) const
{
    if (const std::optional<QLatin1StringView> plain = plainText(value))
        return *plain;
    return decodeText(value.toByteArray(), encoding_).remove(QChar::Null);
}
