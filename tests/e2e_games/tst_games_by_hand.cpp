// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "e2e/desktop.h"
#include "e2e/known_board.h"
#include "support/file_bytes.h"
#include "support/test_class.h"

#include <memory>

/// The vowels and the word game by real pointer and keys: a board of stems, then a game of one real minute to
/// the list of the best, which is there again after a restart.
class GamesByHandTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        desktop_ = std::make_unique<Desktop>(QSize(1024, 640));
        QVERIFY(desktop_->isReady());
        quiet(*desktop_);
        desktop_->setSetting(u"GameTimeOut"_s, u"1"_s);
        desktop_->setSetting(u"VerifyWinTime"_s, u"1"_s);
        start();
    }

    void theVowelBoard()
    {
        desktop_->click(desktop_->tool(u"ChkVokal(0)"_s));
        QVERIFY(desktop_->waitForPicture([this](const QImage &picture) { return affixes(picture) == 0; }));
        desktop_->keepPicture(u"vowel-board"_s);
        desktop_->click(desktop_->tool(u"Dropper1"_s));
        for (const QString &stem : {u"hand"_s, u"fahr"_s, u"blick"_s}) { // the second is a long one
            desktop_->enter(stem);
            Desktop::pause(500);
        }
        desktop_->click(desktop_->tool(u"Command4"_s), 3);
        QVERIFY(desktop_->answerWith(u"Speichern$"_s, u"stamm"_s));
        QCOMPARE(written(u"stamm.txt"_s), QByteArray("blick\r\nhand\r\n"));

        desktop_->click(desktop_->tool(u"ChkVokal(1)"_s), 3);
        QVERIFY(desktop_->answer(u"^Vokale anh"_s, u"Right space Escape"_s));

        desktop_->click(desktop_->tool(u"ChkVokal(0)"_s));
        QVERIFY2(desktop_->waitForPicture([this](const QImage &picture) { return affixes(picture) > 10; }),
                 "the old list brings its affixes");
    }

    void aGameOfAMinute()
    {
        desktop_->click(desktop_->tool(u"Option2(1)"_s));
        desktop_->click(desktop_->tool(u"Check3"_s));
        Desktop::pause(500);
        desktop_->keepPicture(u"game-last-minute"_s);
        for (const QString &word : {u"laufen"_s, u"lauhfen"_s, u"machen"_s}) {
            desktop_->enter(word);
            Desktop::pause(4000); // until its report has gone
        }
        QVERIFY(!desktop_->waitForWindow(u"^Bestenliste Wortelspiele"_s, 90000).isEmpty());
        desktop_->keepPicture(u"game-name"_s);
        desktop_->enter(u"Mia"_s); // in the place of what is selected
        QVERIFY(desktop_->answer(u"^Bestenliste - Klotar"_s));
        QVERIFY(written(u"scores.lst"_s).startsWith("Mia:12\r\nWortel:10\r\n"));
    }

    void theListAfterARestart()
    {
        QVERIFY(desktop_->close());
        start();
        desktop_->click(desktop_->tool(u"Check3"_s), 3);
        QVERIFY(desktop_->answer(u"^Bestenliste - Klotar"_s));
        QVERIFY(written(u"scores.lst"_s).startsWith("Mia:12\r\n"));
        // In the middle of a game the program closes at once.
        desktop_->click(desktop_->tool(u"Check3"_s));
        QVERIFY(desktop_->close());
    }

    void cleanupTestCase() { desktop_.reset(); }

private:
    void start()
    {
        desktop_->start();
        QVERIFY(!desktop_->waitForWindow(mainWindow).isEmpty());
        board_ = desktop_->boardArea();
        QVERIFY(desktop_->waitForPicture([this](const QImage &picture) { return affixes(picture) > 10; }));
    }
    qsizetype affixes(const QImage &picture) const { return tilesOn(picture, board_, colour::yellow).size(); }
    QByteArray written(const QString &name) const { return bytesOf(desktop_->programFolder() + u'/' + name); }

    std::unique_ptr<Desktop> desktop_;
    QRect board_;
};

WORTEL_TEST(GamesByHandTest)
#include "tst_games_by_hand.moc"
