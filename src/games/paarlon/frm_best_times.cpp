// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "games/paarlon/frm_best_times.h"

#include "games/paarlon/memory_kind.h"
#include "games/paarlon/top_ten.h"
#include "widgets/colour.h"
#include "widgets/gradient.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QListWidget>
#include <QPainter>
#include <QPushButton>
#include <QScreen>

using namespace Qt::StringLiterals;

namespace {

// Pixels
constexpr int letterSize = 17;
constexpr int smallLetterSize = 14; ///< on a screen where ten large rows would not fit
constexpr int lowScreen = 520;
constexpr int nameWidth = 230;
constexpr int messageWidth = 300;
constexpr int margin = 18;

} // namespace

frmBestTimes::frmBestTimes(const QString &message, const MemoryKind &kind, const TopTen &list, QWidget *owner)
    : QDialog(owner)
{
    setObjectName(u"frmBestTimes"_s);
    setWindowTitle(u"Bestenliste - Paarlon (%1)"_s.arg(QString::fromUtf16(kind.label)));
    QPalette palette = this->palette();
    palette.setColor(QPalette::WindowText, paint::ink);
    setPalette(palette);

    QLabel *lblEncourage = makeLabel(u"lblEncourage"_s, message, letterSize, true);
    lblEncourage->setWordWrap(true);
    lblEncourage->setAlignment(Qt::AlignCenter);
    lblEncourage->setFixedWidth(messageWidth);
    lblEncourage->setHidden(message.isEmpty());

    auto *cmdOK = new QPushButton(u"OK"_s, this);
    cmdOK->setObjectName(u"cmdOK"_s);
    cmdOK->setAccessibleName(cmdOK->text());
    cmdOK->setMinimumSize(120, 36);
    QFont letters = font();
    letters.setPixelSize(smallLetterSize);
    cmdOK->setFont(letters);
    cmdOK->setDefault(true);
    connect(cmdOK, &QPushButton::clicked, this, &QDialog::accept);

    auto *middle = new QHBoxLayout;
    middle->setSpacing(margin);
    middle->addWidget(makePlaces(list));
    middle->addWidget(lblEncourage);
    auto *column = new QVBoxLayout(this);
    column->setContentsMargins(margin, margin, margin, margin);
    column->setSpacing(margin - 4);
    column->addLayout(middle);
    column->addWidget(cmdOK, 0, Qt::AlignCenter);
    column->setSizeConstraint(QLayout::SetFixedSize);
}

QLabel *frmBestTimes::makeLabel(const QString &name, const QString &text, int letters, bool bold)
{
    auto *label = new QLabel(this);
    label->setObjectName(name);
    label->setTextFormat(Qt::PlainText);
    QFont font = label->font();
    font.setPixelSize(letters);
    font.setBold(bold);
    label->setFont(font);
    label->setText(text);
    return label;
}

/// The ten places as labels; `List1` holds the same as lines of text and is not seen.
QWidget *frmBestTimes::makePlaces(const TopTen &list)
{
    auto *places = new QWidget(this);
    auto *grid = new QGridLayout(places);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setHorizontalSpacing(margin);
    auto *List1 = new QListWidget(this);
    List1->setObjectName(u"List1"_s);
    List1->hide();

    const bool isLow = screen()->availableSize().height() < lowScreen;
    const int letters = isLow ? smallLetterSize : letterSize;
    grid->setVerticalSpacing(isLow ? 3 : 6);
    for (int i = 0; i < TopTen::places; ++i) {
        const TopTen::Record &record = list.records().at(i);
        const QString place = QString::number(i + 1);
        const QString score = QString::number(record.score);
        List1->addItem(place + u".\t"_s + score + u'\t' + record.name);
        const bool isBest = i == 0;
        QLabel *number = makeLabel(u"Label1(%1)"_s.arg(i), place, letters, isBest);
        QLabel *name = makeLabel(u"lblName(%1)"_s.arg(i + 1), {}, letters, isBest);
        QLabel *points = makeLabel(u"lblScore(%1)"_s.arg(i + 1), score, letters, isBest);
        name->setFixedWidth(nameWidth);
        name->setText(name->fontMetrics().elidedText(record.name.simplified(), Qt::ElideRight, nameWidth));
        name->setAccessibleName(u"%1. %2, %3 Klicks"_s.arg(place, record.name.left(200), score));
        number->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
        points->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
        grid->addWidget(number, i, 0);
        grid->addWidget(name, i, 1);
        grid->addWidget(points, i, 2);
    }
    return places;
}

void frmBestTimes::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    gradient::paint(painter, rect());
}
