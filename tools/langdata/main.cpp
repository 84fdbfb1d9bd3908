// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "sources.h"
#include "textfiles.h"
#include "workshop.h"

#include <QFile>

#include <hunspell.hxx>

#include <cstdio>

using namespace Qt::StringLiterals;
using namespace langdata;

namespace {

void run(const QString &sourceFolder, const QString &toolFolder, const QString &dataFolder)
{
    const Sources sources(sourceFolder, toolFolder + u"/sources.txt"_s);
    const QByteArray affixFile = QFile::encodeName(sources.path(u"de_DE_frami.aff"_s));
    const QByteArray wordFile = QFile::encodeName(sources.path(u"de_DE_frami.dic"_s));
    Hunspell hunspell(affixFile.constData(), wordFile.constData());
    makeDictionaries(sources, toolFolder, dataFolder,
                     [&](const QString &form) { return hunspell.spell(form.toLatin1().toStdString()); });
}

} // namespace

int main(int argc, char *argv[])
{
    if (argc != 4) {
        std::fputs("usage: langdata <folder of the sources> <folder of the word rules> <data folder>\n",
                   stderr);
        return 2;
    }
    try {
        run(QFile::decodeName(argv[1]), QFile::decodeName(argv[2]), QFile::decodeName(argv[3]));
    } catch (const InputError &error) {
        std::fprintf(stderr, "langdata: %s\n", error.what());
        return 1;
    }
    return 0;
}
