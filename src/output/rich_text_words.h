// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArrayView>
#include <QChar>

#include <algorithm>
#include <array>

/// The control words of Rich Text Format that matter to a reader who wants the letters alone.
namespace rich_text {

struct WordRow
{
    enum class Effect {
        Character, ///< stands for one
        Skip,      ///< the group is no text
        Unicode,
        Fallbacks,
        Binary, ///< so many bytes follow that are anything
        Hidden,
        Plain,
        Page,
    };
    QByteArrayView name;
    Effect effect;
    char16_t character = 0;
};

inline constexpr int largestNumber = 100'000'000;

inline constexpr bool isLetter(char c) { return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z'); }
inline constexpr bool isDigit(char c) { return c >= '0' && c <= '9'; }
/// The value of a digit to the base 16, or -1.
inline constexpr int hexDigit(char c)
{
    if (isDigit(c))
        return c - '0';
    const char small = static_cast<char>(c | 0x20);
    return small >= 'a' && small <= 'f' ? small - 'a' + 10 : -1;
}

using Effect = WordRow::Effect;

// clang-format off
inline constexpr std::array words{
    WordRow{"par", Effect::Character, u'\n'},
    WordRow{"line", Effect::Character, u'\n'},
    WordRow{"sect", Effect::Character, u'\n'},
    WordRow{"page", Effect::Character, u'\n'},
    WordRow{"column", Effect::Character, u'\n'},
    WordRow{"row", Effect::Character, u'\n'},
    WordRow{"nestrow", Effect::Character, u'\n'},
    WordRow{"tab", Effect::Character, u'\t'},
    WordRow{"cell", Effect::Character, u'\t'},
    WordRow{"nestcell", Effect::Character, u'\t'},
    WordRow{"lquote", Effect::Character, u'\u2018'},
    WordRow{"rquote", Effect::Character, u'\u2019'},
    WordRow{"ldblquote", Effect::Character, u'\u201C'},
    WordRow{"rdblquote", Effect::Character, u'\u201D'},
    WordRow{"bullet", Effect::Character, u'\u2022'},
    WordRow{"endash", Effect::Character, u'\u2013'},
    WordRow{"emdash", Effect::Character, u'\u2014'},
    WordRow{"emspace", Effect::Character, u' '},
    WordRow{"enspace", Effect::Character, u' '},
    WordRow{"u", Effect::Unicode},
    WordRow{"uc", Effect::Fallbacks},
    WordRow{"bin", Effect::Binary},
    WordRow{"v", Effect::Hidden},
    WordRow{"plain", Effect::Plain},
    WordRow{"ansicpg", Effect::Page},
    WordRow{"fonttbl", Effect::Skip},
    WordRow{"colortbl", Effect::Skip},
    WordRow{"stylesheet", Effect::Skip},
    WordRow{"listtable", Effect::Skip},
    WordRow{"listoverridetable", Effect::Skip},
    WordRow{"revtbl", Effect::Skip},
    WordRow{"filetbl", Effect::Skip},
    WordRow{"info", Effect::Skip},
    WordRow{"pict", Effect::Skip},
    WordRow{"nonshppict", Effect::Skip},
    WordRow{"objclass", Effect::Skip},
    WordRow{"objname", Effect::Skip},
    WordRow{"objdata", Effect::Skip},
    WordRow{"fldinst", Effect::Skip},
    WordRow{"pntext", Effect::Skip},
    WordRow{"listtext", Effect::Skip},
    WordRow{"header", Effect::Skip},
    WordRow{"headerl", Effect::Skip},
    WordRow{"headerr", Effect::Skip},
    WordRow{"headerf", Effect::Skip},
    WordRow{"footer", Effect::Skip},
    WordRow{"footerl", Effect::Skip},
    WordRow{"footerr", Effect::Skip},
    WordRow{"footerf", Effect::Skip},
    WordRow{"footnote", Effect::Skip},
    WordRow{"annotation", Effect::Skip},
    WordRow{"bkmkstart", Effect::Skip},
    WordRow{"bkmkend", Effect::Skip},
    WordRow{"xe", Effect::Skip},
    WordRow{"tc", Effect::Skip},
    WordRow{"txe", Effect::Skip},
    WordRow{"rxe", Effect::Skip},
};
// clang-format on

/// The row of a word, or nullptr for one that does not matter.
inline const WordRow *find(QByteArrayView name)
{
    const auto *const row =
        std::find_if(words.begin(), words.end(), [&](const WordRow &one) { return one.name == name; });
    return row == words.end() ? nullptr : row;
}

} // namespace rich_text
