// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "dialogs/report_window.h"

#include "widgets/colour.h"
#include "widgets/finger.h"
#include "widgets/gradient.h"

#include <QApplication>
#include <QBoxLayout>
#include <QIcon>
#include <QMouseEvent>
#include <QPainter>
#include <QTextLayout>
#include <QTimer>
#include <QToolButton>

#include <algorithm>
#include <utility>

namespace {

constexpr int twipsPerPixel = 15;
constexpr int growStep = 10; ///< twips a step
constexpr int sinkStep = 5;
constexpr int stepsPerFrame = 8; ///< full height in about a third of a second
constexpr int frameTime = 16;    ///< milliseconds
constexpr int narrowest = 320;   ///< pixels
constexpr int widest = 560;
constexpr int smileySize = 64;
constexpr int margin = 14;
constexpr int lineGap = 5;
constexpr int signSize = 20;
constexpr int frameWidth = 2;
constexpr QColor markColour{0xC0, 0x00, 0x00};

template <typename Label = QLabel> Label *makeLine(QWidget *parent, const char *name, int pixels)
{
    auto *label = new Label(parent);
    label->setObjectName(QLatin1String(name));
    label->setTextFormat(Qt::PlainText);
    QFont font = label->font();
    font.setPixelSize(pixels);
    label->setFont(font);
    QPalette palette = label->palette();
    palette.setColor(QPalette::WindowText, paint::ink);
    label->setPalette(palette);
    return label;
}

/// One line, without the line end that callers close theirs with; blanks within a typed word stay.
QString oneLine(QString text)
{
    while (text.endsWith(u'\n') || text.endsWith(u'\r'))
        text.chop(1);
    for (QChar &character : text) {
        if (character < u' ' || character == QChar::LineSeparator || character == QChar::ParagraphSeparator)
            character = u' ';
    }
    return text;
}

void setElided(QLabel *label, const QString &text, int width)
{
    label->setText(label->fontMetrics().elidedText(oneLine(text), Qt::ElideRight, width));
}

} // namespace

void WordLine::setMarked(const QList<int> &letters)
{
    marked_ = letters;
    update();
}

void WordLine::paintEvent(QPaintEvent *event)
{
    if (marked_.isEmpty()) {
        QLabel::paintEvent(event);
        return;
    }
    QTextCharFormat stands;
    stands.setForeground(markColour);
    stands.setFontUnderline(true);
    QList<QTextLayout::FormatRange> formats;
    for (const int letter : marked_)
        formats.append({letter, 1, stands});
    QTextLayout layout(text(), font());
    layout.setFormats(formats);
    layout.beginLayout();
    const QTextLine line = layout.createLine();
    layout.endLayout();
    QPainter painter(this);
    painter.setPen(palette().color(QPalette::WindowText));
    layout.draw(&painter, QPointF(0, (height() - line.height()) / 2));
}

ReportWindow::ReportWindow(QWidget *parent)
    : QWidget(parent)
    , picBackground_(new GradientPanel(this))
    , Label1_(makeLine(picBackground_, "Label1", 16))
    , lblAlert_(makeLine(picBackground_, "lblAlert", 15))
    , Label2_(makeLine<WordLine>(picBackground_, "Label2", 22))
    , Label3_(makeLine(picBackground_, "Label3", 15))
    , ImgSmiley_(new QLabel(picBackground_))
    , Image1_(new QToolButton(picBackground_))
    , frame_(new QTimer(this))
    , AlertTimer_(new QTimer(this))
{
    setFocusPolicy(Qt::NoFocus);
    QFont title = Label1_->font();
    title.setBold(true);
    Label1_->setFont(title);
    picBackground_->setObjectName(QStringLiteral("picBackground"));
    ImgSmiley_->setObjectName(QStringLiteral("ImgSmiley"));
    ImgSmiley_->setFixedSize(smileySize, smileySize);
    ImgSmiley_->setPixmap(QIcon(QStringLiteral(":/icons/smiley.svg"))
                              .pixmap(QSize(smileySize, smileySize), devicePixelRatioF()));
    // The sign is shown more plainly while the pointer is on it.
    Image1_->setObjectName(QStringLiteral("Image1"));
    Image1_->setAccessibleName(QStringLiteral("Schließen"));
    Image1_->setFocusPolicy(Qt::NoFocus);
    Image1_->setAutoRaise(true);
    Image1_->setCursor(Qt::PointingHandCursor);
    QIcon close;
    close.addFile(QStringLiteral(":/icons/close.svg"), {}, QIcon::Normal);
    close.addFile(QStringLiteral(":/icons/close-hover.svg"), {}, QIcon::Active);
    Image1_->setIcon(close);
    Image1_->setIconSize(QSize(signSize, signSize));
    connect(Image1_, &QAbstractButton::clicked, this, &ReportWindow::closePressed);

    layOutParts();

    frame_->setInterval(frameTime);
    AlertTimer_->setSingleShot(true);
    AlertTimer_->setObjectName(QStringLiteral("AlertTimer"));
    connect(frame_, &QTimer::timeout, this, [this] { isOver_ && !held_ ? sink() : grow(); });
    connect(AlertTimer_, &QTimer::timeout, this, [this] {
        isOver_ = true;
        held_ ? emit overstays() : frame_->start();
    });
    setMouseTracking(true);
    for (QWidget *part : findChildren<QWidget *>())
        part->setMouseTracking(true);
    hide();
}

