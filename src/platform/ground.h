// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

class Boxes;
class Clock;
class EventPump;
class FileDialogs;
class Gate;
class Log;
class Notes;
class Options;
class Printer;
class Rnd;
class SettingsStore;
class Sound;

/// The ground that every room stands on, made once by the entry procedure (a test makes its own) and handed
/// to each room as one reference.
struct Ground
{
    QString AppFolder; ///< the program's folder in the stored form, always with one trailing backslash
    Log &log;
    Boxes &boxes;
    FileDialogs &fileDialogs;
    Printer &printer;
    Rnd &rnd;
    Sound &sound;
    Clock &clock;
    EventPump &pump;
    SettingsStore &store;
    Options &options;
    Gate &gate;
    Notes &notes;
};
