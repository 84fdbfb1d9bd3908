// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/start_log.h"

#include "platform/boxes.h"
#include "platform/clock.h"
#include "platform/ground.h"
#include "platform/log.h"
#include "platform/product.h"
#include "platform/system_info.h"
#include "platform/text.h"

using namespace Qt::StringLiterals;

void startLog(Ground &ground, bool useBackup)
{
    const QString file = ground.AppFolder + u"errors.log"_s;
    ground.log.enable(file);
    const QString question =
        u"Möchten Sie erst die Fehleraufzeichnungsdatei\n\n"_s + file + u" (error.log) zurücksetzen?  "_s;
    const int answer =
        ground.boxes.ShowMBox(question, true, 4, u"Wortel-Meister - Bestätigen"_s, BoxStyle::Confirm);
    if (answer == 0)
        KillFile(file); // errors are of no interest here

    const QString rule(64, u'-');
    ground.log.WriteLog(rule);
    ground.log.WriteLog(u"Starting new application-log: "_s + product::name + u" v."_s + product::version());
    ground.log.WriteLog(u"Date/Time: "_s + FormatDateTime(ground.clock.now()));
    ground.log.WriteLog(u"OS: "_s + GetOSName());
    ground.log.WriteLog(u"User: "_s + GetUserName());
    ground.log.WriteLog(rule);
    if (useBackup)
        ground.log.WriteLog(u"Event: Backup-file ("_s + product::backupName +
                            u"), opened in the default folder"_s);
}
