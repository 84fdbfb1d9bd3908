// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "output/printing/printer_set_up.h"

#include <QSizeF>

#include <functional>
#include <optional>

class Canvas;
class CommandRouter;
class QPagedPaintDevice;
class QPainter;
class QTextDocument;
struct Ground;
struct MainControls;
struct WordLists;

/// Puts the list of words, the board and the stem game's text on paper, in colour and in high quality if the
/// options say so. Where there is no printer, and where the set-up says so, the same pages go into a PDF
/// file.
class Printing
{
public:
    Printing(Ground &ground, const MainControls &controls, const WordLists &lists, Canvas &canvas);

    void registerCommands(CommandRouter &router);
    /// Whether there is a printer; tells the user how to get one if there is none.
    bool PrinterReady();
    /// The list of right words, in the columns that the options name.
    void PrintCorrectWords();
    /// The board: what the filter shows, in colours; or all tiles black on white.
    void PrintOut();
    /// A text with page marks, for whoever shows one.
    void PrintRTF(const QTextDocument &text, const QString &headerWord, const QString &footerWord);
    /// "Drucker Einstellungen". They hold until the program ends.
    /// False if the window was left with its old choice.
    bool setUpPrinter();
    const PrinterSetUp &setUp() const { return setUp_; }
    void takeSetUp(const PrinterSetUp &setUp) { setUp_ = setUp; }

private:
    using Painting = std::function<void(QPainter &, QPagedPaintDevice &)>;

    /// Where pages go: a printer, or a file.
    std::optional<PrintJob> askTarget(const QString &title);
    bool askPdfFile(PrintJob &job);
    QString printerName() const;
    void print(const char *procedure, const PrintJob &job, const Painting &paint);
    void tellFault(const PrintJob &job, const QString &reason);
    void PrintPictureToFitPage(const char *procedure, PrintJob job, const QSizeF &picture,
                               const std::function<void(QPainter &, double)> &paint);
    void paintBoard(QPainter &painter, const QSize &board, double scale);

    Ground &ground_;
    const MainControls &controls_;
    const WordLists &lists_;
    Canvas &canvas_;
    PrinterSetUp setUp_;
};
