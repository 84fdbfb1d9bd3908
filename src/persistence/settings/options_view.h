// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/settings_table.h"

#include <QHash>
#include <QWidget>

class GradientPanel;
class Options;
class QButtonGroup;
class QGridLayout;
class QHBoxLayout;
class QLabel;
class QPushButton;
class QStackedWidget;
class QVBoxLayout;

/// The face of the options window: left bar, banner, six pages of frames with the controls that the settings'
/// table names, and the buttons. It lays out and binds; what a button does is told elsewhere.
class OptionsView : public QWidget
{
    Q_OBJECT

public:
    explicit OptionsView(Options &options, QWidget *parent = nullptr);

    /// Shows the page with that object name ("FrameSpielen") and its caption in the banner. An unknown name
    /// changes nothing.
    void ShowProperFrame(const QString &name);
    QString shownFrame() const;
    QWidget *field(Setting id) const { return fields_.value(id); }
    /// A push button by its object name ("Command3", "cmdOK").
    QPushButton *button(const QString &name) const { return buttons_.value(name); }

private:
    QWidget *makeBar();
    QWidget *makeBanner();
    QWidget *makeFoot();
    QWidget *makePage(const QString &name);
    void makeFrames();
    void addField(const SettingRow &row);
    void addText(const SettingRow &row, QWidget *text);
    void addBeside(const SettingRow &row, QWidget *control);
    void addButtons();
    QHBoxLayout *newLine(const QString &frame);
    QPushButton *makeButton(const QString &name, const QString &caption, const QString &tip, QWidget *parent);
    void closeFrames();

    Options &options_;
    QLabel *lblSelected_ = nullptr;
    QStackedWidget *pages_ = nullptr;
    QButtonGroup *barMain_ = nullptr;
    QHash<QString, QGridLayout *> columns_; ///< a page's two columns
    QHash<QString, QVBoxLayout *> frames_;  ///< a frame's lines, one under the other
    QHash<Setting, QWidget *> fields_;
    QHash<Setting, QHBoxLayout *> lines_; ///< the line on which a setting's control stands
    QHash<QString, QPushButton *> buttons_;
};
