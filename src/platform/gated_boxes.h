// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/boxes.h"
#include "platform/file_dialogs.h"

class Gate;

/// Boxes that stand on the gate's stack. Once the window is to close none is shown any more, and each
/// question is answered as if with Esc; so is one that was open at that moment.
class GatedBoxes : public Boxes
{
public:
    GatedBoxes(Boxes &boxes, Gate &gate)
        : boxes_(boxes)
        , gate_(gate)
    {}

    Answer plainBox(Icon icon, const QString &title, const QString &text, Buttons buttons) override;
    int ShowMBox(const QString &prompt, bool show, int buttons, const QString &title,
                 BoxStyle style) override;
    int ShowInfoBox(const QString &prompt, BoxSign sign, const QString &title) override;
    QString ShowIBox(const QString &prompt, BoxStyle kind, const QString &defaultText, const QString &title,
                     int left, int top) override;
    QString ShowWordBox(const QString &prompt, BoxStyle kind, const QString &defaultText,
                        const QString &title, int left, int top) override;
    QString ShowEnterName(const QString &title) override;
    void ShowHighScores(const HighScoreSheet &sheet) override;
    void ShowBestTimes(const HighScoreSheet &sheet) override;

private:
    Boxes &boxes_;
    Gate &gate_;
};

/// The same for the file dialogs.
class GatedFileDialogs : public FileDialogs
{
public:
    GatedFileDialogs(FileDialogs &dialogs, Gate &gate)
        : dialogs_(dialogs)
        , gate_(gate)
    {}

    QStringList openFiles(const QString &title, const QString &folder, const QString &filter,
                          bool multiple) override;
    QString saveFile(const QString &title, const QString &folder, const QString &filter,
                     const QString &suffix, const SaveHints &hints) override;
    std::optional<Colour> chooseColour(const QString &title, Colour present) override;

private:
    FileDialogs &dialogs_;
    Gate &gate_;
};
