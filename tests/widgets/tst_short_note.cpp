// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/columns.h"
#include "support/registry.h"
#include "widgets/short_note.h"

#include <QtTest>

using namespace Qt::StringLiterals;

namespace {

/// A window of 800 by 500 pixels with a board and a band of 80 pixels under it.
struct Window : QWidget
{
    QWidget board{this};
    QWidget band{this};
    ShortNote note{board, band};

    Window()
    {
        resize(800, 500);
        board.setGeometry(0, 0, 800, 500);
        band.setGeometry(0, 420, 800, 80);
    }
};

} // namespace

class ShortNoteTest : public QObject
{
    Q_OBJECT

private slots:
    void makesRoom_data()
    {
        columns<QList<QRect>, bool>("open",
                                    "onBand"); // what lies over the board; whether the note keeps its row
        QTest::newRow("nothing") << QList<QRect>{} << true;
        QTest::newRow("a list in the middle") << QList<QRect>{{300, 160, 190, 260}} << true;
        QTest::newRow("a list down to the foot") << QList<QRect>{{440, 240, 190, 260}} << true;
        QTest::newRow("three lists at the left")
            << QList<QRect>{{0, 120, 66, 300}, {66, 120, 84, 300}, {150, 120, 66, 300}} << true;
        QTest::newRow("the strip across") << QList<QRect>{{0, 378, 800, 42}} << false;
        QTest::newRow("strip and report") << QList<QRect>{{0, 378, 800, 42}, {31, 300, 350, 140}} << false;
        QTest::newRow("the tip over all of it") << QList<QRect>{{0, 0, 800, 420}} << true;
    }
    void makesRoom()
    {
        QFETCH(QList<QRect>, open);
        Window window;
        std::vector<std::unique_ptr<QWidget>> others;
        for (const QRect &rect : open) {
            others.push_back(std::make_unique<QWidget>(&window));
            others.back()->setGeometry(rect);
        }
        window.show();
        window.note.tell(u"Deine Wörterliste ist noch leer"_s);
        const QRect place = window.note.geometry();
        QVERIFY(QRect(0, 0, 800, 420).contains(place));
        QTEST(place.bottom() > 405, "onBand");
        for (const QRect &rect : open)
            QVERIFY(!place.intersects(rect) || rect.height() == 420);
        // It looks again when something closes.
        for (const auto &other : others)
            other->hide();
        QCOMPARE(window.note.geometry().center().x(), 399);
        QVERIFY(window.note.geometry().bottom() > 405);
    }

    void isInNobodysWay()
    {
        Window window;
        window.show();
        window.note.tell(u"Eine sehr lange Notiz\nin zwei Zeilen "_s.repeated(20));
        const QRect place = window.note.geometry();
        QVERIFY(place.width() <= 800 && place.height() < 60);
        QCOMPARE(window.childAt(place.center()), &window.board);
        window.note.tell(u"<b>Kurz</b>"_s);
        QCOMPARE(window.note.text(), u"<b>Kurz</b>"_s);
        QVERIFY(window.note.width() < place.width());
        window.note.tell({});
        QVERIFY(window.note.isHidden());
    }

    /// Told before the window is seen, it still has its time.
    void waitsForTheWindow()
    {
        Window window;
        window.note.tell(u"Dein Spielfeld ist wieder da"_s);
        QTest::qWait(ShortNote::staysFor + 200);
        window.show();
        QVERIFY(window.note.isVisible());
        QTRY_VERIFY_WITH_TIMEOUT(window.note.isHidden(), ShortNote::staysFor + 2000);
    }
};

WORTEL_TEST(ShortNoteTest)
#include "tst_short_note.moc"
