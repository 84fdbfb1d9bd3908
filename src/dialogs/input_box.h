// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "dialogs/box_window.h"

class QLineEdit;

/// A box with a prompt and one line to type in. Enter in the line and button 0 accept what is typed; Esc, the
/// other button and the window system's closing give the empty string.
class InputBox : public BoxWindow
{
    Q_OBJECT

public:
    InputBox(const boxstyle::Colours &colours, const QString &title, const QString &prompt,
             const QString &defaultText, QWidget *owner);

    /// Shows the box as `BoxWindow::ask` does and returns the entry.
    QString askText(std::optional<QPoint> corner = std::nullopt);

protected:
    QLineEdit *Text1() const { return Text1_; }
    /// "OK" and "Abbrechen".
    void addOkAndCancel();

private:
    QLineEdit *Text1_;
};

/// The input box for a tile's text, in the colours of the tile's kind: 1 prefix, 2 Wortel, 3 suffix.
class IBox : public InputBox
{
    Q_OBJECT

public:
    IBox(const QString &prompt, BoxStyle kind, const QString &defaultText, const QString &title,
         QWidget *owner);
};

/// An input box on the blue gradient.
class GradientInputBox : public InputBox
{
    Q_OBJECT

public:
    GradientInputBox(const QString &title, const QString &prompt, const QString &defaultText, QWidget *owner);

protected:
    void paintBackground(QPainter &painter) override;
};

/// The word box of the word list, "Wörterliste".
class frmChgCorrectWords : public GradientInputBox
{
    Q_OBJECT

public:
    frmChgCorrectWords(const QString &prompt, const QString &defaultText, const QString &title,
                       QWidget *owner);
};

/// The window for the name of one who has a place among the best. It cannot be refused.
class frmEnterName : public GradientInputBox
{
    Q_OBJECT

public:
    /// `longestName`: letters that can be typed.
    static constexpr int longestName = 40;

    frmEnterName(const QString &title, QWidget *owner);

    /// What was typed, however the window was left.
    QString askName();

protected:
    void showEvent(QShowEvent *event) override;
};
