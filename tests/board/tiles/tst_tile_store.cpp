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

    void fillBox(int l, int t, int r, int b, Colour c) override { note('F', l, t, r, b, c); }
    void outlineBox(int l, int t, int r, int b, Colour c) override { note('O', l, t, r, b, c); }
    void printText(int x, int y, const QString &text, Colour c) override
    {
        calls.append(u"T %1 %2 %3 %4"_s.arg(x).arg(y).arg(text).arg(c, 6, 16, QLatin1Char('0')));
    }
    void clear() override { calls.append(u"C"_s); }

private:
    void note(char kind, int l, int t, int r, int b, Colour c)
    {
        calls.append(u"%1 %2 %3 %4 %5 %6"_s.arg(QLatin1Char(kind))
                         .arg(l)
                         .arg(t)
                         .arg(r)
                         .arg(b)
                         .arg(c, 6, 16, QLatin1Char('0')));
    }
};

} // namespace

class TileStoreTest : public QObject
{
    Q_OBJECT

private slots:
    void drawsInOrder_data()
    {
        columns<bool, bool, int, QStringList>("selected", "monochrome", "extent", "calls");
        QTest::newRow("lying") << false << false << 40
                               << QStringList{u"F 3 7 43 32 00ffff"_s, u"O 3 7 43 32 ffffff"_s,
                                              u"T 5 12 ver ff0000"_s};
        QTest::newRow("held: no outline")
            << true << false << 40 << QStringList{u"F 3 7 43 32 00ffff"_s, u"T 5 12 ver ff0000"_s};
        QTest::newRow("monochrome") << false << true << 40
                                    << QStringList{u"F 3 7 43 32 ffffff"_s, u"O 3 7 43 32 000000"_s,
                                                   u"T 5 12 ver 000000"_s};
        QTest::newRow("no width, no drawing") << false << false << 0 << QStringList{};
    }
    void drawsInOrder()
    {
        QFETCH(bool, selected);
        QFETCH(bool, monochrome);
        QFETCH(int, extent);
        cWortel tile;
        tile.setExtent(extent);
        tile.setXLeft(3);
        tile.setYTop(7);
        tile.txt = u"ver"_s;
        tile.Selected = selected;
        tile.BGColor = prefix.back;
        tile.TxtColor = prefix.text;
        RecordingSurface surface;
        monochrome ? tile.DrawBAndW(surface) : tile.Draw(surface);
        QTEST(surface.calls, "calls");
    }

