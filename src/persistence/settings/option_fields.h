// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/settings_table.h"
#include "widgets/window_style.h"

#include <QCheckBox>
#include <QColor>
#include <QRadioButton>

class Options;
class QLineEdit;

/// What a text box needs to take numbers only and to show that it has the focus: a mask that drops what is no
/// number while it is typed, and four colours.
class clsTextBox : public QObject
{
    Q_OBJECT

public:
    using Mask = QString (*)(const QString &text, int *caret);

    /// `mask` may be nullptr: the box takes any text.
    clsTextBox(QLineEdit *box, Mask mask);

    bool pAllowColorChange = true;
    QColor pBackColor_GotFocus;
    QColor pForeColor_GotFocus;
    QColor pBackColor_Normal = window_style::paper;
    QColor pForeColor_Normal;

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void filter();
    void paintBox(const QColor &back, const QColor &text);

    QLineEdit *box_;
    Mask mask_;
    bool filtering_ = false;
};

/// A check box or option button whose caption wraps, so that the longest sentence is whole on the smallest
/// screen.
template <typename Button> class WrappingButton : public Button
{
public:
    explicit WrappingButton(const QString &caption, QWidget *parent = nullptr);

    bool hasHeightForWidth() const override { return true; }
    int heightForWidth(int width) const override;
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    bool hitButton(const QPoint &position) const override { return this->rect().contains(position); }
    void paintEvent(QPaintEvent *event) override;

private:
    int indicatorWidth() const;
};

using CaptionCheck = WrappingButton<QCheckBox>;
using CaptionOption = WrappingButton<QRadioButton>;

/// Makes the control of a settings row as a child of `parent` and binds it both ways: an edit goes to
/// `options`, a value that changes there is shown.
QWidget *makeOptionField(const SettingRow &row, Options &options, QWidget *parent);
