// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/storage.h"

#include <QDir>
#include <QFileInfo>
#include <QStorageInfo>
#include <QTemporaryFile>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype usualNeed = 64 * 1024; ///< bytes: settings, scores and the backup of a full board

/// Its name is that of what a killed writer leaves, which goes at the next start.
class Trial : public QTemporaryFile
{
public:
    explicit Trial(const QString &folder)
        : QTemporaryFile(folder + u"/.wortel-XXXXXX.tmp"_s)
    {}
    bool openUnbuffered() { return open(QIODevice::ReadWrite | QIODevice::Unbuffered); }
};

/// Of the place where the folder is or would be made.
bool hasRoom(const QString &folder)
{
    QFileInfo place(folder);
    while (!place.exists() && !place.isRoot())
        place = QFileInfo(place.path());
    return QStorageInfo(place.filePath()).bytesAvailable() > 0;
}

storage::State stateOfOne(const QString &folder)
{
    Trial file(folder);
    if (!QDir().mkpath(folder) || !file.openUnbuffered())
        return hasRoom(folder) ? storage::State::Protected : storage::State::Full;
    const QByteArray bytes(usualNeed, '\0');
    return file.write(bytes) == bytes.size() ? storage::State::Writable : storage::State::Full;
}

} // namespace

storage::State storage::stateOf(const QStringList &folders)
{
    State worst = State::Writable;
    for (const QString &folder : folders)
        worst = std::max(worst, stateOfOne(folder));
    return worst;
}

QString storage::complaint(State state)
{
    if (state == State::Writable)
        return {};
    return (state == State::Full ? u"Der Datenträger ist voll."_s
                                 : u"In deinen Ordner darf nichts geschrieben werden."_s) +
           u"\n\nDu kannst trotzdem spielen. Einstellungen, Bestenlisten und die automatische Sicherung "
           u"gehen "
           u"aber am Ende verloren.\n\nEine Sitzung kannst du an einem anderen Ort speichern, zum Beispiel "
           u"auf einem USB-Stick."_s;
}
