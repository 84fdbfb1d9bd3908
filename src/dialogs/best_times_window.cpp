// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "dialogs/best_times_window.h"

#include "dialogs/score_table.h"
#include "platform/boxes.h"
#include "widgets/gradient.h"

#include <QGridLayout>
#include <QLabel>
#include <QListWidget>

using namespace Qt::StringLiterals;

namespace {

// Pixels
constexpr int rowSize = 18;
constexpr int encourageSize = 18;
constexpr int encourageWidth = 290;
constexpr int side = 22;

constexpr score_table::Names names{u"Label1(%1)", u"lblName(%1)", u"lblScore(%1)", 0, u""};

} // namespace

frmBestTimes::frmBestTimes(const HighScoreSheet &sheet, QWidget *owner)
    : ScoreWindow(sheet, owner)
{
    setObjectName(u"frmBestTimes"_s);

    auto *middle = new QHBoxLayout;
    middle->setSpacing(side);
    middle->addLayout(score_table::make(sheet, names, rowSize, panel()));
    QLabel *encourage = score_table::makeLabel(sheet.result, encourageSize, true, panel());
    encourage->setObjectName(u"lblEncourage"_s);
    encourage->setAlignment(Qt::AlignCenter);
    encourage->setWordWrap(true);
    encourage->setFixedWidth(encourageWidth);
    encourage->setVisible(!sheet.result.isEmpty());
    middle->addWidget(encourage);

    // The rows once more as lines of text; never seen.
    auto *List1 = new QListWidget(panel());
    List1->setObjectName(u"List1"_s);
    List1->hide();
    for (int row = 0; row < sheet.rows.size(); ++row)
        List1->addItem(QString::number(row + 1) + u".\t"_s + sheet.rows.at(row).second + u'\t' +
                       sheet.rows.at(row).first);

    column()->setSpacing(12);
    column()->addLayout(middle);
    finish();
}
