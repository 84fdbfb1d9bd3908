// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/box_kinds.h"

#include <QList>
#include <QString>

#include <utility>

/// What the window of a score list shows.
struct HighScoreSheet
{
    QString title;
    QString heading;                         ///< the game's name
    QString result;                          ///< of the game that is just over, or empty
    QList<std::pair<QString, QString>> rows; ///< name and score, place 1 first
    int place = 0;                           ///< of the new entry, 1 the first; 0 if there is none
};

/// The seam of everything that asks or tells the user something in a box of its own. The program gives the
/// rooms the real boxes, a test its own, which answers from a queue and fails on a question it did not
/// expect.
class Boxes
{
public:
    virtual ~Boxes() = default;

    enum class Icon { Information, Warning, Critical, Question };
    enum class Buttons { Ok, OkCancel, YesNo, YesNoCancel };
    enum class Answer { Ok, Yes, No, Cancel };

    /// The platform's plain message box: start-up paths, file and printer errors, the export dialog's checks.
    virtual Answer plainBox(Icon icon, const QString &title, const QString &text,
                            Buttons buttons = Buttons::Ok) = 0;

    /// The question box `MBox`. Returns the index of the pressed button, 0 for the first, 1 for the second; 0
    /// at once if `show` is false. Callers treat anything but 1 as go on. `buttons` is a code: 0 OK, 3
    /// OK/Abbrechen, 4 Yes/No, 6, 8, 9, 10 Einpassen/So lassen.
    virtual int ShowMBox(const QString &prompt, bool show, int buttons, const QString &title,
                         BoxStyle style) = 0;
    /// The question box with OK and Abbrechen: true unless it was refused, at once if `show` is false.
    bool agrees(const QString &question, const QString &title, BoxStyle style = BoxStyle::Confirm,
                bool show = true)
    {
        constexpr int okAndCancel = 3;
        constexpr int refused = 1;
        return ShowMBox(question, show, okAndCancel, title, style) != refused;
    }
    /// The notice box `frmMboxRetype`. Returns 0 if it was closed with Enter or a click, 1 with Esc.
    virtual int ShowInfoBox(const QString &prompt, BoxSign sign, const QString &title) = 0;
    /// The input box `IBox`: what was typed, or the empty string.
    /// `left`, `top` in pixels of the screen, or negative for the middle of the screen.
    virtual QString ShowIBox(const QString &prompt, BoxStyle kind, const QString &defaultText,
                             const QString &title, int left = -1, int top = -1) = 0;
    /// The word box `frmChgCorrectWords`, with the same arguments.
    virtual QString ShowWordBox(const QString &prompt, BoxStyle kind, const QString &defaultText,
                                const QString &title, int left = -1, int top = -1) = 0;

    /// The window `frmEnterName`, which congratulates: what was typed, or the empty string.
    virtual QString ShowEnterName(const QString &title) = 0;
    /// The window `frmHighScore`, until it is closed.
    virtual void ShowHighScores(const HighScoreSheet &sheet) = 0;
    /// The window `frmBestTimes` of the card game, until it is closed.
    virtual void ShowBestTimes(const HighScoreSheet &sheet) = 0;
};
