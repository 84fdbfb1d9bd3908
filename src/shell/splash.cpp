// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/splash.h"

#include "platform/clock.h"
#include "platform/product.h"

#include <QEvent>
#include <QGuiApplication>
#include <QLabel>
#include <QPainter>
#include <QPixmap>
#include <QScreen>
#include <QSvgRenderer>

namespace {

constexpr QSize splashSize(480, 300);

/// One row a line of text: its place (pixels), its size and weight.
struct TextRow
{
    const char *name;
    const char16_t *text;
    int top, height, pixelSize;
    bool bold;
};

constexpr TextRow texts[] = {
    {"lblTitle", u"Wortel- Meister", 154, 52, 44, true},
    {"lblSubtitle", u"Ein Werkzeug zum Erkennen von Wortstrukturen", 206, 22, 16, false},
    {"lblGame", u"Spiel mit Wortbausteinen", 228, 20, 14, false},
    {"lblFreeware", u"Freeware", 250, 18, 13, false},
    {"lblversion", u"", 268, 18, 13, false},
};

constexpr Qt::WindowFlags splashFlags = Qt::SplashScreen | Qt::FramelessWindowHint | Qt::WindowStaysOnTopHint;

} // namespace

frmShadow::frmShadow()
    : QWidget(nullptr, splashFlags)
{
    setAttribute(Qt::WA_ShowWithoutActivating);
}

void frmShadow::Init(const QRect &form, Clock &clock)
{
    setGeometry(form.translated(offset, offset));
    if (QScreen *where = QGuiApplication::primaryScreen())
        behind_ = where->grabWindow(0, x(), y(), width(), height()).toImage();
    clock.wait(20);
    show();
}

void frmShadow::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.fillRect(rect(), Qt::gray);
    painter.drawImage(0, 0, behind_);
    painter.fillRect(rect(), QColor(0, 0, 0, 110));
}

frmSplash::frmSplash(Clock &clock)
    : QWidget(nullptr, splashFlags)
    , clock_(clock)
{
    setObjectName(QStringLiteral("frmSplash"));
    setWindowTitle(product::name);
    setCursor(Qt::WaitCursor);
    setFixedSize(splashSize);
    for (const TextRow &row : texts) {
        auto *label = new QLabel(QString::fromUtf16(row.text), this);
        label->setObjectName(QLatin1String(row.name));
        label->setTextFormat(Qt::PlainText);
        label->setAlignment(Qt::AlignCenter);
        QFont font = label->font();
        font.setPixelSize(row.pixelSize);
        font.setBold(row.bold);
        label->setFont(font);
        label->setStyleSheet(QStringLiteral("color: #1b2a4a"));
        label->setGeometry(0, row.top, splashSize.width(), row.height);
    }
    findChild<QLabel *>(QStringLiteral("lblversion"))->setText(product::paddedVersion());
    if (QScreen *where = QGuiApplication::primaryScreen())
        move(where->geometry().center() - rect().center());
}

frmSplash::~frmSplash() = default;

void frmSplash::showWithShadow()
{
    shadow_ = std::make_unique<frmShadow>();
    shadow_->Init(geometry(), clock_);
    show();
    raise();
}

void frmSplash::leaveTop()
{
    // Changing the flag hides a window; both are about to go, so it is enough that the board may come over
    // them.
    if (shadow_)
        shadow_->lower();
    lower();
}

bool frmSplash::event(QEvent *event)
{
    // A question or an error while the window loads would lie behind the splash, which stays on top.
    if (event->type() == QEvent::WindowBlocked) {
        hide();
        if (shadow_)
            shadow_->hide();
    }
    return QWidget::event(event);
}

void frmSplash::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    QSvgRenderer(QStringLiteral(":/splash/splash.svg")).render(&painter, QRectF(rect()));
}
