// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QStringList>

#include <cstdint>
#include <optional>

/// The message of the link between two starts of the program: the length of the rest as four bytes, most
/// significant first, and the arguments in UTF-8 with a NUL between two. This type puts one together from the
/// pieces in which it arrives.
class LinkMessage
{
public:
    static constexpr qsizetype headerSize = 4;              ///< bytes
    static constexpr std::uint32_t largestText = 64 * 1024; ///< bytes of all arguments

    enum class State : std::uint8_t {
        Incomplete, ///< more has to come
        Whole,      ///< `arguments` is the message
        Broken      ///< it can never become a message; what comes further is not looked at
    };

    /// The bytes of a message, or nothing if it is too large.
    static std::optional<QByteArray> encode(const QStringList &arguments);

    /// Takes the next bytes. A byte behind the whole message breaks it too.
    State take(const QByteArray &bytes);

    State state() const { return state_; }
    /// The arguments of a whole message.
    QStringList arguments() const { return arguments_; }

private:
    State judge();

    QByteArray bytes_;
    QStringList arguments_;
    State state_ = State::Incomplete;
};
