// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "e2e/desktop.h"
#include "e2e/known_board.h"
#include "persistence/settings/frm_options.h"
#include "support/test_class.h"
#include "support/test_ground.h"

/// The program as a new user meets it: from the command to the board.
class FirstBoardTest : public QObject
{
    Q_OBJECT

private slots:
    void showsTheFilledBoard()
    {
        Desktop desktop;
        QVERIFY(desktop.isReady());
        desktop.start();
        QVERIFY(!desktop.waitForWindow(mainWindow).isEmpty());
        Desktop::pause(1200);
        desktop.keepPicture(u"board"_s);

        const QImage picture = desktop.screenshot();
        const QImage board = picture.copy(0, 0, picture.width(), picture.height() - 110);
        // The rows: every place has six tiles on each other, of which the last is seen.
        QCOMPARE(areasOfColour(board, colour::yellow, leastTile).size(), 20);
        QCOMPARE(areasOfColour(board, colour::blue, leastTile).size(), 20);
        // The placement counts a tile as 38 pixels wide, so that a long one can lie over its neighbour.
        const qsizetype stems = areasOfColour(board, colour::red, leastTile).size();
        QVERIFY2(stems >= 18 && stems <= 20, qPrintable(QString::number(stems)));

        QVERIFY(desktop.close());
        QVERIFY(!QFile::exists(desktop.programFolder() + u"/errors.log"_s));
    }

    void argumentsThatOnlyShow_data()
    {
        QTest::addColumn<QString>("argument");
        QTest::addColumn<QString>("window");
        QTest::newRow("about") << u"/I"_s << u"^Über Wortel-Meister"_s;
        QTest::newRow("parameters") << u"/?"_s << u"^Wortel-Meister - Commandline Parameters"_s;
        QTest::newRow("wrong") << u"/x"_s << u"^Wortel-Meister - Fehler"_s;
    }
    void argumentsThatOnlyShow()
    {
        QFETCH(QString, argument);
        QFETCH(QString, window);
        Desktop desktop;
        desktop.start({argument});
        QVERIFY(desktop.answer(window));
        QVERIFY(desktop.waitForEnd());
    }

    void aMissingListIsToldAndEnds()
    {
        Desktop desktop;
        QVERIFY(QFile::remove(desktop.programFolder() + u"/affix/suffix.afx"_s));
        desktop.start();
        QVERIFY(desktop.answer(u"^Wortel-Meister - Fehler"_s));
        QVERIFY(desktop.waitForEnd());
        QCOMPARE(desktop.exitCode(), 1);
    }

    void aSettingIsFoundAgain()
    {
        TestGround t;
        frmOptions same(t.ground);
        same.show();
        same.ShowProperFrame(u"FrameWortel"_s);
        const QString title = same.windowTitle();

        Desktop desktop;
        desktop.start();
        QVERIFY(!desktop.waitForWindow(mainWindow).isEmpty());
        Desktop::pause(1200);
        desktop.click(desktop.tool(u"Command6"_s));
        QVERIFY(!desktop.waitForWindow(title).isEmpty());
        Desktop::pause(300);
        desktop.click(desktop.childOf(title, same, u"TxtNumWortel"_s));
        desktop.key(u"ctrl+a"_s);
        desktop.type(u"7x"_s); // the box keeps digits only
        desktop.keepPicture(u"options"_s);
        desktop.click(desktop.childOf(title, same, u"cmdOK"_s));
        Desktop::pause(400);
        desktop.keepPicture(u"options-confirm"_s);
        desktop.key(u"Return"_s); // "Ja" is the first button
        QVERIFY(desktop.waitForNoWindow(title));
        QVERIFY(desktop.close());

        desktop.start();
        QVERIFY(!desktop.waitForWindow(mainWindow).isEmpty());
        Desktop::pause(1200);
        desktop.keepPicture(u"seven-stems"_s);
        const QImage picture = desktop.screenshot();
        const qsizetype stems =
            areasOfColour(picture.copy(0, 0, picture.width(), picture.height() - 110), colour::red, leastTile)
                .size();
        QVERIFY2(stems >= 6 && stems <= 7, qPrintable(QString::number(stems)));
        QVERIFY(desktop.close());
    }
};

WORTEL_TEST(FirstBoardTest)
#include "tst_first_board.moc"
