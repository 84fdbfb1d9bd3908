// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <QStringList>

#include <cstdint>
#include <memory>

class QPagedPaintDevice;

enum class Paper : std::uint8_t { A4, A5, A3, Letter };

/// How a document is to come out.
struct PrintJob
{
    QString title;   ///< what the printer's queue shows
    QString printer; ///< its name; of no account if there is a `pdfFile`
    QString pdfFile; ///< stored path of a file that takes the pages instead of a printer
    Paper paper = Paper::A4;
    bool landscape = false;
    bool inColour = false;
    bool highQuality = false;
};

/// A document on its way. Its pages are painted on the device, whose painters end before it is sent.
class PrintedDocument
{
public:
    virtual ~PrintedDocument() = default;
    virtual QPagedPaintDevice &device() = 0;
    /// The pages go out. Throws RuntimeError 482 if the printer did not take them, or as
    /// writeFileAtomically. A document that is never sent leaves nothing behind.
    virtual void send() = 0;
};

/// The seam of the printer. The program gives the rooms the system's printers, a test one that fills a file.
class Printer
{
public:
    virtual ~Printer() = default;
    /// The printers that the system knows.
    virtual QStringList names() const = 0;
    /// The name of the default printer, or the empty string.
    virtual QString defaultName() const = 0;
    /// Begins a document. Throws RuntimeError 482 if the printer is not there.
    virtual std::unique_ptr<PrintedDocument> begin(const PrintJob &job) = 0;
};
