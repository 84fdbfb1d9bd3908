// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

class Dropper;
class QWidget;
struct Ground;
struct MainControls;

/// Letters that are typed while the board or a tool has the keyboard belong to the word: they go on into the
/// word field, or into the search box while that is open. What comes in the middle of a work is written when
/// it has ended, if the field takes words then.
class JustType
{
public:
    JustType(Ground &ground, const MainControls &controls);

    /// True if letters are of no use to the control that has the keyboard: nullptr, the window, the board, a
    /// tool.
    bool isFree(const QWidget *focus) const;
    enum class Fate {
        NoLetters, ///< a blank, a control character
        NoField,   ///< the word field rests
        Taken,
    };
    /// Letters as a keyboard or an input method gives them.
    Fate type(const QString &letters);
    /// Gives the keyboard to the field that takes letters, if there is one.
    void takeFocus();

private:
    QWidget *field() const;
    void write(const QString &letters);

    Ground &ground_;
    const MainControls &controls_;
};
