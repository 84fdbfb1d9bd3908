// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "board/canvas/background_picture.h"
#include "board/hand/morpheme_lists.h"
#include "platform/files.h"
#include "support/columns.h"
#include "support/registry.h"
#include "support/test_board.h"
#include "widgets/colour.h"
#include "widgets/floating_tile.h"
#include "widgets/gradient.h"
#include "widgets/store_list.h"

#include <QSignalSpy>
#include <QtTest>

using namespace Qt::StringLiterals;

namespace {

const QColor boardColour = toQColor(colours::board);

/// A point of a tile at (x, y) that neither outline nor text covers.
QPoint plainPoint(int x, int y) { return {x + 3, y + 22}; }

void layThree(TestBoard &b)
{
    b.lay(wortel, 20, 100, u"halt"_s);
    b.lay(prefix, 120, 100, u"ver"_s);
    b.lay(suffix, 220, 100, u"ung"_s);
}

/// Which of the three tiles of layThree are seen, as "MPS".
QString seen(const TestBoard &b)
{
    QString kinds;
    int x = 20;
    for (const TileKind &kind : tileKinds) {
        const QPoint point = plainPoint(x, 100);
        if (b.pixel(point.x(), point.y()) == toQColor(kind.back))
            kinds += QLatin1Char(kind.backupLetter);
        x += 100;
    }
    return kinds;
}

} // namespace

class CanvasTest : public QObject
{
    Q_OBJECT

private slots:
    void filterShowsItsKindOnly_data()
    {
        columns<int, QString>("index", "kinds");
        QTest::newRow("Wortel") << 0 << u"M"_s;
        QTest::newRow("prefix") << 1 << u"P"_s;
        QTest::newRow("suffix") << 2 << u"S"_s;
        QTest::newRow("all") << 3 << u"MPS"_s;
        QTest::newRow("no filter of that number leaves all") << 7 << u"MPS"_s;
    }
    void filterShowsItsKindOnly()
    {
        QFETCH(int, index);
        TestBoard b;
        layThree(b);
        b.optTypes->select(index);
        QTEST(seen(b), "kinds");
        b.canvas->RecallFilter(index);
        QTEST(seen(b), "kinds");
        QCOMPARE(b.optTypes->selected(), index > 3 ? 3 : index);
        QVERIFY(!b.surface->isLocked());
        QCOMPARE(b.counters(), (QStringList{u"1"_s, u"1"_s, u"1"_s, u"3"_s}));
    }

    void frozenStepsArePaintedAtTheEnd()
    {
        TestBoard b;
        layThree(b);
        {
            const FrozenBoard frozen(*b.surface);
            b.store->ClearCanvas();
            b.lay(suffix, 20, 100, u"en"_s);
            QCOMPARE(seen(b), u"MPS"_s);
        }
        QCOMPARE(seen(b), QString());
        QCOMPARE(b.pixel(23, 122), toQColor(suffix.back));
        QVERIFY(!b.surface->isLocked());
    }

    void imageIsSharpAndBoxesAreWhole()
    {
        TestBoard b;
        b.lay(wortel, 20, 100, QString());
        b.canvas->CanvasRedrawAll();
        const cWortel &tile = *b.store->tiles().front();
        QCOMPARE(b.pixel(20, 100), QColor(Qt::white));
        QCOMPARE(b.pixel(tile.right(), tile.bottom()), QColor(Qt::white));
        QCOMPARE(b.pixel(21, 101), toQColor(wortel.back));
        QCOMPARE(b.pixel(19, 100), boardColour);
        QCOMPARE(b.pixel(tile.right() + 1, 110), boardColour);
    }

    void eraseTakesTheFirstTileAndKeepsFilterAndItsCounter()
    {
        TestBoard b;
        layThree(b);
        b.lay(wortel, 22, 102, u"fahr"_s);
        b.optTypes->select(0);
        b.canvas->CanvasEraseWortel(30, 110);
        QCOMPARE(b.texts(), (QStringList{u"ver"_s, u"ung"_s, u"fahr"_s}));
        QCOMPARE(b.optTypes->selected(), 0);
        QCOMPARE(b.optTypes->value(0), 2);
        QCOMPARE(seen(b), u"M"_s);
        b.canvas->CanvasEraseWortel(400, 300);
        QCOMPARE(b.store->count(), 3);
    }

