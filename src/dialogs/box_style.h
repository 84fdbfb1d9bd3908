// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/box_kinds.h"
#include "widgets/colour.h"
#include "widgets/gradient.h"

#include <QColor>
#include <QString>

#include <array>
#include <optional>

/// How the boxes look, as tables: the colours of the kinds of tiles, the kinds and codes that callers pass.
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
    BoxStyle style;
    Colours colours;
};

inline constexpr std::array styles{
    StyleRow{BoxStyle::Prefix, prefix}, StyleRow{BoxStyle::Wortel, wortel},
    StyleRow{BoxStyle::Suffix, suffix}, StyleRow{BoxStyle::HiScore, highScore},
    StyleRow{BoxStyle::Retype, notice}, StyleRow{BoxStyle::Confirm, notice},
};

struct ButtonsRow
{
    int code;
    const char16_t *first;
    const char16_t *second; ///< nullptr: only one button
};

inline constexpr std::array buttons{
    ButtonsRow{0, u"OK", nullptr},
    ButtonsRow{3, u"OK", u"Abbrechen"},
    ButtonsRow{4, u"Yes", u"No"},
    ButtonsRow{6, u"Exit", u"No way !"},
    ButtonsRow{8, u"Save", u"Don't Save"},
    ButtonsRow{9, u"Load", u"Don't Load"},
    ButtonsRow{10, u"Einpassen", u"So lassen"},
};

struct SignRow
{
    BoxSign sign;
    const char16_t *control;
    const char16_t *picture;
};

inline constexpr std::array signs{
    SignRow{BoxSign::Smiley, u"Image1", u":/icons/smiley.svg"},
    SignRow{BoxSign::Write, u"Image2", u":/icons/write.svg"},
    SignRow{BoxSign::Info, u"Image3", u":/icons/information.svg"},
};

/// The colours of a style; `Plain` keeps the form's own.
inline Colours coloursOf(BoxStyle style)
{
    for (const StyleRow &row : styles)
        if (row.style == style)
            return row.colours;
    return plain;
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

/// What shows the sign, if there is one.
inline std::optional<SignRow> signOf(BoxSign sign)
{
    for (const SignRow &row : signs)
        if (row.sign == sign)
            return row;
    return std::nullopt;
}

} // namespace boxstyle
