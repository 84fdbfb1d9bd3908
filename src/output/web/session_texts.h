// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/text_encoding.h"

#include <QByteArray>
#include <QByteArrayView>
#include <QLatin1StringView>
#include <QString>

#include <optional>
#include <vector>

/// What a session says of its tiles, as it stands in the file, found in one walk through its lines: reading
/// thousands of tiles key by key takes longer than writing their page. Sections and keys count as `IniFile`
/// has them: without regard to case, and the first one wins.
class SessionTexts
{
public:
    static constexpr int mostTiles = 32767; ///< that a session can count

    /// Throws RuntimeError as ReadWholeFile.
    explicit SessionTexts(const QString &path);

    /// The bytes of its values; null for a key that is missing.
    struct Tile
    {
        QByteArrayView type, left, top, caption;
        bool isWhole() const
        {
            return !type.isEmpty() && !left.isEmpty() && !top.isEmpty() && !caption.isEmpty();
        }
    };

    /// How many tiles there are, as text, wherever it stands: sessions are written with section "NumObjects"
    /// and key "ObjCounter", some are kept with both exchanged. Empty if there is none.
    QString count() const;
    /// The tile of that number, from 1, or nullptr.
    const Tile *tile(int number) const;
    QString text(QByteArrayView value) const;
    /// The same without a copy, where the bytes are what they stand for; most are.
    std::optional<QLatin1StringView> plainText(QByteArrayView value) const;
    qsizetype size() const { return bytes_.size(); }

private:
    class Name;

    void take(QByteArrayView line);
    void enterSection(QByteArrayView text);

    QByteArray bytes_;
    TextEncoding encoding_;
    std::vector<std::optional<Tile>> tiles_; ///< by their numbers
    Tile *tile_ = nullptr;                   ///< whose section is being walked through
    struct Count
    {
        QByteArrayView section;
        QByteArrayView key;
        bool isOpen = false; ///< its section is being walked through
        bool isSeen = false;
        QByteArrayView value = {};
    } counts_[2] = {{"NUMOBJECTS", "OBJCOUNTER"}, {"OBJCOUNTER", "NUMOBJECTS"}};
};
