// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/columns.h"
#include "support/error_of.h"
#include "support/registry.h"
#include "support/test_board.h"

#include <QtTest>

using namespace Qt::StringLiterals;

namespace {

/// Writes down what a tile asks of its surface.
class RecordingSurface : public TileSurface
{
public:
    QStringList calls;

    void fillBox(int l, int t, int r, int b, Colour c) override { note(u"F"_s, {l, t, r, b}, c); }
    void outlineBox(int l, int t, int r, int b, Colour c) override { note(u"O"_s, {l, t, r, b}, c); }
    void printText(int x, int y, const QString &text, Colour c) override { note(text, {x, y}, c); }
    void clear() override {}

private:
    void note(const QString &what, std::initializer_list<int> numbers, Colour colour)
    {
        calls.append(what);
        for (const int number : numbers)
            calls.last() += u' ' + QString::number(number);
        calls.last() += u" %1"_s.arg(colour, 6, 16, QLatin1Char('0'));
    }
};

} // namespace

class TileStoreTest : public QObject
{
    Q_OBJECT

private slots:
    void drawsInOrder()
    {
        const QString fill = u"F 3 7 43 32 00ffff"_s;
        const QString outline = u"O 3 7 43 32 ffffff"_s;
        const QString print = u"ver 5 12 ff0000"_s;
        const QStringList monochrome{u"F 3 7 43 32 ffffff"_s, u"O 3 7 43 32 000000"_s, u"ver 5 12 000000"_s};
        for (const auto &[selected, extent, calls] :
             {std::tuple{false, 40, QStringList{fill, outline, print}},
              {true, 40, {fill, print}},
              {false, 0, QStringList()}}) {
            cWortel tile;
            tile.setExtent(extent);
            tile.setXLeft(3);
            tile.setYTop(7);
            tile.txt = u"ver"_s;
            tile.Selected = selected;
            tile.BGColor = prefix.back;
            tile.TxtColor = prefix.text;
            RecordingSurface surface;
            tile.Draw(surface);
            QCOMPARE(surface.calls, calls);
            surface.calls.clear();
            tile.DrawBAndW(surface);
            QCOMPARE(surface.calls == monochrome, extent > 0 && !selected);
        }
    }

    void edgesAreOutside()
    {
        cWortel tile;
        tile.setXLeft(10);
        tile.setYTop(20);
        tile.setExtent(40);
        for (const QPoint point : {QPoint(11, 30), QPoint(49, 30), QPoint(20, 21), QPoint(20, 44)})
            QVERIFY(tile.Inside(point.x(), point.y()));
        for (const QPoint point : {QPoint(10, 30), QPoint(50, 30), QPoint(20, 20), QPoint(20, 45)})
            QVERIFY(!tile.Inside(point.x(), point.y()));
    }

    void aTileFarOffDoesNotOverflow()
    {
        cWortel tile;
        tile.setExtent(40);
        for (const int place : {std::numeric_limits<int>::max(), std::numeric_limits<int>::min()}) {
            tile.setXLeft(place);
            tile.setYTop(place);
            RecordingSurface surface;
            tile.Draw(surface);
            QVERIFY(surface.calls.isEmpty());
            QVERIFY(!tile.Inside(5, 5));
        }
    }

    void theShownTileBelowIsMeant()
    {
        TestBoard b;
        b.lay(wortel, 100, 100, u"unten"_s);
        b.lay(prefix, 105, 105, u"oben"_s);
        const std::array kinds{wortel.back, prefix.back, colours::board, wortel.back};
        for (int filter = 0; filter < 4; ++filter) {
            b.optTypes->select(filter);
            QCOMPARE(b.store->TypeOfSelectedWortel(110, 110), kinds.at(static_cast<std::size_t>(filter)));
        }
        QCOMPARE(b.store->current()->txt, u"unten"_s);
    }

    void widthIsThatOfTheTextPlusTen()
    {
        TestBoard b;
        const QFontMetrics metrics(b.form.font());
        for (const auto &[text, measured] : {std::pair{u"Haus"_s, u"Haus"_s},
                                             {QString(), QString()},
                                             {u"a\r\nb\tc"_s, u"a  b c"_s},
                                             {QString(10000, u'm'), QString(10000, u'm')}}) {
            b.lay(wortel, 10, 100, text);
            QCOMPARE(b.texts().last(), text);
            QCOMPARE(b.store->tiles().back()->Extent(), metrics.horizontalAdvance(measured) + 10);
        }
    }

    /// The first match, case ignored; a tile of another kind counts as a Wortel tile.
    void eraseByText()
    {
        for (const auto &[text, left, counter] : {std::tuple{u"HAUS"_s, u"ver haus"_s, 1},
                                                  {u"Baum"_s, u"Haus ver haus"_s, 2},
                                                  {u"VER"_s, u"Haus haus"_s, 1}}) {
            TestBoard b;
            b.lay(wortel, 0, 0, u"Haus"_s);
            b.lay(prefix, 0, 50, u"ver"_s);
            b.lay(wortel, 0, 100, u"haus"_s);
            b.store->EraseSpecifiedWortel(text);
            QCOMPARE(b.texts().join(u' '), left);
            QCOMPARE(b.optTypes->value(0), counter);
        }
    }

    /// Several copies stop short of the right edge, and lie above the band.
    void copies()
    {
        for (const auto &[from, count, tiles] : {std::tuple{QPoint(0, 9), 3, u"42,9 a 84,9 a 126,9 a"_s},
                                                 {QPoint(0, 9), 0, u""_s},
                                                 {QPoint(0, 9), -5, u""_s},
                                                 {QPoint(518, 9), 99999, u"560,9 a 602,9 a"_s},
                                                 {QPoint(600, 9), 3, u""_s},
                                                 {QPoint(0, 480), 1, u"42,459 a"_s}}) {
            TestBoard b;
            b.store->DuplicateObject2(suffix.back, u"a"_s, count, from.x(), from.y());
            QCOMPARE(b.described().join(u' '), tiles);
            QCOMPARE(b.optTypes->value(2), b.store->count());
        }
    }

    void totalOverflowsAtSixteenBits()
    {
        TestBoard b;
        b.optTypes->set(0, 32767);
        b.optTypes->updateTotal();
        QCOMPARE(b.optTypes->caption(3), u"32767"_s);
        b.optTypes->set(1, 1);
        QCOMPARE(errorOf([&] { b.optTypes->updateTotal(); }), int(RuntimeError::Overflow));
        QCOMPARE(b.optTypes->caption(3), u"32767"_s);
    }
};

WORTEL_TEST(TileStoreTest)
#include "tst_tile_store.moc"
