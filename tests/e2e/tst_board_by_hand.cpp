// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "e2e/desktop.h"
#include "e2e/known_board.h"
#include "support/test_class.h"

#include <memory>

/// The board in a child's hand: dragging, menus and keys, on one run of the program. The slots follow each
/// other as a child would play; each finds the tiles by their colour, wherever the slot before left them.
class BoardByHandTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        desktop_ = std::make_unique<Desktop>(QSize(1024, 640));
        QVERIFY(desktop_->isReady());
        quiet(*desktop_);
        QVERIFY(startKnownBoard(*desktop_));
        board_ = desktop_->boardArea();
        counterArea_ = desktop_->toolArea(u"OptType(0)"_s);
        QVERIFY(showsTiles(*desktop_, 6));
    }

    void aTileFollowsThePointer()
    {
        const QRect before = wortels().first();
        const QPoint goal = board_.topLeft() + QPoint(640, 320);
        desktop_->drag(before.center(), goal);
        desktop_->keepPicture(u"tile-dragged"_s);

        const QVector<QRect> after = wortels();
        QCOMPARE(after.size(), 6);
        QVERIFY(!after.contains(before));
        // The pointer's point becomes the tile's corner; the area is the tile without its outline.
        const QRect moved(goal + QPoint(1, 1), before.size());
        QVERIFY2(after.contains(moved), "no tile at the pointer's place");
    }

    void theLowerEdgeHoldsTilesBack()
    {
        const QPoint below = desktop_->tool(u"Command5"_s);
        desktop_->drag(wortels().first().center(), QPoint(below.x(), board_.bottom() - 60));
        desktop_->drag(wortels().last().center(), below);
        desktop_->keepPicture(u"lower-edge"_s);
        QVERIFY2(wortels().size() == 6, "a tile is hidden by the band");
    }

    void theMainMenuOpensOnAnEmptySpot()
    {
        const QImage before = desktop_->boardPicture();
        desktop_->chooseFromMenu(emptySpot(), u"Down"_s);
        desktop_->keepPicture(u"main-menu"_s);
        QVERIFY(desktop_->boardPicture() != before);
        desktop_->key(u"Escape"_s);
        QVERIFY(desktop_->boardBecomes(before));
    }

    void aTilesMenuRemovesAndCopies()
    {
        const QImage six = counter();
        desktop_->chooseFromMenu(wortels().first().center(),
                                 u"Up Up Return"_s); // from the end: close, remove
        QVERIFY(desktop_->answer(u"^Entfernen$"_s));
        QVERIFY(showsTiles(*desktop_, 5));
        QVERIFY(desktop_->waitForPicture(
            [&](const QImage &picture) { return !sameText(counter(picture), six); }));

        desktop_->chooseFromMenu(wortels().first().center(), u"Down Down Right Return"_s); // one copy
        QVERIFY(
            desktop_->waitForPicture([&](const QImage &picture) { return sameText(counter(picture), six); }));
        desktop_->keepPicture(u"tile-copied"_s);
    }

    void removingCanBeRefused()
    {
        const QImage before = desktop_->boardPicture();
        const QImage counted = counter();
        desktop_->chooseFromMenu(wortels().first().center(), u"Up Up Return"_s);
        QVERIFY(desktop_->answer(u"^Entfernen$"_s, u"Escape"_s));
        QVERIFY(desktop_->boardBecomes(before));
        QVERIFY(sameText(counter(), counted));
    }

    void keysShuffleUndoAndSort()
    {
        const QImage before = desktop_->boardPicture();
        desktop_->key(u"ctrl+f"_s);
        QVERIFY(desktop_->boardBecomes(before, false));
        desktop_->keepPicture(u"shuffled"_s);
        desktop_->key(u"ctrl+i"_s);
        QVERIFY(desktop_->boardBecomes(before));

        desktop_->key(u"ctrl+b"_s);
        // Five in a row, as the setting tells, and the sixth below the first.
        QVERIFY(desktop_->waitForPicture([this](const QImage &picture) {
            const QVector<QRect> tiles = wortels(picture);
            return tiles.size() == 6 && tiles.at(4).top() == tiles.at(0).top() &&
                   tiles.at(5).left() == tiles.at(0).left();
        }));
        desktop_->keepPicture(u"sorted"_s);
    }

    void tilesDroppedInARowMakeAWord()
    {
        const QPoint field = desktop_->tool(u"Dropper1"_s);
        const QImage before = desktop_->boardPicture();
        desktop_->click(desktop_->tool(u"Option1(0)"_s));
        desktop_->drag(tiles(colour::yellow).first().center(), field); // "auf"
        desktop_->drag(tileOf(u"mach"_s).center(), field);
        desktop_->drag(tiles(colour::blue).first().center(), field); // "en"
        desktop_->keepPicture(u"word-dropped"_s);
        QVERIFY2(desktop_->boardPicture() == before, "the dropped tiles stay on the board");
        desktop_->click(desktop_->tool(u"Command2"_s));
        QVERIFY(
            desktop_->waitForPicture([this](const QImage &picture) { return praiseIsUp(picture, board_); }));
        desktop_->keepPicture(u"word-praised"_s);
    }

    void cleanupTestCase()
    {
        QVERIFY(desktop_->close());
        desktop_.reset();
    }

private:
    QVector<QRect> tiles(QRgb colour) { return tilesOn(desktop_->screenshot(), board_, colour); }
    QVector<QRect> wortels() { return tiles(colour::red); }
    QVector<QRect> wortels(const QImage &screen) const { return tilesOn(screen, board_, colour::red); }
    /// The sorted board shows its six words in their order.
    QRect tileOf(const QString &text)
    {
        QStringList words = knownWords();
        words.sort();
        return wortels().value(words.indexOf(text));
    }
    QPoint emptySpot() const { return board_.topRight() + QPoint(-300, 60); }
    QImage counter() { return counter(desktop_->screenshot()); }
    QImage counter(const QImage &screen) const { return screen.copy(counterArea_); }

    std::unique_ptr<Desktop> desktop_;
    QRect board_;
    QRect counterArea_;
};

WORTEL_TEST(BoardByHandTest)
#include "tst_board_by_hand.moc"
