// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/product.h"

#include "platform/text.h"
#include "version.h"

using namespace Qt::StringLiterals;

QString product::backupFile(const QString &appFolder) { return appFolder + backupName; }

QString product::caption() { return name + u" %1.%2"_s.arg(version::major).arg(version::minor); }

QString product::version()
{
    return u"%1.%2.%3"_s.arg(version::major).arg(version::minor).arg(version::revision);
}

QString product::paddedVersion()
{
    return QString::number(version::major) + u'.' + FormatNumber(version::minor, 2) + u'.' +
           FormatNumber(version::revision, 2);
}
