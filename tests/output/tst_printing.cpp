// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "output/pdf.h"
#include "output/printing/page_fit.h"
#include "support/error_of.h"
#include "support/file_size_limit.h"
#include "support/test_board.h"
#include "support/test_class.h"
#include "widgets/gradient.h"

#include <QComboBox>
#include <QPagedPaintDevice>
#include <QPainter>
#include <QPushButton>
#include <QRadioButton>
#include <QTextDocument>

using command::From;

namespace {

/// The house with a printer that fills PDF files.
struct PrintHouse : TestBoard
{
    using TestBoard::TestBoard;

    Pdf printed() const { return Pdf(t.printer.file(t.printer.jobs.size())); }
    Pdf words(const QStringList &list)
    {
        lists.CorrectWordList.clear();
        lists.CorrectWordList.addAll(list);
        run(From::MainMenu, 504);
        return printed();
    }
    Pdf boardOnPaper()
    {
        run(From::MainMenu, 1904);
        return printed();
    }
    QSize boardSize() const { return {controls.picCanvas->width(), controls.Picture1->y()}; }
};

/// The colour of a board pixel on paper, on a page of a hundred dots an inch with margins of 10 mm.
QColor onPaper(const QImage &page, const QSize &board, QPoint pixel)
{
    const double margin = 10 / 25.4 * 100;
    const double scale =
        std::min((page.width() - 2 * margin) / board.width(), (page.height() - 2 * margin) / board.height());
    return page.pixelColor(qRound(margin + pixel.x() * scale), qRound(margin + pixel.y() * scale));
}

QStringList numbers(int count)
{
    QStringList all;
    for (int i = 0; i < count; ++i)
        all << u"w%1"_s.arg(i, 5, 10, QChar(u'0'));
    return all;
}

} // namespace

/// What comes out of the printer, page by page.
class PrintingTest : public QObject
{
    Q_OBJECT

private slots:
    void pictureOnPage()
    {
        const QSizeF page(300, 200);
        QCOMPARE(page_fit::fitted(QSizeF(200, 100), page), QSizeF(300, 150));
        QCOMPARE(page_fit::fitted(QSizeF(100, 200), page), QSizeF(100, 200));
        QCOMPARE(page_fit::fitted(QSizeF(0, 0), page), QSizeF());
        QVERIFY(page_fit::goesAcross(QSizeF(10, 10)) && !page_fit::goesAcross(QSizeF(10, 11)));
    }

    void wordsInColumns()
    {
        PrintHouse house;
        house.t.boxes.willBeRead();
        house.run(From::MainMenu, 504);
        QCOMPARE(house.t.boxes.told(), u"Wortel-Meister|Es gibt noch keine richtigen Wörter zum Drucken !"_s);
        QVERIFY(house.t.printer.jobs.isEmpty());
        const QStringList words{u"Clown"_s, u"Ähre"_s, u"Esel"_s, u"Dose"_s, u"Bär"_s};
        QCOMPARE(house.words(words).lines(1).join(u'|'), u"Ähre|Bär|Clown|Dose|Esel"_s);
        house.t.options.setOption(Setting::SaveCopyWithCol);
        QCOMPARE(house.words(words).lines(1).join(u'|'), u"Ähre Bär Clown|Dose Esel"_s);
        house.t.options.setOption(Setting::SaveCopyWithColBl);
        house.t.options.setText(Setting::SaveNoBlocks, u"2"_s);
        QCOMPARE(house.words(words).lines(1).join(u'|'), u"Ähre Clown Esel|Bär Dose"_s);
        QCOMPARE(house.t.printer.jobs.last().title, u"Wörterliste"_s);
        QCOMPARE(house.t.printer.jobs.last().printer, u"Klasse 3"_s);
    }

    void manyWordsAndLongOnes()
    {
        PrintHouse house;
        const QStringList many = numbers(10000);
        const Pdf paper = house.words(many);
        QVERIFY(paper.pages() > 100);
        QCOMPARE(paper.words(), many);
        house.t.options.setOption(Setting::SaveCopyWithCol);
        house.t.options.setText(Setting::SaveNoColumns, u"4"_s);
        const Pdf wide = house.words(
            {QString(500, u'a'), QString(500, u'b'), QString(500, u'c'), QString(500, u'd'), u"kurz"_s});
        QString all = wide.words().join(QString());
        QCOMPARE(all.count(u'a'), 500); // nothing is cut off
        QCOMPARE(all.count(u'd'), 500);
        QVERIFY(all.endsWith(u"kurz"_s));
    }

