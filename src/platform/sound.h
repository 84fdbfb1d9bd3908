// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

/// The seam of the sounds. Nothing ever waits for a sound to end, and a machine without a sound server is
/// silent without delay.
class Sound
{
public:
    virtual ~Sound() = default;
    /// Plays resource 101 to 124 from memory. A new sound cuts the old one off. An unknown number is silent.
    virtual void PlayResourceSound(int id) = 0;
    /// Plays a WAV file (stored path); returns false if it cannot be read.
    virtual bool playFile(const QString &path) = 0;
};
