// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/error_of.h"
#include "support/test_class.h"
#include "widgets/scroller_strip.h"

namespace {

/// Ten pixels a character, so that every place can be told by heart.
int tenPixels(const QString &text) { return static_cast<int>(text.size()) * 10; }

ScrollerStrip stripOf(const QStringList &words, const QString &separator = u"--"_s)
{
    ScrollerStrip strip(tenPixels);
    strip.setSeperator(separator);
    for (const QString &word : words)
        strip.AddItem(word, word);
    return strip;
}

QStringList places(const ScrollerStrip &strip)
{
    QStringList result;
    for (int index = 1; index <= strip.ListCount(); ++index) {
        const cMessageData &item = strip.item(index);
        result << u"%1:%2+%3>%4"_s.arg(item.Text).arg(item.Left).arg(item.Width).arg(item.Right);
    }
    return result;
}

QStringList shown(const ScrollerStrip &strip)
{
    QStringList result;
    for (const ScrollerStrip::Piece &piece : strip.pieces())
        result << u"%1@%2"_s.arg(piece.text).arg(piece.left);
    return result;
}

} // namespace

class ScrollerStripTest : public QObject
{
    Q_OBJECT

private slots:
    void itemsFollowEachOther_data()
    {
        columns<QString, QStringList, QStringList, int>("separator", "words", "expected", "width");
        QTest::newRow("last has no separator")
            << u"--"_s << QStringList{u"ab"_s, u"abc"_s, u"a"_s}
            << QStringList{u"ab:0+20>40"_s, u"abc:40+30>90"_s, u"a:90+10>100"_s} << 100;
        QTest::newRow("single") << u"--"_s << QStringList{u"ab"_s} << QStringList{u"ab:0+20>20"_s} << 20;
        QTest::newRow("empty separator is a blank")
            << QString() << QStringList{u"a"_s, u"b"_s} << QStringList{u"a:0+10>20"_s, u"b:20+10>30"_s} << 30;
    }
    void itemsFollowEachOther()
    {
        QFETCH(QString, separator);
        QFETCH(QStringList, words);
        const ScrollerStrip strip = stripOf(words, separator);
        QTEST(places(strip), "expected");
        QTEST(strip.StripWidth(), "width");

        // However the items come and go, the layout is that of a strip made in one go.
        ScrollerStrip detour = stripOf({u"xxxx"_s}, separator);
        for (auto word = words.crbegin(); word != words.crend(); ++word)
            detour.AddItem(*word, {}, 1);
        detour.RemoveItem(detour.ListCount());
        QCOMPARE(places(detour), places(strip));
        QCOMPARE(detour.StripWidth(), strip.StripWidth());
    }

    void addsInFrontAndRefuses()
    {
        ScrollerStrip strip = stripOf({u"eins"_s, u"drei"_s});
        strip.AddItem(u"zwei"_s, {}, 2);
        strip.AddItem(u"   "_s);
        strip.AddItem(u" vier "_s, u"  "_s);
        QCOMPARE(places(strip), (QStringList{u"eins:0+40>60"_s, u"zwei:60+40>120"_s, u"drei:120+40>180"_s,
                                             u" vier :180+60>240"_s}));
        QCOMPARE(errorOf([&] { strip.AddItem(u"x"_s, u"EINS"_s); }), 457);
        QCOMPARE(errorOf([&] { strip.AddItem(u"x"_s, {}, 5); }), 9);
        for (const int index : {0, -1, 5}) {
            QCOMPARE(errorOf([&] { strip.RemoveItem(index); }), 9);
            QCOMPARE(errorOf([&] { strip.item(index); }), 9);
            QCOMPARE(errorOf([&] { strip.setText(index, u"x"_s); }), 9);
            QCOMPARE(errorOf([&] { strip.setColour(index, 0); }), 9);
        }
        QCOMPARE(strip.ListCount(), 4);
        strip.RemoveItem(1);
        strip.AddItem(u"x"_s, u"eins"_s);
        QCOMPARE(strip.FindKey(u"eins"_s), 4);
    }

    void drawsTheRing_data()
    {
        columns<int, int, QStringList>("offset", "inRange", "expected");
        // The strip: aaaa 0 to 40, bb 60 to 80, the ring begins again at 100.
        QTest::newRow("enters") << -250 << -250 << QStringList{};
        QTest::newRow("on its way in") << -90 << -90 << QStringList{u"aaaa@90"_s};
        QTest::newRow("start") << 0 << 0 << QStringList{u"aaaa@0"_s, u"bb@60"_s};
        QTest::newRow("first's separator") << 59 << 59 << QStringList{u"aaaa@-59"_s, u"bb@1"_s, u"aaaa@41"_s};
        QTest::newRow("above") << 101 << 1 << QStringList{u"aaaa@-1"_s, u"bb@59"_s, u"aaaa@99"_s};
        QTest::newRow("far above") << 330 << 30 << QStringList{u"aaaa@-30"_s, u"bb@30"_s, u"aaaa@70"_s};
    }
    void drawsTheRing()
    {
        QFETCH(int, offset);
        ScrollerStrip strip = stripOf({u"aaaa"_s, u"bb"_s});
        strip.decide(true, false, 100);
        strip.setOffset(offset);
        strip.draw(100);
        QTEST(shown(strip), "expected");
        QTEST(strip.Offset(), "inRange");
        QCOMPARE(strip.restLeft(), 100);
    }

    void aStandingStripIsShownFromItsStart()
    {
        ScrollerStrip strip = stripOf({u"aaaa"_s, u"bb"_s});
        strip.decide(false, false, 500);
        strip.draw(500);
        QCOMPARE(shown(strip), (QStringList{u"aaaa@0"_s, u"bb@60"_s}));
        QCOMPARE(strip.restLeft(), 100);
        QCOMPARE(strip.Offset(), ScrollerStrip::restOffset);
        strip.draw(50);
        QCOMPARE(strip.restLeft(), 50);
        strip.Clear();
        strip.draw(500);
        QCOMPARE(shown(strip), QStringList{u"Message Scroller@0"_s});
        QCOMPARE(strip.StripWidth(), tenPixels(u"Message Scroller"_s));
        QVERIFY(strip.hotSpots().empty());
    }

    void hotSpots_data()
    {
        columns<int, int>("x", "item");
        // At offset 30: aaaa from -30 to 10, bb from 30 to 50, aaaa from 70 to 110.
        QTest::newRow("left edge") << 0 << 1;
        QTest::newRow("right end") << 10 << 1;
        QTest::newRow("gap") << 11 << -1;
        QTest::newRow("second ends") << 50 << 2;
        QTest::newRow("ring") << 70 << 1;
    }
    void hotSpots()
    {
        QFETCH(int, x);
        ScrollerStrip strip = stripOf({u"aaaa"_s, u"bb"_s});
        strip.decide(true, false, 100);
        strip.setOffset(30);
        strip.draw(100);
        QTEST(strip.hotSpotAt(x), "item");
    }
};

WORTEL_TEST(ScrollerStripTest)
#include "tst_scroller_strip.moc"