    void boardOnPaper()
    {
        PrintHouse house;
        const QSize board = house.boardSize();
        house.lay(wortelKind, 60, 50, u"läuf"_s);
        house.lay(prefixKind, 400, 300, u"ver"_s);
        house.r.store.tiles().front()->Selected = true;
        house.tool(house.controls.OptType[1]); // prefixes only: black and white takes all tiles nevertheless
        const Pdf plain = house.boardOnPaper();
        QCOMPARE(plain.lines(1), (QStringList{u"läuf"_s, u"ver"_s}));
        const QImage white = plain.picture(1);
        QCOMPARE(onPaper(white, board, {66, 54}), QColor(Qt::white));
        QCOMPARE(onPaper(white, board, {300, 300}), QColor(Qt::white));
        QVERIFY(onPaper(white, board, {60, 62}).lightness() < 140); // the outline
        QCOMPARE(house.optTypes->selected(), 1);

        house.t.options.setBox(Setting::PrintInColor, 1);
        QCOMPARE(house.boardOnPaper().lines(1), QStringList{u"ver"_s});
        house.tool(house.controls.OptType[3]);
        const Pdf coloured = house.boardOnPaper();
        QCOMPARE(coloured.pages(), 1);
        QCOMPARE(coloured.pageSize(), u"842 x 595 pts (A4)"_s); // the board is wider than high
        QVERIFY2(!coloured.holdsPictures(), "a magnified picture is not sharp");
        const QImage page = coloured.picture(1);
        QCOMPARE(onPaper(page, board, {66, 54}), QColor(255, 0, 0));
        QCOMPARE(onPaper(page, board, {404, 304}), QColor(255, 255, 0));
        QCOMPARE(onPaper(page, board, {300, 300}), QColor(0, 128, 192));
        QCOMPARE(page.pixelColor(15, 15), QColor(Qt::white)); // the margin
        QCOMPARE(house.trouble(), QString());                 // no tile is held any more

        QImage picture(300, 200, QImage::Format_RGB32);
        picture.fill(QColor(0, 200, 0));
        house.controls.picCanvas->setPicture(picture);
        QCOMPARE(onPaper(house.boardOnPaper().picture(1), board, {150, 100}), QColor(0, 200, 0));
        house.t.options.setBox(Setting::PrintInColor, 0);
        const QColor dull = onPaper(house.boardOnPaper().picture(1), board, {150, 100});
        QVERIFY(dull.red() == dull.green() && dull.green() == dull.blue() && dull.red() < 200);
    }

    void aHighBoardStandsUprightAndFine()
    {
        PrintHouse house(1, QSize(480, 900));
        QCOMPARE(house.boardOnPaper().pageSize(), u"595 x 842 pts (A4)"_s);
        house.t.options.setBox(Setting::PrintHighQuality, 1);
        house.boardOnPaper();
        QVERIFY(!house.t.printer.jobs.first().highQuality);
        PrintJob job = house.t.printer.jobs.last();
        job.pdfFile = house.t.AppFolder + u"probe.pdf"_s;
        QCOMPARE(SystemPrinter().begin(job)->device().logicalDpiX(), 1200);
    }

    void textPages_data()
    {
        columns<int, int>("lines", "pages");
        QTest::newRow("nothing") << 0 << 1;
        QTest::newRow("one page") << 20 << 1;
        QTest::newRow("three pages") << 130 << 3;
    }
    void textPages()
    {
        QFETCH(int, lines);
        PrintHouse house;
        const QStringList words = numbers(lines);
        QTextDocument text(words.join(u'\n'));
        text.setDefaultFont(QFont(u"Arial"_s, 10));
        house.r.printing.PrintRTF(text, u"Wortstamm"_s, u"Kernling"_s);
        const Pdf paper = house.printed();
        QTEST(paper.pages(), "pages");
        QStringList found;
        for (int page = 1; page <= paper.pages(); ++page) {
            QStringList seen = paper.lines(page);
            // Page marks are letters of 10 points, a quarter of an inch down, at the text's right edge.
            QImage upper = paper.picture(page).copy(500, 0, 327, 80);
            const bool isLast = page == paper.pages();
            if (!isLast) { // which has no marks
                QCOMPARE(seen.takeFirst().remove(u' '), u"-%1-"_s.arg(page));
                QCOMPARE(seen.takeFirst() + seen.takeLast(), u"WortstammKernling"_s);
                QPainter(&upper).fillRect(190, 60, 40, 18, Qt::white);
            }
            QImage white = upper;
            white.fill(Qt::white);
            QCOMPARE(upper, white);
            found << seen;
        }
        QCOMPARE(found, words);
    }

