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

    int pages() const { return fact("Pages:").toInt(); }
    QString pageSize() const { return QString::fromLatin1(fact("Page size:")); }
    /// The lines of a page (from 1), each without blanks at its ends and with single ones between its words.
    QStringList lines(int page) const
    {
        QStringList result;
        for (const QByteArray &line : run({"pdftotext", "-layout"}, page, {"-"}).split('\n'))
            if (const QString words = QString::fromUtf8(line).simplified(); !words.isEmpty())
                result << words;
        return result;
    }
    /// All words in their order.
    QStringList words() const
    {
        return QString::fromUtf8(run({"pdftotext", "-raw"}, 0, {"-"}))
            .simplified()
            .split(u' ', Qt::SkipEmptyParts);
    }
    bool holdsPictures() const { return run({"pdfimages", "-list"}).count('\n') > 2; }
    /// A page of a hundred dots an inch.
    QImage picture(int page) const
    {
        const QByteArray points = run({"pdftoppm", "-r", "100"}, page);
        return QImage::fromData(points, "PPM").convertToFormat(QImage::Format_RGB32);
    }

private:
    QByteArray run(QByteArrayList command, int page = 0, const QByteArrayList &after = {}) const
    {
        if (page > 0)
            command << "-f" << QByteArray::number(page) << "-l" << QByteArray::number(page);
        command << path_.toUtf8() << after;
        QStringList arguments;
        for (const QByteArray &argument : command)
            arguments << QString::fromUtf8(argument);
        QProcess process;
        process.start(arguments.takeFirst(), arguments);
        process.waitForFinished();
        return process.readAllStandardOutput();
    }
    QByteArray fact(const QByteArray &name) const
    {
        const QByteArray facts = run({"pdfinfo"});
        return facts.mid(facts.indexOf(name) + name.size()).split('\n').first().trimmed();
    }

    QString path_;
};
