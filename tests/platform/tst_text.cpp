// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/rnd.h"
#include "platform/text.h"
#include "platform/windows1252.h"
#include "support/error_of.h"
#include "support/test_class.h"

#include <limits>

class TextTest : public QObject
{
    Q_OBJECT

private slots:
    void casesMapOneToOne_data()
    {
        columns<QString, QString, QString>("text", "upper", "lower");
        QTest::newRow("sharp s") << u"Straße"_s << u"STRAßE"_s << u"straße"_s;
        QTest::newRow("umlauts") << u"äÖü"_s << u"ÄÖÜ"_s << u"äöü"_s;
        QTest::newRow("pair of surrogates") << u"\U00010428x"_s << u"\U00010400X"_s << u"\U00010428x"_s;
        QTest::newRow("lone surrogate")
            << u"a"_s + QChar(0xD83D) << u"A"_s + QChar(0xD83D) << u"a"_s + QChar(0xD83D);
    }
    void casesMapOneToOne()
    {
        QFETCH(QString, text);
        QTEST(UCase(text), "upper");
        QTEST(LCase(text), "lower");
        QVERIFY(equalsIgnoreCase(UCase(text), text) || text.contains(QChar(0xDC28)));
    }

    void comparesWithoutCase()
    {
        QVERIFY(!equalsIgnoreCase(u"Straße", u"STRASSE"));
        QVERIFY(EndsWith(u"Liste.TXT"_s, u".txt"_s) && !EndsWith(u"txt"_s, u".txt"_s));
        QVERIFY(StartsWith(u"ÜBung"_s, u"üb"_s) && !StartsWithExact(u"ÜBung"_s, u"üb"_s));
        QVERIFY(containsIgnoreCase(u"verGRÖßern"_s, u"größ"_s) && !containsIgnoreCase(u"ver"_s, u"vers"_s));
        QCOMPARE(RTrimText(u"a.Txt.tXt"_s, u".txt"_s), u"a.Txt"_s);
        QCOMPARE(RTrimText(u"a.lex"_s, u".txt"_s), u"a.lex"_s);
        QCOMPARE(Trim(u"  \t a b\t  "_s), u"\t a b\t"_s);
        QCOMPARE(Trim(u"   "_s), QString());
    }

    void turnsTheFirstLetter_data()
    {
        columns<QString, bool, QString, QString>("text", "capital", "toggled", "initCap");
        QTest::newRow("small") << u"haus"_s << false << u"Haus"_s << u"Haus"_s;
        QTest::newRow("capitals") << u"HAUS"_s << true << u"haus"_s << u"Haus"_s;
        QTest::newRow("ü is small") << u"üBung"_s << false << u"Übung"_s << u"Übung"_s;
        QTest::newRow("ä counts as capital") << u"äRger"_s << true << u"ärger"_s << u"Ärger"_s;
        QTest::newRow("ß") << u"ßA"_s << false << u"ßa"_s << u"ßa"_s;
        QTest::newRow("empty") << QString() << false << QString() << QString();
    }
    void turnsTheFirstLetter()
    {
        QFETCH(QString, text);
        QTEST(FirstIsInitCap(text), "capital");
        QTEST(ToggleInitChar(text), "toggled");
        QTEST(InitCapWord(text), "initCap");
    }

    void cleansText()
    {
        const QString dirty = u"a\tb\r\nc\x01\x1F"_s + QChar::Null + u"d"_s;
        QCOMPARE(CleanText(dirty), u"a b  cd"_s);
        QCOMPARE(CleanText(dirty, true), u"a b\r\ncd"_s);
    }

    void readsNumbers_data()
    {
        // whole: the error of CDbl
        columns<QString, double, int>("text", "value", "whole");
        QTest::newRow("plain") << u"12"_s << 12.0 << 0;
        QTest::newRow("letters behind") << u"12abc"_s << 12.0 << 13;
        QTest::newRow("point") << u".5"_s << 0.5 << 0;
        QTest::newRow("only a point") << u"."_s << 0.0 << 13;
        QTest::newRow("comma ends it") << u"1,5"_s << 1.0 << 13;
        QTest::newRow("exponent") << u"1e3"_s << 1000.0 << 0;
        QTest::newRow("empty") << QString() << 0.0 << 13;
        QTest::newRow("Arabic digits are none") << u"٣"_s << 0.0 << 13;
        QTest::newRow("beyond the range") << u"-1e999"_s << -std::numeric_limits<double>::max() << 0;
    }
    void readsNumbers()
    {
        QFETCH(QString, text);
        QFETCH(double, value);
        QCOMPARE(Val(text), value);
        QTEST(errorOf([&] { QCOMPARE(CDbl(text), value); }), "whole");
    }

