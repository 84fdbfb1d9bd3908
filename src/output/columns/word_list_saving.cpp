// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "output/columns/word_list_saving.h"

#include "output/columns/columns.h"
#include "platform/boxes.h"
#include "platform/file_dialogs.h"
#include "platform/ground.h"
#include "platform/procedure.h"
#include "platform/product.h"
#include "platform/settings_store.h"

using namespace Qt::StringLiterals;

namespace {

QString text(const char16_t *words) { return QString::fromUtf16(words); }

} // namespace

void saveWordList(Ground &ground, const QStringList &words, const WordListSaving &saving)
{
    Procedure step{ground.log, "Save_Result", saving.form};
    if (words.isEmpty()) {
        step([&] { ground.boxes.ShowInfoBox(text(saving.nothingToSave), BoxSign::Info, product::name); });
        return;
    }
    const QString folder = ground.store.GetSetting(u"Path"_s, u"Export"_s, ground.AppFolder);
    QString path;
    step([&] {
        path =
            ground.fileDialogs.saveFile(text(saving.title), folder, u"Text files (*.txt)|*.txt"_s, u".txt"_s);
    });
    if (path.isEmpty())
        return;
    if (!step([&] { word_columns::writeList(path, words, ground.options); })) {
        step([&] {
            ground.boxes.plainBox(Boxes::Icon::Warning, text(saving.faultTitle), text(saving.fault));
        });
        return;
    }
    step([&] { ground.store.SaveSetting(u"Path"_s, u"Export"_s, path.left(path.lastIndexOf(u'\\'))); });
}
