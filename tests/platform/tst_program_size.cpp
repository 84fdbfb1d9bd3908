// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/program_size.h"
#include "support/test_class.h"

/// What a stored size stands for, and what a screen makes of it.
class ProgramSizeTest : public QObject
{
    Q_OBJECT

private slots:
    // clang-format off
    void storedTexts_data()
    {
        columns<QString, int>("stored", "wish");
        const auto row = [](const QString &stored, int wish) { QTest::addRow("<%s>", qPrintable(stored)) << stored << wish; };
        row({}, 0);        row(u"automatisch"_s, 0); row(u"abc"_s, 0);      row(u"0"_s, 0);     row(u"-50"_s, 0);  row(u"nan"_s, 0);
        row(u"99"_s, 100); row(u"101"_s, 100);       row(u"100 %"_s, 100);  row(u"150 %"_s, 150);
        row(u" 175% "_s, 175); row(u"187"_s, 175);   row(u"188"_s, 200);    row(u"1"_s, 100);   row(u"1000"_s, 300); row(u"inf"_s, 300);
    }
    void storedTexts()
    {
        QFETCH(QString, stored);
        QTEST(program_size::wishOf(stored), "wish");
    }

    void screens_data()
    {
        columns<QSize, int, int>("screen", "suggested", "most");
        const auto row = [](int width, int height, int suggested, int most) {
            QTest::addRow("%dx%d", width, height) << QSize(width, height) << suggested << most;
        };
        row(320, 200, 100, 100);   row(853, 480, 100, 100);   row(1366, 768, 125, 150);  row(1920, 1080, 175, 225);
        row(3840, 2160, 300, 300); row(1080, 1920, 100, 125); row(0, 0, 100, 100);
    }
    // clang-format on
    void screens()
    {
        QFETCH(QSize, screen);
        QFETCH(int, most);
        QTEST(program_size::onScreen(program_size::automatic, screen), "suggested");
        QCOMPARE(program_size::onScreen(300, screen), most);
        QCOMPARE(program_size::onScreen(100, screen), 100);
        QCOMPARE(program_size::larger(most, screen), most);
        QCOMPARE(program_size::smaller(130), 125);
        QCOMPARE(program_size::smaller(100), 100);
    }
};

WORTEL_TEST(ProgramSizeTest)
#include "tst_program_size.moc"
