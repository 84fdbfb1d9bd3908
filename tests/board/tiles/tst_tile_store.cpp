// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/test_board.h"
#include "support/test_class.h"

class TileStoreTest : public QObject
{
    Q_OBJECT

private slots:
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

    void widthIsThatOfTheTextPlusTen()
    {
        TestBoard b;
        const QFontMetrics metrics(b.form.font());
        for (const auto &[text, measured] : {std::pair{u"Haus"_s, u"Haus"_s},
                                             {QString(), QString()},
                                             {u"a\r\nb\tc"_s, u"a  b c"_s},
                                             {QString(10000, u'm'), QString(10000, u'm')},
                                             {QString(10001, u'm'), QString(10000, u'm')}}) {
            b.lay(wortel, 10, 100, text);
            QCOMPARE(b.texts().last(), text);
            QCOMPARE(b.store->tiles().back()->Extent(), metrics.horizontalAdvance(measured) + 10);
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
};

WORTEL_TEST(TileStoreTest)
#include "tst_tile_store.moc"
