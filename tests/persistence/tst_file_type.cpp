// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "persistence/file_type.h"
#include "platform/log.h"
#include "support/test_class.h"
#include "widgets/resources.h"

class FileTypeTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { initResources(); }
    void init()
    {
        home_ = std::make_unique<QTemporaryDir>();
        oldHome_ = qgetenv("XDG_DATA_HOME");
        qputenv("XDG_DATA_HOME", QFile::encodeName(home_->path()));
        started_.clear();
    }
    void cleanup() { oldHome_.isEmpty() ? qunsetenv("XDG_DATA_HOME") : qputenv("XDG_DATA_HOME", oldHome_); }

    void registersAndRemoves()
    {
        FileType type(log_, u"/opt/spiel/wortel"_s, recorder());
        type.registerSessions();
        QCOMPARE(files().size(), 4);
        QVERIFY(content(u"applications/wortel-meister-session.desktop"_s)
                    .contains("\nExec=\"/opt/spiel/wortel\" %F\n"));
        QVERIFY(
            content(u"icons/hicolor/scalable/mimetypes/application-x-wortel-session.svg"_s).contains("<svg"));
        QCOMPARE(started_, QStringList({u"update-mime-database "_s + home_->filePath(u"mime"_s),
                                        u"update-desktop-database "_s + home_->filePath(u"applications"_s)}));
        type.registerSessions(); // a second time changes nothing
        QCOMPARE(files().size(), 4);
        type.removeSessions();
        QCOMPARE(files(), QStringList());
        type.removeSessions();
    }

    void theSystemKnowsTheType()
    {
        const QString tool = QStandardPaths::findExecutable(u"update-mime-database"_s);
        if (tool.isEmpty())
            QSKIP("no shared MIME database on this machine");
        FileType type(log_, u"/opt/spiel/wortel"_s, [](const QString &program, const QStringList &arguments) {
            QProcess::execute(program, arguments);
        });
        type.registerSessions();
        QVERIFY2(content(u"mime/globs2"_s).contains("application/x-wortel-session:*.wlx"), "globs2");
    }

    void commandLines_data()
    {
        columns<QString, QByteArray>("program", "exec");
        QTest::newRow("blanks and umlauts")
            << u"/home/kind/Müllers Spiel/wortel"_s << QByteArray("\"/home/kind/Müllers Spiel/wortel\" %F");
        QTest::newRow("percent") << u"/a/100%/wortel"_s << QByteArray("\"/a/100%%/wortel\" %F");
        QTest::newRow("quote and dollar") << u"/a/\"$x`/w"_s << QByteArray("\"/a/\\\\\"\\\\$x\\\\`/w\" %F");
        QTest::newRow("backslash") << u"/a/b\\c"_s << QByteArray("\"/a/b\\\\\\\\c\" %F");
    }
    void commandLines()
    {
        QFETCH(QString, program);
        QFETCH(QByteArray, exec);
        FileType(log_, program, recorder()).registerSessions();
        const QByteArray entry = content(u"applications/wortel-meister-session.desktop"_s);
        QVERIFY2(entry.contains("\nExec=" + exec + '\n'), entry.constData());
    }

    void aHomeThatCannotBeWrittenIsSilent()
    {
        const QString blocked = home_->filePath(u"file"_s);
        QFile file(blocked);
        QVERIFY(file.open(QIODevice::WriteOnly));
        qputenv("XDG_DATA_HOME", QFile::encodeName(blocked));
        FileType type(log_, u"/opt/wortel"_s, recorder());
        type.registerSessions();
        type.removeSessions();
        QVERIFY(started_.isEmpty());
    }

private:
    FileType::Start recorder()
    {
        return [this](const QString &program, const QStringList &arguments) {
            started_.append(program + u' ' + arguments.join(u' '));
        };
    }
    QStringList files() const
    {
        QStringList found;
        for (QDirIterator walk(home_->path(), QDir::Files, QDirIterator::Subdirectories); walk.hasNext();)
            found.append(walk.next());
        return found;
    }
    QByteArray content(const QString &name) const
    {
        QFile file(home_->filePath(name));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }

    Log log_;
    std::unique_ptr<QTemporaryDir> home_;
    QByteArray oldHome_;
    QStringList started_;
};

WORTEL_TEST(FileTypeTest)
#include "tst_file_type.moc"
