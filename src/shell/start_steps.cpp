// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/start_steps.h"

#include "platform/boxes.h"
#include "platform/files.h"
#include "platform/ground.h"
#include "platform/options.h"
#include "platform/product.h"
#include "platform/settings_store.h"
#include "shell/argument_handler.h"
#include "shell/start_log.h"

using namespace Qt::StringLiterals;

namespace {

constexpr char16_t parameterText[] = u"Valid parameters are\n\n"
                                     u"/L\tEnable errors and events-logging\n\n"
                                     u"/I\tShow info about... Wortel\n\n"
                                     u"/?\tShow valid parameters\n\n"
                                     u"Example:\n\n"
                                     u"wortel /L";

start_steps::Next apply(Ground &ground, const Argument &argument, bool isFirstInstance,
                        const std::function<void()> &showAbout)
{
    using enum start_steps::Next;
    const QString name = argument.ArgumentName();
    if (name == u"L") {
        if (isFirstInstance)
            startLog(ground, ground.options.storedIsOn(Setting::UseBackup));
        return GoOn;
    }
    if (name == u"I")
        showAbout();
    else if (name == u"?")
        ground.boxes.plainBox(Boxes::Icon::Information, u"Wortel-Meister - Commandline Parameters"_s,
                              QString::fromUtf16(parameterText));
    else
        ground.boxes.plainBox(Boxes::Icon::Critical, product::faultTitle,
                              u"Invalid Parameter: "_s + name +
                                  u"\n\nFor valid parameters, type: Wortel /?"_s);
    return End;
}

} // namespace

start_steps::Next start_steps::ApplyArguments(Ground &ground, const ArgumentHandler &arguments,
                                              bool isFirstInstance, const std::function<void()> &showAbout)
{
    try {
        for (int i = 0; i < arguments.ArgumentCount(); ++i)
            if (apply(ground, arguments.GetArgumentIndex(i), isFirstInstance, showAbout) == Next::End)
                return Next::End;
    } catch (const std::exception &) {
        ground.boxes.plainBox(Boxes::Icon::Warning, product::faultTitle, u"Commandline Parameter Error"_s);
    }
    return Next::GoOn;
}

start_steps::Next start_steps::askForRecovery(Ground &ground, bool &RecoverOnStart)
{
    RecoverOnStart = false;
    if (ground.options.stored(Setting::UseBackup) != u"1" ||
        !IsTextFile(product::backupFile(ground.AppFolder)))
        return Next::GoOn;
    const Boxes::Answer answer = ground.boxes.plainBox(
        Boxes::Icon::Information, u"Wortel-Meister - Error Recovery"_s,
        u"Wortel ended the previous session with errors.\n\n"
        "There exists a recovery-file which may contain some of your data still intact!\n\n"
        "Would you like to try to restore (open) this session now ?"_s,
        Boxes::Buttons::YesNoCancel);
    RecoverOnStart = answer == Boxes::Answer::Yes;
    return answer == Boxes::Answer::Cancel ? Next::End : Next::GoOn;
}

void start_steps::removeLeftOvers(const Ground &ground, const QStringList &ownFolders)
{
    QStringList folders = ownFolders;
    folders << ground.AppFolder;
    for (const QString &key : {u"SaveWLX"_s, u"Export"_s})
        folders << ground.store.GetSetting(u"Path"_s, key, {});
    for (const QString &folder : std::as_const(folders))
        ::removeLeftOvers(folder);
}
