// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

class QDialog;
class QFormLayout;
class QHBoxLayout;
class QPushButton;
class QVBoxLayout;
class QWidget;

/// What the windows of this room have in common.
namespace window_style {

/// Paper colour, framed groups, no help button.
void dress(QDialog &window);
/// Gives a control its object name and its caption as accessible name.
void name(QWidget &control, const char *objectName, const QString &caption);
/// A control on a line of its own, behind its caption. An empty one leaves the control its own.
void addRow(QFormLayout &form, const QString &caption, QWidget *control, const char *objectName);
/// The line of buttons at the end of a window.
QHBoxLayout *addFoot(QVBoxLayout &whole);
QPushButton *addButton(QHBoxLayout &line, const QString &caption, const char *objectName);

} // namespace window_style
