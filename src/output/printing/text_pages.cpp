// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "output/printing/text_pages.h"

#include <QAbstractTextDocumentLayout>
#include <QFontMetricsF>
#include <QGuiApplication>
#include <QPageLayout>
#include <QPagedPaintDevice>
#include <QPainter>
#include <QScreen>
#include <QTextCursor>
#include <QTextDocument>
#include <QTextDocumentFragment>

using namespace Qt::StringLiterals;

namespace {

constexpr double twipsPerInch = 1440;
constexpr int sideMargin = 1440;  ///< twips
constexpr int upperMargin = 1800; ///< twips, and the lower one
constexpr int markTop = 360;      ///< twips from the top of what can be printed on
constexpr double markSize = 10;   ///< points

/// A copy of a text that loads nothing its words may name.
class PaperText : public QTextDocument
{
public:
    explicit PaperText(const QTextDocument &text)
    {
        setDefaultFont(text.defaultFont());
        setUseDesignMetrics(true);
        setDocumentMargin(0);
        QTextCursor(this).insertFragment(QTextDocumentFragment(&text));
    }

protected:
    QVariant loadResource(int, const QUrl &) override { return {}; }
};

/// The page in dots of the screen, in which text is laid out; the origin is where printing begins.
struct Page
{
    explicit Page(const QPagedPaintDevice &device)
        : dots(QGuiApplication::primaryScreen()->logicalDotsPerInchY())
        , scale(device.logicalDpiY() / dots)
    {
        const QMarginsF offset = device.pageLayout().margins(QPageLayout::Inch);
        const QSizeF paper = device.pageLayout().fullRect(QPageLayout::Inch).size();
        const QRectF inches(
            QPointF(sideMargin / twipsPerInch - offset.left(), upperMargin / twipsPerInch - offset.top()),
            QPointF(paper.width() - sideMargin / twipsPerInch - offset.left(),
                    paper.height() - upperMargin / twipsPerInch - offset.top()));
        text = QRectF(inches.topLeft() * dots, inches.size() * dots);
        middle = (paper.width() / 2 - offset.left()) * dots;
    }
    double ofTwips(double twips) const { return twips / twipsPerInch * dots; }

    double dots;  ///< of the screen, an inch
    double scale; ///< dots of the paper a dot of the screen
    QRectF text;
    double middle; ///< of the paper's width
};

void printCentred(QPainter &painter, const Page &page, double top, const QString &word)
{
    const QFontMetricsF metrics(painter.font());
    painter.drawText(QPointF(page.middle - metrics.horizontalAdvance(word) / 2, top + metrics.ascent()),
                     word);
}

void printMarks(QPainter &painter, const Page &page, int number, const QString &headerWord,
                const QString &footerWord)
{
    QFont font(u"Arial"_s);
    font.setPointSizeF(markSize);
    painter.setFont(font);
    painter.setPen(Qt::black);
    const QFontMetricsF metrics(font);
    const QString mark = u"- %1 -"_s.arg(number);
    painter.drawText(QPointF(page.text.right() - metrics.horizontalAdvance(mark),
                             page.ofTwips(markTop) + metrics.ascent()),
                     mark);
    printCentred(painter, page, page.ofTwips(upperMargin / 2.0), headerWord);
    printCentred(painter, page, page.text.bottom() + page.ofTwips(upperMargin / 4.0), footerWord);
}

} // namespace

void paintText(QPainter &painter, QPagedPaintDevice &device, const QTextDocument &text,
               const QString &headerWord, const QString &footerWord)
{
    const Page page(device);
    PaperText paper(text);
    paper.setPageSize(page.text.size());
    painter.scale(page.scale, page.scale);
    const int count = paper.pageCount();
    for (int number = 1;; ++number) {
        const double top = (number - 1) * page.text.height();
        painter.save();
        painter.translate(page.text.left(), page.text.top() - top);
        QAbstractTextDocumentLayout::PaintContext context;
        context.palette.setColor(QPalette::Text, Qt::black);
        context.clip = QRectF(0, top, page.text.width(), page.text.height());
        painter.setClipRect(context.clip);
        paper.documentLayout()->draw(&painter, context);
        painter.restore();
        if (number >= count)
            break; // the last page deliberately gets no marks
        printMarks(painter, page, number, headerWord, footerWord);
        device.newPage();
    }
}
