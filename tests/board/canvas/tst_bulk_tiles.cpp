// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/test_class.h"
#include "support/test_hand.h"

namespace {

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
        b.lay(kindAt(i % 3), 20 * i, 10 * i, u"T%1"_s.arg(i));
}

} // namespace

class BulkTilesTest : public QObject
{
    Q_OBJECT

private slots:
    void refill()
    {
        // An empty text: the whole list.
        for (const auto &[text1, noOverlap, counters] : {std::tuple{u"7"_s, 1, u"7 9 9 25"_s},
                                                         {u"7"_s, 0, u"7 9 9 25"_s},
                                                         {u""_s, 1, u"3 9 9 21"_s},
                                                         {u""_s, 0, u"3 9 9 21"_s},
                                                         {u"0"_s, 1, u"0 0 0 0"_s}}) {
            TestBoard b;
            b.lay(wortel, 300, 300, u"alt"_s);
            b.controls.Text1->setText(text1);
            b.controls.Check1->setChecked(text1.isEmpty());
            b.t.options.setBox(Setting::NoOverlapOnStart, noOverlap);
            b.t.options.setText(Setting::NumAffixToFill, u"2"_s);
            b.bulk->Refill();
            if (text1.isEmpty())
                QCOMPARE(textsOf(b, wortel), (QStringList{u"halt"_s, u"fahr"_s, u"spiel"_s}));
            QCOMPARE(b.counters().join(u' '), counters);
            QCOMPARE(b.trouble(), QString());
        }
    }

    void refillWithNumber()
    {
        // The affix rows come with it, 0 empties the board, a negative number changes nothing.
        for (const auto &[n, tiles] : {std::pair{4, 4 + 6}, {0, 0}, {-3, 24}}) {
            TestBoard b;
            layMixed(b);
            b.t.options.setBox(Setting::FillAffix, 0);
            b.optTypes->select(2);
            b.bulk->RefillWithSpecNum(n);
            QCOMPARE(b.store->count(), tiles);
            QCOMPARE(b.optTypes->selected(), 2);
            QCOMPARE(b.trouble(), QString());
        }
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
        TestHand b;
        b.controls.Text1->setText(u"3"_s);
        bool rested = false;
        connect(&b.r.news, &BoardNews::committed, this, [&] { rested = !b.controls.Check2->isEnabled(); });
        b.tool(b.controls.Check2);
        QVERIFY(rested);
        b.controls.Check1->setChecked(true);
        b.tool(b.controls.Check2);
        QVERIFY(!b.controls.Text1->isEnabled()); // "Alle" needs no number
        b.controls.Check1->setChecked(false);
        QVERIFY(b.controls.Text1->isEnabled());
        QCOMPARE(b.commits, 2);
        QCOMPARE(b.t.sound.resources, (QList<int>{109, 109}));
        QCOMPARE(b.trouble(), QString());
    }

    void shuffles()
    {
        // lowered: kinds whose texts come in lower case, by the setting or always
        for (const auto &[shuffle, setting, lowered, moved] :
             {std::tuple{&BulkTiles::ShuffleAllWortel, false, u""_s, u"M"_s},
              {&BulkTiles::ShuffleAllWortel, true, u"M"_s, u"M"_s},
              {&BulkTiles::ShuffleAllPrefix, false, u"P"_s, u"P"_s},
              {&BulkTiles::ShuffleAllSuffix, false, u"S"_s, u"S"_s},
              {&BulkTiles::ShuffleAllMorpheme, true, u""_s, u"MPS"_s}}) {
            TestBoard b;
            layMixed(b);
            b.t.options.setBox(Setting::LCaseOnShuffle, setting ? 1 : 0);
            const QStringList places = placesOf(b);
            QList<QStringList> before;
            for (const TileKind &kind : tileKinds)
                before.append(textsOf(b, kind));
            (b.bulk->*shuffle)();
            QCOMPARE(placesOf(b), places);
            for (int i = 0; i < 3; ++i) {
                const QChar letter = QLatin1Char(kindAt(i).backupLetter);
                QStringList after = textsOf(b, kindAt(i));
                QStringList expected = before[i];
                if (lowered.contains(letter))
                    expected = expected.join(u' ').toLower().split(u' ');
                QCOMPARE(after != expected, moved.contains(letter));
                after.sort();
                expected.sort();
                QCOMPARE(after, expected);
            }
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
};

WORTEL_TEST(BulkTilesTest)
#include "tst_bulk_tiles.moc"
