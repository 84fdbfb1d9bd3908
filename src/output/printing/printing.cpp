// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "output/printing/printing.h"

#include "board/canvas/canvas.h"
#include "board/hand/command_router.h"
#include "output/columns/columns.h"
#include "output/printing/page_fit.h"
#include "output/printing/paper_surface.h"
#include "output/printing/text_pages.h"
#include "output/printing/word_pages.h"
#include "platform/boxes.h"
#include "platform/fault_words.h"
#include "platform/file_dialogs.h"
#include "platform/gate.h"
#include "platform/ground.h"
#include "platform/note_texts.h"
#include "platform/notes.h"
#include "platform/options.h"
#include "platform/procedure.h"
#include "platform/product.h"
#include "platform/settings_store.h"
#include "platform/word_lists.h"
#include "widgets/gradient.h"
#include "widgets/guards.h"
#include "widgets/main_controls.h"
#include "widgets/picture_box.h"

#include <QApplication>
#include <QPagedPaintDevice>
#include <QPainter>

using namespace Qt::StringLiterals;

namespace {

constexpr auto form = "frmMain";

const QString noPrinter =
    u"Es kann kein voreingestellter Drucker gefunden werden. Um einen voreingestellten Drucker zu "
    "installieren und auszuwählen, wählen Sie im Windows Startmenü: Einstellungen/Drucker und machen Sie "
    "einen Doppelklick auf das Symbol für 'Neuer Drucker'."_s;

} // namespace

Printing::Printing(Ground &ground, const MainControls &controls, const WordLists &lists, Canvas &canvas)
    : ground_(ground)
    , controls_(controls)
    , lists_(lists)
    , canvas_(canvas)
{}

void Printing::registerCommands(CommandRouter &router)
{
    router.onMenu(504, [this] { PrintCorrectWords(); });
    router.onMenu(1904, [this] { PrintOut(); });
    router.onMenu(1905, [this] { setUpPrinter(); });
}

// Where to
// ---------------------------------------------------------------------------------------------------

QString Printing::printerName() const
{
    const bool isThere = !setUp_.printer.isEmpty() && ground_.printer.names().contains(setUp_.printer);
    return isThere ? setUp_.printer : ground_.printer.defaultName();
}

bool Printing::PrinterReady()
{
    if (!printerName().isEmpty())
        return true;
    ground_.boxes.plainBox(Boxes::Icon::Warning, product::name + u" - Druckerfehler"_s, noPrinter);
    return false;
}

std::optional<PrintJob> Printing::askTarget(const QString &title)
{
    PrintJob job;
    job.title = title;
    job.paper = setUp_.paper;
    job.landscape = setUp_.landscape;
    job.inColour = ground_.options.isOn(Setting::PrintInColor);
    job.highQuality = ground_.options.isOn(Setting::PrintHighQuality);
    if (!setUp_.toPdf && PrinterReady()) {
        job.printer = printerName();
        return job;
    }
    const bool intoFile =
        setUp_.toPdf ||
        ground_.boxes.plainBox(Boxes::Icon::Question, product::name + u" - Drucken"_s,
                               u"Sollen die Seiten stattdessen als PDF-Datei gespeichert werden?"_s,
                               Boxes::Buttons::YesNo) == Boxes::Answer::Yes;
    return intoFile && askPdfFile(job) ? std::optional(job) : std::nullopt;
}

bool Printing::askPdfFile(PrintJob &job)
{
    const QString folder = ground_.store.GetSetting(u"Path"_s, u"Export"_s, ground_.AppFolder);
    job.pdfFile =
        ground_.fileDialogs.saveFile(product::name + u" - Als PDF-Datei speichern"_s, folder,
                                     u"PDF-Dateien (*.pdf)|*.pdf"_s, u".pdf"_s, {job.title + u".pdf"_s, {}});
    return !job.pdfFile.isEmpty();
}

bool Printing::setUpPrinter()
{
    Procedure step{ground_.log, "setUpPrinter", form};
    bool chosen = false;
    step([&] {
        const Gate::Passage open = ground_.gate.openBox();
        if (!open)
            return;
        QWidget *const inUse = QApplication::activeModalWidget();
        frmPrinterSetUp window(ground_.printer, setUp_, inUse != nullptr ? inUse : controls_.form);
        chosen = window.exec() == QDialog::Accepted;
        if (chosen)
            setUp_ = window.chosen();
    });
    return chosen;
}

