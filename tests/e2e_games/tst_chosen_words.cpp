// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "e2e/desktop.h"
#include "e2e/known_board.h"
#include "language/chooser/frm_choose_wortel.h"
#include "language/chooser/mark_list.h"
#include "language/list_loader.h"
#include "platform/word_lists.h"
#include "support/file_bytes.h"
#include "support/test_class.h"
#include "support/test_ground.h"

/// A teacher picks stems in the word chooser, on the smallest screen, and a child copies the words found from
/// the running strip until the praise.
class ChosenWordsTest : public QObject
{
    Q_OBJECT

private slots:
    void fromTheStemsToThePraise()
    {
        Desktop desktop(QSize(853, 480));
        QVERIFY(desktop.isReady());
        quiet(desktop);
        for (const char *name : {"VerifyWinTime", "ScrollerMiddlePos"})
            desktop.setSetting(QLatin1String(name), u"1"_s);
        desktop.setSetting(u"ScrollerRndPos"_s, u"False"_s);
        desktop.writeFile(u"text/Hauptbausteine.Txt"_s, "spiel\r\nfahr\r\nbaum\r\nhalt\r\n");
        desktop.writeFile(u"facit/Hauptbausteine.lex"_s,
                          "Spiel\r\nabfahren\r\nErfahrung\r\nBaum\r\nanhalten\r\n");
        // Nothing lies so low that this screen would have to fit it in.
        desktop.start({desktop.writeFile(u"brett.wlx"_s, knownBoard().replace("Top=400", "Top=300"))});
        QVERIFY(!desktop.waitForWindow(mainWindow).isEmpty());
        Desktop::pause(1500);

        // "Abschreiben", "Ausgewählte Wörter"
        desktop.chooseFromMenu(desktop.boardArea().topLeft() + QPoint(30, 200),
                               u"Down Down Down Down Down Down Down Down Right Up Return"_s);
        TestGround t;
        WordLists lists;
        lists.WortelList.addAll({u"spiel"_s, u"fahr"_s, u"baum"_s, u"halt"_s});
        ListLoader loader(t.ground, lists);
        frmChooseWortel same(t.ground, lists, loader);
        same.show();
        const QString title = u"^Wörter mit ausgewählten"_s;
        const QRect window = desktop.geometry(desktop.waitForWindow(title));
        QVERIFY(QRect(0, 0, 853, 480).contains(window));
        desktop.click(desktop.childOf(title, same, u"Check4"_s)); // nothing is marked: nothing is found
        const auto *list = same.findChild<MarkList *>(u"List1"_s);
        const auto row = [&](int number) {
            const QPoint middle = list->visualRect(list->model()->index(number, 0)).center();
            return window.topLeft() + list->viewport()->mapTo(&same, middle);
        };
        desktop.click(row(1));
        desktop.hold(u"ctrl"_s, [&] { desktop.click(row(3)); });
        desktop.click(desktop.childOf(title, same, u"Check4"_s));
        Desktop::pause(500);
        desktop.keepPicture(u"chooser"_s);
        desktop.key(u"ctrl+s"_s);
        QVERIFY(desktop.answerWith(u"speichern$"_s, u"auswahl"_s));
        QCOMPARE(bytesOf(desktop.programFolder() + u"/auswahl.txt"_s),
                 QByteArray("abfahren\r\nErfahrung\r\nanhalten\r\n"));

        desktop.click(desktop.childOf(title, same, u"Check1"_s));
        QVERIFY(desktop.waitForNoWindow(title));
        const QRect board = desktop.boardArea();
        const QRect middle(board.center() - QPoint(100, 120), QSize(200, 240));
        QVERIFY(desktop.waitForPicture(
            [&](const QImage &picture) { return pixelsOfColour(picture, middle, colour::white) > 2000; }));
        desktop.keepPicture(u"chooser-strip"_s);
        for (const QString &word : {u"abfahren"_s, u"anhalten"_s, u"Erfahrung"_s}) {
            desktop.enter(word);
            QVERIFY(
                desktop.waitForPicture([&](const QImage &picture) { return praiseIsUp(picture, board); }));
            QVERIFY(
                desktop.waitForPicture([&](const QImage &picture) { return !reportIsUp(picture, board); }));
            Desktop::pause(700);
        }
        QVERIFY(desktop.answer(u"^Abschreiben: Fertig"_s));
        QVERIFY(desktop.close());
    }
};

WORTEL_TEST(ChosenWordsTest)
#include "tst_chosen_words.moc"
