// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "e2e/desktop.h"
#include "e2e/known_board.h"
#include "persistence/backup_file.h"
#include "support/test_class.h"

#include <csignal>

namespace {

constexpr int tileCount =
    700; ///< more than fit on the board without overlap: placing them goes on until it is stopped

const QString handbook = u"Hilfe$"_s;

/// A crowd of tiles in the upper left corner.
QByteArray crowdedBoard()
{
    QByteArray session;
    for (int i = 1; i <= tileCount; ++i)
        session += "[Morpheme" + QByteArray::number(i) +
                   "]\r\nType=Wortel\r\nLeft=" + QByteArray::number(100 + i % 40) +
                   "\r\nTop=" + QByteArray::number(100 + i % 30) + "\r\nCaption=\"w" + QByteArray::number(i) +
                   "\"\r\n";
    return session + "[NumObjects]\r\nObjCounter=" + QByteArray::number(tileCount) + "\r\n";
}

/// The real program in the middle of a long work.
class Crowd : public Desktop
{
public:
    Crowd()
        : Desktop(QSize(1024, 640))
    {
        quiet(*this);
        setSetting(u"UseBackup"_s, u"1"_s);
        setSetting(u"MaxTriesToPlace"_s, u"0"_s); // nobody asks whether to go on
        start({writeFile(u"viele.wlx"_s, crowdedBoard())});
        waitForWindow(mainWindow);
        waitForPicture([this](const QImage &) { return keptTiles() == tileCount; });
    }

    /// Tiles in the backup, -1 if there is none.
    int keptTiles() const
    {
        QFile file(programFolder() + u"/WLXAutoSave.bak"_s);
        if (!file.open(QIODevice::ReadOnly))
            return -1;
        const auto records = backup_file::decode(file.readAll());
        return static_cast<int>(std::count_if(records.begin(), records.end(),
                                              [](const BackupRecord &record) { return record.type != 0; }));
    }
    bool keeps(int count)
    {
        return waitForPicture([this, count](const QImage &) { return keptTiles() == count; });
    }
    /// "Alle Morpheme ohne Überdeckung platzieren", which does not come to an end here.
    bool startPlacing()
    {
        chooseFromMenu(boardArea().bottomRight() - QPoint(300, 60),
                       u"Down Down Down Down Right Down Down Down Down Return"_s);
        return waitForPicture([this](const QImage &picture) { return cancelIsShown(picture); });
    }
    bool cancelIsShown(const QImage &picture)
    {
        return pixelsOfColour(picture, toolArea(u"Label4"_s), qRgb(0xC0, 0, 0)) > 30;
    }
    /// What a child does that does not want to wait.
    void pressEverything()
    {
        const QRect board = boardArea();
        click(board.topLeft() + QPoint(115, 112));
        click(board.topLeft() + QPoint(115, 112), 3);
        for (const QString &tool :
             {u"Check2"_s, u"Check4"_s, u"Check3"_s, u"Command2"_s, u"Command4"_s, u"Option1(0)"_s})
            click(this->tool(tool));
        key(u"ctrl+i ctrl+a ctrl+f"_s);
        drag(board.topLeft() + QPoint(115, 112), board.center());
    }
};

} // namespace

/// What hands do in the middle of a long work, on a real screen: no tile is lost or doubled.
class InterruptedTest : public QObject
{
    Q_OBJECT

private slots:
    void aKillInTheMiddleLosesNothing()
    {
        Crowd desktop;
        QCOMPARE(desktop.keptTiles(), tileCount);
        QVERIFY(desktop.startPlacing());
        desktop.pressEverything();
        desktop.keepPicture(u"placing"_s);
        QCOMPARE(desktop.keptTiles(), tileCount);
        desktop.kill();

        desktop.start();
        QVERIFY(desktop.answer(u"Error Recovery$"_s));
        QVERIFY(!desktop.waitForWindow(mainWindow).isEmpty());
        QVERIFY(desktop.keeps(tileCount));
        QVERIFY(desktop.close());
        QCOMPARE(desktop.keptTiles(), -1);
    }

