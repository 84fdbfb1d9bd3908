// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/system_printer.h"

#include "platform/files.h"
#include "platform/product.h"
#include "platform/runtime_error.h"

#include <QFile>
#include <QPrinter>
#include <QPrinterInfo>
#include <QTemporaryDir>

#include <algorithm>
#include <limits>

using namespace Qt::StringLiterals;

namespace {

constexpr int fineResolution = 1200; ///< dots an inch
constexpr int plainResolution = 300;
constexpr double margin = 10; ///< millimetres

QPageSize pageSize(Paper paper)
{
    switch (paper) {
    case Paper::A4:
        break;
    case Paper::A5:
        return QPageSize(QPageSize::A5);
    case Paper::A3:
        return QPageSize(QPageSize::A3);
    case Paper::Letter:
        return QPageSize(QPageSize::Letter);
    }
    return QPageSize(QPageSize::A4);
}

void setUp(QPrinter &printer, const PrintJob &job)
{
    printer.setDocName(job.title);
    printer.setCreator(product::name);
    printer.setColorMode(job.inColour ? QPrinter::Color : QPrinter::GrayScale);
    printer.setResolution(job.highQuality ? fineResolution : plainResolution);
    QPageLayout layout = printer.pageLayout();
    layout.setUnits(QPageLayout::Millimeter);
    layout.setPageSize(pageSize(job.paper), layout.minimumMargins());
    layout.setOrientation(job.landscape ? QPageLayout::Landscape : QPageLayout::Portrait);
    const QMarginsF least = layout.minimumMargins();
    layout.setMargins({std::max(margin, least.left()), std::max(margin, least.top()),
                       std::max(margin, least.right()), std::max(margin, least.bottom())});
    printer.setPageLayout(layout);
}

/// Pages for a printer's queue.
class QueuedDocument : public PrintedDocument
{
public:
    explicit QueuedDocument(const PrintJob &job)
        : printer_(QPrinterInfo::printerInfo(job.printer))
    {
        // A printer of the set-up may be gone by now; pages for an unknown one would become a file somewhere.
        if (QPrinterInfo::printerInfo(job.printer).isNull() || !printer_.isValid() ||
            printer_.outputFormat() != QPrinter::NativeFormat)
            throw RuntimeError::of(RuntimeError::PrinterError);
        setUp(printer_, job);
    }

    QPagedPaintDevice &device() override { return printer_; }
    void send() override
    {
        if (printer_.printerState() == QPrinter::Error || printer_.printerState() == QPrinter::Aborted ||
            QPrinterInfo::printerInfo(printer_.printerName()).isNull())
            throw RuntimeError::of(RuntimeError::PrinterError);
    }

private:
    QPrinter printer_;
};

/// Pages for a PDF file. They are painted into a file of their own, so that the wished one is written whole
/// or not at all.
class PdfDocument : public PrintedDocument
{
public:
    explicit PdfDocument(const PrintJob &job)
        : target_(job.pdfFile)
    {
        if (!folder_.isValid())
            throw RuntimeError::of(RuntimeError::DiskFull);
        printer_.setOutputFormat(QPrinter::PdfFormat);
        printer_.setOutputFileName(source());
        setUp(printer_, job);
    }

    QPagedPaintDevice &device() override { return printer_; }
    void send() override
    {
        const QByteArray pages = ReadWholeFile(source(), std::numeric_limits<qint64>::max());
        // The device is silent about a disk that fills up under it.
        if (!pages.trimmed().endsWith("%%EOF"))
            throw RuntimeError::of(RuntimeError::DiskFull);
        writeFileAtomically(target_, pages);
    }

private:
    QString source() const { return folder_.filePath(u"seiten.pdf"_s); }

    QTemporaryDir folder_;
    QPrinter printer_;
    QString target_;
};

} // namespace

QStringList SystemPrinter::names() const { return QPrinterInfo::availablePrinterNames(); }

QString SystemPrinter::defaultName() const { return QPrinterInfo::defaultPrinterName(); }

std::unique_ptr<PrintedDocument> SystemPrinter::begin(const PrintJob &job)
{
    if (job.pdfFile.isEmpty())
        return std::make_unique<QueuedDocument>(job);
    return std::make_unique<PdfDocument>(job);
}
