// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/picture_file.h"
#include "platform/runtime_error.h"
#include "support/file_bytes.h"
#include "support/test_class.h"

namespace {

QByteArray picture(const char *format)
{
    QBuffer buffer;
    QImage(40, 30, QImage::Format_RGB32).save(&buffer, format);
    return buffer.data();
}

} // namespace

class PictureFileTest : public QObject
{
    Q_OBJECT

    QTemporaryDir folder_;

private slots:
    /// Whatever the name says. Without words the picture is shown.
    void readsByTheBytes_data()
    {
        columns<QByteArray, QString>("bytes", "words");
        const auto row = [](const char *name, const QByteArray &bytes, const QString &words = {}) {
            QTest::newRow(name) << bytes << words;
        };
        const QString none = u"kein Bild"_s;
        row("nothing", {}, none);
        row("vector picture", "<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"9\" height=\"9\"/>", none);
        row("another raster format", picture("ppm"), none);
        row("a header and no points", picture("png").first(60), u"beschädigt"_s);
        row("png of 60,000 points a side",
            QByteArray::fromHex("89504e470d0a1a0a0000000d494844520000ea600000ea600802000000"),
            u"zu groß: "_s);
        row("jpg of 65,500 points a side",
            QByteArray::fromHex("ffd8ffdb0002ffc0001108ffdcffdc") + QByteArray(40, 'x'), u"zu groß: "_s);
        row("jpg of a thousand scans", picture("jpg") + QByteArray::fromHex("ffda0002").repeated(1000), none);
        for (const char *format : {"bmp", "jpg", "png"})
            row(format, picture(format));
        row("gif",
            QByteArray::fromHex("47494638396101000100800000000000ffffff2c00000000010001000002024401003b"));
    }
    void readsByTheBytes()
    {
        QFETCH(QByteArray, bytes);
        QFETCH(QString, words);
        const QString path = folder_.filePath(u"bild.jpg"_s);
        putBytes(path, bytes);
        QString told;
        try {
            QCOMPARE(readPicture(path).isNull(), false);
        } catch (const RuntimeError &error) {
            told = error.description();
        }
        QVERIFY2(told.contains(words) && told.isEmpty() == words.isEmpty(), qPrintable(told));
    }
};

WORTEL_TEST(PictureFileTest)
#include "tst_picture_file.moc"
