// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDialog>

class QGridLayout;
class QPushButton;
struct Ground;

/// "Vokale anhören": the sounds of all vowels and of an example word for each, short ones apart from long
/// ones. The one that was pressed last keeps a mark.
class FrmPlayVokal : public QDialog
{
    Q_OBJECT

public:
    FrmPlayVokal(const Ground &ground, QWidget *owner);

private:
    QWidget *makeGroup(const QString &title, bool longOnes);
    QPushButton *makeLabel(const char16_t *file, const QString &caption, bool isWord);
    void LblPlaySound_Click(QPushButton *label, const QString &file);

    const Ground &ground_;
    int count_ = 0; ///< labels made so far
};
