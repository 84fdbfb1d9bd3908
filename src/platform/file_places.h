// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QStringList>

/// The places that a file dialog offers beside its list, as native paths that exist: home, documents,
/// desktop, the program's folder (stored form), then sticks and network drives. Nothing is asked of a drive
/// itself but that, since one that is gone answers late.
QStringList filePlaces(const QString &programFolder);

/// The folders of the system's list of mounts (as "/proc/self/mounts") at which a user finds his drives.
QStringList drivesOf(const QByteArray &mounts);
