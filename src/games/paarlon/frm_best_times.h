// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDialog>

class QLabel;
class QVBoxLayout;
class TopTen;
struct MemoryKind;

/// The list of the ten best of one kind of card game, with what is said to the winner.
class frmBestTimes : public QDialog
{
    Q_OBJECT

public:
    frmBestTimes(const QString &message, const MemoryKind &kind, const TopTen &list, QWidget *owner);

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    QWidget *makePlaces(const TopTen &list);
    QLabel *makeLabel(const QString &name, const QString &text, int letters, bool bold);
};
