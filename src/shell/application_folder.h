// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

/// Where the program's data lie: `AppFolder`.
namespace application_folder {

/// The folder of the program if the language data lie there and it can be written (a portable copy, the build
/// tree). Otherwise a folder of the user's own, which is filled from `installedData` at the first start and
/// renewed with each new version (`data_upgrade`), so that an installed copy works for a user without rights
/// and a teacher can edit the lists. Where that folder cannot be filled, it is the installed data themselves.
/// The result is in the stored form with one trailing backslash.
QString find(const QString &programFolder, const QString &installedData, const QString &userFolder);

/// `folder` in the stored form with exactly one trailing backslash; a folder that ends in one is taken as it
/// stands.
QString withTrailingBackslash(const QString &folder);

} // namespace application_folder
