// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "games/paarlon/memory_controls.h"

#include "games/paarlon/backdrop.h"
#include "games/paarlon/memory_card.h"
#include "widgets/announce.h"

#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

constexpr int panelLeft = 6120;
constexpr QRect coverPlace{0, -10000, MemoryControls::coverWidth, 6200};
constexpr QRect noticePlace{300, 1800, 5500, 2400};
constexpr int noticeLetters = 260;
// The last column and rows do not lie quite on the grid; they never have.
constexpr std::array rowTops{10, 1020, 2025, 3030, 4035, 5040};
constexpr std::array columnLefts{0, 1020, 2040, 3060, 4080, 5105};
constexpr int lastColumnBelow = 5100;
constexpr int firstLowerRow = 3;

/// A control of the side panel: its place in the panel and the size of its letters, in twips.
struct PanelRow
{
    QRect place;
    int letters;
    bool bold;
};

constexpr PanelRow anfangen{{140, 240, 1620, 520}, 200, true};
constexpr PanelRow abbrechen{{140, 840, 1620, 520}, 200, true};
constexpr PanelRow label2{{100, 1440, 1700, 780}, 200, true};
constexpr PanelRow currentScore{{140, 1440, 1620, 620}, 480, true};
constexpr PanelRow label1{{60, 2160, 1780, 1800}, 220, true};
constexpr std::array options{PanelRow{{240, 4080, 1500, 240}, 190, false},
                             PanelRow{{240, 4320, 1500, 240}, 190, false},
                             PanelRow{{240, 4560, 1500, 240}, 190, false}};
constexpr PanelRow command3{{140, 5100, 1620, 520}, 200, true};

template <typename Control> Control *make(QWidget *parent, const QString &name, const QString &text)
{
    auto *control = new Control(parent);
    control->setObjectName(name);
    control->setText(text);
    control->setAccessibleName(text);
    return control;
}

QLabel *makeLabel(QWidget *parent, const QString &name, const QString &text = {})
{
    auto *label = make<QLabel>(parent, name, text);
    label->setTextFormat(Qt::PlainText);
    label->setAlignment(Qt::AlignHCenter | Qt::AlignTop);
    label->setWordWrap(true);
    return label;
}

QRect cardPlace(int index)
{
    const auto row = static_cast<std::size_t>(index / MemoryCard::perRow);
    const auto column = static_cast<std::size_t>(index % MemoryCard::perRow);
    const bool isLast = column == columnLefts.size() - 1;
    return {isLast && row >= firstLowerRow ? lastColumnBelow : columnLefts[column], rowTops[row],
            MemoryCard::side, MemoryCard::side};
}

void setLetters(QWidget *widget, int pixels, bool bold)
{
    QFont font = widget->font();
    font.setPixelSize(std::max(1, pixels));
    font.setBold(bold);
    widget->setFont(font);
}

} // namespace

QRect MemoryControls::Scale::pixels(const QRect &twips) const
{
    // What is of one size stays so to the pixel, wherever it lies.
    return {QPoint(pixels(twips.left()), pixels(twips.top())),
            QSize(pixels(twips.width()), pixels(twips.height()))};
}

MemoryControls::Scale MemoryControls::scaleFor(const QSize &window)
{
    Scale scale;
    scale.pixelsPerTwip = std::min(static_cast<double>(window.width()) / designSize.width(),
                                   static_cast<double>(window.height()) / designSize.height());
    scale.corner = {(window.width() - scale.pixels(designSize.width())) / 2,
                    (window.height() - scale.pixels(designSize.height())) / 2};
    return scale;
}

QSize MemoryControls::openingSize(const QSize &room)
{
    constexpr QSize largest(designSize.width() * 2 / twipsPerPixel, designSize.height() * 2 / twipsPerPixel);
    return largest.scaled(room.boundedTo(largest), Qt::KeepAspectRatio);
}