    void roundsHalvesToEven()
    {
        const QList<std::pair<double, double>> rows{{0.5, 0},   {1.5, 2},    {2.5, 2},  {-0.5, 0},
                                                    {-1.5, -2}, {2.4999, 2}, {-2.6, -3}};
        for (const auto &[value, rounded] : rows)
            QCOMPARE(Round(value), rounded);
        QCOMPARE(Int(-1.5), -2.0);
        QCOMPARE(Fix(-1.5), -1.0);
        QCOMPARE(CInt(32767.4), 32767);
        QCOMPARE(errorOf([] { CInt(32767.5); }), 6);
        QCOMPARE(errorOf([] { CInt(std::numeric_limits<double>::quiet_NaN()); }), 6);
        QCOMPARE(CLng(-2147483648.0), std::numeric_limits<int>::min());
        QCOMPARE(errorOf([] { CLng(2147483647.5); }), 6);
    }

    void formats()
    {
        QCOMPARE(FormatNumber(7, 2), u"07"_s);
        QCOMPARE(FormatNumber(-7, 2), u"-07"_s);
        QCOMPARE(FormatNumber(1234, 2), u"1234"_s);
        const QDateTime moment(QDate(2026, 3, 4), QTime(0, 5, 9));
        QCOMPARE(FormatTime(moment.time()), u"00:05:09"_s);
        QCOMPARE(FormatDateTime(moment), u"03/04/2026  12:05 AM"_s);
        QCOMPARE(FormatDateTime(moment.addSecs(13 * 3600)), u"03/04/2026  01:05 PM"_s);
    }

    void collatesAsGermanDoes()
    {
        QStringList words{u"Zebra"_s, u"apfel"_s, u"Äpfel"_s, u"Bär"_s, u"bar"_s};
        std::sort(words.begin(), words.end(),
                  [](const QString &a, const QString &b) { return compareCollated(a, b) < 0; });
        QCOMPARE(words, QStringList({u"apfel"_s, u"Äpfel"_s, u"bar"_s, u"Bär"_s, u"Zebra"_s}));
        QCOMPARE(compareCollated(u"ABEND"_s, u"abend"_s), 0);
    }

    void codePageIsStrictBothWays()
    {
        QByteArray all;
        for (int byte = 0; byte < 256; ++byte)
            all += static_cast<char>(byte);
        const QString text = windows1252::decode(all);
        QCOMPARE(text.size(), 256);
        QCOMPARE(windows1252::encode(text), std::optional(all));
        QCOMPARE(windows1252::decode("\x80\x84\x9F\xDF\x81"), u"€„Ÿß\x81"_s);
        QVERIFY(!windows1252::encode(u"Ω"_s).has_value());
        QVERIFY(!windows1252::encode(QString(QChar(0x80))).has_value());
        QCOMPARE(windows1252::encode(u"A\u0308pfel"_s), std::optional<QByteArray>("\xC4pfel"));
        QCOMPARE(windows1252::encodeLossy(u"a😀Ωb"_s), QByteArray("a??b"));
    }

    void randomValuesStayInTheirRange()
    {
        Rnd rnd(7);
        QSet<int> seen;
        for (int i = 0; i < 2000; ++i) {
            const double value = rnd();
            QVERIFY(value >= 0.0 && value < 1.0);
            seen.insert(rnd.absInt(5, -2));
        }
        QCOMPARE(seen, QSet<int>({0, 1, 2})); // what lies below 0 folds back
        Rnd again(7);
        Rnd other(8);
        QVERIFY(again() != other());
        QCOMPARE(Rnd(7)(), Rnd(7)());
    }
};

WORTEL_TEST(TextTest)
#include "tst_text.moc"
