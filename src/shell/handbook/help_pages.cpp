// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/handbook/help_pages.h"

#include "platform/files.h"
#include "platform/runtime_error.h"

#include <QDir>
#include <QFileInfo>
#include <QRegularExpression>
#include <QUrl>

using namespace Qt::StringLiterals;

namespace {

QString textOf(const QString &path)
{
    try {
        return QString::fromUtf8(ReadWholeFile(path));
    } catch (const RuntimeError &) {
        return {}; // a page that is gone has no headings
    }
}

} // namespace

HelpPages::HelpPages(const QString &folder)
    : folder_(QFileInfo(folder).canonicalFilePath())
{
    if (folder_.isEmpty() || !QFileInfo(folder_ + u'/' + startPage).isFile())
        return;
    static const QRegularExpression heading(u"<h1>([^<]+)</h1>"_s);
    static const QRegularExpression link(u"<a href=\"([a-z-]+\\.html)\">([^<]+)</a>"_s);
    const QString start = textOf(folder_ + u'/' + startPage);
    read(startPage, heading.match(start).captured(1));
    auto links = link.globalMatch(start);
    while (links.hasNext()) {
        const QRegularExpressionMatch match = links.next();
        if (indexOf(address(match.captured(1))) < 0)
            read(match.captured(1), match.captured(2));
    }
}

void HelpPages::read(const QString &file, const QString &title)
{
    static const QRegularExpression heading(u"<h2><a name=\"([a-z-]+)\">([^<]+)</a></h2>"_s);
    HelpPage page{file, title, {}};
    auto headings = heading.globalMatch(textOf(folder_ + u'/' + file));
    while (headings.hasNext()) {
        const QRegularExpressionMatch match = headings.next();
        page.sections.append({match.captured(1), match.captured(2)});
    }
    pages_.append(page);
}

int HelpPages::indexOf(const QUrl &address) const
{
    const QString file = QFileInfo(address.path()).fileName();
    for (qsizetype page = 0; page < pages_.size(); ++page)
        if (pages_[page].file == file)
            return static_cast<int>(page);
    return -1;
}

QUrl HelpPages::address(const QString &file, const QString &anchor) const
{
    QUrl url = QUrl::fromLocalFile(folder_ + u'/' + file);
    if (!anchor.isEmpty())
        url.setFragment(anchor);
    return url;
}

QString HelpPages::fileOf(const QUrl &address) const
{
    if (folder_.isEmpty() || !address.host().isEmpty() || !(address.isRelative() || address.isLocalFile()))
        return {};
    const QString path = address.isLocalFile() ? address.toLocalFile() : address.path();
    const QFileInfo file(QDir(folder_), path);
    const QString real = file.canonicalFilePath();
    return file.isFile() && real.startsWith(folder_ + u'/') ? real : QString();
}
