// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "persistence/session_dialog.h"

#include "platform/file_dialogs.h"
#include "platform/ground.h"
#include "platform/settings_store.h"

using namespace Qt::StringLiterals;

namespace {

QString startFolder(const Ground &ground, const SessionDialog &dialog)
{
    return ground.store.GetSetting(u"Path"_s, dialog.folderKey, ground.AppFolder);
}

} // namespace

QString chooseToOpen(Ground &ground, const SessionDialog &dialog)
{
    return ground.fileDialogs.openFiles(dialog.title, startFolder(ground, dialog), dialog.filter, false)
        .value(0);
}

QString chooseToSave(Ground &ground, const SessionDialog &dialog, const QString &open)
{
    return ground.fileDialogs.saveFile(dialog.title, startFolder(ground, dialog), dialog.filter, u".wlx"_s,
                                       {{}, open});
}

void rememberFolder(Ground &ground, const SessionDialog &dialog, const QString &path)
{
    ground.store.SaveSetting(u"Path"_s, dialog.folderKey, path.left(path.lastIndexOf(u'\\')));
}