    void stoppingUndoAndASecondStart()
    {
        Crowd desktop;
        QVERIFY(desktop.startPlacing());
        desktop.pressEverything();
        QCOMPARE(desktop.startAgain({desktop.writeFile(u"brett.wlx"_s, knownBoard())}), 0);
        Desktop::pause(500);
        QCOMPARE(desktop.keptTiles(), tileCount); // the other session waits
        desktop.click(desktop.tool(u"Label4"_s));
        QVERIFY(desktop.keeps(8)); // now it is there
        QVERIFY(
            desktop.waitForPicture([&](const QImage &picture) { return !desktop.cancelIsShown(picture); }));
        desktop.keepPicture(u"after-placing"_s);
        desktop.key(u"ctrl+i"_s); // what had been placed until then
        QVERIFY(desktop.waitForPicture([&](const QImage &) { return desktop.keptTiles() > 8; }));
        QVERIFY(desktop.keptTiles() < tileCount);
        desktop.key(u"ctrl+i"_s);
        QVERIFY(desktop.keeps(tileCount));
        QVERIFY(desktop.close());
    }

    void aSecondStartWhileTheFirstOneAsks()
    {
        Crowd desktop;
        desktop.kill();
        desktop.start();
        QVERIFY(!desktop.waitForWindow(u"Error Recovery$"_s).isEmpty());
        QCOMPARE(desktop.startAgain({desktop.writeFile(u"Stunde 1.wlx"_s, knownBoard())}), 0);
        Desktop::pause(300);
        desktop.key(u"Return"_s);  // recovers
        QVERIFY(desktop.keeps(8)); // and behind it the session
        QCOMPARE(desktop.startAgain({u"Stunde 2.wlx"_s}), 0);
        QVERIFY(!desktop.waitForWindow(u"^Wortel-Meister$"_s).isEmpty());
        desktop.keepPicture(u"no-such-session"_s);
        desktop.key(u"Return"_s);
        QCOMPARE(desktop.keptTiles(), 8);
        QVERIFY(desktop.close());
    }

    void theHandbookIsClosedWhileTheProgramIsBusy()
    {
        Crowd desktop;
        desktop.key(u"F1"_s);
        QVERIFY(!desktop.waitForWindow(handbook).isEmpty());
        Desktop::pause(500);
        const QPoint page = desktop.geometry(desktop.waitForWindow(handbook)).center();
        desktop.signal(SIGSTOP);
        desktop.click(desktop.boardArea().topLeft() + QPoint(60, 300));
        desktop.click(page);
        desktop.key(u"Escape"_s);
        desktop.signal(SIGCONT);
        QVERIFY(desktop.waitForNoWindow(handbook));
        QVERIFY(desktop.isRunning());
        desktop.key(u"F1"_s);
        QVERIFY(!desktop.waitForWindow(handbook).isEmpty());

        // A box that comes while the handbook is in front, and the end of the session.
        QCOMPARE(desktop.startAgain({u"/L"_s}), 0);
        QVERIFY(!desktop.waitForWindow(u"^Wortel-Meister$"_s).isEmpty());
        desktop.signal(SIGTERM);
        QVERIFY(desktop.waitForEnd());
        QCOMPARE(desktop.exitCode(), 0);
        QCOMPARE(desktop.keptTiles(), -1);
    }

    void closingInTheMiddleIsACleanEnd()
    {
        Crowd desktop;
        QVERIFY(desktop.startPlacing());
        desktop.key(u"alt+F4"_s);
        QVERIFY(desktop.waitForEnd());
        QCOMPARE(desktop.keptTiles(), -1);
        desktop.start();
        QVERIFY(!desktop.waitForWindow(mainWindow).isEmpty()); // no question
        QVERIFY(desktop.close());
    }
};

WORTEL_TEST(InterruptedTest)
#include "tst_interrupted.moc"
