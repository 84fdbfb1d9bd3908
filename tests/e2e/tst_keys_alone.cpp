// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "e2e/desktop.h"
#include "e2e/known_board.h"
#include "support/test_class.h"

/// The program played with keys alone, the pointer untouched.
class KeysAloneTest : public QObject
{
    Q_OBJECT

private slots:
    void fromTheStartToALoadedSession()
    {
        Desktop desktop(QSize(1024, 640));
        QVERIFY(desktop.isReady());
        quiet(desktop);
        desktop.setSetting(u"VerifyWinTime"_s, u"2"_s);
        QVERIFY(startKnownBoard(desktop));
        const QRect board = desktop.boardArea();
        QVERIFY(showsTiles(desktop, 6));
        desktop.key(u"Home Return End Return ctrl+Return"_s); // "mach" and "en"
        QVERIFY2(desktop.waitForPicture([&](const QImage &picture) { return praiseIsUp(picture, board); }),
                 "the word is not found right");
        QVERIFY(desktop.waitForPicture([&](const QImage &picture) { return !reportIsUp(picture, board); }));
        desktop.key(u"F6 Escape Menu"_s); // the board's menu, since no tile is chosen any more
        Desktop::pause(500);
        desktop.key(u"Up Up Up Up Return"_s);
        QVERIFY(!desktop.waitForWindow(u"Optionen"_s).isEmpty());
        desktop.key(u"Tab Tab space"_s);
        const QString before = desktop.storedSettings();
        desktop.key(u"Return"_s);
        QVERIFY(!desktop.waitForWindow(u"Bestätigen$"_s).isEmpty());
        desktop.key(u"Return"_s);
        QVERIFY(desktop.waitForNoWindow(u"Optionen"_s));
        QVERIFY(desktop.storedSettings() != before);
        desktop.key(u"ctrl+s"_s);
        QVERIFY(desktop.answerWith(u"^Wortel - Sitzung speichern"_s, u"stunde"_s));
        desktop.key(u"Home Delete"_s);
        QVERIFY(desktop.answer(u"^Entfernen"_s));
        QVERIFY(showsTiles(desktop, 5));
        desktop.key(u"ctrl+o"_s);
        QVERIFY(desktop.answerWith(u"^Wortel - Sitzung laden"_s, u"stunde.wlx"_s));
        QVERIFY(showsTiles(desktop, 6));
        QVERIFY(desktop.close());
    }
};

WORTEL_TEST(KeysAloneTest)
#include "tst_keys_alone.moc"
