// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

#include <cstddef>
#include <optional>
#include <unordered_map>

/// What was worked out for the texts of tiles: widths, laid-out lines. Bounded, because a child can type any
/// number of words; a very long text is kept only until the next one. Words are short, so a plain hash is
/// several times faster here than the library's.
template <typename Value> class TextCache
{
public:
    /// The value of `text`, made by `make(text)` if it is not known. Valid until the next call.
    template <typename Make> const Value &get(const QString &text, Make &&make)
    {
        if (text.size() > longestText)
            return longText_.emplace(make(text));
        const auto known = values_.find(text);
        if (known != values_.end())
            return known->second;
        if (values_.size() >= mostTexts)
            values_.clear();
        return values_.emplace(text, make(text)).first->second;
    }

private:
    static constexpr std::size_t mostTexts = 4096;
    static constexpr qsizetype longestText = 64;

    struct Hash
    {
        std::size_t operator()(const QString &text) const
        {
            std::size_t hash = 14695981039346656037ull;
            for (const QChar character : text)
                hash = (hash ^ character.unicode()) * 1099511628211ull;
            return hash;
        }
    };

    std::unordered_map<QString, Value, Hash> values_;
    std::optional<Value> longText_;
};
