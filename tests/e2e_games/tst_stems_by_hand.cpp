// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "e2e/desktop.h"
#include "e2e/known_board.h"
#include "games/kernling/kernling_controls.h"
#include "games/kernling/kernling_text.h"
#include "support/file_bytes.h"
#include "support/test_class.h"
#include "widgets/press_button.h"

#include <memory>

namespace {

const QString words = u"verwirkung quatsch"_s;
const QString window = u"^Kernling - Trainiere"_s;

enum class Ink { Red, Blue, Black };

bool has(Ink ink, QRgb pixel)
{
    const bool red = qRed(pixel) > 200 && qGreen(pixel) < 60 && qBlue(pixel) < 60;
    const bool blue = qBlue(pixel) > 200 && qGreen(pixel) < 60 && qRed(pixel) < 60;
    const bool black = qRed(pixel) < 60 && qGreen(pixel) < 60 && qBlue(pixel) < 60;
    return ink == Ink::Red ? red : ink == Ink::Blue ? blue : black;
}

} // namespace

/// The stem game by the real pointer: a text is loaded, a stem, a prefix and nonsense are marked, and a short
/// game ends in the list of the best.
class StemsByHandTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        desktop_ = std::make_unique<Desktop>(QSize(1024, 640));
        QVERIFY(desktop_->isReady());
        quiet(*desktop_);
        desktop_->setSetting(u"KernlingGameTime"_s, u"4"_s);
        desktop_->writeFile(u"satz.txt"_s, words.toLatin1());
        desktop_->start();
        QVERIFY(!desktop_->waitForWindow(mainWindow).isEmpty());
        desktop_->chooseFromMenu(desktop_->boardArea().center(),
                                 u"Down Down Down Down Down Down Down Down Down Right Down Down Return"_s);
        const QString id = desktop_->waitForWindow(window);
        QVERIFY(!id.isEmpty());
        Desktop::pause(500);
        place_ = desktop_->geometry(id);
        controls_ = makeKernlingControls(&twin_);
        scaleKernlingControls(controls_, place_.size());
        twin_.resize(place_.size());
        twin_.setAttribute(Qt::WA_DontShowOnScreen);
        twin_.show();
        controls_.RTF->setPlainText(words);
        QCoreApplication::processEvents();
    }

    void aTextIsLoaded()
    {
        desktop_->click(middle(controls_.Command5));
        QVERIFY(desktop_->answerWith(u"^Text auswählen$"_s, u"satz.txt"_s));
        QVERIFY(desktop_->waitForPicture(
            [this](const QImage &picture) { return inkIn(picture, controls_.RTF, Ink::Black) > 50; }));
    }

    void lettersAreJudged_data()
    {
        QTest::addColumn<QString>("letters");
        QTest::addColumn<bool>("blue");
        QTest::addColumn<bool>("red");
        QTest::addColumn<bool>("black");
        QTest::newRow("stem") << u"wirk"_s << true << false << false;
        QTest::newRow("prefix") << u"ver"_s << false << true << true;
        QTest::newRow("nonsense") << u"uats"_s << false << true << false;
    }
    void lettersAreJudged()
    {
        QFETCH(QString, letters);
        QFETCH(bool, blue);
        QFETCH(bool, red);
        QFETCH(bool, black);
        mark(letters);
        const auto shows = [&](const QImage &picture, Ink ink) {
            return inkIn(picture, controls_.rtfResponse, ink) > 8;
        };
        QVERIFY(desktop_->waitForPicture([&](const QImage &picture) {
            return shows(picture, Ink::Blue) == blue && shows(picture, Ink::Red) == red &&
                   shows(picture, Ink::Black) == black;
        }));
        desktop_->keepPicture(u"kernling-"_s + QLatin1String(QTest::currentDataTag()));
        // The stem is painted, and stays so.
        QVERIFY(inkIn(desktop_->screenshot(), controls_.RTF, Ink::Red) > 200);
    }

    void aGameEndsInTheList()
    {
        desktop_->click(middle(controls_.Command10));
        QVERIFY(desktop_->waitForPicture(
            [this](const QImage &picture) { return inkIn(picture, controls_.RTF, Ink::Red) == 0; }));
        mark(u"wirk"_s);
        desktop_->keepPicture(u"kernling-game"_s);
        QVERIFY(!desktop_->waitForWindow(u"^Bestenliste Kernling$"_s).isEmpty());
        desktop_->enter(u"Ada"_s);
        QVERIFY(desktop_->answer(u"^Bestenliste - Kernling$"_s));
        QVERIFY(bytesOf(desktop_->programFolder() + u"/ScoresKernling.lst"_s).endsWith("\r\nAda:1\r\n"));
    }

    void theWindowAndTheProgramClose()
    {
        desktop_->key(u"Escape"_s); // closes nothing
        QVERIFY(!desktop_->waitForWindow(window, 500).isEmpty());
        desktop_->key(u"alt+F4"_s);
        QVERIFY(desktop_->waitForNoWindow(window));
        QVERIFY(desktop_->close());
        desktop_.reset();
    }

private:
    QRect areaOf(const QWidget *control) const
    {
        return {place_.topLeft() + control->mapTo(&twin_, QPoint(0, 0)), control->size()};
    }
    QPoint middle(const QWidget *control) const { return areaOf(control).center(); }
    QPoint letter(qsizetype position) const
    {
        QTextCursor cursor(controls_.RTF->document());
        cursor.setPosition(static_cast<int>(position));
        return areaOf(controls_.RTF->viewport()).topLeft() + controls_.RTF->cursorRect(cursor).center();
    }
    void mark(const QString &letters)
    {
        const qsizetype at = words.indexOf(letters);
        desktop_->drag(letter(at), letter(at + letters.size()));
        Desktop::pause(300);
    }
    int inkIn(const QImage &picture, const QWidget *control, Ink ink) const
    {
        const QRect area = areaOf(control).adjusted(3, 3, -3, -3).intersected(picture.rect());
        int found = 0;
        for (int y = area.top(); y <= area.bottom(); ++y)
            for (int x = area.left(); x <= area.right(); ++x)
                found += has(ink, picture.pixel(x, y)) ? 1 : 0;
        return found;
    }

    std::unique_ptr<Desktop> desktop_;
    QWidget twin_;
    KernlingControls controls_;
    QRect place_;
};

WORTEL_TEST(StemsByHandTest)
#include "tst_stems_by_hand.moc"
