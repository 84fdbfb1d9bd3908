// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/test_class.h"
#include "support/watchful_application.h"

#include "widgets/accessible_tools.h"
#include "widgets/resources.h"
#include "widgets/roomy_style.h"

#include <QFont>

std::vector<testing::Entry> &testing::registry()
{
    static std::vector<Entry> entries;
    return entries;
}

int main(int argc, char *argv[])
{
    WatchfulApplication application(argc, argv);
    initResources();
    installAccessibleTools();
    QApplication::setStyle(new RoomyStyle);
    QFont font(QStringLiteral("Liberation Sans"));
    font.setPixelSize(11);
    QApplication::setFont(font);

    QStringList arguments = QCoreApplication::arguments();
    QString only;
    if (arguments.size() > 1 && !arguments.at(1).startsWith(u'-'))
        only = arguments.takeAt(1);

    int failed = 0;
    int run = 0;
    for (const testing::Entry &entry : testing::registry()) {
        if (!only.isEmpty() && only != QLatin1String(entry.name))
            continue;
        const std::unique_ptr<QObject> test = entry.make();
        failed += QTest::qExec(test.get(), arguments);
        ++run;
    }
    if (run == 0)
        qWarning("no test of that name");
    return failed == 0 && run > 0 ? 0 : 1;
}
