// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/printer.h"

#include <QDialog>

class QComboBox;
class QRadioButton;

/// What pages are printed on, as long as the program runs.
struct PrinterSetUp
{
    QString printer; ///< empty: the system's default printer
    bool toPdf = false;
    Paper paper = Paper::A4;
    bool landscape = false; ///< of words and texts; the board turns the page as it fits
};

/// The window "Drucker Einstellungen".
class frmPrinterSetUp : public QDialog
{
    Q_OBJECT

public:
    frmPrinterSetUp(const Printer &printer, const PrinterSetUp &present, QWidget *parent = nullptr);

    PrinterSetUp chosen() const;

private:
    QComboBox *cboPrinter_;
    QComboBox *cboPaper_;
    QRadioButton *portrait_;
    QRadioButton *landscape_;
};
