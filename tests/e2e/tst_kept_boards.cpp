// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "e2e/desktop.h"
#include "e2e/known_board.h"
#include "support/test_class.h"

namespace {

constexpr int noteStays = 3500; ///< milliseconds, until no short note lies over the board

QPoint firstWortel(Desktop &desktop)
{
    return tilesOn(desktop.screenshot(), desktop.boardArea(), colour::red).value(0).center();
}

/// Copies the first red tile with Shift and the right button: a change that is committed.
void copyFirstWortel(Desktop &desktop)
{
    desktop.hold(u"shift"_s, [&] { desktop.click(firstWortel(desktop), 3); });
}

} // namespace

/// What a teacher keeps: a session by dialog, command line and second start, and the board after a crash.
class KeptBoardsTest : public QObject
{
    Q_OBJECT

private slots:
    void aSavedBoardComesBackAtTheNextStart()
    {
        Desktop desktop(QSize(1024, 640));
        quiet(desktop);
        QVERIFY(startKnownBoard(desktop));
        QVERIFY(showsTiles(desktop, 6));
        desktop.drag(firstWortel(desktop), desktop.boardArea().center());
        copyFirstWortel(desktop);
        QVERIFY(showsTiles(desktop, 7));
        Desktop::pause(noteStays);
        const QImage saved = desktop.boardPicture();

        // From the menu's end: quit, close, help, options, action, session; in it: load, save as.
        desktop.chooseFromMenu(desktop.boardArea().topLeft() + QPoint(40, 300),
                               u"Up Up Up Up Up Up Right Down Return"_s);
        QVERIFY(desktop.answerWith(u"^Wortel - Sitzung speichern"_s, u"meine Stunde"_s));
        QVERIFY(desktop.waitForPicture(
            [&](const QImage &) { return QFile::exists(desktop.programFolder() + u"/meine Stunde.wlx"_s); }));
        QVERIFY(desktop.close());

        // A list of sessions is divided by blanks, so the name on the command line has none.
        QVERIFY(QFile::rename(desktop.programFolder() + u"/meine Stunde.wlx"_s,
                              desktop.programFolder() + u"/stunde.wlx"_s));
        desktop.start({u"stunde.wlx"_s});
        QVERIFY(showsTiles(desktop, 7));
        Desktop::pause(noteStays);
        desktop.keepPicture(u"session-restored"_s);
        QVERIFY(desktop.boardPicture() == saved);

        // A second start hands its session to the first and ends.
        QCOMPARE(desktop.startAgain({u"brett.wlx"_s}), 0);
        QVERIFY(showsTiles(desktop, 6));
        QVERIFY(desktop.isRunning());
        QVERIFY(desktop.close());
    }

    void aKilledBoardIsRecovered()
    {
        Desktop desktop(QSize(1024, 640));
        quiet(desktop);
        desktop.setSetting(u"UseBackup"_s, u"1"_s);
        const QString backup = desktop.programFolder() + u"/WLXAutoSave.bak"_s;
        QVERIFY(startKnownBoard(desktop));
        QVERIFY(showsTiles(desktop, 6));
        copyFirstWortel(desktop);
        QVERIFY(showsTiles(desktop, 7));
        desktop.drag(firstWortel(desktop), desktop.boardArea().center());
        Desktop::pause(noteStays);
        const QImage lost = desktop.boardPicture();
        QVERIFY(QFile::exists(backup));
        desktop.kill();

        desktop.start();
        QVERIFY(desktop.answer(u"Error Recovery$"_s)); // Yes
        QVERIFY(!desktop.waitForWindow(mainWindow).isEmpty());
        QVERIFY(showsTiles(desktop, 7));
        Desktop::pause(noteStays);
        desktop.keepPicture(u"board-recovered"_s);
        QVERIFY(desktop.boardPicture() == lost);
        QVERIFY(desktop.close());
        QVERIFY2(!QFile::exists(backup), "a clean end leaves no backup");
    }
};

WORTEL_TEST(KeptBoardsTest)
#include "tst_kept_boards.moc"
