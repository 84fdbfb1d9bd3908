// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "widgets/window_style.h"

#include <QDialog>
#include <QFormLayout>
#include <QLabel>
#include <QPushButton>
#include <QScreen>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace {

constexpr int buttonWidth = 96;

const QString groups = uR"(
QGroupBox { font-weight: bold; border: 1px solid #9cc3f5; border-radius: 6px; margin-top: 7px; padding: 6px 8px 3px 8px; }
QGroupBox::title { subcontrol-origin: margin; left: 10px; padding: 0 4px; color: #1a4f9c; }
)"_s;

} // namespace

void window_style::dress(QDialog &window)
{
    QPalette colours = window.palette();
    colours.setColor(QPalette::Window, paper);
    window.setPalette(colours);
    window.setStyleSheet(groupStyle());
    window.setModal(true);
}

QString window_style::groupStyle() { return groups; }

void window_style::fitToScreen(QWidget &window, QSize wished)
{
    // The frame that a window manager draws round the window needs room too.
    const QRect room = window.screen()->availableGeometry().adjusted(8, 16, -8, -16);
    const bool fits =
        window.testAttribute(Qt::WA_Resized) && room.size().boundedTo(window.size()) == window.size();
    if (!fits)
        window.resize(wished.boundedTo(room.size()));
    // A place that is given anew each time counts with the frame or without it, and the window wanders.
    if (!fits || !room.contains(window.geometry()))
        window.move(room.center() - window.rect().center());
}

void window_style::name(QWidget &control, const char *objectName, const QString &caption)
{
    control.setObjectName(QLatin1String(objectName));
    control.setAccessibleName(QString(caption).remove(u'&'));
}

void window_style::addRow(QFormLayout &form, const QString &caption, QWidget *control, const char *objectName)
{
    control->setObjectName(QLatin1String(objectName));
    if (caption.isEmpty()) {
        form.addRow(QString(), control);
        return;
    }
    name(*control, objectName, caption);
    form.addRow(caption, control);
}

QHBoxLayout *window_style::addFoot(QVBoxLayout &whole)
{
    auto *line = new QHBoxLayout;
    line->addStretch(1);
    whole.addLayout(line);
    return line;
}

QPushButton *window_style::addButton(QHBoxLayout &line, const QString &caption, const char *objectName)
{
    auto *button = new QPushButton(caption);
    name(*button, objectName, caption);
    button->setMinimumWidth(buttonWidth);
    button->setAutoDefault(false);
    line.addWidget(button);
    return button;
}
