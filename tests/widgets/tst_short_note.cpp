// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/test_class.h"
#include "widgets/short_note.h"

namespace {

struct Window : QWidget
{
    QWidget board{this}, band{this};
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
    // clang-format off
    void makesRoom_data()
    {
        columns<QList<QRect>, bool, int>("open", "onBand", "texts"); // what lies over the board; whether the note keeps its row; how long it is
        QTest::newRow("a list in the middle") << QList<QRect>{{300, 160, 190, 260}} << true << 1;
        QTest::newRow("a list in the middle, a long note") << QList<QRect>{{300, 160, 190, 260}} << false << 2;
        QTest::newRow("three lists at the left") << QList<QRect>{{0, 120, 66, 300}, {66, 120, 84, 300}, {150, 120, 66, 300}} << true << 1;
        QTest::newRow("the strip across") << QList<QRect>{{0, 378, 800, 42}} << false << 1;
        QTest::newRow("strip and report") << QList<QRect>{{0, 378, 800, 42}, {31, 300, 350, 140}} << false << 1;
        QTest::newRow("the tip over all of it") << QList<QRect>{{0, 0, 800, 420}} << true << 1;
    }
    // clang-format on
    void makesRoom()
    {
        QFETCH(QList<QRect>, open);
        QFETCH(int, texts);
        Window window;
        std::vector<std::unique_ptr<QWidget>> others;
        for (const QRect &rect : open) {
            others.push_back(std::make_unique<QWidget>(&window));
            others.back()->setGeometry(rect);
        }
        window.show();
        const QString text = u"Deine Wörterliste ist leer "_s.repeated(texts).trimmed();
        window.note.tell(text);
        const QRect place = window.note.geometry();
        QVERIFY(place.width() > window.note.fontMetrics().horizontalAdvance(text));
        QVERIFY(QRect(0, 0, 800, 420).contains(place));
        QTEST(place.bottom() > 405, "onBand");
        for (const QRect &rect : open)
            QVERIFY(!place.intersects(rect) || rect.height() == 420);
        others.back()->hide(); // it looks again
        QVERIFY(open.size() > 1 || window.note.geometry().center().x() == 399);
    }

    /// A box of its own window that stands over the band does not hide it.
    void makesRoomForABox()
    {
        Window window;
        window.show();
        QWidget box(&window, Qt::Dialog | Qt::FramelessWindowHint);
        box.setWindowModality(Qt::ApplicationModal);
        box.setGeometry(QRect(window.mapToGlobal(QPoint(250, 250)), QSize(300, 200)));
        box.show();
        window.note.tell(u"Die neue Größe gilt, sobald dieses Fenster geschlossen ist"_s);
        const QRect place = window.note.geometry();
        QVERIFY(!place.intersects({250, 250, 300, 200}) && place.width() > 400);
    }

    /// Told before the window is seen, it still has its time; then it is in nobody's way.
    void comesAndGoes()
    {
        Window window;
        window.note.tell(u"Eine sehr lange Notiz\nin zwei Zeilen "_s.repeated(20));
        QTest::qWait(ShortNote::staysFor + 200);
        window.show();
        const QRect place = window.note.geometry();
        QVERIFY(window.note.isVisible() && place.width() <= 800 && place.height() < 60);
        QCOMPARE(window.childAt(place.center()), &window.board);
        window.note.tell(u"<b>Kurz</b>"_s);
        QCOMPARE(window.note.text(), u"<b>Kurz</b>"_s);
        QTRY_VERIFY_WITH_TIMEOUT(window.note.isHidden(), ShortNote::staysFor + 2000);
    }
};

WORTEL_TEST(ShortNoteTest)
#include "tst_short_note.moc"
