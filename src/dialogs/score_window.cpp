// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "dialogs/score_window.h"

#include "platform/boxes.h"
#include "widgets/gradient.h"

#include <QPushButton>
#include <QVBoxLayout>

namespace {

constexpr int side = 22; ///< pixels
constexpr QSize buttonSize(110, 34);

} // namespace

ScoreWindow::ScoreWindow(const HighScoreSheet &sheet, QWidget *owner)
    : QDialog(owner)
    , panel_(new GradientPanel(this))
    , column_(new QVBoxLayout(panel_))
{
    setWindowTitle(sheet.title);
    setModal(true);
    column_->setContentsMargins(side, 12, side, 12);
}

void ScoreWindow::finish()
{
    auto *close = new QPushButton(QStringLiteral("OK"), panel_);
    close->setObjectName(QStringLiteral("cmdOK"));
    close->setMinimumSize(buttonSize);
    close->setDefault(true);
    connect(close, &QPushButton::clicked, this, &QDialog::accept);
    column_->addWidget(close, 0, Qt::AlignHCenter);
    auto *whole = new QVBoxLayout(this);
    whole->setContentsMargins(0, 0, 0, 0);
    whole->addWidget(panel_);
    whole->setSizeConstraint(QLayout::SetFixedSize);
}

void ScoreWindow::showEvent(QShowEvent *event)
{
    QDialog::showEvent(event);
    // Without a window manager nobody else gives the keyboard to a new window.
    activateWindow();
}
