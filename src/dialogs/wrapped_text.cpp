// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "dialogs/wrapped_text.h"

#include <QEvent>
#include <QPaintEvent>
#include <QPainter>
#include <QRegularExpression>
#include <QTextOption>
#include <QtMath>

#include <algorithm>

namespace {

constexpr int longestText = 50000; ///< characters; nobody reads more in a box, and each has to be measured

QString prepared(QString text)
{
    static const QRegularExpression lineEnd(QStringLiteral("\\r\\n|[\\r\\n\\x{0B}\\x{0C}\\x{85}\\x{2029}]"));
    if (text.size() > longestText)
        text = text.left(longestText) + QChar(0x2026);
    text.remove(QChar(u'\0'));
    return text.replace(lineEnd, QString(QChar(QChar::LineSeparator)));
}

} // namespace

WrappedText::WrappedText(const QString &text, QWidget *parent)
    : QWidget(parent)
    , text_(text)
{
    setAccessibleName(text);
    layout_.setText(prepared(text));
    layout_.setCacheEnabled(true);
    QSizePolicy policy(QSizePolicy::Preferred, QSizePolicy::Preferred);
    policy.setHeightForWidth(true);
    setSizePolicy(policy);
    setAlignment(Qt::AlignLeft);
}

void WrappedText::setAlignment(Qt::Alignment alignment)
{
    alignment_ = alignment;
    laidOutFor_ = -1;
    update();
}

double WrappedText::layOut(double width) const
{
    if (!qFuzzyCompare(width, laidOutFor_)) {
        QTextOption option(alignment_);
        option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
        option.setTextDirection(Qt::LeftToRight);
        option.setTabStopDistance(fontMetrics().horizontalAdvance(u' ') * 8);
        layout_.setTextOption(option);
        layout_.setFont(font());
        double y = 0;
        layout_.beginLayout();
        for (QTextLine line = layout_.createLine(); line.isValid(); line = layout_.createLine()) {
            line.setLineWidth(width);
            line.setPosition({0, y});
            y += std::ceil(line.height() * 1.1);
        }
        layout_.endLayout();
        laidOutFor_ = width;
    }
    const int lines = layout_.lineCount();
    if (lines == 0)
        return 0;
    const QTextLine last = layout_.lineAt(lines - 1);
    return last.y() + last.height();
}

int WrappedText::naturalWidth(int limit) const
{
    layOut(limit);
    double widest = 0;
    for (int i = 0; i < layout_.lineCount(); ++i)
        widest = std::max(widest, layout_.lineAt(i).naturalTextWidth());
    return std::min(limit, qCeil(widest) + 1);
}

int WrappedText::heightForWidth(int width) const { return qCeil(layOut(width)); }

void WrappedText::paintEvent(QPaintEvent *event)
{
    const double height = layOut(width());
    QPainter painter(this);
    painter.setPen(colour_);
    const double top = std::max(0.0, std::floor((this->height() - height) / 2));
    layout_.draw(&painter, QPointF(0, top), {}, event->rect());
}

void WrappedText::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::FontChange)
        laidOutFor_ = -1;
    QWidget::changeEvent(event);
}
