// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/registry.h"

#include <QDirIterator>
#include <QFile>
#include <QHash>
#include <QRegularExpression>
#include <QSet>
#include <QtTest>

#include <functional>

/// The rooms of the house, from the ground up. A file includes headers of its own room and of those below.
static const QStringList rooms{QStringLiteral("platform"), QStringLiteral("widgets"),
                               QStringLiteral("dialogs"),  QStringLiteral("board"),
                               QStringLiteral("language"), QStringLiteral("generators"),
                               QStringLiteral("games"),    QStringLiteral("persistence"),
                               QStringLiteral("output"),   QStringLiteral("shell")};

class IncludeDirectionsTest : public QObject
{
    Q_OBJECT

private:
    /// file -> the files of the house that it includes, both relative to src
    QHash<QString, QStringList> includes_;

private slots:
    void initTestCase()
    {
        const QDir source(QStringLiteral(WORTEL_SOURCE_DIR "/src"));
        const QRegularExpression include(QStringLiteral("^#include \"([a-z0-9_]+/[^\"]+)\""),
                                         QRegularExpression::MultilineOption);
        QDirIterator files(source.path(), {QStringLiteral("*.h"), QStringLiteral("*.cpp")}, QDir::Files,
                           QDirIterator::Subdirectories);
        while (files.hasNext()) {
            QFile file(files.next());
            QVERIFY(file.open(QIODevice::ReadOnly));
            QStringList &found = includes_[source.relativeFilePath(file.fileName())];
            auto matches = include.globalMatch(QString::fromUtf8(file.readAll()));
            while (matches.hasNext())
                found << matches.next().captured(1);
        }
        QVERIFY2(includes_.size() > 50, "the sources were not found");
    }

    void everyFolderIsARoom()
    {
        const QStringList folders =
            QDir(QStringLiteral(WORTEL_SOURCE_DIR "/src")).entryList(QDir::Dirs | QDir::NoDotAndDotDot);
        for (const QString &folder : folders)
            QVERIFY2(rooms.contains(folder), qPrintable(folder));
    }

    void nobodyIncludesUpwards()
    {
        QStringList wrong;
        for (auto file = includes_.cbegin(); file != includes_.cend(); ++file) {
            const qsizetype floor = rooms.indexOf(file.key().section(u'/', 0, 0));
            if (floor < 0)
                continue; // main.cpp joins them all
            for (const QString &included : file.value())
                if (rooms.indexOf(included.section(u'/', 0, 0)) > floor)
                    wrong << file.key() + QStringLiteral(" includes ") + included;
        }
        QVERIFY2(wrong.isEmpty(), qPrintable(wrong.join(u'\n')));
    }

    void noHeaderIncludesItselfInACircle()
    {
        QSet<QString> done;
        QStringList path;
        QString circle;
        const std::function<void(const QString &)> visit = [&](const QString &file) {
            if (path.contains(file)) {
                circle = path.join(QStringLiteral(" -> ")) + QStringLiteral(" -> ") + file;
                return;
            }
            if (done.contains(file) || !circle.isEmpty())
                return;
            path << file;
            for (const QString &included : includes_.value(file))
                visit(included);
            path.removeLast();
            done << file;
        };
        for (auto file = includes_.cbegin(); file != includes_.cend(); ++file)
            visit(file.key());
        QVERIFY2(circle.isEmpty(), qPrintable(circle));
    }
};

WORTEL_TEST(IncludeDirectionsTest)
#include "tst_include_directions.moc"
