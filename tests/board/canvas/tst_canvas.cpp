// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/files.h"
#include "support/test_class.h"
#include "support/test_hand.h"
#include "widgets/colour.h"
#include "widgets/gradient.h"

#include <QMimeData>

namespace {

const QColor boardColour = toQColor(colours::board);

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
        if (b.pixel(x + 3, 122) == toQColor(kind.back)) // neither outline nor text lies there
            kinds += QLatin1Char(kind.backupLetter);
        x += 100;
    }
    return kinds;
}

bool holds(const QImage &image, QRgb colour)
{
    for (int y = 0; y < image.height(); ++y) {
        const auto *line = reinterpret_cast<const QRgb *>(image.constScanLine(y));
        if (std::find(line, line + image.width(), colour) != line + image.width())
            return true;
    }
    return false;
}

} // namespace

class CanvasTest : public QObject
{
    Q_OBJECT

private slots:
    void filterShowsItsKindOnly()
    {
        for (const auto &[index, kinds] :
             {std::pair{0, u"M"_s}, {1, u"P"_s}, {2, u"S"_s}, {3, u"MPS"_s}, {7, u"MPS"_s}}) {
            TestBoard b;
            layThree(b);
            b.optTypes->select(index);
            QCOMPARE(seen(b), kinds);
            b.canvas->RecallFilter(index);
            QCOMPARE(seen(b), kinds);
            QCOMPARE(b.optTypes->selected(), std::min(index, 3)); // no filter of that number leaves all
            QCOMPARE(b.trouble(), QString());
        }
    }

    void nothingHiddenFlashes_data()
    {
        using Act = std::function<void(TestHand &)>;
        QTest::addColumn<Act>("act");
        const QPoint onTile(125, 110);
        const auto row = [](const char *name, const Act &act) { QTest::newRow(name) << act; };
        const auto onBoard = [&](const char *name, int id) {
            row(name, [id](TestHand &h) { h.run(command::From::MainMenu, id, {300, 300}); });
        };
        row("remove", [=](TestHand &h) { h.click(onTile, Qt::RightButton, Qt::ControlModifier); });
        row("copy", [=](TestHand &h) { h.click(onTile, Qt::RightButton, Qt::ShiftModifier); });
        row("insert", [](TestHand &h) { h.click({300, 300}, Qt::LeftButton, Qt::ShiftModifier); });
        onBoard("fill", 209);
        onBoard("remove Wortel", 234);
        onBoard("shuffle", 1504);
        onBoard("line up", 260);
        onBoard("spread", 1505);
        row("undo", [](TestHand &h) {
            h.run(command::From::MainMenu, 217);
            h.run(command::From::MainMenu, 2801);
        });
        row("move", [=](TestHand &h) {
            h.press(onTile);
            h.drag({300, 300});
            h.release({300, 300});
        });
        row("drop on the word", [=](TestHand &h) {
            h.controls.Option1[0]->setChecked(true);
            h.press(onTile);
            h.release(h.controls.picCanvas->mapFromGlobal(h.controls.Dropper1->mapToGlobal(QPoint(20, 10))));
            QCOMPARE(h.controls.Dropper1->Caption(), u"ver"_s);
        });
        row("activation", [](TestHand &h) {
            QWidget other;
            other.show();
            other.activateWindow();
            h.settle();
            h.form.activateWindow();
            h.settle();
        });
        row("another size", [](TestHand &h) { h.form.resize(700, 600); });
        row("a new picture", [](TestHand &h) { h.r.background.remove(); });
    }
    void nothingHiddenFlashes()
    {
        QFETCH(std::function<void(TestHand &)>, act);
        TestHand h;
        h.form.show();
        layThree(h);
        h.r.undo.ClearCollBuffer();
        h.optTypes->select(1);
        h.settle();
        h.t.options.setBox(Setting::ConfirmBeforeErase, 0);
        h.t.boxes.willType(u"be"_s);
        h.t.mayLeaveAnswers = true;
        int paints = 0;
        int flashes = 0;
        const PaintWatch watch(h.controls.picCanvas, [&] {
            ++paints;
            flashes += holds(h.controls.picCanvas->image(), QColor(Qt::red).rgb()) ? 1 : 0;
        });
        h.t.pump.onYield = [] { QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents); };
        act(h);
        h.settle();
        QVERIFY(paints > 0);
        QCOMPARE(flashes, 0);
        QCOMPARE(h.optTypes->selected(), 1);
        QCOMPARE(h.trouble(), QString());
        h.optTypes->select(3);
        h.settle();
        QVERIFY(flashes > 0 || h.store->countOf(wortel.back) == 0); // it does see them
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

    void aGrownWindowShowsWhatLayBeyondIt()
    {
        TestBoard b;
        b.form.show();
        b.lay(wortel, 700, 500, u"halt"_s);
        b.form.resize(1000, 720);
        QCOMPARE(b.pixel(703, 522), toQColor(wortel.back));
    }

