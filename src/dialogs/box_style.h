// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "widgets/colour.h"
#include "widgets/gradient.h"

#include <QColor>
#include <QString>

#include <array>
#include <optional>

/// How the boxes look, as tables: the colours of the kinds of tiles, the words and codes that callers pass.
namespace boxstyle {

struct Colours
{
    QColor window;
    QColor text;
    QColor frame;
    QColor button; ///< face of the drawn buttons
    QColor buttonText;
};

inline constexpr QColor yellow = toQColor(colours::prefixBack);
inline constexpr QColor red = toQColor(colours::wortelBack);
inline constexpr QColor blue = toQColor(colours::suffixBack);
inline constexpr QColor white = toQColor(colours::white);
inline constexpr QColor black = toQColor(colours::black);

inline constexpr Colours plain{{0xF0, 0xF0, 0xF0}, black, {0x70, 0x70, 0x70}, paint::face, black};
inline constexpr Colours prefix{yellow, blue, {0xC8, 0xA4, 0x00}, paint::face, blue};
inline constexpr Colours wortel{red, white, {0x96, 0x00, 0x00}, paint::face, {0xB0, 0x00, 0x00}};
inline constexpr Colours suffix{blue, yellow, {0x00, 0x00, 0x8C}, yellow, blue};
inline constexpr Colours notice{white, blue, gradient::from, paint::face, blue};
inline constexpr Colours highScore{white, black, {0x40, 0x40, 0x40}, paint::face, black};

struct StyleRow
{
    const char16_t *word;
    Colours colours;
};

inline constexpr std::array styles{
    StyleRow{u"PREFIX", prefix},     StyleRow{u"WORTEL", wortel}, StyleRow{u"SUFFIX", suffix},
    StyleRow{u"HISCORE", highScore}, StyleRow{u"RETYPE", notice}, StyleRow{u"CONFIRM", notice},
};

struct ButtonsRow
{
    int code;
    const char16_t *first;
    const char16_t *second; ///< nullptr: only one button
};

inline constexpr std::array buttons{
    ButtonsRow{0, u"OK", nullptr},         ButtonsRow{3, u"OK", u"Abbrechen"},
    ButtonsRow{4, u"Yes", u"No"},          ButtonsRow{6, u"Exit", u"No way !"},
    ButtonsRow{8, u"Save", u"Don't Save"}, ButtonsRow{9, u"Load", u"Don't Load"},
};

struct SignRow
{
    const char16_t *word;
    const char16_t *control;
    const char16_t *picture;
};

inline constexpr std::array signs{
    SignRow{u"SMILEY", u"Image1", u":/icons/smiley.svg"},
    SignRow{u"WRITE", u"Image2", u":/icons/write.svg"},
    SignRow{u"INFO", u"Image3", u":/icons/information.svg"},
};

/// The colours of a style word; an unknown word keeps the form's own.
inline Colours coloursOf(const QString &style)
{
    for (const StyleRow &row : styles) {
        if (style == QStringView(row.word))
            return row.colours;
    }
    return plain;
}

/// The colours of a kind code: 1 prefix, 2 Wortel, 3 suffix, else the form's own.
inline Colours coloursOf(int kind)
{
    static constexpr std::array kinds{plain, prefix, wortel, suffix};
    return kind >= 1 && kind <= 3 ? kinds[static_cast<std::size_t>(kind)] : plain;
}

/// The captions of a button code; an unknown code has the one button of code 0.
inline ButtonsRow buttonsOf(int code)
{
    for (const ButtonsRow &row : buttons) {
        if (row.code == code)
            return row;
    }
    return buttons.front();
}

/// The sign of a style word, if there is one.
inline std::optional<SignRow> signOf(const QString &style)
{
    for (const SignRow &row : signs) {
        if (style == QStringView(row.word))
            return row;
    }
    return std::nullopt;
}

} // namespace boxstyle
