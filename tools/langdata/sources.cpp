// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "sources.h"

#include "textfiles.h"

#include <QCryptographicHash>

using namespace Qt::StringLiterals;

namespace langdata {

Sources::Sources(const QString &folder, const QString &sums)
    : folder_(folder)
{
    const QStringList words = readWords(sums);
    for (qsizetype i = 0; i + 1 < words.size(); i += 2) {
        const QString &wanted = words[i];
        const QString &name = words[i + 1];
        const QByteArray content = readBytes(path(name));
        const QString found =
            QString::fromLatin1(QCryptographicHash::hash(content, QCryptographicHash::Sha256).toHex());
        if (found != wanted)
            throw InputError(
                u"%1 is another version than the data was made from:\n  found  %2\n  wanted %3"_s.arg(
                    path(name), found, wanted));
        contents_.insert(name, content);
    }
}

QString Sources::path(const QString &name) const { return folder_ + u'/' + name; }

QByteArray Sources::content(const QString &name) const
{
    const auto found = contents_.constFind(name);
    if (found == contents_.constEnd())
        throw InputError(u"the list of sources does not name %1"_s.arg(name));
    return *found;
}

} // namespace langdata
