// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/boxes.h"

#include <QPointer>

class QWidget;

/// The boxes that the program shows: each is made anew for its question, over the modal window that is
/// open or the main window.
class RealBoxes : public Boxes
{
public:
    explicit RealBoxes(QWidget *mainWindow = nullptr);
    ~RealBoxes() override;

    /// The window that boxes belong to while no modal one is open.
    void setMainWindow(QWidget *mainWindow) { mainWindow_ = mainWindow; }

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
    QWidget *owner() const;

    QPointer<QWidget> mainWindow_;
};

/// A text cut to what a plain message box can show on a small screen: at most a dozen lines, and long words
/// broken.
QString textForPlainBox(const QString &text);
