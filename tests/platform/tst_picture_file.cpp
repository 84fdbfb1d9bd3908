// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/picture_file.h"
#include "platform/runtime_error.h"
#include "support/columns.h"
#include "support/file_bytes.h"
#include "support/registry.h"

#include <QtTest>

using namespace Qt::StringLiterals;

namespace {

QByteArray picture(const char *format, const QSize &size = {40, 30})
{
    QImage image(size, QImage::Format_RGB32);
    image.fill(Qt::magenta);
    QBuffer buffer;
    if (!image.save(&buffer, format))
        qFatal("cannot write %s", format);
    return buffer.data();
}

QByteArray startOfFrame(const char *size)
{
    return QByteArray::fromHex("ffc0001108") + QByteArray::fromHex(size);
}

} // namespace

/// What bears a picture's name and is something else.
class PictureFileTest : public QObject
{
    Q_OBJECT

    QTemporaryDir folder_;

private slots:
    void refuses_data()
    {
        columns<QByteArray, QString>("bytes", "words");
        const QString none = u"kein Bild"_s;
        const QString large = u"zu groß: "_s;
        QTest::newRow("nothing") << QByteArray() << none;
        QTest::newRow("vector picture")
            << QByteArray("<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"9\" height=\"9\"/>") << none;
        QTest::newRow("another raster format") << picture("ppm") << none;
        QTest::newRow("a header and no size") << picture("png").first(20) << none;
        QTest::newRow("a header and no points") << picture("png").first(60) << u"beschädigt"_s;
        QTest::newRow("png of 60,000 points a side")
            << QByteArray::fromHex("89504e470d0a1a0a0000000d494844520000ea600000ea600802000000") << large;
        QTest::newRow("jpg of 65,500 points a side")
            << QByteArray::fromHex("ffd8ffdb0002") + startOfFrame("ffdcffdc") + QByteArray(40, 'x') << large;
        QTest::newRow("gif of 65,535 points a side")
            << QByteArray("GIF89a\xFF\xFF\xFF\xFF\x80\0\0", 13) << large;
        QTest::newRow("jpg of a thousand scans")
            << picture("jpg") + QByteArray::fromHex("ffda0002").repeated(1000) << none;
    }
    void refuses()
    {
        QFETCH(QByteArray, bytes);
        QFETCH(QString, words);
        const QString path = folder_.filePath(u"bild.jpg"_s);
        putBytes(path, bytes);
        try {
            readPicture(path);
            QFAIL("it is shown");
        } catch (const RuntimeError &error) {
            QCOMPARE(error.number(), 481);
            QVERIFY2(error.description().contains(words), qPrintable(error.description()));
        }
    }

    /// By what it holds, not by its name.
    void shows_data()
    {
        columns<QByteArray, QSize>("bytes", "size");
        for (const char *format : {"bmp", "jpg", "png"})
            QTest::newRow(format) << picture(format) << QSize(40, 30);
        QTest::newRow("gif") << QByteArray::fromHex(
                                    "47494638396101000100800000000000ffffff2c00000000010001000002"
                                    "024401003b")
                             << QSize(1, 1);
    }
    void shows()
    {
        QFETCH(QByteArray, bytes);
        QTEST(pictureFrom(bytes).size(), "size");
    }
};

WORTEL_TEST(PictureFileTest)
#include "tst_picture_file.moc"
