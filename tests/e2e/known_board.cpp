// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "e2e/known_board.h"

#include <cstdlib>

using namespace Qt::StringLiterals;

namespace {

struct TileRow
{
    const char *type;
    int left, top;
    const char *caption;
};

constexpr TileRow rows[] = {
    {"Prefix", 700, 40, "auf"},   {"Wortel", 60, 40, "mach"},      {"Wortel", 160, 90, "lauf"},
    {"Wortel", 260, 60, "kauf"},  {"Wortel", 360, 120, "schreib"}, {"Wortel", 460, 80, "spiel"},
    {"Wortel", 560, 150, "fahr"}, {"Suffix", 700, 400, "en"},
};

/// Where reports come up: the left end of the board, over the band.
QRect reportArea(const QRect &board) { return {board.left() + 34, board.bottom() - 90, 300, 80}; }

} // namespace

void quiet(Desktop &desktop)
{
    for (const QString &key : {u"ShowWelcomeMsg"_s, u"UseLexTip"_s, u"SoundOnActions"_s})
        desktop.setSetting(key, u"0"_s);
}

QStringList knownWords()
{
    QStringList words;
    for (const TileRow &row : rows)
        if (qstrcmp(row.type, "Wortel") == 0)
            words << QString::fromLatin1(row.caption);
    return words;
}

QByteArray knownBoard()
{
    QByteArray session;
    int count = 0;
    for (const TileRow &row : rows) {
        session += "[Morpheme" + QByteArray::number(++count) + "]\r\nType=" + row.type +
                   "\r\nLeft=" + QByteArray::number(row.left) + "\r\nTop=" + QByteArray::number(row.top) +
                   "\r\nCaption=\"" + row.caption + "\"\r\n";
    }
    return session + "[NumObjects]\r\nObjCounter=" + QByteArray::number(count) +
           "\r\n[Name]\r\nLexiconInUse=Hauptbausteine\r\n";
}

QVector<QRect> tilesOn(const QImage &screen, const QRect &board, QRgb colour)
{
    QVector<QRect> tiles = areasOfColour(screen.copy(board), colour, leastTile);
    for (QRect &tile : tiles)
        tile.translate(board.topLeft());
    return tiles;
}

bool startKnownBoard(Desktop &desktop)
{
    desktop.start({desktop.writeFile(u"brett.wlx"_s, knownBoard())});
    return !desktop.waitForWindow(mainWindow).isEmpty();
}

bool showsTiles(Desktop &desktop, qsizetype count, QRgb colour)
{
    const QRect board = desktop.boardArea();
    return desktop.waitForPicture(
        [&](const QImage &picture) { return tilesOn(picture, board, colour).size() == count; });
}

bool reportIsUp(const QImage &screen, const QRect &board)
{
    const QRect area = reportArea(board);
    return pixelsOfColour(screen, area, colour::board) < area.width() * area.height() / 4;
}

bool praiseIsUp(const QImage &screen, const QRect &board)
{
    if (!reportIsUp(screen, board))
        return false;
    const QImage report = screen.copy(reportArea(board));
    int sunny = 0; // the smiley's face is shaded
    for (int y = 0; y < report.height(); ++y) {
        for (int x = 0; x < report.width(); ++x) {
            const QRgb pixel = report.pixel(x, y);
            sunny += qRed(pixel) > 230 && qGreen(pixel) > 180 && qBlue(pixel) < 140 ? 1 : 0;
        }
    }
    return sunny > 500;
}

bool sameText(const QImage &one, const QImage &other)
{
    constexpr int shade = 40;
    if (one.size() != other.size())
        return false;
    for (int y = 0; y < one.height(); ++y) {
        for (int x = 0; x < one.width(); ++x) {
            const QRgb a = one.pixel(x, y);
            const QRgb b = other.pixel(x, y);
            if (std::abs(qRed(a) - qRed(b)) > shade || std::abs(qGreen(a) - qGreen(b)) > shade ||
                std::abs(qBlue(a) - qBlue(b)) > shade)
                return false;
        }
    }
    return true;
}
