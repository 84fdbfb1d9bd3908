// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/files.h"

#include <QImage>
#include <QProcess>

/// A PDF file as a reader of it sees it.
class Pdf
{
public:
    explicit Pdf(const QString &storedPath)
        : path_(nativePath(storedPath))
    {}

    int pages() const { return fact(QStringLiteral("Pages")).toInt(); }
    /// "595 x 842 pts (A4)"
    QString pageSize() const { return fact(QStringLiteral("Page size")); }
    /// The lines of a page (from 1), each without blanks at its ends and with single ones between its words.
    QStringList lines(int page) const
    {
        const QString number = QString::number(page);
        QStringList result;
        const QString text =
            run(QStringLiteral("pdftotext"), {QStringLiteral("-layout"), QStringLiteral("-f"), number,
                                              QStringLiteral("-l"), number, path_, QStringLiteral("-")});
        for (const QString &line : text.split(u'\n'))
            if (const QString words = line.simplified(); !words.isEmpty())
                result << words;
        return result;
    }
    /// All words in their order.
    QStringList words() const
    {
        return run(QStringLiteral("pdftotext"), {QStringLiteral("-raw"), path_, QStringLiteral("-")})
            .simplified()
            .split(u' ', Qt::SkipEmptyParts);
    }
    bool holdsPictures() const
    {
        return run(QStringLiteral("pdfimages"), {QStringLiteral("-list"), path_}).count(u'\n') > 2;
    }
    QImage picture(int page, int dotsPerInch) const
    {
        QProcess process;
        const QString number = QString::number(page);
        process.start(QStringLiteral("pdftoppm"),
                      {QStringLiteral("-r"), QString::number(dotsPerInch), QStringLiteral("-f"), number,
                       QStringLiteral("-l"), number, path_});
        process.waitForFinished();
        return QImage::fromData(process.readAllStandardOutput(), "PPM").convertToFormat(QImage::Format_RGB32);
    }

private:
    static QString run(const QString &program, const QStringList &arguments)
    {
        QProcess process;
        process.start(program, arguments);
        process.waitForFinished();
        return QString::fromUtf8(process.readAllStandardOutput());
    }
    QString fact(const QString &name) const
    {
        return run(QStringLiteral("pdfinfo"), {path_})
            .section(name + u':', 1, 1)
            .section(u'\n', 0, 0)
            .trimmed();
    }

    QString path_;
};
