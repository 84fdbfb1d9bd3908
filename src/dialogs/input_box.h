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

/// The word box of the word list, "Wörterliste", on the blue gradient.
class frmChgCorrectWords : public InputBox
{
    Q_OBJECT

public:
    frmChgCorrectWords(const QString &prompt, const QString &defaultText, const QString &title,
                       QWidget *owner);

protected:
    void paintBackground(QPainter &painter) override;
};
