// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "output/printing/text_pages.h"

#include <QAbstractTextDocumentLayout>
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

/// The page in inches, from where printing begins.
struct Page
{
    explicit Page(const QPagedPaintDevice &device)
    {
        const QMarginsF offset = device.pageLayout().margins(QPageLayout::Inch);
        const QSizeF paper = device.pageLayout().fullRect(QPageLayout::Inch).size();
        const double side = sideMargin / twipsPerInch;
        const double upper = upperMargin / twipsPerInch;
        text = QRectF(QPointF(side - offset.left(), upper - offset.top()),
                      QPointF(paper.width() - side - offset.left(), paper.height() - upper - offset.top()));
        middle = paper.width() / 2 - offset.left();
    }

    QRectF text;
    double middle; ///< of the paper's width
};

/// What stands around the text of a page.
class Marks
{
public:
    Marks(QPainter &painter, const QPagedPaintDevice &device, const Page &page)
        : painter_(painter)
        , page_(page)
        , font_(u"Arial"_s)
        , dots_(device.logicalDpiY())
    {
        font_.setPointSizeF(markSize);
        font_.setHintingPreference(QFont::PreferNoHinting);
    }

    void print(int number, const QString &headerWord, const QString &footerWord)
    {
        painter_.setFont(font_);
        painter_.setPen(Qt::black);
        const QString mark = u"- %1 -"_s.arg(number);
        printAt(page_.text.right() * dots_ - widthOf(mark), markTop / twipsPerInch, mark);
        printCentred(upperMargin / twipsPerInch / 2, headerWord);
        printCentred(page_.text.bottom() + upperMargin / twipsPerInch / 4, footerWord);
    }

private:
    double widthOf(const QString &word) const { return painter_.fontMetrics().horizontalAdvance(word); }
    void printCentred(double top, const QString &word)
    {
        printAt(page_.middle * dots_ - widthOf(word) / 2, top, word);
    }
    /// `left` in dots, `top` in inches.
    void printAt(double left, double top, const QString &word)
    {
        painter_.drawText(QPointF(left, top * dots_ + painter_.fontMetrics().ascent()), word);
    }

    QPainter &painter_;
    const Page &page_;
    QFont font_;
    double dots_; ///< of the paper, an inch
};

} // namespace

void paintText(QPainter &painter, QPagedPaintDevice &device, const QTextDocument &text,
               const QString &headerWord, const QString &footerWord)
{
    const Page page(device);
    Marks marks(painter, device, page);
    // The text is laid out in dots of the screen, in which its letters and pictures may be measured.
    const double dots = QGuiApplication::primaryScreen()->logicalDotsPerInchY();
    const double scale = device.logicalDpiY() / dots;
    const QRectF room(page.text.topLeft() * dots, page.text.size() * dots);
    PaperText paper(text);
    paper.setPageSize(room.size());
    const int count = paper.pageCount();
    for (int number = 1;; ++number) {
        const double top = (number - 1) * room.height();
        QAbstractTextDocumentLayout::PaintContext context;
        context.palette.setColor(QPalette::Text, Qt::black);
        // A line that only touches the edge belongs to the next page.
        context.clip = QRectF(0, top + 0.5, room.width(), room.height() - 1);
        painter.save();
        painter.scale(scale, scale);
        painter.translate(room.left(), room.top() - top);
        painter.setClipRect(QRectF(0, top, room.width(), room.height()));
        paper.documentLayout()->draw(&painter, context);
        painter.restore();
        if (number >= count)
            break; // the last page deliberately gets no marks
        marks.print(number, headerWord, footerWord);
        device.newPage();
    }
}
