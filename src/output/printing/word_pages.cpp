// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "output/printing/word_pages.h"

#include <QFontMetricsF>
#include <QPagedPaintDevice>
#include <QPainter>
#include <QTextLayout>

#include <algorithm>
#include <array>

namespace {

constexpr double letterSize = 12; ///< points
constexpr int gap = 2;            ///< average letters between two columns

using Widths = std::array<double, word_columns::most>;

/// What each column would like to have, with the gap behind it.
Widths naturalWidths(const word_columns::Rows &rows, const QFontMetricsF &metrics)
{
    const double space = gap * metrics.averageCharWidth();
    Widths widths{};
    for (const QStringList &row : rows)
        for (qsizetype column = 0; column < row.size(); ++column) {
            double &width = widths[static_cast<std::size_t>(column)];
            width = std::max(width, metrics.horizontalAdvance(row.at(column)) + space);
        }
    return widths;
}

/// Where the page is too narrow, the wide columns share what the narrow ones leave.
Widths widthsOnPage(const Widths &natural, double page)
{
    Widths sorted = natural;
    std::sort(sorted.begin(), sorted.end());
    double left = page;
    double share = page;
    for (std::size_t i = 0; i < sorted.size(); ++i) {
        share = left / static_cast<double>(sorted.size() - i);
        if (sorted[i] > share)
            break;
        left -= sorted[i];
        share = page;
    }
    Widths widths = natural;
    for (double &width : widths)
        width = std::min(width, share);
    return widths;
}

/// The word in pieces that fit into `width`; mostly one.
QStringList piecesOf(const QString &word, const QFont &font, QPaintDevice &device, double width)
{
    if (QFontMetricsF(font, &device).horizontalAdvance(word) <= width)
        return {word};
    QStringList pieces;
    QTextLayout layout(word, font, &device);
    QTextOption option;
    option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    layout.setTextOption(option);
    layout.beginLayout();
    for (QTextLine line = layout.createLine(); line.isValid(); line = layout.createLine()) {
        line.setLineWidth(width);
        pieces.append(word.mid(line.textStart(), line.textLength()));
    }
    layout.endLayout();
    return pieces;
}

/// Writes lines down the pages of a device.
class Pen
{
public:
    Pen(QPainter &painter, QPagedPaintDevice &device, double line)
        : painter_(painter)
        , device_(device)
        , line_(line)
        , height_(device.height())
    {}

    /// So many lines follow that should stand together.
    void keepTogether(qsizetype lines)
    {
        const double needed = static_cast<double>(lines) * line_;
        if (top_ > 0 && needed <= height_ && top_ + needed > height_)
            turn();
    }
    void beginLine()
    {
        if (top_ > 0 && top_ + line_ > height_)
            turn();
    }
    void write(double left, const QString &text)
    {
        painter_.drawText(QPointF(left, top_ + QFontMetricsF(painter_.font(), &device_).ascent()), text);
    }
    void endLine() { top_ += line_; }

private:
    void turn()
    {
        device_.newPage();
        top_ = 0;
    }

    QPainter &painter_;
    QPagedPaintDevice &device_;
    double line_;
    double height_;
    double top_ = 0;
};

} // namespace

void paintWords(QPainter &painter, QPagedPaintDevice &device, const word_columns::Rows &rows)
{
    QFont font = painter.font();
    font.setPointSizeF(letterSize);
    font.setHintingPreference(QFont::PreferNoHinting);
    painter.setFont(font);
    const QFontMetricsF metrics(font, &device);
    const double space = gap * metrics.averageCharWidth();
    const Widths widths = widthsOnPage(naturalWidths(rows, metrics), device.width() + space);
    Pen pen(painter, device, metrics.lineSpacing());
    for (const QStringList &row : rows) {
        std::vector<QStringList> cells;
        qsizetype lines = 0;
        for (qsizetype column = 0; column < row.size(); ++column) {
            const double room = widths[static_cast<std::size_t>(column)] - space;
            cells.push_back(piecesOf(row.at(column), font, device, room + 0.5));
            lines = std::max(lines, cells.back().size());
        }
        pen.keepTogether(lines);
        for (qsizetype line = 0; line < lines; ++line) {
            pen.beginLine();
            double left = 0;
            for (std::size_t column = 0; column < cells.size(); ++column) {
                if (line < cells[column].size())
                    pen.write(left, cells[column].at(line));
                left += widths[column];
            }
            pen.endLine();
        }
    }
}
