// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDialog>

/// The about window: name, version, what the program is, and the licences of what it is made of.
class fAbout : public QDialog
{
    Q_OBJECT

public:
    explicit fAbout(QWidget *parent = nullptr);
};
