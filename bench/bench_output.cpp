// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "bench.h"

#include "output/web/web_page.h"
#include "platform/files.h"
#include "platform/ini_file.h"
#include "support/test_board.h"

#include <QPagedPaintDevice>
#include <QPainter>
#include <QTemporaryDir>

using namespace Qt::StringLiterals;

namespace {

double webPage()
{
    constexpr int tiles = 2000;
    const QTemporaryDir folder;
    WebPage page;
    page.session = storedPath(folder.filePath(u"brett.wlx"_s));
    page.file = storedPath(folder.filePath(u"brett.html"_s));
    page.title = u"Wortbausteine"_s;
    IniFile session(page.session);
    for (int i = 1; i <= tiles; ++i) {
        const QString section = u"Morpheme%1"_s.arg(i);
        session.write(section, u"Type"_s, i % 2 == 0 ? u"Prefix"_s : u"Wortel"_s);
        session.write(section, u"Left"_s, QString::number(i * 37 % 1800));
        session.write(section, u"Top"_s, QString::number(i * 53 % 900));
        session.write(section, u"Caption"_s, u"\"stämme%1\""_s.arg(i));
    }
    session.write(u"NumObjects"_s, u"ObjCounter"_s, QString::number(tiles));
    session.save();
    MakeWebpage(page);
    const QByteArray bytes = ReadWholeFile(page.file);
    const QString beside = storedPath(folder.filePath(u"same.bytes"_s));
    return bench::ratio([&] { MakeWebpage(page); }, [&] { writeFileAtomically(beside, bytes); }, 300);
}

/// The painter calls that tiles come down to, and nothing else.
void paintBare(QPainter &painter, const TileStore &store, double scale)
{
    QFont font(u"Liberation Sans"_s);
    font.setBold(true);
    font.setPixelSize(qRound(11 * scale));
    painter.setFont(font);
    for (const auto &tile : store.tiles()) {
        const QRectF box(tile->xLeft() * scale, tile->yTop() * scale, tile->Extent() * scale, 25 * scale);
        painter.fillRect(box, Qt::red);
        for (int edge = 0; edge < 4; ++edge)
            painter.fillRect(box, Qt::white);
        painter.setPen(Qt::white);
        painter.drawText(box.bottomLeft(), tile->txt);
    }
}

double printBoard()
{
    constexpr int tiles = 500;
    TestBoard board(1, {1920, 1080});
    for (int i = 0; i < tiles; ++i)
        board.lay(tileKinds[static_cast<std::size_t>(i) % 3], i * 37 % 1800, i * 53 % 900,
                  u"stem%1"_s.arg(i));
    board.t.options.setBox(Setting::PrintInColor, 1);
    PrintJob job;
    job.landscape = job.inColour = true;
    job.pdfFile = board.t.AppFolder + u"bare.pdf"_s;
    SystemPrinter printer;
    return bench::ratio([&] { board.r.printing.PrintOut(); },
                        [&] {
                            const auto document = printer.begin(job);
                            QPainter painter(&document->device());
                            paintBare(painter, *board.store, document->device().width() / 1920.0);
                            painter.end();
                            document->send();
                        },
                        20);
}

const bench::Row rows[] = {
    {"output: web page of 2,000 tiles (writing its bytes)", 3.0, webPage},
    {"output: print of 500 tiles to a PDF (bare painter calls)", 2.0, printBoard},
};

} // namespace
