// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/sound.h"

#include <QByteArray>
#include <QUrl>

#include <map>
#include <memory>

class QSoundEffect;

/// The real sounds. The sound system is asked for its first device with the first sound, so that a start
/// without one costs nothing; where there is no device, nothing more is done. Numbered sounds stay decoded
/// once they were played, since they come again and again; files share one player.
class SoundPlayer : public Sound
{
public:
    SoundPlayer();
    ~SoundPlayer() override;

    void PlayResourceSound(int id) override;
    bool playFile(const QString &path) override;

    /// Where the sound of a number lies in the resources; empty for a number that has none.
    static QUrl resourceOf(int id);
    /// True for bytes that hold a WAV file with a format and sound data.
    static bool isWave(const QByteArray &bytes);

private:
    void play(std::unique_ptr<QSoundEffect> &effect, const QUrl &source);

    std::map<int, std::unique_ptr<QSoundEffect>> resources_;
    std::unique_ptr<QSoundEffect> file_;
    QSoundEffect *current_ = nullptr;
};
