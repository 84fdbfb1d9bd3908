// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDialog>
#include <QHash>

class QGroupBox;
class QVBoxLayout;
struct Ground;
struct SettingRow;

/// The options window of the stem game: the editor of its rows of the settings' table. What it shows is what
/// the game reads, also before it is confirmed.
class frmKernlingOptions : public QDialog
{
    Q_OBJECT

public:
    explicit frmKernlingOptions(Ground &ground, QWidget *parent = nullptr);

    /// Loads the settings and shows the window modally. True if they were confirmed.
    bool edit();
    /// The group that rests while a game runs.
    QGroupBox *Frame1() const { return Frame1_; }

signals:
    void resetScores();

protected:
    void reject() override { cmdCancel_Click(); }

private:
    QVBoxLayout *makeGroup(const char *name, const QString &title);
    void addField(const SettingRow &row);
    void makeFoot();
    void cmdOK_Click();
    void cmdCancel_Click();
    void Command11_Click();
    bool apply();

    Ground &ground_;
    QGroupBox *Frame1_ = nullptr;
    QHash<QString, QVBoxLayout *> groups_;
};
