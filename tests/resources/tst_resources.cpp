// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/test_class.h"

#include <QImage>
#include <QPainter>
#include <QSvgRenderer>

namespace {

QString sourceFolder() { return QStringLiteral(WORTEL_SOURCE_DIR); }

/// Name inside the program -> file, relative to the resources folder.
QMap<QString, QString> aliases()
{
    QMap<QString, QString> found;
    QFile file(sourceFolder() + u"/resources/wortel.qrc"_s);
    if (!file.open(QIODevice::ReadOnly))
        return found;
    QXmlStreamReader reader(&file);
    while (!reader.atEnd()) {
        if (reader.readNext() != QXmlStreamReader::StartElement || reader.name() != u"file")
            continue;
        const QString alias = reader.attributes().value("alias"_L1).toString();
        found.insert(alias, reader.readElementText());
    }
    return found;
}

/// The picture in a square of `side` pixels; null if it is not valid.
QImage render(const QString &path, int side)
{
    QSvgRenderer renderer(path);
    if (!renderer.isValid())
        return {};
    QImage image(side, side, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    renderer.render(&painter);
    return image;
}

int paintedPixels(const QImage &image)
{
    int painted = 0;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            painted += qAlpha(image.pixel(x, y)) > 127 ? 1 : 0;
    return painted;
}

} // namespace

class ResourcesTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        aliases_ = aliases();
        QVERIFY(!aliases_.isEmpty());
    }

    void listAndFolderAgree()
    {
        QSet<QString> listed;
        for (const QString &file : std::as_const(aliases_)) {
            QVERIFY2(QFile::exists(sourceFolder() + u"/resources/"_s + file), qPrintable(file));
            listed.insert(file);
        }
        const QDir folder(sourceFolder() + u"/resources"_s);
        QDirIterator files(folder.path(), {u"*.svg"_s, u"*.wav"_s}, QDir::Files,
                           QDirIterator::Subdirectories);
        while (files.hasNext()) {
            const QString file = folder.relativeFilePath(files.next());
            QVERIFY2(listed.contains(file), qPrintable(file));
        }
    }

    /// Each picture is valid, fills a good part of its square at every size, and needs nothing that the SVG
    /// module leaves out.
    void picturesRender()
    {
        QTest::failOnWarning(QRegularExpression(u".*"_s));
        QList<QImage> seen;
        const QStringList files = QSet<QString>(aliases_.cbegin(), aliases_.cend()).values();
        for (const QString &file : files) {
            if (!file.endsWith(u".svg"_s))
                continue;
            const QString path = sourceFolder() + u"/resources/"_s + file;
            for (const int side : {16, 64, 256}) {
                const QImage image = render(path, side);
                QVERIFY2(paintedPixels(image) * 8 > side * side,
                         qPrintable(u"%1 at %2"_s.arg(file).arg(side)));
            }
            const QImage small = render(path, 16);
            QVERIFY2(!seen.contains(small), qPrintable(file + u" looks like another picture at 16 pixels"_s));
            seen.append(small);
        }
    }

private:
    QMap<QString, QString> aliases_;
};

WORTEL_TEST(ResourcesTest)
#include "tst_resources.moc"
