// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>

#include <array>

/// What reads bytes that somebody else may have written, each as one function that takes any bytes at all. It
/// ends the program where a reader breaks a promise; a crash or a sanitizer's complaint ends it too. The
/// fuzzer calls them with bytes of its own, the corpus test with the committed ones.
namespace fuzz {

void backup(const QByteArray &bytes);
void ini(const QByteArray &bytes);
void link(const QByteArray &bytes);
void list(const QByteArray &bytes);
void page(const QByteArray &bytes);
void picture(const QByteArray &bytes);
void session(const QByteArray &bytes);
void settings(const QByteArray &bytes);
void text(const QByteArray &bytes);

struct Target
{
    const char *name; ///< of the folder with its corpus, too
    void (*run)(const QByteArray &bytes);
};

inline constexpr std::array<Target, 9> targets{{
    {"backup", backup},
    {"ini", ini},
    {"link", link},
    {"list", list},
    {"page", page},
    {"picture", picture},
    {"session", session},
    {"settings", settings},
    {"text", text},
}};

/// Ends the program with a line that says what was promised.
void promise(bool kept, const char *what);

/// The bytes as a file: its stored path. The next call replaces it.
QString asFile(const QByteArray &bytes);
/// A path beside that file, at which nothing stands.
QString freshFile();

} // namespace fuzz
