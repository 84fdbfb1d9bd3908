// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "dialogs/box_window.h"

#include "dialogs/box_shadow.h"
#include "dialogs/mover.h"
#include "dialogs/wrapped_text.h"
#include "widgets/announce.h"
#include "widgets/press_button.h"

#include <QApplication>
#include <QBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QPainter>
#include <QScreen>
#include <QScrollArea>
#include <QScrollBar>

#include <algorithm>

namespace {

// Pixels. The sizes are for eyes that look from the other end of a classroom.
constexpr int frameWidth = 3;
constexpr int titleSize = 15;
constexpr int messageSize = 18;
constexpr int buttonSize = 16;
constexpr int buttonWidth = 120;
constexpr int buttonHeight = 42;
constexpr int padding = 18;
constexpr int smallestText = 260;
constexpr int widestText = 620;
constexpr int screenMargin = 8;

QFont sized(const QFont &font, int pixels, bool bold = false)
{
    QFont result = font;
    result.setPixelSize(pixels);
    result.setBold(bold);
    return result;
}

void setInk(QWidget *widget, const QColor &colour)
{
    QPalette palette = widget->palette();
    palette.setColor(QPalette::WindowText, colour);
    widget->setPalette(palette);
}

} // namespace

BoxWindow::BoxWindow(const boxstyle::Colours &colours, const QString &title, const QString &prompt,
                     QWidget *owner)
    : QDialog(owner, Qt::Dialog | Qt::FramelessWindowHint)
    , colours_(colours)
    , owner_(owner)
    , Label3_(new QLabel(this))
    , Label2_(new WrappedText(prompt))
    , Pic1_(new QScrollArea(this))
    , column_(new QVBoxLayout(this))
    , middle_(new QHBoxLayout)
    , buttons_(new QHBoxLayout)
{
    setWindowTitle(title.simplified().left(200));
    setModal(true);
    setFocusPolicy(Qt::StrongFocus);
    if (owner == nullptr) // at the start: the splash would cover it
        setWindowFlag(Qt::WindowStaysOnTopHint);

    Label3_->setObjectName(QStringLiteral("Label3"));
    Label3_->setTextFormat(Qt::PlainText);
    Label3_->setAccessibleName(windowTitle()); // whole, however much of it is shown
    Label3_->setFont(sized(font(), titleSize, true));
    Label3_->setContentsMargins(padding - 6, 0, padding - 6, 0);
    Label3_->setFixedHeight(titleSize * 2);
    Label3_->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
    setInk(Label3_, colours.text);

    Label2_->setObjectName(QStringLiteral("Label2"));
    Label2_->setFont(sized(font(), messageSize));
    Label2_->setColour(colours.text);
    Label2_->setAlignment(Qt::AlignHCenter);
    Pic1_->setObjectName(QStringLiteral("Pic1"));
    Pic1_->setWidget(Label2_);
    Label2_->setAutoFillBackground(false); // the area has just set it
    Pic1_->setWidgetResizable(true);
    Pic1_->setFrameShape(QFrame::NoFrame);
    Pic1_->setFocusPolicy(Qt::NoFocus);
    Pic1_->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    Pic1_->viewport()->setAutoFillBackground(false);

    column_->setContentsMargins(frameWidth, frameWidth, frameWidth, frameWidth);
    column_->setSpacing(0);
    column_->addWidget(Label3_);
    middle_->setContentsMargins(padding, padding, padding, padding);
    middle_->setSpacing(padding);
    middle_->addWidget(Pic1_, 1);
    column_->addLayout(middle_, 1);
    buttons_->setSpacing(padding);
    buttons_->setAlignment(Qt::AlignHCenter);
    column_->addLayout(buttons_);

    new Mover(Label3_);
    new Mover(Label2_);
    if (owner != nullptr)
        new BoxShadow(this, owner);
}

BoxWindow::~BoxWindow() = default;

PressButton *BoxWindow::addButton(const QString &caption, int index)
{
    auto *button = new PressButton(this);
    button->setObjectName(QStringLiteral("But1(%1)").arg(index));
    button->setText(caption);
    button->setAccessibleName(caption);
    button->setFont(sized(font(), buttonSize, index == 0));
    button->setFace(colours_.button, colours_.buttonText);
    button->setMinimumSize(buttonWidth, buttonHeight);
    connect(button, &QAbstractButton::clicked, this, [this, index] { done(index); });
    buttons_->setContentsMargins(padding, 0, padding, padding);
    buttons_->addWidget(button);
    return button;
}

void BoxWindow::addSign(QWidget *sign)
{
    signWidth_ = sign->sizeHint().width() + padding;
    middle_->insertWidget(0, sign, 0, Qt::AlignVCenter);
    setMessageAlignment(Qt::AlignLeft);
}

