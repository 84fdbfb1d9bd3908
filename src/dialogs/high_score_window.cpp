// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "dialogs/high_score_window.h"

#include "dialogs/score_table.h"
#include "platform/boxes.h"
#include "widgets/gradient.h"

#include <QGridLayout>
#include <QLabel>

using namespace Qt::StringLiterals;

namespace {

constexpr int headingSize = 26; ///< pixels, the letters
constexpr int rowSize = 16;
constexpr int resultSize = 18;

constexpr score_table::Names names{u"LblRank(%1)", u"LblName(%1)", u"LblScore(%1)", 1, u"."};

} // namespace

frmHighScore::frmHighScore(const HighScoreSheet &sheet, QWidget *owner)
    : ScoreWindow(sheet, owner)
{
    setObjectName(u"frmHighScore"_s);
    // No close item in the title: the button ends the window.
    setWindowFlags(Qt::Dialog | Qt::CustomizeWindowHint | Qt::WindowTitleHint);

    column()->setSpacing(6);
    QLabel *heading = score_table::makeLabel(sheet.heading, headingSize, true, panel());
    heading->setObjectName(u"Label1"_s);
    column()->addWidget(heading, 0, Qt::AlignHCenter);

    column()->addLayout(score_table::make(sheet, names, rowSize, panel()));

    QLabel *result = score_table::makeLabel(sheet.result, resultSize, true, panel());
    result->setObjectName(u"Label2"_s);
    result->setAlignment(Qt::AlignHCenter);
    result->setVisible(!sheet.result.isEmpty());
    column()->addWidget(result);

    finish();
}
