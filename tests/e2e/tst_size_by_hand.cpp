// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "e2e/desktop.h"
#include "e2e/known_board.h"
#include "support/test_class.h"

namespace {

constexpr int noteStays = 3500; ///< milliseconds, until no short note lies over the board

/// The red tiles of the whole screen, which has only the board in this colour.
bool showsWortels(Desktop &desktop, qsizetype count, int percent)
{
    const QSize tile = QSize(16, 22) * percent / 100;
    const bool shown = desktop.waitForPicture([&](const QImage &picture) {
        const QRect board(0, 0, picture.width(), picture.height() * 3 / 4);
        const QVector<QRect> tiles = areasOfColour(picture.copy(board), colour::red, tile);
        return tiles.size() == count;
    });
    Desktop::pause(700); // a new window is painted before it has the keys
    return shown;
}

} // namespace

/// The size of the whole program, by its keys.
class SizeByHandTest : public QObject
{
    Q_OBJECT

private slots:
    void aLargerBoardIsTheSameBoard()
    {
        Desktop desktop(QSize(1366, 768));
        quiet(desktop);
        // Nothing lies so low that a larger size would have to fit it in.
        const QByteArray board = knownBoard().replace("Top=400", "Top=300");
        desktop.start({desktop.writeFile(u"brett.wlx"_s, board)});
        QVERIFY(showsWortels(desktop, 6, 100));
        // One more by Shift and the right button: a step that can be undone.
        const QPoint tile = tilesOn(desktop.screenshot(), desktop.boardArea(), colour::red).value(0).center();
        desktop.hold(u"shift"_s, [&] { desktop.click(tile, 3); });
        QVERIFY(showsWortels(desktop, 7, 100));
        Desktop::pause(noteStays);
        const QImage before = desktop.screenshot();

        desktop.key(u"ctrl+plus"_s);
        QVERIFY(showsWortels(desktop, 7, 125));
        desktop.keepPicture(u"size-125"_s);
        desktop.key(u"ctrl+plus ctrl+plus ctrl+plus"_s); // no further than the screen allows
        QVERIFY(showsWortels(desktop, 7, 150));
        desktop.keepPicture(u"size-150"_s);
        QVERIFY(desktop.storedSettings().contains(u"ProgramSize=150"_s));
        QVERIFY(desktop.isRunning());
        // A second start finds the first, which has changed its window.
        QCOMPARE(desktop.startAgain({u"brett.wlx"_s}), 0);
        QVERIFY(showsWortels(desktop, 6, 150));
        desktop.key(u"ctrl+i"_s); // undone twice: the session, the copy
        QVERIFY(showsWortels(desktop, 7, 150));
        desktop.key(u"ctrl+i"_s);
        QVERIFY(showsWortels(desktop, 6, 150));
        desktop.key(u"ctrl+j"_s);
        QVERIFY(showsWortels(desktop, 7, 150));

        desktop.key(u"ctrl+minus ctrl+minus"_s);
        QVERIFY(showsWortels(desktop, 7, 100));
        Desktop::pause(noteStays);
        QVERIFY(desktop.screenshot().copy(desktop.boardArea()) == before.copy(desktop.boardArea()));
        QVERIFY(desktop.close());
    }
};

WORTEL_TEST(SizeByHandTest)
#include "tst_size_by_hand.moc"
