// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "widgets/dropper.h"

#include "widgets/colour.h"

#include <QEvent>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPainter>

#include <algorithm>

namespace {

constexpr QColor highlightFrame{0xE6, 0x7E, 0x00};
constexpr QColor highlightFace{0xFF, 0xF3, 0xC4};
constexpr QColor disabledFace{0xEC, 0xEE, 0xF2};
constexpr double cornerRadius = 6;
constexpr int frame = 3; ///< pixels between the widget's edge and the text box

} // namespace

Dropper::Dropper(QWidget *parent)
    : QWidget(parent)
    , lblprefix_(new QLineEdit(this))
{
    lblprefix_->setObjectName(QStringLiteral("lblprefix"));
    lblprefix_->setAccessibleName(QStringLiteral("Wort"));
    lblprefix_->setFrame(false);
    lblprefix_->setAcceptDrops(false); // tiles are dropped on the control, which joins them to the text
    QPalette clear = lblprefix_->palette();
    clear.setColor(QPalette::Base, Qt::transparent);
    lblprefix_->setPalette(clear);
    lblprefix_->installEventFilter(this);
    setFocusProxy(lblprefix_);
    connect(lblprefix_, &QLineEdit::textChanged, this, &Dropper::captionChanged);
}

QString Dropper::Caption() const { return lblprefix_->text(); }

void Dropper::setCaption(const QString &text) { lblprefix_->setText(text); }

int Dropper::SelStart() const
{
    return lblprefix_->hasSelectedText() ? lblprefix_->selectionStart() : lblprefix_->cursorPosition();
}

int Dropper::SelLength() const { return static_cast<int>(lblprefix_->selectedText().size()); }

void Dropper::select(int start, int length)
{
    const int size = static_cast<int>(Caption().size());
    const int from = std::clamp(start, 0, size);
    lblprefix_->setCursorPosition(from);
    lblprefix_->setSelection(from, std::clamp(length, 0, size - from));
}

void Dropper::selectAll() { lblprefix_->selectAll(); }

void Dropper::setForeColour(const QColor &colour)
{
    QPalette palette = lblprefix_->palette();
    palette.setColor(QPalette::Text, colour);
    lblprefix_->setPalette(palette);
}

bool Dropper::isActiveControl() const { return lblprefix_->hasFocus(); }

void Dropper::takeFocus() { lblprefix_->setFocus(Qt::OtherFocusReason); }

void Dropper::Highlight()
{
    highlighted_ = true;
    update();
}

void Dropper::UnHighlight()
{
    highlighted_ = false;
    update();
}

bool Dropper::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::FocusIn || event->type() == QEvent::FocusOut) {
        update();
    } else if (event->type() == QEvent::KeyPress) {
        const auto *key = static_cast<QKeyEvent *>(event);
        if (key->key() == Qt::Key_Return || key->key() == Qt::Key_Enter) {
            if (!key->isAutoRepeat()) // a key that is held checks once
                emit EnterPress();
            return true;
        }
        const bool leaves = key->key() == Qt::Key_Tab || key->key() == Qt::Key_Backtab;
        if (!leaves && !key->text().isEmpty())
            emit keyTyped();
    }
    return QWidget::eventFilter(watched, event);
}

void Dropper::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::EnabledChange)
        update();
    QWidget::changeEvent(event);
}

void Dropper::resizeEvent(QResizeEvent *event)
{
    QWidget::resizeEvent(event);
    lblprefix_->setGeometry(rect().adjusted(frame + 1, frame, -frame - 1, -frame));
    // The word is what a child looks at: it fills the field's height, whatever the window's own font.
    QFont font = lblprefix_->font();
    font.setPixelSize(std::clamp((height() - 2 * frame) * 11 / 20, 11, 22));
    lblprefix_->setFont(font);
}

void Dropper::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const bool strong = highlighted_ || (isEnabled() && isActiveControl());
    const QColor edge = highlighted_ ? highlightFrame : strong ? paint::activeFrame : paint::frame;
    painter.setPen(QPen(isEnabled() ? edge : edge.lighter(150), strong ? 2 : 1));
    painter.setBrush(highlighted_ ? highlightFace : isEnabled() ? QColor(Qt::white) : disabledFace);
    painter.drawRoundedRect(QRectF(rect()).adjusted(1, 1, -1, -1), cornerRadius, cornerRadius);
}