    void editing_data()
    {
        columns<QString, int, QStringList>("pos", "kind", "tiles");
        const QStringList old{u"20,100 halt"_s, u"120,100 ver"_s, u"220,100 ung"_s};
        QTest::newRow("goes to the top") << u"20,100"_s << 0 << QStringList{old[1], old[2], u"20,100 neu"_s};
        QTest::newRow("the kind decides")
            << u"120,100"_s << 1 << QStringList{old[0], old[2], u"120,100 neu"_s};
        QTest::newRow("a bad place") << u"abc"_s << 0 << old;
        QTest::newRow("a place beyond 16 bits") << u"99999,1"_s << 0 << old;
        QTest::newRow("no kind") << u"20,100"_s << -1 << old;
    }
    void editing()
    {
        QFETCH(QString, pos);
        QFETCH(int, kind);
        TestBoard b;
        layThree(b);
        b.canvas->EditObject(pos, u"neu"_s,
                             kind < 0 ? colours::board : tileKinds.at(static_cast<std::size_t>(kind)).back);
        QTEST(b.described(), "tiles");
        QCOMPARE(b.counters(), (QStringList{u"1"_s, u"1"_s, u"1"_s, u"3"_s}));
    }
    void editingFindsItsTileUnderAnOlderOne()
    {
        TestBoard b;
        b.lay(wortel, 10, 95, u"oldest"_s);
        b.lay(prefix, 20, 100, u"ver"_s);
        b.canvas->EditObject(u"20,100"_s, u"be"_s, prefix.back);
        QCOMPARE(b.texts(), (QStringList{u"oldest"_s, u"be"_s}));
    }

    void theFloatingCopyLooksLifted()
    {
        TestBoard b;
        b.lay(wortel, 25, 105, u"halt"_s);
        QVERIFY(b.canvas->CanvasSelectWortel(30, 110));
        const cWortel &held = *b.store->current();
        QCOMPARE(b.controls.BtnMove1->geometry().topLeft(), QPoint(25, 105));
        QCOMPARE(b.controls.BtnMove1->height(), 26);
        QCOMPARE(b.controls.BtnMove1->Caption(), u"halt "_s);
        QVERIFY(held.Selected && b.controls.BtnMove1->width() > held.Extent());
        b.optTypes->select(0);
        b.controls.Option1[0]->setChecked(true);
        b.controls.Option1[1]->setChecked(true);
        QVERIFY(!b.modes.WordCheckDrag && !held.Selected);
        QVERIFY(b.controls.BtnMove1->isHidden());
        QCOMPARE(b.optTypes->selected(), 0);
    }

    void allTakesTheNumberAway()
    {
        TestBoard b;
        b.controls.Check1->setChecked(true);
        QVERIFY(!b.controls.Text1->isEnabled());
        b.controls.Check1->setChecked(false);
        QVERIFY(b.controls.Text1->isEnabled());
    }

    void listsOpenAboveTheirButtons()
    {
        TestBoard b;
        MorphemeLists lists(b.t.ground, b.controls);
        QSignalSpy menus(&lists, &MorphemeLists::menuRestoreWanted);
        lists.OptType_MouseDown(0, Qt::RightButton);
        QVERIFY(!b.controls.WortelList->isHidden());
        QCOMPARE(b.controls.WortelList->geometry().bottom() + 1, b.controls.Picture1->y());
        QCOMPARE(b.t.sound.resources, QList<int>{121});
        lists.OptType_MouseDown(3, Qt::RightButton);
        QVERIFY(b.controls.WortelList->isHidden());
        lists.OptType_MouseDown(3, Qt::RightButton);
        QVERIFY(!b.controls.WortelList->isHidden() && !b.controls.PrefixList->isHidden() &&
                !b.controls.SuffixList->isHidden());
        QCOMPARE(b.t.sound.resources.size(), 2);
        lists.OptType_MouseDown(1, Qt::LeftButton);
        QVERIFY(b.controls.WortelList->isHidden() && b.controls.PrefixList->isHidden() &&
                b.controls.SuffixList->isHidden());
        QCOMPARE(menus.count(), 1);
    }

