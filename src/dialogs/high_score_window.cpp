// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "dialogs/high_score_window.h"

#include "platform/boxes.h"
#include "widgets/colour.h"
#include "widgets/gradient.h"

#include <QGridLayout>
#include <QLabel>
#include <QPushButton>

using namespace Qt::StringLiterals;

namespace {

constexpr int headingSize = 26; ///< pixels, the letters
constexpr int rowSize = 16;
constexpr int resultSize = 18;
constexpr int nameWidth = 260; ///< pixels
constexpr int side = 22;

QLabel *label(const QString &text, int pixels, bool bold, QWidget *parent)
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

/// The new entry stands out.
void mark(QLabel *label)
{
    label->setAutoFillBackground(true);
    QPalette colours = label->palette();
    colours.setColor(QPalette::Window, QColor(0xFF, 0xF2, 0x9E));
    label->setPalette(colours);
}

void addRow(QGridLayout *table, const HighScoreSheet &sheet, int place, QWidget *parent)
{
    const auto &[name, score] = sheet.rows.at(place - 1);
    const bool isNew = place == sheet.place;
    QLabel *rank = label(QString::number(place) + u'.', rowSize, isNew, parent);
    QLabel *who = label({}, rowSize, isNew, parent);
    QLabel *points = label(score, rowSize, isNew, parent);
    who->setText(who->fontMetrics().elidedText(name.simplified(), Qt::ElideRight, nameWidth));
    who->setFixedWidth(nameWidth);
    who->setObjectName(u"LblName(%1)"_s.arg(place - 1));
    points->setObjectName(u"LblScore(%1)"_s.arg(place - 1));
    rank->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    points->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    QLabel *const cells[] = {rank, who, points};
    for (int column = 0; column < 3; ++column) {
        cells[column]->setContentsMargins(6, 1, 6, 1);
        if (isNew)
            mark(cells[column]);
        table->addWidget(cells[column], place - 1, column);
    }
}

} // namespace

frmHighScore::frmHighScore(const HighScoreSheet &sheet, QWidget *owner)
    : QDialog(owner)
{
    setObjectName(u"frmHighScore"_s);
    setWindowTitle(sheet.title);
    // No close item in the title: the button ends the window.
    setWindowFlags(Qt::Dialog | Qt::CustomizeWindowHint | Qt::WindowTitleHint);
    setModal(true);

    auto *panel = new GradientPanel(this);
    auto *column = new QVBoxLayout(panel);
    column->setContentsMargins(side, 10, side, 12);
    column->setSpacing(6);
    QLabel *heading = label(sheet.heading, headingSize, true, panel);
    heading->setObjectName(u"Label1"_s);
    column->addWidget(heading, 0, Qt::AlignHCenter);

    auto *table = new QGridLayout;
    table->setSpacing(0);
    for (int place = 1; place <= sheet.rows.size(); ++place)
        addRow(table, sheet, place, panel);
    column->addLayout(table);

    QLabel *result = label(sheet.result, resultSize, true, panel);
    result->setObjectName(u"Label2"_s);
    result->setAlignment(Qt::AlignHCenter);
    result->setVisible(!sheet.result.isEmpty());
    column->addWidget(result);

    auto *close = new QPushButton(u"OK"_s, panel);
    close->setObjectName(u"cmdOK"_s);
    close->setMinimumSize(110, 34);
    close->setDefault(true);
    connect(close, &QPushButton::clicked, this, &QDialog::accept);
    column->addWidget(close, 0, Qt::AlignHCenter);

    auto *whole = new QVBoxLayout(this);
    whole->setContentsMargins(0, 0, 0, 0);
    whole->addWidget(panel);
    whole->setSizeConstraint(QLayout::SetFixedSize);
}

void frmHighScore::showEvent(QShowEvent *event)
{
    QDialog::showEvent(event);
    // Without a window manager nobody else gives the keyboard to a new window.
    activateWindow();
}