    void withoutAPrinter_data()
    {
        columns<QString, bool, QString>("name", "isFull", "told");
        const QString fault = u" - Druckerfehler|Die Seiten konnten nicht gespeichert werden als %1\n\n"_s;
        QTest::newRow("good") << u"wörter.pdf"_s << false << u"|Die Datei wurde gespeichert als %1"_s;
        QTest::newRow("no folder") << u"fort\\a.pdf"_s << false << fault + u"Den Ordner gibt es nicht."_s;
        QTest::newRow("a folder") << u"ordner.pdf"_s << false
                                  << fault + u"Diese Datei kann nicht geschrieben oder gelesen werden."_s;
        QTest::newRow("full disk") << u"alt.pdf"_s << true
                                   << fault + u"Auf dem Datenträger ist kein Platz mehr."_s;
    }
    void withoutAPrinter()
    {
        QFETCH(QString, name);
        QFETCH(bool, isFull);
        QFETCH(QString, told);
        PrintHouse house;
        const QString file = house.t.AppFolder + name;
        house.t.printer.standard.clear();
        house.t.writeFile(u"alt.pdf"_s, u"alt"_s);
        QDir(house.t.folder.path()).mkdir(u"ordner.pdf"_s);
        house.lists.CorrectWordList.add(u"Haus"_s);
        for (const auto answer :
             {Boxes::Answer::Ok, Boxes::Answer::No, Boxes::Answer::Ok, Boxes::Answer::Yes, Boxes::Answer::Ok})
            house.t.boxes.willAnswer(answer);
        house.run(From::MainMenu, 1904);
        QCOMPARE(house.t.boxes.asked.first().title, u"Wortel-Meister - Druckerfehler"_s);
        QCOMPARE(
            house.t.boxes.asked.first().text,
            u"Es kann kein voreingestellter Drucker gefunden werden. Um einen voreingestellten Drucker zu "
            "installieren und auszuwählen, wählen Sie im Windows Startmenü: Einstellungen/Drucker und machen "
            "Sie einen Doppelklick auf das Symbol für 'Neuer Drucker'."_s);
        QVERIFY(house.t.printer.jobs.isEmpty());
        house.t.fileDialogs.willSave(file);
        {
            std::optional<FileSizeLimit> full;
            if (isFull)
                full.emplace(1000);
            house.run(From::MainMenu, 504);
        }
        QCOMPARE(house.t.boxes.told(), u"Wortel-Meister"_s + told.arg(file));
        if (name == u"wörter.pdf"_s)
            QCOMPARE(Pdf(file).lines(1), QStringList{u"Haus"_s});
        QCOMPARE(ReadWholeFile(house.t.AppFolder + u"alt.pdf"_s), "alt");
        QCOMPARE(house.trouble(), QString());
    }

    void aPrinterThatVanishes()
    {
        PrintHouse house;
        house.t.printer.vanishes = true;
        house.t.boxes.willAnswer(Boxes::Answer::Ok);
        house.run(From::MainMenu, 1904);
        QCOMPARE(house.t.boxes.told(),
                 u"Wortel-Meister - Druckerfehler|Die Seiten konnten nicht gedruckt werden.\n\n"
                 "Der Drucker ist nicht bereit oder nicht mehr da."_s);
        QCOMPARE(house.trouble(), QString());
        PrintJob job;
        job.printer = u"den gibt es nicht"_s;
        QCOMPARE(errorOf([&] { SystemPrinter().begin(job); }), 482);
    }

    void printerSetUp()
    {
        PrintHouse house;
        const auto choose = [&](const QString &printer, int paper, const char *button) {
            QTimer::singleShot(0, &house.form, [=] {
                QWidget *window = QApplication::activeModalWidget();
                QCOMPARE(window->windowTitle(), u"Drucker Einstellungen"_s);
                window->findChild<QComboBox *>(u"cboPrinter"_s)->setCurrentText(printer);
                window->findChild<QComboBox *>(u"cboPaper"_s)->setCurrentIndex(paper);
                window->findChild<QRadioButton *>(u"OptOrientation(1)"_s)->click();
                window->findChild<QPushButton *>(QLatin1String(button))->click();
            });
            house.run(From::MainMenu, 1905);
        };
        choose(u"PDF-Datei"_s, 1, "cmdCancel");
        QCOMPARE(house.words({u"Haus"_s}).pageSize(), u"595 x 842 pts (A4)"_s);
        choose(u"Klasse 3"_s, 1, "cmdOK");
        QCOMPARE(house.words({u"Haus"_s}).pageSize(), u"595 x 420 pts (A5)"_s);
        QCOMPARE(house.boardOnPaper().pageSize(), u"595 x 420 pts (A5)"_s);
        choose(u"PDF-Datei"_s, 2, "cmdOK");
        const QString file = house.t.AppFolder + u"gewählt.pdf"_s;
        house.t.fileDialogs.willSave(file);
        house.t.boxes.willAnswer(Boxes::Answer::Ok);
        house.words({u"Haus"_s});
        QCOMPARE(Pdf(file).pageSize(), u"1191 x 842 pts (A3)"_s);
    }
};

WORTEL_TEST(PrintingTest)
#include "tst_printing.moc"
