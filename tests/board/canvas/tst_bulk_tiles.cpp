// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/columns.h"
#include "support/registry.h"
#include "support/test_board.h"
#include "widgets/colour.h"

#include <QSignalSpy>
#include <QtTest>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

QStringList sortedCopy(QStringList texts)
{
    texts.sort();
    return texts;
}

QStringList textsOf(const TestBoard &b, const TileKind &kind)
{
    QStringList texts;
    for (const auto &tile : b.store->tiles())
        if (tile->BGColor == kind.back)
            texts.append(tile->txt);
    return texts;
}

QStringList placesOf(const TestBoard &b)
{
    QStringList places;
    for (const auto &tile : b.store->tiles())
        places.append(u"%1,%2,%3"_s.arg(tile->xLeft()).arg(tile->yTop()).arg(tile->BGColor));
    return places;
}

void layMixed(TestBoard &b)
{
    for (int i = 0; i < 24; ++i)
        b.lay(tileKinds.at(static_cast<std::size_t>(i % 3)), 20 * i, 10 * i, u"T%1"_s.arg(i));
}

} // namespace

class BulkTilesTest : public QObject
{
    Q_OBJECT

private slots:
    void refill_data()
    {
        columns<QString, bool, bool, int, int>("text1", "wholeList", "noOverlap", "wortels", "affixes");
        QTest::newRow("some") << u"7"_s << false << true << 7 << 18;
        QTest::newRow("some, overlapping") << u"7"_s << false << false << 7 << 18;
        QTest::newRow("the absolute value") << u"-5"_s << false << false << 5 << 18;
        QTest::newRow("halves round to the even number") << u"2.5"_s << false << false << 2 << 18;
        QTest::newRow("the whole list in its order") << u"1"_s << true << true << 3 << 18;
        QTest::newRow("the whole list, overlapping") << u"1"_s << true << false << 3 << 18;
        QTest::newRow("the whole list needs no number") << u"abc"_s << true << false << 3 << 18;
        QTest::newRow("0 empties the board") << u"0"_s << false << true << 0 << 0;
    }
    void refill()
    {
        QFETCH(QString, text1);
        QFETCH(bool, wholeList);
        QFETCH(bool, noOverlap);
        QFETCH(int, wortels);
        QFETCH(int, affixes);
        TestBoard b;
        b.lay(wortel, 300, 300, u"alt"_s);
        b.controls.Text1->setText(text1);
        b.controls.Check1->setChecked(wholeList);
        b.t.options.setBox(Setting::NoOverlapOnStart, noOverlap ? 1 : 0);
        b.t.options.setText(Setting::NumAffixToFill, u"2"_s);
        b.bulk->Refill();
        if (wholeList)
            QCOMPARE(textsOf(b, wortel), b.lists.WortelList.rows());
        QCOMPARE(b.store->countOf(wortel.back), wortels);
        QCOMPARE(b.store->countOf(prefix.back) + b.store->countOf(suffix.back), affixes);
        QCOMPARE(b.counters(),
                 (QStringList{QString::number(wortels), QString::number(affixes / 2),
                              QString::number(affixes / 2), QString::number(wortels + affixes)}));
        QVERIFY(!b.surface->isLocked());
        QVERIFY(b.t.ok());
    }

    void badNumbersAreSaidAndChangeNothing_data()
    {
        columns<QString, QString>("text1", "notice");
        QTest::newRow("nothing typed") << QString() << u"eine Zahl"_s;
        QTest::newRow("no number") << u"abc"_s << u"eine Zahl"_s;
        QTest::newRow("10,000 characters") << QString(10000, u'x') << u"eine Zahl"_s;
        QTest::newRow("too many") << u"99999"_s << u"32767"_s;
    }
    void badNumbersAreSaidAndChangeNothing()
    {
        QFETCH(QString, text1);
        QFETCH(QString, notice);
        TestBoard b;
        layMixed(b);
        const QStringList before = b.described();
        b.controls.Text1->setText(text1);
        b.t.boxes.willBeRead();
        b.bulk->Refill();
        QCOMPARE(b.described(), before);
        QVERIFY(b.t.boxes.asked.first().text.contains(notice));
        QVERIFY(b.t.ok());
    }

    void refillWithNumber_data()
    {
        columns<int, int>("n", "tiles");
        QTest::newRow("four and the affix rows") << 4 << 4 + 6;
        QTest::newRow("0 empties the board") << 0 << 0;
        QTest::newRow("a negative number changes nothing") << -3 << 24;
    }
    void refillWithNumber()
    {
        QFETCH(int, n);
        QFETCH(int, tiles);
        TestBoard b;
        layMixed(b);
        b.t.options.setBox(Setting::FillAffix, 0);
        b.optTypes->select(2);
        b.bulk->RefillWithSpecNum(n);
        QCOMPARE(b.store->count(), tiles);
        QCOMPARE(b.optTypes->value(3), tiles);
        QCOMPARE(b.optTypes->selected(), 2);
    }

    void emptyListsGiveBlankTiles()
    {
        TestBoard b;
        b.lists.WortelList.clear();
        b.bulk->AddRandomWortel(3);
        b.bulk->ReplaceAllWortel();
        QCOMPARE(b.texts(), (QStringList{QString(), QString(), QString()}));
        QCOMPARE(b.counters().first(), u"3"_s);
    }