MemoryControls makeMemoryControls(QWidget *form)
{
    MemoryControls c;
    for (std::size_t i = 0; i < c.picMorphemeCard.size(); ++i) {
        c.picMorphemeCard[i] = new MemoryCard(static_cast<int>(i), form);
        c.picMorphemeCard[i]->hide();
    }
    c.picMorphemeCard.front()->setFocusPolicy(Qt::StrongFocus);
    c.picCover = new QWidget(form);
    c.picCover->setObjectName(u"picCover(0)"_s);
    c.picCover->hide();
    c.lblNotice = makeLabel(form, u"lblNotice"_s);
    c.lblNotice->setAlignment(Qt::AlignCenter);
    c.lblNotice->setAutoFillBackground(true);
    c.lblNotice->hide();
    announceWhenShown(*c.lblNotice);

    c.Picture1 = new Backdrop(form);
    c.Picture1->setObjectName(u"Picture1"_s);
    c.Anfangen = make<QPushButton>(c.Picture1, u"cmdCommand(0)"_s, u"Anfangen"_s);
    c.Anfangen->setEnabled(false);
    c.Abbrechen = make<QPushButton>(c.Picture1, u"cmdCommand(3)"_s, u"Abbrechen"_s);
    c.Label2 = makeLabel(c.Picture1, u"Label2"_s);
    c.Label2->setAlignment(Qt::AlignLeft | Qt::AlignTop); // it wanders off to the right
    c.Label2->setWordWrap(false);
    c.LblCurrentScore = makeLabel(c.Picture1, u"LblCurrentScore"_s, u"0"_s);
    c.LblCurrentScore->hide();
    c.Label1 = makeLabel(c.Picture1, u"Label1"_s, u"MEMORY- MASTER"_s);
    constexpr std::array names{u"Präfix", u"Wortel", u"Suffix"};
    for (std::size_t i = 0; i < names.size(); ++i)
        c.OptMorphemeType[i] =
            make<QRadioButton>(c.Picture1, u"OptMorphemeType(%1)"_s.arg(i), QString::fromUtf16(names[i]));
    c.Command3 = make<QPushButton>(c.Picture1, u"Command3"_s, u"Bestenliste"_s);

    c.Command1 = make<QPushButton>(form, u"Command1"_s, {});
    c.Command2 = make<QPushButton>(form, u"Command2"_s, {});
    for (QWidget *hidden : {c.Command1, c.Command2, c.Command3})
        hidden->hide();
    for (std::size_t i = 2; i < c.txtScores.size(); ++i) {
        c.txtScores[i] = make<QLineEdit>(form, u"txtScores(%1)"_s.arg(i), {});
        c.txtScores[i]->hide();
    }
    return c;
}

void layOutMemoryControls(const MemoryControls &c, const QSize &window)
{
    const MemoryControls::Scale scale = MemoryControls::scaleFor(window);
    for (int i = 0; i < static_cast<int>(c.picMorphemeCard.size()); ++i)
        c.picMorphemeCard[static_cast<std::size_t>(i)]->setGeometry(
            scale.pixels(cardPlace(i)).translated(scale.corner));
    c.picCover->setGeometry(scale.pixels(coverPlace).translated(scale.corner));
    c.lblNotice->setGeometry(scale.pixels(noticePlace).translated(scale.corner));
    setLetters(c.lblNotice, scale.pixels(noticeLetters), true);

    // The panel takes up all that is right of the cards.
    c.Picture1->setGeometry(QRect(QPoint(scale.corner.x() + scale.pixels(panelLeft), 0),
                                  QPoint(window.width() - 1, window.height() - 1)));
    const auto place = [&scale](QWidget *control, const PanelRow &row) {
        control->setGeometry(scale.pixels(row.place).translated(0, scale.corner.y()));
        setLetters(control, scale.pixels(row.letters), row.bold);
    };
    place(c.Anfangen, anfangen);
    place(c.Abbrechen, abbrechen);
    place(c.Label2, label2);
    place(c.LblCurrentScore, currentScore);
    place(c.Label1, label1);
    for (std::size_t i = 0; i < options.size(); ++i) {
        place(c.OptMorphemeType[i], options[i]);
        // The style's own circle stays small beside large letters.
        c.OptMorphemeType[i]->setStyleSheet(u"QRadioButton::indicator { width: %1px; height: %1px; }"_s.arg(
            scale.pixels(options[i].letters)));
    }
    place(c.Command3, command3);
}
