// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/int16.h"
#include "support/registry.h"

#include <QtTest>

class RuntimeErrorTest : public QObject
{
    Q_OBJECT

private slots:
    void int16RaisesOverflow_data()
    {
        QTest::addColumn<long long>("value");
        QTest::addColumn<bool>("fits");
        QTest::newRow("largest") << 32767LL << true;
        QTest::newRow("one more") << 32768LL << false;
        QTest::newRow("smallest") << -32768LL << true;
        QTest::newRow("one less") << -32769LL << false;
        QTest::newRow("past 32 bits") << 0x100000001LL << false;
    }
    void int16RaisesOverflow()
    {
        QFETCH(long long, value);
        QFETCH(bool, fits);
        int raised = 0;
        try {
            QCOMPARE(static_cast<long long>(Int16(value)), value);
        } catch (const RuntimeError &error) {
            raised = error.number();
        }
        QCOMPARE(raised, fits ? 0 : 6);
    }
};

WORTEL_TEST(RuntimeErrorTest)
#include "tst_runtime_error.moc"