    void edgesAreOutside_data()
    {
        columns<QPoint, bool>("point", "inside");
        QTest::newRow("left edge") << QPoint(10, 30) << false;
        QTest::newRow("beside left edge") << QPoint(11, 30) << true;
        QTest::newRow("right edge") << QPoint(50, 30) << false;
        QTest::newRow("before right edge") << QPoint(49, 30) << true;
        QTest::newRow("top edge") << QPoint(20, 20) << false;
        QTest::newRow("bottom edge") << QPoint(20, 45) << false;
        QTest::newRow("above bottom edge") << QPoint(20, 44) << true;
    }
    void edgesAreOutside()
    {
        QFETCH(QPoint, point);
        cWortel tile;
        tile.setXLeft(10);
        tile.setYTop(20);
        tile.setExtent(40);
        QTEST(tile.Inside(point.x(), point.y()), "inside");
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

    void queriesFindTheTileBelow()
    {
        TestBoard b;
        b.lay(wortel, 100, 100, u"unten"_s);
        b.lay(prefix, 105, 105, u"oben"_s);
        QCOMPARE(b.store->CaptionOfSelectedWortel(110, 110), u"unten"_s);
        QCOMPARE(b.store->PosOfSelectedWortel(110, 110), u"100,100"_s);
        QCOMPARE(b.store->TypeOfSelectedWortel(110, 110), wortel.back);
        b.optTypes->select(1);
        QCOMPARE(b.store->TypeOfSelectedWortel(110, 110), prefix.back);
        QCOMPARE(b.store->current()->txt, u"oben"_s);
        b.optTypes->select(2);
        QCOMPARE(b.store->TypeOfSelectedWortel(110, 110), colours::board);
        QCOMPARE(b.store->CaptionOfSelectedWortel(400, 400), QString());
        QCOMPARE(b.store->PosOfSelectedWortel(400, 400), u"0,0"_s);
    }

    void widthIsThatOfTheTextPlusTen_data()
    {
        columns<QString, QString>("text", "measured");
        QTest::newRow("word") << u"Haus"_s << u"Haus"_s;
        QTest::newRow("empty") << QString() << QString();
        QTest::newRow("line ends and tabs are blanks") << u"a\r\nb\tc"_s << u"a  b c"_s;
        QTest::newRow("10,000 letters") << QString(10000, u'm') << QString(10000, u'm');
        QTest::newRow("emoji and direction marks") << u"\U0001F600\u200Fab"_s << u"\U0001F600\u200Fab"_s;
    }
    void widthIsThatOfTheTextPlusTen()
    {
        QFETCH(QString, text);
        QFETCH(QString, measured);
        TestBoard b;
        b.lay(wortel, 10, 100, text);
        b.canvas->CanvasRedrawAll();
        QCOMPARE(b.store->tiles().front()->txt, text);
        QCOMPARE(b.store->tiles().front()->Extent(),
                 QFontMetrics(b.form.font()).horizontalAdvance(measured) + 10);
    }

    void clearKeepsTheAffixCounters()
    {
        TestBoard b;
        b.lay(wortel, 0, 0, u"a"_s);
        b.lay(suffix, 50, 0, u"b"_s);
        b.store->setCurrent(b.store->tiles().front().get());
        b.store->ClearCanvas();
        QVERIFY(b.store->isEmpty());
        QCOMPARE(b.store->current(), nullptr);
        QCOMPARE(b.counters(), (QStringList{u"0"_s, u"0"_s, u"1"_s, u"2"_s}));
    }

    void eraseByText_data()
    {
        columns<QString, QStringList, QString>("text", "left", "counter");
        QTest::newRow("first match, case ignored") << u"HAUS"_s << QStringList{u"ver"_s, u"haus"_s} << u"1"_s;
        QTest::newRow("no match") << u"Baum"_s << QStringList{u"Haus"_s, u"ver"_s, u"haus"_s} << u"2"_s;
        QTest::newRow("another kind counts as Wortel")
            << u"VER"_s << QStringList{u"Haus"_s, u"haus"_s} << u"1"_s;
    }
    void eraseByText()
    {
        QFETCH(QString, text);
        TestBoard b;
        b.lay(wortel, 0, 0, u"Haus"_s);
        b.lay(prefix, 0, 50, u"ver"_s);
        b.lay(wortel, 0, 100, u"haus"_s);
        b.store->EraseSpecifiedWortel(text);
        QTEST(b.texts(), "left");
        QTEST(b.counters().first(), "counter");
    }

    void copies_data()
    {
        columns<int, int, QStringList>("x", "count", "tiles");
        const QStringList three{u"42,9 a"_s, u"84,9 a"_s, u"126,9 a"_s};
        QTest::newRow("three") << 0 << 3 << three;
        QTest::newRow("none") << 0 << 0 << QStringList{};
        QTest::newRow("a negative number") << 0 << -5 << QStringList{};
        QTest::newRow("stop short of the edge") << 518 << 99999 << QStringList{u"560,9 a"_s, u"602,9 a"_s};
        QTest::newRow("from beyond the edge") << 600 << 3 << QStringList{};
    }
    void copies()
    {
        QFETCH(int, x);
        QFETCH(int, count);
        QFETCH(QStringList, tiles);
        TestBoard b;
        b.store->DuplicateObject2(suffix.back, u"a"_s, count, x, 9);
        QCOMPARE(b.described(), tiles);
        QCOMPARE(b.optTypes->value(2), static_cast<int>(tiles.size()));
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
