// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "games/paarlon/memory_card.h"

#include <QKeyEvent>
#include <QPainter>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

// Twips of the card
constexpr QPoint textPlace{20, 300};
constexpr QPoint markPlace{400, 700};
constexpr int letterSize = 240;
constexpr int smallestLetterSize = 120;
constexpr int markSize = 180;
constexpr int rightMargin = 20;
constexpr int lowestText = 960;
constexpr int haloWidth = 15;
constexpr int cornerSize = 220; ///< of the focus

QFont letters(QFont font, double pixels)
{
    font.setPixelSize(std::max(1, static_cast<int>(pixels)));
    font.setBold(true);
    return font;
}

/// As much of `text` as fits into the box, broken anywhere, with an ellipsis where it was cut.
QString cutToFit(const QString &text, const QFontMetrics &metrics, const QRect &box)
{
    const auto fits = [&](const QString &part) {
        return metrics.boundingRect(QRect(0, 0, box.width(), 1 << 20), Qt::TextWrapAnywhere, part).height() <=
               box.height();
    };
    if (fits(text))
        return text;
    qsizetype shown = 0;
    for (qsizetype step = 256; step > 0; step /= 2)
        if (shown + step < text.size() && fits(text.first(shown + step) + u'…'))
            shown += step;
    if (shown > 0 && text.at(shown - 1).isHighSurrogate())
        --shown;
    return text.first(shown) + u'…';
}

} // namespace

MemoryCard::MemoryCard(int index, QWidget *parent)
    : QAbstractButton(parent)
    , index_(index)
{
    setObjectName(u"picMorphemeCard(%1)"_s.arg(index));
    setFocusPolicy(Qt::ClickFocus);
    tellReaders();
}

void MemoryCard::setLook(const Look &look)
{
    if (look_ == look)
        return;
    look_ = look;
    tellReaders();
    update();
}

/// A card that is down must not tell its text to anybody.
void MemoryCard::tellReaders()
{
    QString name = u"Reihe %1, Karte %2: "_s.arg(index_ / perRow + 1).arg(index_ % perRow + 1);
    if (look_.side == Side::Down)
        name += u"verdeckt"_s;
    else
        name += look_.print.text + (look_.print.mark.isEmpty() ? QString() : u' ' + look_.print.mark) +
                (look_.side == Side::Solved ? u", gefunden"_s : QString());
    setAccessibleName(name);
}

void MemoryCard::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.fillRect(rect(), look_.back);
    const int edge = std::max(1, static_cast<int>(pixels(20)));
    painter.fillRect(0, 0, width(), edge, look_.back.lighter(140));
    painter.fillRect(0, 0, edge, height(), look_.back.lighter(140));
    painter.fillRect(0, height() - edge, width(), edge, look_.back.darker(150));
    painter.fillRect(width() - edge, 0, edge, height(), look_.back.darker(150));
    if (look_.side != Side::Down)
        paintText(painter);
    if (hasFocus())
        paintFocus(painter);
}

void MemoryCard::paintText(QPainter &painter) const
{
    painter.setPen(look_.text);
    const int lowest = look_.print.mark.isEmpty() ? lowestText : markPlace.y();
    const QRect box(QPointF(pixels(textPlace.x()), pixels(textPlace.y())).toPoint(),
                    QPointF(pixels(side - rightMargin), pixels(lowest)).toPoint());
    // A long text gets smaller letters, and then several lines.
    double size = pixels(letterSize);
    const double smallest = pixels(smallestLetterSize);
    const double wide = QFontMetricsF(letters(font(), size)).horizontalAdvance(look_.print.text);
    if (wide > box.width())
        size = std::max(smallest, size * box.width() / wide - 1);
    painter.setFont(letters(font(), size));
    const QString text = cutToFit(look_.print.text, painter.fontMetrics(), box);
    const auto draw = [&](const QPoint &by) {
        painter.drawText(box.translated(by), Qt::AlignLeft | Qt::AlignTop | Qt::TextWrapAnywhere, text);
    };
    if (look_.side == Side::Solved) { // black alone could not be read on blue
        const int halo = std::max(1, static_cast<int>(pixels(haloWidth)));
        painter.setPen(look_.back.lighter(170));
        for (int x = -halo; x <= halo; x += halo)
            for (int y = -halo; y <= halo; y += halo)
                draw({x, y});
        painter.setPen(look_.text);
    }
    draw({});
    if (look_.print.mark.isEmpty())
        return;
    painter.setFont(letters(font(), pixels(markSize)));
    const QPointF mark(pixels(markPlace.x()), pixels(markPlace.y()));
    painter.drawText(QRectF(mark, QPointF(width(), height())), Qt::AlignLeft | Qt::AlignTop,
                     look_.print.mark);
}

/// White beside black stands out on every colour of card. Only the corners, so that no line runs through the
/// text.
void MemoryCard::paintFocus(QPainter &painter) const
{
    const int line = std::max(2, static_cast<int>(pixels(30)));
    const QRect inner = rect().adjusted(0, 0, -1, -1);
    const int corner = static_cast<int>(pixels(cornerSize));
    QRegion corners;
    for (const QPoint &at : {inner.topLeft(), inner.topRight(), inner.bottomLeft(), inner.bottomRight()})
        corners += QRect(at - QPoint(corner, corner), at + QPoint(corner, corner));
    painter.setClipRegion(corners);
    painter.setBrush(Qt::NoBrush);
    for (const auto &[inset, colour] :
         {std::pair{0, QColor(Qt::black)}, std::pair{line, QColor(Qt::white)}}) {
        QPen pen(colour, line);
        pen.setJoinStyle(Qt::MiterJoin);
        painter.setPen(pen);
        const int at = inset + line / 2;
        painter.drawRect(rect().adjusted(at, at, -at - line % 2, -at - line % 2));
    }
}

void MemoryCard::keyPressEvent(QKeyEvent *event)
{
    switch (event->key()) {
    case Qt::Key_Up:
        emit arrowPressed(-1, 0);
        break;
    case Qt::Key_Down:
        emit arrowPressed(1, 0);
        break;
    case Qt::Key_Left:
        emit arrowPressed(0, -1);
        break;
    case Qt::Key_Right:
        emit arrowPressed(0, 1);
        break;
    case Qt::Key_Space:
    case Qt::Key_Return:
    case Qt::Key_Enter:
        if (!event->isAutoRepeat()) // a key that is held turns one card
            click();
        break;
    default:
        event->ignore();
    }
}

void MemoryCard::keyReleaseEvent(QKeyEvent *event) { event->ignore(); }