    void buttonCommitsWhileItsToolsRest()
    {
        TestBoard b;
        b.controls.Text1->setText(u"3"_s);
        QSignalSpy commit(b.bulk.get(), &BulkTiles::commitWanted);
        bool rested = false;
        connect(b.bulk.get(), &BulkTiles::commitWanted, this,
                [&] { rested = !b.controls.Check2->isEnabled() && b.store->countOf(wortel.back) == 3; });
        b.bulk->Check2_LeftPress();
        QVERIFY(rested && commit.count() == 1);
        QVERIFY(b.controls.Check1->isEnabled() && b.controls.Check2->isEnabled());
        QVERIFY(b.controls.Text1->isEnabled());
        b.controls.Check1->setChecked(true);
        b.bulk->Check2_LeftPress();
        QVERIFY(!b.controls.Text1->isEnabled()); // "Alle" needs no number
        QCOMPARE(b.t.sound.resources, (QList<int>{109, 109}));
        QCOMPARE(QGuiApplication::overrideCursor(), nullptr);
    }

    void shuffles_data()
    {
        using Shuffle = void (BulkTiles::*)();
        // lowered: kinds whose texts come in lower case
        columns<Shuffle, bool, QString, QString>("shuffle", "setting", "lowered", "moved");
        QTest::newRow("Wortel as they are")
            << Shuffle(&BulkTiles::ShuffleAllWortel) << false << QString() << u"M"_s;
        QTest::newRow("Wortel lowered") << Shuffle(&BulkTiles::ShuffleAllWortel) << true << u"M"_s << u"M"_s;
        QTest::newRow("prefixes always")
            << Shuffle(&BulkTiles::ShuffleAllPrefix) << false << u"P"_s << u"P"_s;
        QTest::newRow("suffixes always")
            << Shuffle(&BulkTiles::ShuffleAllSuffix) << false << u"S"_s << u"S"_s;
        QTest::newRow("all, never") << Shuffle(&BulkTiles::ShuffleAllMorpheme) << true << QString()
                                    << u"MPS"_s;
    }
    void shuffles()
    {
        using Shuffle = void (BulkTiles::*)();
        QFETCH(Shuffle, shuffle);
        QFETCH(bool, setting);
        QFETCH(QString, lowered);
        QFETCH(QString, moved);
        TestBoard b;
        layMixed(b);
        b.t.options.setBox(Setting::LCaseOnShuffle, setting ? 1 : 0);
        const QStringList places = placesOf(b);
        QList<QStringList> before;
        for (const TileKind &kind : tileKinds)
            before.append(textsOf(b, kind));
        (b.bulk.get()->*shuffle)();
        QCOMPARE(placesOf(b), places);
        for (qsizetype i = 0; i < 3; ++i) {
            const TileKind &kind = tileKinds.at(static_cast<std::size_t>(i));
            const QChar letter = QLatin1Char(kind.backupLetter);
            const QStringList after = textsOf(b, kind);
            QStringList expected = before[i];
            if (lowered.contains(letter))
                std::transform(expected.begin(), expected.end(), expected.begin(),
                               [](const QString &t) { return t.toLower(); });
            QCOMPARE(sortedCopy(after), sortedCopy(expected));
            QCOMPARE(after != expected, moved.contains(letter));
        }
    }

    void replacingKeepsPlacesAndWidthsFit()
    {
        TestBoard b;
        layMixed(b);
        const QStringList places = placesOf(b);
        b.bulk->ReplaceAllWortel();
        QCOMPARE(placesOf(b), places);
        for (const auto &tile : b.store->tiles()) {
            QCOMPARE(tile->Extent(), b.store->extentOf(tile->txt));
            if (tile->BGColor == wortel.back)
                QVERIFY(b.lists.WortelList.contains(tile->txt));
        }
    }

    void capitals()
    {
        TestBoard b;
        b.lay(wortel, 0, 0, u"äPFEL"_s);
        b.lay(prefix, 0, 40, u"vER"_s);
        b.lay(suffix, 0, 80, u"ung"_s);
        b.bulk->InitCapAffix(wortel.back);
        QCOMPARE(b.texts(), (QStringList{u"Äpfel"_s, u"vER"_s, u"ung"_s}));
        b.bulk->InitCapAffix(prefix.back);
        QCOMPARE(b.texts(), (QStringList{u"Äpfel"_s, u"Ver"_s, u"ung"_s}));
        b.bulk->InitCapAffix(suffix.back);
        QCOMPARE(b.texts(), (QStringList{u"Äpfel"_s, u"Ver"_s}));
    }

    void theFilterStaysThroughARebuild()
    {
        TestBoard b;
        layMixed(b);
        b.optTypes->select(1);
        b.bulk->ShuffleAllMorpheme();
        QCOMPARE(b.optTypes->selected(), 1);
        QCOMPARE(b.pixel(3, 22), toQColor(colours::board)); // the first Wortel tile is hidden
        QCOMPARE(b.pixel(23, 32), toQColor(prefix.back));
    }
};

WORTEL_TEST(BulkTilesTest)
#include "tst_bulk_tiles.moc"
