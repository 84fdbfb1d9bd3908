// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/sound_player.h"

#include "platform/files.h"
#include "platform/runtime_error.h"

#include <QAudioDevice>
#include <QFile>
#include <QFileInfo>
#include <QMediaDevices>
#include <QSoundEffect>
#include <QtEndian>

using namespace Qt::StringLiterals;

namespace {

constexpr qint64 largestSound = 32 << 20; ///< bytes

} // namespace

SoundPlayer::SoundPlayer() = default;

SoundPlayer::~SoundPlayer() = default;

void SoundPlayer::PlayResourceSound(int id)
{
    if (const QUrl source = resourceOf(id); !source.isEmpty())
        play(resources_[id], source);
}

QUrl SoundPlayer::resourceOf(int id)
{
    const QString path = u"/sounds/%1.wav"_s.arg(id);
    return QFile::exists(u':' + path) ? QUrl(u"qrc:"_s + path) : QUrl();
}

bool SoundPlayer::playFile(const QString &path)
{
    try {
        if (!isWave(ReadWholeFile(path, largestSound)))
            return false;
    } catch (const RuntimeError &) {
        return false;
    }
    play(file_, QUrl::fromLocalFile(QFileInfo(nativePath(path)).absoluteFilePath()));
    return true;
}

void SoundPlayer::play(std::unique_ptr<QSoundEffect> &effect, const QUrl &source)
{
    if (current_)
        current_->stop();
    current_ = nullptr;
    if (QMediaDevices::defaultAudioOutput().isNull())
        return;
    if (!effect)
        effect = std::make_unique<QSoundEffect>();
    if (effect->source() != source)
        effect->setSource(source);
    effect->play(); // decodes first where it must, beside the interface thread
    current_ = effect.get();
}

bool SoundPlayer::isWave(const QByteArray &bytes)
{
    if (!bytes.startsWith("RIFF") || bytes.mid(8, 4) != "WAVE")
        return false;
    bool format = false;
    qsizetype at = 12;
    while (at + 8 <= bytes.size()) {
        const QByteArray name = bytes.mid(at, 4);
        const quint32 size = qFromLittleEndian<quint32>(bytes.constData() + at + 4);
        if (name == "fmt ")
            format = size >= 16;
        else if (name == "data")
            return format && size > 0;
        at += 8 + static_cast<qsizetype>(size) + static_cast<qsizetype>(size & 1);
    }
    return false;
}
