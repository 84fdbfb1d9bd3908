// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "language/word_file.h"

#include "output/columns/columns.h"
#include "platform/boxes.h"
#include "platform/file_dialogs.h"
#include "platform/files.h"
#include "platform/ground.h"
#include "platform/note_texts.h"
#include "platform/notes.h"
#include "platform/procedure.h"
#include "platform/settings_store.h"

using namespace Qt::StringLiterals;

void saveWords(Ground &ground, Procedure &step, const QStringList &words, const WordFileTexts &texts)
{
    const QString folder = ground.store.GetSetting(u"Path"_s, u"Export"_s, ground.AppFolder);
    QString path;
    step([&] {
        path = ground.fileDialogs.saveFile(texts.title, folder, u"Text files (*.txt)|*.txt"_s, u".txt"_s);
    });
    if (path.isEmpty())
        return;
    if (!step([&] { word_columns::writeList(path, words, ground.options); })) {
        step([&] { ground.boxes.plainBox(Boxes::Icon::Warning, texts.faultTitle, texts.fault); });
        return;
    }
    step([&] { ground.store.SaveSetting(u"Path"_s, u"Export"_s, path.left(path.lastIndexOf(u'\\'))); });
    ground.notes.tellSaved(nameWithoutEnding(path), words.join(QString()));
}
