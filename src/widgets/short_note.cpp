// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "widgets/short_note.h"

#include "widgets/announce.h"
#include "widgets/colour.h"

#include <QAbstractButton>
#include <QApplication>
#include <QComboBox>
#include <QEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPainter>

#include <algorithm>
#include <optional>

namespace {

// Pixels:
constexpr int letters = 16; ///< read from a whiteboard, across a room
constexpr int beside = 14;  ///< of the words
constexpr int over = 6;     ///< and under them
constexpr int gap = 6;      ///< to what stands beside or under the note
constexpr int narrowest = 260;

struct Span
{
    int left, right; ///< the first pixel, and the one behind the last
    int width() const { return right - left; }
};

/// The widest part of `row` that none of `taken` reaches into.
Span widestFree(const QRect &row, QList<QRect> taken)
{
    std::sort(taken.begin(), taken.end(), [](const QRect &a, const QRect &b) { return a.left() < b.left(); });
    Span widest{row.left(), row.left()};
    int left = row.left();
    const auto endAt = [&](int right) {
        if (right - left > widest.width())
            widest = {left, right};
    };
    for (const QRect &rect : taken) {
        if (!rect.intersects(row))
            continue;
        endAt(std::min(rect.left() - gap, row.right() + 1));
        left = std::max(left, rect.right() + 1 + gap);
    }
    endAt(row.right() + 1);
    return widest;
}

/// The row over what reaches into `row`, if it still lies below `top`.
std::optional<QRect> rowAbove(const QRect &row, const QList<QRect> &taken, int top)
{
    int foot = row.bottom() + 1;
    for (const QRect &rect : taken)
        if (rect.intersects(row))
            foot = std::min(foot, rect.top() - gap);
    QRect above = row;
    above.moveBottom(foot - 1);
    return above.top() > top && above != row ? std::optional(above) : std::nullopt;
}

struct Spot
{
    QRect row;
    Span free;
};

/// The lowest row, from `row` upwards, in which `width` pixels are free.
std::optional<Spot> spotFor(const QRect &row, const QList<QRect> &taken, int width)
{
    for (std::optional<QRect> at = row; at; at = rowAbove(*at, taken, 0))
        if (const Span free = widestFree(*at, taken); free.width() >= width)
            return Spot{*at, free};
    return {};
}

/// The places, in `window`, of the boxes and menus that stand open over it.
QList<QRect> openOver(const QWidget &window)
{
    QList<QRect> places;
    for (const QWidget *other : QApplication::topLevelWidgets()) {
        if (other == window.window() || other->isHidden() ||
            (!other->isModal() && other->windowType() != Qt::Popup))
            continue;
        const QRect frame = other->frameGeometry();
        places << QRect(window.mapFromGlobal(frame.topLeft()), frame.size());
    }
    return places;
}

/// What a window is worked with: its lists and texts may be covered for a while, what stands around them not.
QList<QRect> toolsOf(const QWidget &window)
{
    QList<QRect> places;
    const auto children = window.findChildren<QWidget *>();
    for (const QWidget *child : children) {
        const bool isTool = qobject_cast<const QAbstractButton *>(child) != nullptr ||
                            qobject_cast<const QLineEdit *>(child) != nullptr ||
                            qobject_cast<const QComboBox *>(child) != nullptr ||
                            qobject_cast<const QLabel *>(child) != nullptr;
        if (isTool && child->isVisible() && child->window() == &window)
            places << QRect(child->mapTo(&window, QPoint()), child->size());
    }
    return places;
}

} // namespace

ShortNote::ShortNote(const QWidget &board, QWidget &band)
    : ShortNote(band.parentWidget(), &board, &band)
{}

ShortNote::ShortNote(QWidget *window)
    : ShortNote(window, nullptr, nullptr)
{}

ShortNote::ShortNote(QWidget *window, const QWidget *board, const QWidget *band)
    : QWidget(window)
    , board_(board)
    , band_(band)
{
    setObjectName(QStringLiteral("ShortNote"));
    setAttribute(Qt::WA_TransparentForMouseEvents);
    setFocusPolicy(Qt::NoFocus);
    QFont font = this->font();
    font.setPixelSize(letters);
    font.setBold(true);
    setFont(font);
    timer_.setSingleShot(true);
    timer_.setInterval(staysFor);
    connect(&timer_, &QTimer::timeout, this, [this] {
        text_.clear();
        hide();
    });
    for (const QWidget *part : {board, band})
        if (part != nullptr)
            connect(part, &QObject::destroyed, this, &QWidget::hide); // the window goes, piece by piece
    hide();
}

