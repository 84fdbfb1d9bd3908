// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "dialogs/score_table.h"

#include "platform/boxes.h"
#include "widgets/colour.h"

#include <QGridLayout>
#include <QLabel>

using namespace Qt::StringLiterals;

namespace {

constexpr int nameWidth = 260; ///< pixels
constexpr int cellMargin = 6;
constexpr QColor newEntry{0xFF, 0xF2, 0x9E};

void mark(QLabel *label)
{
    label->setAutoFillBackground(true);
    QPalette colours = label->palette();
    colours.setColor(QPalette::Window, newEntry);
    label->setPalette(colours);
}

} // namespace

QLabel *score_table::makeLabel(const QString &text, int pixels, bool bold, QWidget *parent)
{
    auto *label = new QLabel(text, parent);
    label->setTextFormat(Qt::PlainText);
    QFont letters = label->font();
    letters.setPixelSize(pixels);
    letters.setBold(bold);
    label->setFont(letters);
    QPalette colours = label->palette();
    colours.setColor(QPalette::WindowText, paint::ink);
    label->setPalette(colours);
    return label;
}

QGridLayout *score_table::make(const HighScoreSheet &sheet, const Names &names, int pixels, QWidget *parent)
{
    auto *table = new QGridLayout;
    table->setSpacing(0);
    for (int place = 1; place <= sheet.rows.size(); ++place) {
        const auto &[name, score] = sheet.rows.at(place - 1);
        const bool isNew = place == sheet.place;
        const QString number = QString::number(place);
        QLabel *rank = makeLabel(number + QString::fromUtf16(names.rankEnd), pixels, isNew, parent);
        QLabel *who = makeLabel({}, pixels, isNew, parent);
        QLabel *points = makeLabel(score, pixels, isNew, parent);
        who->setText(
            who->fontMetrics().elidedText(name.simplified(), Qt::ElideRight, nameWidth - 2 * cellMargin));
        who->setFixedWidth(nameWidth);
        rank->setObjectName(QString::fromUtf16(names.rank).arg(place - 1));
        who->setObjectName(QString::fromUtf16(names.name).arg(place - names.less));
        points->setObjectName(QString::fromUtf16(names.score).arg(place - names.less));
        rank->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
        points->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
        QLabel *const cells[] = {rank, who, points};
        for (int column = 0; column < 3; ++column) {
            cells[column]->setContentsMargins(cellMargin, 1, cellMargin, 1);
            if (isNew)
                mark(cells[column]);
            table->addWidget(cells[column], place - 1, column);
        }
    }
    return table;
}
