// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/desktop.h"
#include "platform/files.h"
#include "platform/gate.h"
#include "platform/sound_player.h"
#include "platform/system_clock.h"
#include "support/file_bytes.h"
#include "support/test_class.h"

namespace {

/// A small WAV file: `chunks` behind the head.
QByteArray wave(const QByteArray &chunks) { return "RIFF" + QByteArray(4, '\1') + "WAVE" + chunks; }

const QByteArray format = QByteArray("fmt \x10\0\0\0", 8) + QByteArray(16, '\1');
const QByteArray sound = QByteArray("data\x02\0\0\0\x01\x01", 10);

} // namespace

class DesktopTest : public QObject
{
    Q_OBJECT

private slots:
    void knowsWaves_data()
    {
        columns<QByteArray, bool>("bytes", "isWave");
        QTest::newRow("whole") << wave(format + sound) << true;
        QTest::newRow("with another chunk of odd size")
            << wave(format + QByteArray("LIST\x01\0\0\0x\0", 10) + sound) << true;
        QTest::newRow("no sound") << wave(format) << false;
        QTest::newRow("chunk of 4 GB") << wave(QByteArray("LIST\xFF\xFF\xFF\xFF", 8) + sound) << false;
        QTest::newRow("nothing") << QByteArray() << false;
    }
    void knowsWaves()
    {
        QFETCH(QByteArray, bytes);
        QTEST(SoundPlayer::isWave(bytes), "isWave");
    }

    void everySoundIsFoundWhereItIsPlayedFrom()
    {
        for (int number = 101; number <= 124; ++number) {
            const QUrl source = SoundPlayer::resourceOf(number);
            QCOMPARE(source.isEmpty(), number == 116);
            if (source.isEmpty())
                continue;
            QCOMPARE(source.scheme(), u"qrc"_s);
            QCOMPARE(QFileInfo(source.path()).fileName(), u"%1.wav"_s.arg(number));
            QVERIFY2(SoundPlayer::isWave(bytesOf(u':' + source.path())), qPrintable(source.path()));
        }
    }

    void oddSoundsAreRefused()
    {
        QTemporaryDir folder;
        writeFileAtomically(folder.filePath(u"kä.wav"_s), wave(format + sound));
        writeFileAtomically(folder.filePath(u"text.wav"_s), "Liebe Oma");
        SoundPlayer player;
        for (int id : {101, 116, -1, 124, 101})
            player.PlayResourceSound(id);
        QVERIFY(player.playFile(storedPath(folder.filePath(u"KÄ.WAV"_s))));
        QVERIFY(!player.playFile(folder.filePath(u"text.wav"_s)));
        QVERIFY(!player.playFile(folder.filePath(u"fehlt.wav"_s)));
        QVERIFY(!player.playFile(folder.path()));
        player.PlayResourceSound(102);
    }

    void whoLetsEventsRunStandsOnTheGate()
    {
        Gate gate;
        LoopPump pump(gate);
        SystemClock clock(gate);
        const std::function<void()> ways[] = {[&] { pump.yield(); }, [&] { pump.serve(); },
                                              [&] { clock.wait(20); }};
        for (const auto &run : ways) {
            int seen = 0;
            QMetaObject::invokeMethod(
                this, [&] { seen = gate.isFree() ? 1 : 2; }, Qt::QueuedConnection);
            run();
            QCOMPARE(seen, 2);
            QVERIFY(gate.isFree());
        }
        pump.serve();
        QVERIFY(!pump.inputWaiting()); // not in every round
        QTRY_VERIFY(pump.inputWaiting());
    }
};

WORTEL_TEST(DesktopTest)
#include "tst_desktop.moc"
