// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
// screenshots board|handbook <data> <folder>: takes the pictures of the README or of the handbook from the
// running program and stores them in the folder. The scale factor of the display (QT_SCALE_FACTOR) makes them
// larger and as sharp. make.sh calls it.
#include "scenes.h"
#include "stage.h"

#include "shell/start.h"
#include "widgets/resources.h"

#include <QApplication>

#include <cstdio>

int main(int argc, char *argv[])
{
    QApplication application(argc, argv);
    const QStringList arguments = application.arguments();
    if (arguments.size() != 4) {
        std::fputs("screenshots board|handbook <data> <folder>\n", stderr);
        return 2;
    }
    initResources();
    dressApplication(application);
    QApplication::setQuitOnLastWindowClosed(false);

    Stage stage(arguments[2], arguments[3]);
    if (arguments[1] == QStringLiteral("board")) {
        scenes::wholeBoard(stage);
        return 0;
    }
    for (const auto scene :
         {scenes::boardAndBand, scenes::wordOfTiles, scenes::menus, scenes::wordsAndLists, scenes::retyping,
          scenes::tip, scenes::options, scenes::chooser, scenes::stemGame, scenes::webPage, scenes::cards})
        scene(stage);
    return 0;
}
