// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/printer.h"

/// The printers of the system, and PDF files. A page has margins of 10 mm, or what the printer needs if that
/// is more.
class SystemPrinter : public Printer
{
public:
    QStringList names() const override;
    QString defaultName() const override;
    std::unique_ptr<PrintedDocument> begin(const PrintJob &job) override;
};
