// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/test_class.h"

#include <functional>

/// The rooms of the house, from the ground up. A file includes headers of its own room and of those below.
static const QStringList rooms{
    QStringLiteral("platform"),     QStringLiteral("widgets"),        QStringLiteral("dialogs"),
    QStringLiteral("board/tiles"),  QStringLiteral("board/canvas"),   QStringLiteral("board/hand"),
    QStringLiteral("board/reader"), QStringLiteral("output/columns"), QStringLiteral("language"),
    QStringLiteral("generators"),   QStringLiteral("persistence"),    QStringLiteral("output"),
    QStringLiteral("games/scores"), QStringLiteral("games"),          QStringLiteral("shell")};

/// The floor on which a file (or folder) of the house stands: that of the room with the longest name that
/// holds it; -1 for none.
static qsizetype floorOf(const QString &file)
{
    qsizetype floor = -1;
    for (qsizetype i = 0; i < rooms.size(); ++i)
        if ((file + u'/').startsWith(rooms.at(i) + u'/') &&
            (floor < 0 || rooms.at(i).size() > rooms.at(floor).size()))
            floor = i;
    return floor;
}

/// "retype" for a file of that game, empty for others.
static QString gameOf(const QString &file)
{
    return file.startsWith(QStringLiteral("games/")) ? file.section(u'/', 1, 1) : QString();
}

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

    void everyFileStandsInARoom()
    {
        QStringList homeless;
        for (auto file = includes_.cbegin(); file != includes_.cend(); ++file)
            if (floorOf(file.key()) < 0 && file.key() != QStringLiteral("main.cpp"))
                homeless << file.key();
        QVERIFY2(homeless.isEmpty(), qPrintable(homeless.join(u'\n')));
    }

    void nobodyIncludesUpwards()
    {
        QStringList wrong;
        for (auto file = includes_.cbegin(); file != includes_.cend(); ++file) {
            const qsizetype floor = floorOf(file.key());
            if (floor < 0)
                continue; // main.cpp joins them all
            for (const QString &included : file.value())
                if (floorOf(included) > floor)
                    wrong << file.key() + QStringLiteral(" includes ") + included;
        }
        QVERIFY2(wrong.isEmpty(), qPrintable(wrong.join(u'\n')));
    }

    /// Games share nothing but the lists of the best.
    void noGameIncludesAnother()
    {
        QStringList wrong;
        for (auto file = includes_.cbegin(); file != includes_.cend(); ++file) {
            const QString game = gameOf(file.key());
            for (const QString &included : file.value()) {
                const QString other = gameOf(included);
                if (!game.isEmpty() && !other.isEmpty() && other != game && other != QStringLiteral("scores"))
                    wrong << file.key() + QStringLiteral(" includes ") + included;
            }
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