void ShortNote::tell(const QString &text)
{
    text_ = text.simplified();
    setVisible(!text_.isEmpty());
    if (text_.isEmpty())
        return;
    // What opens, closes or grows beside it makes it look for its place again; the band moves with the
    // window.
    for (QObject *sibling : parentWidget()->children())
        if (sibling->isWidgetType() && sibling != this)
            sibling->installEventFilter(this);
    parentWidget()->installEventFilter(this);
    place();
    raise();
    announce(*this, text_);
    if (isVisible())
        timer_.start();
}

void ShortNote::showEvent(QShowEvent *) { timer_.start(); }

void ShortNote::hideEvent(QHideEvent *) { refreshUnder(geometry()); }

void ShortNote::moveEvent(QMoveEvent *event) { refreshUnder({event->oldPos(), size()}); }

void ShortNote::resizeEvent(QResizeEvent *event) { refreshUnder({pos(), event->oldSize()}); }

/// At a scale like 1.25 an edge lies within a pixel of the screen, of which the toolkit would leave a line.
/// The window alone would not do: it spares what opaque children cover.
void ShortNote::refreshUnder(const QRect &place)
{
    const QRect larger = place.adjusted(-1, -1, 1, 1);
    for (QObject *sibling : parentWidget()->children())
        if (auto *widget = qobject_cast<QWidget *>(sibling); widget != nullptr && !widget->isWindow())
            widget->update(larger.translated(-widget->pos()));
}

bool ShortNote::eventFilter(QObject *watched, QEvent *event)
{
    const auto type = event->type();
    const bool isBand = watched == band_;
    if (!isHidden() && (type == QEvent::Show || type == QEvent::Hide || type == QEvent::Resize ||
                        (isBand && type == QEvent::Move)))
        place();
    return QWidget::eventFilter(watched, event);
}

/// What a hand passes through (a tile on its way, another note) may be covered, and so may the board with all
/// that covers the whole of it.
QList<QRect> ShortNote::covered() const
{
    if (board_ == nullptr)
        return toolsOf(*parentWidget());
    QList<QRect> taken = openOver(*parentWidget());
    for (const QObject *child : parentWidget()->children()) {
        const auto *widget = qobject_cast<const QWidget *>(child);
        if (widget == nullptr || widget == board_ || widget == band_ || widget->isHidden() ||
            widget->isWindow() || widget->testAttribute(Qt::WA_TransparentForMouseEvents))
            continue;
        if (widget->width() < board_->width() || 2 * widget->height() < board_->height())
            taken << widget->geometry();
    }
    return taken;
}

void ShortNote::place()
{
    const int wanted = fontMetrics().horizontalAdvance(text_) + 2 * beside + 2;
    const int height = fontMetrics().height() + 2 * over;
    const int floor = band_ != nullptr ? band_->y() : parentWidget()->height();
    const QRect onBand(gap, floor - gap - height, parentWidget()->width() - 2 * gap, height);
    const QList<QRect> taken = covered();
    std::optional<Spot> spot = spotFor(onBand, taken, wanted);
    if (!spot) // better cut off than over what is used
        spot = spotFor(onBand, taken, std::min(wanted, narrowest));
    const auto [row, free] = spot.value_or(Spot{onBand, {onBand.left(), onBand.right() + 1}});
    const int width = std::min(wanted, free.width());
    const int middle = (parentWidget()->width() - width) / 2;
    setGeometry(std::clamp(middle, free.left, free.right - width), row.top(), width, height);
    update();
}

/// Light on dark with a light rim: seen on white, on tiles and on any picture.
void ShortNote::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(Qt::white, 2));
    painter.setBrush(paint::ink);
    painter.drawRoundedRect(QRectF(rect()).adjusted(1, 1, -1, -1), 8, 8);
    painter.drawText(rect(), Qt::AlignCenter | Qt::TextSingleLine,
                     fontMetrics().elidedText(text_, Qt::ElideRight, width() - 2 * beside));
}
