// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/gated_boxes.h"

#include "platform/gate.h"

namespace {

/// Asks while it may, and gives `otherwise` if the window is to close, or was asked to meanwhile.
template <typename Answer, typename Ask>
Answer askThroughGate(Gate &gate, const Answer &otherwise, const Ask &ask)
{
    const Gate::Passage open = gate.openBox();
    if (!open)
        return otherwise;
    const Answer answer = ask();
    return gate.isClosing() ? otherwise : answer;
}

constexpr int secondButton = 1;

} // namespace

Boxes::Answer GatedBoxes::plainBox(Icon icon, const QString &title, const QString &text, Buttons buttons)
{
    const Answer otherwise = buttons == Buttons::Ok      ? Answer::Ok
                             : buttons == Buttons::YesNo ? Answer::No
                                                         : Answer::Cancel;
    return askThroughGate(gate_, otherwise, [&] { return boxes_.plainBox(icon, title, text, buttons); });
}

int GatedBoxes::ShowMBox(const QString &prompt, bool show, int buttons, const QString &title, BoxStyle style)
{
    if (!show)
        return 0;
    return askThroughGate(gate_, secondButton,
                          [&] { return boxes_.ShowMBox(prompt, show, buttons, title, style); });
}

int GatedBoxes::ShowInfoBox(const QString &prompt, BoxSign sign, const QString &title)
{
    return askThroughGate(gate_, secondButton, [&] { return boxes_.ShowInfoBox(prompt, sign, title); });
}

QString GatedBoxes::ShowIBox(const QString &prompt, BoxStyle kind, const QString &defaultText,
                             const QString &title, int left, int top)
{
    return askThroughGate(gate_, QString(),
                          [&] { return boxes_.ShowIBox(prompt, kind, defaultText, title, left, top); });
}

QString GatedBoxes::ShowWordBox(const QString &prompt, BoxStyle kind, const QString &defaultText,
                                const QString &title, int left, int top)
{
    return askThroughGate(gate_, QString(),
                          [&] { return boxes_.ShowWordBox(prompt, kind, defaultText, title, left, top); });
}

QString GatedBoxes::ShowEnterName(const QString &title)
{
    return askThroughGate(gate_, QString(), [&] { return boxes_.ShowEnterName(title); });
}

void GatedBoxes::ShowHighScores(const HighScoreSheet &sheet)
{
    if (const Gate::Passage open = gate_.openBox())
        boxes_.ShowHighScores(sheet);
}

void GatedBoxes::ShowBestTimes(const HighScoreSheet &sheet)
{
    if (const Gate::Passage open = gate_.openBox())
        boxes_.ShowBestTimes(sheet);
}

QStringList GatedFileDialogs::openFiles(const QString &title, const QString &folder, const QString &filter,
                                        bool multiple)
{
    return askThroughGate(gate_, QStringList(),
                          [&] { return dialogs_.openFiles(title, folder, filter, multiple); });
}

QString GatedFileDialogs::saveFile(const QString &title, const QString &folder, const QString &filter,
                                   const QString &suffix, const SaveHints &hints)
{
    return askThroughGate(gate_, QString(),
                          [&] { return dialogs_.saveFile(title, folder, filter, suffix, hints); });
}

std::optional<Colour> GatedFileDialogs::chooseColour(const QString &title, Colour present)
{
    return askThroughGate(gate_, std::optional<Colour>(),
                          [&] { return dialogs_.chooseColour(title, present); });
}