    void droppedFiles_data()
    {
        // format: what is written: a picture format, "text" or nothing at all
        columns<QString, QByteArray, QSize, QString, bool>("name", "format", "size", "complaint", "shown");
        const QSize small(40, 30);
        QTest::newRow("bmp") << u"bild.bmp"_s << QByteArray("bmp") << small << QString() << true;
        QTest::newRow("jpg in capitals") << u"Bild.JPG"_s << QByteArray("jpg") << small << QString() << true;
        QTest::newRow("misnamed: png as jpg")
            << u"bild.jpg"_s << QByteArray("png") << small << QString() << true;
        QTest::newRow("huge jpg is read smaller")
            << u"gross.jpg"_s << QByteArray("jpg") << QSize(9000, 6000) << QString() << true;
        QTest::newRow("huge bmp is refused")
            << u"gross.bmp"_s << QByteArray("bmp header") << QSize(20000, 20000) << u"zu groß"_s << false;
        QTest::newRow("another format")
            << u"bild.png"_s << QByteArray("png") << small << u"Dieses Bild hat das Format: PNG"_s << false;
        QTest::newRow("no extension")
            << u"bild"_s << QByteArray("png") << small << u"Dieses Bild hat das Format: BILD"_s << false;
        QTest::newRow("no picture") << u"bild.gif"_s << QByteArray("text") << small << u"kein Bild"_s
                                    << false;
        QTest::newRow("an empty file")
            << u"leer.jpg"_s << QByteArray("empty") << small << u"kein Bild"_s << false;
        QTest::newRow("no file") << u"fehlt.bmp"_s << QByteArray() << small << u"gibt es nicht"_s << false;
        QTest::newRow("cut off") << u"kurz.jpg"_s << QByteArray("cut") << small << u"beschädigt"_s << false;
    }
    void droppedFiles()
    {
        QFETCH(QString, name);
        QFETCH(QByteArray, format);
        QFETCH(QSize, size);
        QFETCH(QString, complaint);
        QFETCH(bool, shown);
        TestBoard b;
        layThree(b);
        BackgroundPicture background(b.t.ground, b.controls, *b.canvas);
        const QString path = b.t.folder.filePath(name);
        writePicture(path, format, size);
        if (!complaint.isEmpty())
            b.t.boxes.willAnswer(Boxes::Answer::Ok);
        background.drop(path);
        QVERIFY(b.t.ok());
        if (!complaint.isEmpty())
            QVERIFY2(b.t.boxes.asked.first().text.contains(complaint),
                     qPrintable(b.t.boxes.asked.first().text));
        const QImage picture = b.controls.picCanvas->picture();
        QCOMPARE(!picture.isNull(), shown);
        QVERIFY(qint64(picture.width()) * picture.height() < 24'000'000);
        QCOMPARE(b.pixel(5, 5) != boardColour, shown);
        QCOMPARE(seen(b), u"MPS"_s); // the tiles lie on the picture
    }

    void pictureOfTheSettingIsQuiet()
    {
        TestBoard b;
        BackgroundPicture background(b.t.ground, b.controls, *b.canvas);
        background.loadFromSetting();
        b.t.options.setText(Setting::BackgroundPicture, b.t.AppFolder + u"fehlt.jpg"_s);
        background.loadFromSetting();
        QVERIFY(b.controls.picCanvas->picture().isNull());
        b.t.options.setText(Setting::BackgroundPicture, b.t.writeFile(u"kaputt.jpg"_s, u"kein Bild"_s));
        background.loadFromSetting();
        QVERIFY(b.controls.picCanvas->picture().isNull());
        writePicture(b.t.folder.filePath(u"da.bmp"_s), "bmp", QSize(20, 20));
        b.t.options.setText(Setting::BackgroundPicture, b.t.AppFolder + u"DA.bmp"_s);
        background.loadFromSetting();
        QCOMPARE(b.controls.picCanvas->picture().size(), QSize(20, 20));
        QVERIFY(b.t.ok());
    }

private:
    static void writePicture(const QString &path, const QByteArray &format, const QSize &size)
    {
        if (format.isEmpty())
            return;
        if (format == "text" || format == "empty") {
            writeFileAtomically(path, format == "text" ? "das ist nur ein Text" : QByteArray());
            return;
        }
        if (format == "cut") {
            writePicture(path, "png", size);
            QFile file(path);
            QVERIFY(file.resize(file.size() / 2));
            return;
        }
        if (format == "bmp header") {
            // A header that promises more than follows.
            QByteArray bytes("BM\x36\0\0\0\0\0\0\0\x36\0\0\0\x28\0\0\0", 18);
            const auto number = [&bytes](qint32 value, int width) {
                for (int i = 0; i < width; ++i)
                    bytes.append(static_cast<char>(value >> (8 * i) & 0xFF));
            };
            number(size.width(), 4);
            number(size.height(), 4);
            number(1, 2);
            number(24, 2);
            bytes.append(QByteArray(24, '\0')).append(QByteArray(12, '\x55'));
            writeFileAtomically(path, bytes);
            return;
        }
        QImage picture(size, QImage::Format_RGB32);
        picture.fill(Qt::magenta);
        QVERIFY(picture.save(path, format.constData()));
    }
};

WORTEL_TEST(CanvasTest)
#include "tst_canvas.moc"
