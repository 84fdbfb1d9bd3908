// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "boards.h"

#include <QByteArray>
#include <QString>

#include <vector>

namespace langdata {

class Maker;

/// One line of the report: a list and what its dictionary gives.
struct ListResult
{
    QString name;
    qsizetype stems = 0;
    qsizetype words = 0;
    BoardStats boards;
};

/// The report as UTF-8 text: a table of the lists, then the words left out and why.
QByteArray reportBytes(const std::vector<ListResult> &lists, const Maker &maker);

} // namespace langdata
