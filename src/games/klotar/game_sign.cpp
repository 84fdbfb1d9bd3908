// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "games/klotar/game_sign.h"

#include "widgets/announce.h"

#include <QMouseEvent>
#include <QPainter>

#include <algorithm>

namespace {

constexpr QColor face{255, 255, 255, 95};
constexpr QColor ink{0x10, 0x28, 0x60};
constexpr QColor lastFace{200, 0, 0, 130};
constexpr int smallestLetters = 18; ///< pixels
constexpr int largestLetters = 54;
constexpr int margin = 8;
constexpr int belowPrefixes = 42; ///< pixels under the board's upper edge

} // namespace

GameSign::GameSign(QWidget *board)
    : QWidget(board->parentWidget())
    , board_(board)
{
    setObjectName(QStringLiteral("GameSign"));
    setAttribute(Qt::WA_TransparentForMouseEvents);
    setFocusPolicy(Qt::NoFocus);
    board->installEventFilter(this);
    hide();
}

void GameSign::tell(const QString &task, int minutesLeft)
{
    lastMinute_ = minutesLeft <= 1;
    text_ = task + (lastMinute_ ? QStringLiteral(": letzte Minute")
                                : QStringLiteral(": noch %1 Minuten").arg(minutesLeft));
    setAccessibleName(text_);
    place();
    update();
    show();
    announce(*this, text_);
}

void GameSign::place()
{
    QFont letters = font();
    letters.setBold(true);
    letters.setPixelSize(std::clamp(board_->height() / 24, smallestLetters, largestLetters));
    setFont(letters);
    const QSize size = QFontMetrics(letters).size(Qt::TextSingleLine, text_) + QSize(3 * margin, margin);
    const QRect board = board_->geometry();
    const int left = atLeft_ ? board.left() + margin : board.right() - size.width() - margin;
    setGeometry(QRect(QPoint(left, board.top() + belowPrefixes), size));
}

bool GameSign::eventFilter(QObject *watched, QEvent *event)
{
    if (isHidden())
        return false;
    if (event->type() == QEvent::Resize) {
        place();
    } else if (event->type() == QEvent::MouseMove || event->type() == QEvent::MouseButtonPress) {
        const QPoint pointer = static_cast<QMouseEvent *>(event)->position().toPoint();
        if (geometry().contains(board_->mapToParent(pointer))) {
            atLeft_ = !atLeft_;
            place();
        }
    }
    return QWidget::eventFilter(watched, event);
}

void GameSign::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(lastMinute_ ? lastFace : face);
    painter.drawRoundedRect(rect(), margin, margin);
    painter.setPen(lastMinute_ ? QColor(Qt::white) : ink);
    painter.drawText(rect(), Qt::AlignCenter | Qt::TextSingleLine, text_);
}
