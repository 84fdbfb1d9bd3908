// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "fuzz/targets.h"
#include "platform/files.h"
#include "platform/log.h"
#include "platform/options.h"
#include "platform/settings_file.h"

#include <QFile>

using namespace Qt::StringLiterals;

namespace {

QStringList values(const Options &options)
{
    QStringList all;
    for (int i = 0; i < static_cast<int>(Setting::Count); ++i)
        all << options.text(static_cast<Setting>(i));
    return all;
}

} // namespace

void fuzz::settings(const QByteArray &bytes)
{
    const QString path = nativePath(asFile(bytes));
    QFile::remove(path + u".bak"_s);
    Log log;
    SettingsFile store(path);
    Options options(store, u"C:\\Wortel\\"_s, log);
    options.GetSettings();
    promise(options.ApplySettings(), "settings can be saved");

    SettingsFile sameStore(path);
    Options same(sameStore, u"C:\\Wortel\\"_s, log);
    same.GetSettings();
    promise(values(same) == values(options), "settings are read as they were saved");
}
