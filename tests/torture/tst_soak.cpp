// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/frm_main.h"
#include "shell/hand_over.h"
#include "soak/soak_gauge.h"
#include "soak/soak_hand.h"
#include "support/test_class.h"

#include <QPixmapCache>

namespace {

/// A number that tools/soak.sh sets for a long run.
int given(const char *name, int otherwise)
{
    return qEnvironmentVariableIsSet(name) ? qEnvironmentVariableIntValue(name) : otherwise;
}

QtMessageHandler others = nullptr;

/// The offscreen platform tells with each resizing that it knows no size hints.
void tellTheRest(QtMsgType type, const QMessageLogContext &context, const QString &message)
{
    if (!message.startsWith(u"This plugin does not support"))
        others(type, context, message);
}

} // namespace

/// Random events over the whole program, life after life: start, some hundred events, close.
class SoakTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        QVERIFY(home_.isValid());
        // What the program writes, starts or looks up stays in here.
        for (const auto *name : {"HOME", "XDG_DATA_HOME", "XDG_CONFIG_HOME", "XDG_RUNTIME_DIR", "PATH"})
            qputenv(name, home_.path().toLocal8Bit());
        folder_ = QDir::currentPath();
        QVERIFY(QDir::setCurrent(home_.path()));
    }
    void cleanupTestCase() { QDir::setCurrent(folder_); }

    void manyEvents()
    {
        const int seconds = given("WORTEL_SOAK_SECONDS", 25);
        const int events = given("WORTEL_SOAK_EVENTS", 6000);
        const auto firstSeed = static_cast<std::uint32_t>(given("WORTEL_SOAK_SEED", 1));
        const QString place = qEnvironmentVariable("WORTEL_SOAK_FOLDER", home_.path());
        QFile curve(place + u"/curve.csv"_s);
        QFile trail(place + u"/trail.txt"_s);
        QVERIFY(curve.open(QIODevice::WriteOnly | QIODevice::Append | QIODevice::Unbuffered));
        QVERIFY(trail.open(QIODevice::ReadWrite | QIODevice::Truncate | QIODevice::Unbuffered));

        others = qInstallMessageHandler(tellTheRest);
        QElapsedTimer time;
        time.start();
        SoakGauge gauge;
        int done = 0;
        int lives = 0;
        for (; done < events && (done < 500 || !time.hasExpired(1000LL * seconds)); ++lives) {
            const std::uint32_t seed = firstSeed + static_cast<std::uint32_t>(lives);
            trail.resize(0);
            trail.seek(0);
            trail.write("seed " + QByteArray::number(seed) + '\n');
            const QString fault = live(seed, trail, done);
            if (!fault.isEmpty())
                qWarning().noquote() << lastOf(trail);
            QVERIFY2(fault.isEmpty(), qPrintable(u"seed %1, "_s.arg(seed) + fault));
            QPixmapCache::clear(); // the style keeps pictures of every size it has drawn, up to ten megabytes
            const SoakSample sample = SoakSample::now();
            gauge.add(sample);
            curve.write(u"%1,%2,%3,%4,%5,%6\n"_s.arg(time.elapsed() / 1000)
                            .arg(seed)
                            .arg(done)
                            .arg(sample.memoryKb)
                            .arg(sample.files)
                            .arg(sample.threads)
                            .toLatin1());
        }
        qInfo("%d events in %d lives and %lld s", done, lives, time.elapsed() / 1000);
        QVERIFY2(gauge.growth().isEmpty(), qPrintable(gauge.growth()));
    }

private:
    static QString live(std::uint32_t seed, QFile &trail, int &done)
    {
        SoakGround ground(seed);
        frmMain form(ground.ground, {});
        ground.boxes.setMainWindow(&form);
        if (!form.Form_Load())
            return u"it does not start"_s;
        hand_over::receive(ground.link, ground.ground, form);
        form.show();
        SoakHand hand(form, ground, seed, trail);
        const QString fault = hand.play(100 + static_cast<int>(seed * 7919 % 500));
        done += hand.done();
        return fault;
    }

    static QString lastOf(QFile &trail)
    {
        trail.seek(std::max<qint64>(0, trail.size() - 3000));
        return QString::fromUtf8(trail.readAll());
    }

    QTemporaryDir home_;
    QString folder_;
};

WORTEL_TEST(SoakTest)
#include "tst_soak.moc"
