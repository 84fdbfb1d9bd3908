// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "blocklist.h"

#include "textfiles.h"

using namespace Qt::StringLiterals;

namespace langdata {

Blocklist::Blocklist(const QStringList &lines, const QStringList &prefixes, const QStringList &suffixes)
{
    if (lines.isEmpty())
        throw InputError(u"the blocklist is empty"_s);
    pattern_.setPattern(u"^(?:%1)*(?:%2)(?:%3|em|es|n|te|ten|test|tet|ste|sten|et|innen|in)*$"_s.arg(
        prefixes.join(u'|'), lines.join(u'|'), suffixes.join(u'|')));
    pattern_.setPatternOptions(QRegularExpression::CaseInsensitiveOption |
                               QRegularExpression::UseUnicodePropertiesOption);
    if (!pattern_.isValid())
        throw InputError(u"the blocklist: %1"_s.arg(pattern_.errorString()));
    pattern_.optimize();
}

bool Blocklist::blocks(const QString &word) const { return pattern_.match(word).hasMatch(); }

} // namespace langdata
