// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "bench.h"

#include "widgets/resources.h"

#include <QApplication>
#include <QFont>
#include <QString>

#include <cstdio>

std::vector<const bench::Row *> &bench::rows()
{
    static std::vector<const Row *> all;
    return all;
}

bench::Row::Row(const char *rowName, double rowLimit, std::function<double()> rowMeasure)
    : name(rowName)
    , limit(rowLimit)
    , measure(std::move(rowMeasure))
{
    rows().push_back(this);
}

/// Runs every row, or those whose names contain the first argument; one line each. Returns 1 if one is over
/// its limit.
int main(int argc, char *argv[])
{
    QApplication application(argc, argv);
    initResources();
    QFont font(QStringLiteral("Liberation Sans"));
    font.setPixelSize(11);
    QApplication::setFont(font);

    const QString wanted = argc > 1 ? QString::fromLocal8Bit(argv[1]) : QString();
    std::sort(bench::rows().begin(), bench::rows().end(), [](const bench::Row *a, const bench::Row *b) {
        return QLatin1String(a->name) < QLatin1String(b->name);
    });
    bool over = false;
    for (const bench::Row *row : bench::rows()) {
        if (!QString::fromUtf8(row->name).contains(wanted))
            continue;
        const double ratio = row->measure();
        const bool tooSlow = ratio > row->limit;
        over = over || tooSlow;
        std::printf("%-58s %7.2f  limit %5.2f%s\n", row->name, ratio, row->limit, tooSlow ? "  over" : "");
        std::fflush(stdout);
    }
    return over ? 1 : 0;
}
