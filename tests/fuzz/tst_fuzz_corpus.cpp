// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "fuzz/targets.h"
#include "support/test_class.h"

/// Everything that the fuzzer has been given or has found, in every run of the tests.
class FuzzCorpusTest : public QObject
{
    Q_OBJECT

private slots:
    void replay_data()
    {
        QTest::addColumn<int>("target");
        for (std::size_t i = 0; i < fuzz::targets.size(); ++i)
            QTest::newRow(fuzz::targets.at(i).name) << static_cast<int>(i);
    }
    void replay()
    {
        QFETCH(int, target);
        const fuzz::Target &row = fuzz::targets.at(static_cast<std::size_t>(target));
        const QDir folder(QStringLiteral(WORTEL_SOURCE_DIR "/tests/fuzz/corpus/") + QLatin1String(row.name));
        const QFileInfoList inputs = folder.entryInfoList(QDir::Files, QDir::Name);
        QVERIFY(!inputs.isEmpty());
        row.run({});
        for (const QFileInfo &input : inputs) {
            QFile file(input.filePath());
            QVERIFY2(file.open(QIODevice::ReadOnly), qPrintable(input.filePath()));
            const QByteArray bytes = file.readAll();
            qDebug().noquote() << input.fileName(); // the last line of a replay that dies
            row.run(bytes);
        }
    }

    /// The targets do look: a promise that is broken ends the program.
    void everyTargetReadsItsCorpus()
    {
        QCOMPARE(QDir(QStringLiteral(WORTEL_SOURCE_DIR "/tests/fuzz/corpus"))
                     .entryList(QDir::Dirs | QDir::NoDotAndDotDot, QDir::Name)
                     .size(),
                 static_cast<qsizetype>(fuzz::targets.size()));
    }
};

WORTEL_TEST(FuzzCorpusTest)
#include "tst_fuzz_corpus.moc"
