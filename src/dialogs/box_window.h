// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "dialogs/box_style.h"

#include <QDialog>
#include <QPoint>

class ClickLabel;
class PressButton;
class QHBoxLayout;
class QLabel;
class QScrollArea;
class QVBoxLayout;
class WrappedText;

/// What all boxes have in common: a frameless modal window with a frame, a title strip and a message that the
/// box grows with, as far as the screen reaches; beyond that the message scrolls, so that the buttons are
/// always on the screen. Strip and message move the window. The answer is the index of a button: Enter gives
/// 0, Esc 1, and so does whatever else makes the box go.
class BoxWindow : public QDialog
{
    Q_OBJECT

public:
    BoxWindow(const boxstyle::Colours &colours, const QString &title, const QString &prompt, QWidget *owner);
    ~BoxWindow() override;

    /// Shows the box modally, in the middle of the owner's screen or with its top left corner at `corner`
    /// (screen pixels), moved so far that it is whole on the screen. Returns the answer.
    int ask(std::optional<QPoint> corner = std::nullopt);

    void done(int answer) override;
    void reject() override { done(escaped); }

protected:
    static constexpr int escaped = 1;

    /// Adds a drawn button to the row under the message; its press is the answer `index`.
    PressButton *addButton(const QString &caption, int index);
    /// Puts a widget beside the message.
    void addSign(QWidget *sign);
    /// Puts a widget between message and buttons.
    void addEntry(QWidget *entry);
    void setMessageAlignment(Qt::Alignment alignment);
    const boxstyle::Colours &colours() const { return colours_; }
    WrappedText *message() const { return Label2_; }

    void keyPressEvent(QKeyEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void showEvent(QShowEvent *event) override;
    /// Paints what lies behind frame and strip.
    virtual void paintBackground(QPainter &painter);

private:
    void growWithText(const QRect &screen);
    void scroll(int key);

    boxstyle::Colours colours_;
    QWidget *owner_;
    QLabel *Label3_;
    WrappedText *Label2_;
    QScrollArea *Pic1_;
    QVBoxLayout *column_;
    QHBoxLayout *middle_;
    QHBoxLayout *buttons_;
    int signWidth_ = 0;
    int answer_ = escaped;
};