    /// The floating copy has the tile's pixels, letters and all, and stands over open lists.
    void theFloatingCopyIsTheTileLifted()
    {
        TestHand b;
        b.form.show();
        for (const auto &[kind, text] :
             {std::pair{wortel, u"Fähre"_s}, {prefix, u"ver"_s}, {suffix, u"igung"_s}}) {
            b.lay(kind, 25, 105, text);
            const cWortel &tile = *b.store->tiles().back();
            b.optTypes->select(kind.filterIndex);
            const QRect inside(26, 106, tile.Extent() - 1, 24); // the outline goes round the wider copy
            const QImage lying = b.form.grab(inside).toImage();
            b.press({30, 110});
            QCOMPARE(b.controls.BtnMove1->pos(), QPoint(25, 105));
            QCOMPARE(b.controls.BtnMove1->height(), 26);
            QVERIFY(b.controls.BtnMove1->width() > tile.Extent() + 1);
            QCOMPARE(b.form.grab(inside).toImage(), lying);
            b.release({30, 110});
        }
        b.optTypes->select(2);
        b.morphemeLists.OptType_MouseDown(3, Qt::RightButton);
        b.press({30, 110});
        const QPoint overList = b.controls.PrefixList->geometry().center();
        b.drag(overList);
        QCOMPARE(b.form.grab().toImage().pixelColor(overList + QPoint(3, 22)), toQColor(suffix.back));
        b.release(overList);
    }

    void droppedFiles_data()
    {
        // format: what is written: a picture format, "text" or nothing at all
        columns<QByteArray, QString>("format", "complaint");
        using Row = std::tuple<const char *, const char *, const char *>;
        for (const auto &[name, format, complaint] :
             std::initializer_list<Row>{{"bild.bmp", "bmp", ""},
                                        {"Bild.JPG", "jpg", ""},
                                        {"gross.jpg", "jpg", ""}, // read smaller
                                        {"gross.bmp", "bmp header", "zu groß"},
                                        {"bild.png", "png", "Dieses Bild hat das Format: PNG"},
                                        {"bild", "png", "Dieses Bild hat das Format: BILD"},
                                        {"bild.gif", "text", "kein Bild"},
                                        {"fehlt.bmp", "", "gibt es nicht"}})
            QTest::newRow(name) << QByteArray(format) << QString::fromUtf8(complaint);
    }
    /// A drop that the source means as a move is a copy: else the source would delete its file.
    void droppedFiles()
    {
        QFETCH(QByteArray, format);
        QFETCH(QString, complaint);
        TestBoard b;
        layThree(b);
        const QString name = QString::fromLatin1(QTest::currentDataTag());
        const QString path = b.t.folder.filePath(name);
        writePicture(path, format, name.startsWith(u"gross"_s) ? QSize(9000, 6000) : QSize(40, 30));
        if (!complaint.isEmpty())
            b.t.boxes.willAnswer(Boxes::Answer::Ok);
        QMimeData files;
        files.setUrls({QUrl::fromLocalFile(path)});
        QDragEnterEvent enter({50, 50}, Qt::MoveAction | Qt::CopyAction, &files, Qt::LeftButton, {});
        QCoreApplication::sendEvent(&b.form, &enter);
        QDropEvent drop({50, 50}, Qt::MoveAction | Qt::CopyAction, &files, Qt::LeftButton, {});
        QCoreApplication::sendEvent(&b.form, &drop);
        b.settle();
        QCOMPARE(drop.dropAction(), Qt::CopyAction);
        QCOMPARE(drop.isAccepted(), !complaint.contains(u"Format"_s));
        const bool shown = complaint.isEmpty();
        QVERIFY(shown || b.t.boxes.asked.first().text.contains(complaint));
        const QImage picture = b.controls.picCanvas->picture();
        QCOMPARE(!picture.isNull(), shown);
        QVERIFY(qint64(picture.width()) * picture.height() < 24'000'000);
        QCOMPARE(b.pixel(5, 5) != boardColour, shown);
        QCOMPARE(seen(b), u"MPS"_s); // the tiles lie on the picture
    }

    void pictureOfTheSettingIsQuiet()
    {
        TestBoard b;
        writePicture(b.t.folder.filePath(u"da.bmp"_s), "bmp", QSize(20, 20));
        b.t.writeFile(u"kaputt.jpg"_s, u"kein Bild"_s);
        for (const QString &name : {u"fehlt.jpg"_s, u"kaputt.jpg"_s, u"DA.bmp"_s}) {
            b.t.options.setText(Setting::BackgroundPicture, b.t.AppFolder + name);
            b.r.background.loadFromSetting();
            QCOMPARE(b.controls.picCanvas->picture().isNull(), name != u"DA.bmp"_s);
        }
        b.t.options.setText(Setting::BackgroundPicture, b.t.AppFolder + u"kaputt.jpg"_s);
        b.t.boxes.willAnswer(Boxes::Answer::Ok);
        b.r.background.takeSetting(); // now it has been chosen by hand
        b.settle();
        QVERIFY(b.t.boxes.asked.last().text.contains(u"kein Bild"_s));
        QVERIFY(b.controls.picCanvas->picture().isNull());
    }

private:
    static void writePicture(const QString &path, const QByteArray &format, const QSize &size)
    {
        if (format.isEmpty())
            return;
        if (format == "text")
            return writeFileAtomically(path, "das ist nur ein Text");
        if (format == "bmp header") { // it promises 20,000 by 20,000 points
            writeFileAtomically(path,
                                QByteArray::fromHex("424d36000000000000003600000028000000204e0000204e0000"
                                                    "010018") +
                                    QByteArray(24, '\0') + QByteArray(12, 'U'));
            return;
        }
        QImage picture(size, QImage::Format_RGB32);
        picture.fill(Qt::magenta);
        QVERIFY(picture.save(path, format.constData()));
    }
};

WORTEL_TEST(CanvasTest)
#include "tst_canvas.moc"
