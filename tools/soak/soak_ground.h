// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "dialogs/real_boxes.h"
#include "platform/file_dialogs.h"
#include "platform/gate.h"
#include "platform/gated_boxes.h"
#include "platform/ground.h"
#include "platform/instance_link.h"
#include "platform/log.h"
#include "platform/notes.h"
#include "platform/options.h"
#include "platform/rnd.h"
#include "platform/settings_file.h"
#include "platform/system_clock.h"
#include "platform/system_printer.h"
#include "soak/soak_callers.h"
#include "support/watchful_application.h"
#include "torture/quick_seams.h"

#include <QTemporaryDir>
#include <QWidget>

#include <random>

/// Gives any file of the folder, or none: nothing may be written outside of it.
class SoakDialogs : public FileDialogs
{
public:
    SoakDialogs(const QString &folder, std::uint32_t seed)
        : folder_(folder)
        , random_(seed)
    {}
    /// Stored paths of all files that a dialog or a second start may name; some are not there.
    QStringList files() const;

    QStringList openFiles(const QString &, const QString &, const QString &, bool multiple) override;
    QString saveFile(const QString &, const QString &, const QString &, const QString &suffix,
                     const SaveHints &) override;
    std::optional<Colour> chooseColour(const QString &, Colour) override;

private:
    QString any();

    QString folder_;
    std::mt19937 random_;
};

/// The real event pump, which knows when a hand's input has to wait, and whether Qt is in one of its walks.
class SoakPump : public LoopPump
{
public:
    using LoopPump::LoopPump;

    QString fault; ///< who yielded where nobody may

    bool holdsInput() const { return holds_ > 0; }

    void yield() override
    {
        look();
        ++holds_;
        LoopPump::yield();
        --holds_;
    }
    void serve() override
    {
        look();
        LoopPump::serve();
    }

private:
    void look()
    {
        if (const QString walk = WatchfulApplication::walk(); !walk.isEmpty())
            fault = QStringLiteral("a yield within ") + walk;
    }

    int holds_ = 0;
};

/// The program's ground in a folder of its own: everything is real but the file dialogs, the sound, and the
/// clock, which never waits.
struct SoakGround
{
    explicit SoakGround(std::uint32_t seed);

    QTemporaryDir folder;
    QString AppFolder; ///< stored form
    Log log;
    Gate gate;
    RealBoxes boxes;
    SoakDialogs dialogs;
    SystemPrinter printer;
    Rnd rnd;
    NoSound sound;
    QuickClock clock;
    SoakPump pump{gate};
    SettingsFile store;
    Notes notes;
    Options options;
    GatedBoxes gatedBoxes{boxes, gate};
    GatedFileDialogs gatedDialogs{dialogs, gate};
    Ground ground{AppFolder, log,  gatedBoxes, gatedDialogs, printer, rnd,  sound,
                  clock,     pump, store,      options,      gate,    notes};
    InstanceLink link{folder.filePath(QStringLiteral("link"))};
    SoakCallers callers{folder.filePath(QStringLiteral("link"))};
};
