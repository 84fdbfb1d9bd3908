// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "dialogs/report_window.h"
#include "support/test_house.h"

#include <QTimer>

/// The reports that stand over the board, oldest first, each as "title|line 1|line 2|line 3|seconds", and
/// " bold" and " smiley" where they are. They are closed as with their close sign.
inline QStringList takeReports(TestHouse &house)
{
    QStringList said;
    for (ReportWindow *report : house.form.findChildren<ReportWindow *>()) {
        if (report->isHidden())
            continue;
        const auto label = [report](const char *name) {
            return report->findChild<QLabel *>(QLatin1String(name));
        };
        const int seconds = report->findChild<QTimer *>(QStringLiteral("AlertTimer"))->interval() / 1000;
        said << QStringList{label("Label1")->text(), label("lblAlert")->text(), label("Label2")->text(),
                            label("Label3")->text(), QString::number(seconds)}
                    .join(u'|');
        said.last() += label("Label2")->font().bold() ? QStringLiteral(" bold") : QString();
        said.last() += label("ImgSmiley")->isHidden() ? QString() : QStringLiteral(" smiley");
        emit report->closePressed();
    }
    return said;
}