// Pages
// ------------------------------------------------------------------------------------------------------

void Printing::print(const char *procedure, const PrintJob &job, const Painting &paint)
{
    Procedure step{ground_.log, procedure, form};
    QString reason;
    const bool done = step([&] {
        const Hourglass hourglass;
        try {
            const std::unique_ptr<PrintedDocument> document = ground_.printer.begin(job);
            QPainter painter;
            if (!painter.begin(&document->device()))
                throw RuntimeError::of(RuntimeError::PrinterError);
            painter.setRenderHint(QPainter::SmoothPixmapTransform, job.highQuality);
            paint(painter, document->device());
            painter.end();
            document->send();
        } catch (const RuntimeError &error) {
            reason = faultWords(error);
            throw;
        }
    });
    if (!done) {
        step([&] { tellFault(job, reason); });
        return;
    }
    if (job.pdfFile.isEmpty()) {
        ground_.notes.tell(note::printed, job.title);
        return;
    }
    step([&] {
        ground_.store.SaveSetting(u"Path"_s, u"Export"_s, job.pdfFile.left(job.pdfFile.lastIndexOf(u'\\')));
    });
    step([&] {
        ground_.boxes.plainBox(Boxes::Icon::Information, product::name,
                               u"Die Datei wurde gespeichert als "_s + job.pdfFile);
    });
}

void Printing::tellFault(const PrintJob &job, const QString &reason)
{
    const QString what = job.pdfFile.isEmpty()
                             ? u"Die Seiten konnten nicht gedruckt werden."_s
                             : u"Die Seiten konnten nicht gespeichert werden als "_s + job.pdfFile;
    ground_.boxes.plainBox(Boxes::Icon::Warning, product::name + u" - Druckerfehler"_s,
                           reason.isEmpty() ? what : what + u"\n\n"_s + reason);
}

void Printing::PrintCorrectWords()
{
    const QStringList words = lists_.CorrectWordList.rows();
    if (words.isEmpty()) {
        ground_.boxes.ShowInfoBox(u"Es gibt noch keine richtigen Wörter zum Drucken !"_s, BoxSign::Info,
                                  product::name);
        return;
    }
    const std::optional<PrintJob> job = askTarget(u"Wörterliste"_s);
    if (!job)
        return;
    print("PrintCorrectWords", *job, [&](QPainter &painter, QPagedPaintDevice &device) {
        paintWords(painter, device, word_columns::asWished(words, ground_.options));
    });
}

void Printing::PrintRTF(const QTextDocument &text, const QString &headerWord, const QString &footerWord)
{
    const std::optional<PrintJob> job = askTarget(u"Text"_s);
    if (!job)
        return;
    print("PrintRTF", *job, [&](QPainter &painter, QPagedPaintDevice &device) {
        paintText(painter, device, text, headerWord, footerWord);
    });
}

void Printing::PrintOut()
{
    const std::optional<PrintJob> job = askTarget(u"Spielfeld"_s);
    if (!job)
        return;
    canvas_.CanvasUnSelectAllWortel();
    if (ground_.gate.isClosing())
        return;
    // The band covers the lower end of the board.
    const QSize board(controls_.picCanvas->width(), controls_.Picture1->y() - controls_.picCanvas->y());
    PrintPictureToFitPage("PrintOut", *job, board,
                          [&](QPainter &painter, double scale) { paintBoard(painter, board, scale); });
    canvas_.repaint();
}

void Printing::PrintPictureToFitPage(const char *procedure, PrintJob job, const QSizeF &picture,
                                     const std::function<void(QPainter &, double)> &paint)
{
    job.landscape = page_fit::goesAcross(picture);
    print(procedure, job, [&](QPainter &painter, QPagedPaintDevice &device) {
        const QSizeF size = page_fit::fitted(picture, QSizeF(device.width(), device.height()));
        paint(painter, size.width() / picture.width());
    });
}

/// Black on white takes the ink of the letters only, unless a picture lies behind the board.
void Printing::paintBoard(QPainter &painter, const QSize &board, double scale)
{
    const PictureBox &box = *controls_.picCanvas;
    const bool inColour = ground_.options.isOn(Setting::PrintInColor);
    PaperSurface paper(painter, board, scale, box.font(),
                       {inColour ? box.backColour() : QColor(Qt::white), box.picture()});
    paper.clear();
    if (inColour)
        canvas_.drawShown(paper);
    else
        canvas_.DrawMonoChrome(paper);
}
