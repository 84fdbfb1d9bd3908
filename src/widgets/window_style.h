// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QColor>
#include <QSize>
#include <QString>

class QDialog;
class QFormLayout;
class QHBoxLayout;
class QPushButton;
class QVBoxLayout;
class QWidget;

/// What the program's larger windows have in common.
namespace window_style {

inline constexpr QColor paper{234, 243, 255};

/// Paper colour and framed groups; modal.
void dress(QDialog &window);
/// The style of framed groups, for a window with a style of its own.
QString groupStyle();
/// Gives the window its wished size, or what the screen has room for, and puts it into the middle. One that a
/// user has moved or sized stays as it is, if it still fits.
void fitToScreen(QWidget &window, QSize wished);
/// Gives a control its object name and its caption as accessible name.
void name(QWidget &control, const char *objectName, const QString &caption);
/// A control on a line of its own, behind its caption. An empty one leaves the control its own.
void addRow(QFormLayout &form, const QString &caption, QWidget *control, const char *objectName);
/// The line of buttons at the end of a window.
QHBoxLayout *addFoot(QVBoxLayout &whole);
QPushButton *addButton(QHBoxLayout &line, const QString &caption, const char *objectName);

} // namespace window_style
