// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

class RuntimeError;
struct KernlingDesk;
struct PageText;

/// The text's way into the window: a file that is chosen or dropped, and its division into single words.
class TextSource
{
public:
    explicit TextSource(KernlingDesk &desk)
        : desk_(desk)
    {}

    /// "Text auswählen": asks for a file and loads it.
    void Command5_Click();
    /// Loads a file (stored path) as if it had been chosen. One that gives no text leaves the old one.
    void load(const QString &path);
    /// Replaces the text by its words of that length, each once; 0 takes all. A cancel leaves the text,
    /// and so does a text without such words.
    void GetWordsFromText(int wordLength);
    /// "Löschen": empties the text.
    void Command4_Click();

private:
    bool readInto(PageText &text, const QString &path);
    void complain(const QString &path, const RuntimeError &error, unsigned line);
    void takeStemsFor(const QString &path);

    KernlingDesk &desk_;
};