void BoxWindow::addEntry(QWidget *entry)
{
    auto *row = new QHBoxLayout;
    row->setContentsMargins(padding, 0, padding, padding);
    row->addWidget(entry);
    column_->insertLayout(2, row);
}

void BoxWindow::setMessageAlignment(Qt::Alignment alignment) { Label2_->setAlignment(alignment); }

void BoxWindow::growWithText(const QRect &screen)
{
    const int sides = 2 * (frameWidth + padding) + signWidth_;
    const int bar = Pic1_->verticalScrollBar()->sizeHint().width();
    const int room = std::min(widestText, screen.width() - sides - bar);
    const int text = std::max(std::min(smallestText, room), Label2_->naturalWidth(room));
    const int wanted = Label2_->heightForWidth(text);
    Pic1_->setMinimumSize(text, wanted);
    const int rest = column_->totalMinimumSize().height() - wanted;
    const bool scrolls = wanted > screen.height() - rest;
    Pic1_->setVerticalScrollBarPolicy(scrolls ? Qt::ScrollBarAlwaysOn : Qt::ScrollBarAlwaysOff);
    if (scrolls) {
        Pic1_->setMinimumSize(text + bar, std::max(messageSize * 2, screen.height() - rest));
        middle_->invalidate();
        column_->invalidate();
    }
    resize(column_->totalMinimumSize());
    const int strip = width() - 2 * frameWidth - 2 * padding;
    Label3_->setText(Label3_->fontMetrics().elidedText(windowTitle(), Qt::ElideRight, strip));
}

int BoxWindow::ask(std::optional<QPoint> corner)
{
    const QScreen *on = owner_ != nullptr ? owner_->screen() : QGuiApplication::primaryScreen();
    if (corner) {
        if (const QScreen *there = QGuiApplication::screenAt(*corner))
            on = there;
    }
    const QRect screen =
        on->availableGeometry().adjusted(screenMargin, screenMargin, -screenMargin, -screenMargin);
    growWithText(screen);

    QRect place(QPoint(0, 0), size());
    place.moveCenter(screen.center());
    if (corner)
        place.moveTopLeft(*corner);
    place.moveRight(std::min(place.right(), screen.right()));
    place.moveBottom(std::min(place.bottom(), screen.bottom()));
    place.moveLeft(std::max(place.left(), screen.left()));
    place.moveTop(std::max(place.top(), screen.top()));
    setGeometry(place);
    answer_ = escaped; // what ends the loop without a word is no consent
    exec();
    // Without a window manager nobody else gives the keyboard back either.
    if (owner_ != nullptr)
        owner_->window()->activateWindow();
    return answer_;
}

void BoxWindow::done(int answer)
{
    answer_ = answer;
    QDialog::done(answer);
}

void BoxWindow::showEvent(QShowEvent *event)
{
    QDialog::showEvent(event);
    // Without a window manager nobody else gives the keyboard to a new window.
    activateWindow();
    if (focusWidget() == nullptr)
        setFocus(Qt::ActiveWindowFocusReason);
    announce(*this, Label2_->accessibleName());
}

void BoxWindow::keyPressEvent(QKeyEvent *event)
{
    switch (event->key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
    case Qt::Key_Escape:
        // A key that is still held from before the box came up is no answer.
        if (!event->isAutoRepeat())
            done(event->key() == Qt::Key_Escape ? escaped : 0);
        break;
    default:
        scroll(event->key());
    }
    event->accept();
}

void BoxWindow::scroll(int key)
{
    QScrollBar *bar = Pic1_->verticalScrollBar();
    switch (key) {
    case Qt::Key_Up:
        bar->triggerAction(QAbstractSlider::SliderSingleStepSub);
        break;
    case Qt::Key_Down:
        bar->triggerAction(QAbstractSlider::SliderSingleStepAdd);
        break;
    case Qt::Key_PageUp:
        bar->triggerAction(QAbstractSlider::SliderPageStepSub);
        break;
    case Qt::Key_PageDown:
        bar->triggerAction(QAbstractSlider::SliderPageStepAdd);
        break;
    default:
        break;
    }
}

void BoxWindow::paintBackground(QPainter &painter)
{
    painter.fillRect(rect(), colours_.window);
    const int below = Label3_->geometry().bottom() + 1;
    painter.fillRect(QRect(0, below, width(), 2), colours_.text);
}

void BoxWindow::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    paintBackground(painter);
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(colours_.frame, frameWidth, Qt::SolidLine, Qt::SquareCap, Qt::MiterJoin));
    const double half = frameWidth / 2.0;
    painter.drawRect(QRectF(rect()).adjusted(half, half, -half, -half));
}
