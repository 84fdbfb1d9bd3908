// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDialog>

class OptionsView;
struct Ground;

/// The options window: the only editor of the settings. Its controls show and change the run-time copy
/// `Options` at once, so that the rest of the program sees an edit before it is confirmed. It is made at the
/// start, stays hidden, and only its two buttons end it.
class frmOptions : public QDialog
{
    Q_OBJECT

public:
    enum class Scores { Klotar, Tonarin, Paarlon };

    explicit frmOptions(Ground &ground, QWidget *parent = nullptr);

    /// Loads the settings, remembers them and shows the window modally with the page last chosen. Returns
    /// when it is closed.
    void edit();
    void ShowProperFrame(const QString &name);

signals:
    void resetScores(frmOptions::Scores table);
    void registerFileType();
    void removeFileType();

protected:
    void closeEvent(QCloseEvent *event) override;
    /// The Escape key is the button "Abbrechen".
    void reject() override { cmdCancel_Click(); }

private:
    void connectButtons();
    void cmdOK_Click();
    void cmdCancel_Click();
    void Command2_Click();
    void Command3_Click();
    void Command4_Click();
    void Command5_Click();
    void Command6_Click();
    void Text2_OLEDragDrop(const QString &path);
    void apply();

    Ground &ground_;
    OptionsView *view_;
};
