// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QString>

#include <cstdint>
#include <optional>

/// The message of the link between two starts of the program: the length of the text as four bytes, most
/// significant first, and as many bytes of UTF-8. This type puts one together from the pieces in which it
/// arrives.
class LinkMessage
{
public:
    static constexpr qsizetype headerSize = 4;              ///< bytes
    static constexpr std::uint32_t largestText = 64 * 1024; ///< bytes

    enum class State : std::uint8_t {
        Incomplete, ///< more has to come
        Whole,      ///< `text` is the message
        Broken      ///< it can never become a message; what comes further is not looked at
    };

    /// The bytes of a message, or nothing if the text is too large.
    static std::optional<QByteArray> encode(const QString &text);

    /// Takes the next bytes. A byte behind the whole message breaks it too.
    State take(const QByteArray &bytes);

    State state() const { return state_; }
    /// The text of a whole message.
    QString text() const { return text_; }

private:
    State judge();

    QByteArray bytes_;
    QString text_;
    State state_ = State::Incomplete;
};