void ReportWindow::layOutParts()
{
    auto *head = new QHBoxLayout;
    head->addWidget(Label1_, 1);
    head->addWidget(Image1_, 0, Qt::AlignRight | Qt::AlignTop);
    auto *lines = new QVBoxLayout;
    lines->setSpacing(lineGap);
    for (QLabel *line : std::initializer_list<QLabel *>{lblAlert_, Label2_, Label3_})
        lines->addWidget(line);
    auto *body = new QHBoxLayout;
    body->setSpacing(margin);
    body->addWidget(ImgSmiley_, 0, Qt::AlignVCenter); // hidden it takes no room
    body->addLayout(lines, 1);
    auto *column = new QVBoxLayout(picBackground_);
    column->setContentsMargins(margin, 8, 8, margin);
    column->setSpacing(lineGap);
    column->addLayout(head);
    column->addLayout(body);
}

void ReportWindow::setReport(const Report &report, const QPoint &foot)
{
    foot_ = foot;
    QFont word = Label2_->font();
    word.setBold(report.boldLine2);
    Label2_->setFont(word);
    ImgSmiley_->setVisible(report.showSmiley);
    const int beside = 2 * margin + (report.showSmiley ? smileySize + margin : 0);
    const int most = std::min(widest, parentWidget()->width() - foot.x() - 10 - 2 * frameWidth);
    const int wanted = Label2_->fontMetrics().horizontalAdvance(oneLine(report.line2).left(200)) + 2;
    const int width = std::clamp(wanted + beside, std::min(narrowest, most), most);
    setElided(Label1_, report.title, width - beside - signSize);
    setElided(lblAlert_, report.line1.trimmed(), width - beside);
    setElided(Label2_, report.line2, width - beside);
    Label2_->setMarked(report.marked);
    setElided(Label3_, report.line3.trimmed(), width - beside);
    picBackground_->layout()->invalidate();
    const int inside = picBackground_->layout()->totalMinimumSize().height();
    picBackground_->setGeometry(frameWidth, frameWidth, width, inside);
    fullHeight_ = inside + 2 * frameWidth;
    setFixedWidth(width + 2 * frameWidth);
    setTwips(firstHeight);
}

void ReportWindow::slide(int seconds)
{
    isOver_ = false;
    letGo();
    AlertTimer_->stop();
    AlertTimer_->setInterval(std::clamp(seconds, 0, 24 * 3600) * 1000);
    show();
    raise();
    frame_->start();
}

void ReportWindow::drop()
{
    letGo();
    frame_->stop();
    AlertTimer_->stop();
    hide();
}

void ReportWindow::setTwips(int twips)
{
    twips_ = twips;
    const int height = std::min(twips / twipsPerPixel, fullHeight_);
    setGeometry(foot_.x(), foot_.y() - height, width(), height);
}

void ReportWindow::grow()
{
    setTwips(std::min(twips_ + growStep * stepsPerFrame, fullHeight_ * twipsPerPixel));
    if (twips_ >= fullHeight_ * twipsPerPixel) {
        frame_->stop();
        if (!isOver_)
            AlertTimer_->start();
    }
}

void ReportWindow::sink()
{
    setTwips(std::max(twips_ - sinkStep * stepsPerFrame, lastHeight));
    if (twips_ > lastHeight)
        return;
    drop();
    emit sunk();
}

// Held by the pointer
// ------------------------------------------------------------------------------------------------------------

/// A report that comes up under a pointer at rest gets no move, and a finger does not rest on anything.
void ReportWindow::mouseMoveEvent(QMouseEvent *event)
{
    if (!finger::isBehind(*event))
        hold();
}

void ReportWindow::leaveEvent(QEvent *) { letGo(); }

void ReportWindow::hold()
{
    if (held_)
        return;
    held_ = true;
    qApp->installEventFilter(this);
    frame_->start(); // one that was sinking comes up again
    if (isOver_)
        emit overstays();
}

void ReportWindow::letGo()
{
    if (!std::exchange(held_, false))
        return;
    qApp->removeEventFilter(this);
    if (isOver_)
        frame_->start();
}

bool ReportWindow::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::KeyPress)
        letGo();
    return QWidget::eventFilter(watched, event);
}

void ReportWindow::paintEvent(QPaintEvent *) { QPainter(this).fillRect(rect(), paint::activeFrame); }
