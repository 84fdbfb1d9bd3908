// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

#include <stdexcept>

/// An error of the program's classic runtime: a number with its meaning. Procedures throw it where a step
/// cannot be done; `Procedure` logs it and goes on with the next step, since a fault must not stop the game
/// in front of a child.
class RuntimeError : public std::runtime_error
{
public:
    RuntimeError(int number, const QString &description)
        : std::runtime_error(description.toStdString())
        , number_(number)
        , description_(description)
    {}

    int number() const { return number_; }
    QString description() const { return description_; }

    static constexpr int InvalidCall = 5;
    static constexpr int Overflow = 6;
    static constexpr int OutOfMemory = 7; ///< also of a file that is too large to be read
    static constexpr int SubscriptOutOfRange = 9;
    static constexpr int DivisionByZero = 11;
    static constexpr int TypeMismatch = 13;
    static constexpr int BadFileName = 52;
    static constexpr int FileNotFound = 53;
    static constexpr int DiskFull = 61;
    static constexpr int PermissionDenied = 70;
    static constexpr int PathAccess = 75;
    static constexpr int PathNotFound = 76;
    static constexpr int DuplicateKey = 457;
    static constexpr int PrinterError = 482;

    /// The error `number` with its usual description ("Overflow", "File not found").
    static RuntimeError of(int number);

private:
    int number_;
    QString description_;
};
