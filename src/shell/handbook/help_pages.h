// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QList>
#include <QString>

class QUrl;

/// A heading of a page that the contents lead to.
struct HelpSection
{
    QString anchor;
    QString title;
};

/// One page of the handbook.
struct HelpPage
{
    QString file; ///< name below the handbook's folder
    QString title;
    QList<HelpSection> sections;
};

/// The pages of the handbook in the order of reading. The start page is the first; which others there are and
/// what they are called is read from its links, and the sections of a page from its second-level headings, so
/// that no list of them has to be kept beside the text.
class HelpPages
{
public:
    static inline const QString startPage = QStringLiteral("index.html");

    /// `folder` as the file system takes it. Without a start page there are no pages.
    explicit HelpPages(const QString &folder);

    const QList<HelpPage> &pages() const { return pages_; }
    const QString &folder() const { return folder_; }
    /// The place of the page that an address names (its fragment does not matter), or -1.
    int indexOf(const QUrl &address) const;
    /// The address of a page, or of one of its sections.
    QUrl address(const QString &file, const QString &anchor = {}) const;
    /// The file that an address names, or an empty text for whatever is no file below the handbook's folder:
    /// other schemes, other machines, other places of this one, also by "..", or by a link in the file
    /// system. A relative address starts at the handbook's folder.
    QString fileOf(const QUrl &address) const;

private:
    void read(const QString &file, const QString &title);

    QString folder_; ///< without links in it, so that files can be compared with it
    QList<HelpPage> pages_;
};
