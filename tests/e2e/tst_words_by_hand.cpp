// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "e2e/desktop.h"
#include "e2e/known_board.h"
#include "support/file_bytes.h"
#include "support/test_class.h"

#include <memory>

/// Words by real keys: checked, collected, saved, and copied from the running strip until the praise, on one
/// run of the program.
class WordsByHandTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        desktop_ = std::make_unique<Desktop>(QSize(1024, 640));
        QVERIFY(desktop_->isReady());
        quiet(*desktop_);
        desktop_->setSetting(u"NumReTypeWords"_s, u"3"_s);
        desktop_->setSetting(u"VerifyWinTime"_s, u"2"_s);
        desktop_->setSetting(u"ScrollerRndPos"_s, u"False"_s);
        desktop_->setSetting(u"ScrollerMiddlePos"_s, u"True"_s);
        QVERIFY(startKnownBoard(*desktop_));
        board_ = desktop_->boardArea();
        QVERIFY(showsTiles(*desktop_, 6));
    }

    void aWordIsJudged_data()
    {
        QTest::addColumn<QString>("word");
        QTest::addColumn<bool>("isRight");
        QTest::newRow("right") << u"laufen"_s << true;
        QTest::newRow("wrong") << u"lauhfen"_s << false;
        QTest::newRow("right after a wrong one") << u"Kauf"_s << true; // replaces the selected word
        QTest::newRow("blanks round it") << u" machen "_s << true;
        QTest::newRow("again, counted once") << u"laufen"_s << true;
    }
    void aWordIsJudged()
    {
        QFETCH(QString, word);
        QFETCH(bool, isRight);
        if (qstrcmp(QTest::currentDataTag(), "right") == 0)
            desktop_->click(desktop_->tool(u"Dropper1"_s));
        QVERIFY(typeAndCheck(word));
        Desktop::pause(500); // a report rises slowly
        desktop_->keepPicture(isRight ? u"word-right"_s : u"word-wrong"_s);
        QCOMPARE(praiseIsUp(desktop_->screenshot(), board_), isRight);
        QVERIFY(reportGoes());
    }

    void theRightWordsAreSaved()
    {
        desktop_->click(desktop_->tool(u"Command4"_s), 3);
        QVERIFY(desktop_->answerWith(u"Speichern$"_s, u"gefunden"_s));
        QCOMPARE(bytesOf(desktop_->programFolder() + u"/gefunden.txt"_s),
                 QByteArray("Kauf\r\nlaufen\r\nmachen\r\n"));
    }

    void theListIsCopiedToTheEnd()
    {
        desktop_->click(desktop_->tool(u"Check4"_s));
        QVERIFY2(desktop_->waitForPicture([this](const QImage &picture) { return stripRuns(picture); }),
                 "no strip in the middle of the board");
        desktop_->keepPicture(u"strip"_s);
        QVERIFY(typeAndCheck(u"machen"_s));
        QVERIFY(reportGoes());
        QVERIFY(typeAndCheck(u"quatsch"_s));
        QVERIFY(!praiseIsUp(desktop_->screenshot(), board_));
        QVERIFY(reportGoes());
        QVERIFY(typeAndCheck(u"laufen"_s));
        QVERIFY(reportGoes());
        QVERIFY(typeAndCheck(u"Kauf"_s));
        QVERIFY(desktop_->answer(u"^Abschreiben: Fertig"_s));
        QVERIFY(desktop_->waitForPicture([this](const QImage &picture) { return toolsAreBack(picture); }));
    }

    void theDictionaryFeedsTheStrip()
    {
        QVERIFY(reportGoes());
        desktop_->click(desktop_->tool(u"Check4"_s), 3);
        QVERIFY(
            desktop_->waitForPicture([this](const QImage &picture) { return stripRuns(picture); }, 30000));
        desktop_->keepPicture(u"strip-from-dictionary"_s);
        desktop_->click(desktop_->tool(u"Check4"_s)); // off again
        QVERIFY(desktop_->waitForPicture([this](const QImage &picture) { return toolsAreBack(picture); }));
    }

    void cleanupTestCase()
    {
        QVERIFY(desktop_->close());
        desktop_.reset();
    }

private:
    /// Types into the field that has the keyboard; true when a report comes up.
    bool typeAndCheck(const QString &word)
    {
        desktop_->enter(word);
        return desktop_->waitForPicture(
            [this](const QImage &picture) { return reportIsUp(picture, board_); });
    }
    /// Enter counts again only when the report has gone.
    bool reportGoes()
    {
        const bool gone =
            desktop_->waitForPicture([this](const QImage &picture) { return !reportIsUp(picture, board_); });
        Desktop::pause(700); // its last pixels
        return gone;
    }
    bool stripRuns(const QImage &picture) const
    {
        const QRect middle(board_.center() - QPoint(100, 150), QSize(200, 300));
        return pixelsOfColour(picture, middle, colour::white) > 2000;
    }
    /// The mode hides the number of Wortel tiles.
    bool toolsAreBack(const QImage &picture)
    {
        return pixelsOfColour(picture, desktop_->toolArea(u"Text1"_s), colour::white) > 500;
    }

    std::unique_ptr<Desktop> desktop_;
    QRect board_;
};

WORTEL_TEST(WordsByHandTest)
#include "tst_words_by_hand.moc"
