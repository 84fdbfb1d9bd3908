// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "output/printing/printer_set_up.h"

#include "widgets/window_style.h"

#include <QComboBox>
#include <QFormLayout>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>

#include <array>
#include <utility>

using namespace Qt::StringLiterals;

namespace {

constexpr std::array<std::pair<Paper, const char16_t *>, 4> papers{{
    {Paper::A4, u"A4 (210 × 297 mm)"},
    {Paper::A5, u"A5 (148 × 210 mm)"},
    {Paper::A3, u"A3 (297 × 420 mm)"},
    {Paper::Letter, u"Letter (216 × 279 mm)"},
}};

/// What stands behind the entry of a printer: its name; the PDF file has none.
enum Row { ToPrinter, ToPdf };
constexpr int nameRole = Qt::UserRole + 1;

QLabel *makeNote(const QString &text, QWidget *parent)
{
    auto *note = new QLabel(text, parent);
    note->setTextFormat(Qt::PlainText);
    note->setWordWrap(true);
    return note;
}

} // namespace

frmPrinterSetUp::frmPrinterSetUp(const Printer &printer, const PrinterSetUp &present, QWidget *parent)
    : QDialog(parent)
    , cboPrinter_(new QComboBox(this))
    , cboPaper_(new QComboBox(this))
    , portrait_(new QRadioButton(u"Hochformat"_s, this))
    , landscape_(new QRadioButton(u"Querformat"_s, this))
{
    setObjectName(u"frmPrinterSetUp"_s);
    setWindowTitle(u"Drucker Einstellungen"_s);
    window_style::dress(*this);

    const QString standard = printer.defaultName();
    const QStringList names = printer.names();
    if (!standard.isEmpty()) {
        cboPrinter_->addItem(u"Standarddrucker (%1)"_s.arg(standard), ToPrinter);
        cboPrinter_->setItemData(0, QString(), nameRole);
    }
    for (const QString &name : names) {
        cboPrinter_->addItem(name, ToPrinter);
        cboPrinter_->setItemData(cboPrinter_->count() - 1, name, nameRole);
    }
    cboPrinter_->addItem(u"PDF-Datei"_s, ToPdf);
    for (int row = 0; row < cboPrinter_->count(); ++row) {
        const bool pdf = cboPrinter_->itemData(row).toInt() == ToPdf;
        if (pdf == present.toPdf && (pdf || cboPrinter_->itemData(row, nameRole) == present.printer)) {
            cboPrinter_->setCurrentIndex(row);
            break;
        }
    }
    for (const auto &[paper, caption] : papers) {
        cboPaper_->addItem(QString::fromUtf16(caption), static_cast<int>(paper));
        if (paper == present.paper)
            cboPaper_->setCurrentIndex(cboPaper_->count() - 1);
    }
    (present.landscape ? landscape_ : portrait_)->setChecked(true);

    auto *form = new QFormLayout;
    window_style::addRow(*form, u"&Drucker"_s, cboPrinter_, "cboPrinter");
    window_style::addRow(*form, u"&Papier"_s, cboPaper_, "cboPaper");
    window_style::addRow(*form, u"&Wörter und Texte"_s, portrait_, "OptOrientation(0)");
    window_style::addRow(*form, {}, landscape_, "OptOrientation(1)");
    auto *whole = new QVBoxLayout(this);
    whole->addLayout(form);
    if (names.isEmpty())
        whole->addWidget(makeNote(u"Es ist kein Drucker eingerichtet."_s, this));
    whole->addWidget(makeNote(u"Das Spielfeld dreht das Papier von selbst. Farbe und Qualität stehen in den "
                              "Optionen unter „Drucken“."_s,
                              this));
    whole->addStretch(1);
    QHBoxLayout *foot = window_style::addFoot(*whole);
    auto *ok = window_style::addButton(*foot, u"OK"_s, "cmdOK");
    ok->setDefault(true);
    connect(ok, &QPushButton::clicked, this, &QDialog::accept);
    connect(window_style::addButton(*foot, u"Abbrechen"_s, "cmdCancel"), &QPushButton::clicked, this,
            &QDialog::reject);
}

PrinterSetUp frmPrinterSetUp::chosen() const
{
    PrinterSetUp result;
    result.toPdf = cboPrinter_->currentData().toInt() == ToPdf;
    result.printer = cboPrinter_->currentData(nameRole).toString();
    result.paper = static_cast<Paper>(cboPaper_->currentData().toInt());
    result.landscape = landscape_->isChecked();
    return result;
}
