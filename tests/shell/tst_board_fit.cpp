// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/test_class.h"
#include "support/test_house.h"
#include "widgets/colour.h"
#include "widgets/gradient.h"

#include <QAccessible>

using command::From;

namespace {

/// A window whose board was opened: some tiles lie where only a larger screen shows them.
struct House : TestHouse
{
    House(const QList<QPoint> &places = {{1500, 900}, {100, 100}})
    {
        form.show();
        settle();
        for (const QPoint &place : places)
            lay(wortelKind, place.x(), place.y(), u"fahr"_s);
    }
    void open(int answer)
    {
        t.boxes.willPress(answer);
        r.news.open();
        settle();
    }
    QPoint seenAt(QPoint onBoard) const { return r.canvas.view().toCanvas(onBoard); }
};

} // namespace

/// "Einpassen": tiles out of sight are seen, pressed and moved, and keep their places.
class BoardFitTest : public QObject
{
    Q_OBJECT

private slots:
    void offersWhatIsNotSeen_data()
    {
        columns<QPoint, bool>("place", "offers");
        QTest::newRow("within") << QPoint(300, 300) << false;
        QTest::newRow("a little beyond the edge") << QPoint(610, 300) << false;
        QTest::newRow("right") << QPoint(700, 300) << true;
        QTest::newRow("under the band") << QPoint(300, 545) << true;
        QTest::newRow("left") << QPoint(-400, 300) << true;
        QTest::newRow("above") << QPoint(300, -90) << true;
    }
    void offersWhatIsNotSeen()
    {
        QFETCH(QPoint, place);
        QFETCH(bool, offers);
        House house({place});
        if (offers)
            house.open(0);
        else
            house.r.fit.offer(); // an unexpected question fails
        QCOMPARE(house.r.fit.isOn(), offers);
        const cWortel &tile = *house.r.store.tiles().front();
        const QRect board(QPoint(), QSize(632, house.controls.Picture1->y()));
        QVERIFY(!offers || board.contains(QRect(house.seenAt({tile.xLeft(), tile.yTop()}),
                                                house.seenAt({tile.right(), tile.bottom()}))));
        QCOMPARE(QPoint(tile.xLeft(), tile.yTop()), place);
    }

    void saidNo()
    {
        House house;
        house.open(1);
        QVERIFY(!house.r.fit.isOn());
        house.run(From::MainMenu, 1513); // but the menu has it at any time
        QVERIFY(house.r.fit.isOn());
        house.run(From::MainMenu, 1513);
        QVERIFY(!house.r.fit.isOn());
    }

    void theHandMeetsWhatItSees()
    {
        House house;
        house.open(0);
        const QPoint middle = house.seenAt({1520, 912});
        const cWortel &far = *house.r.store.tiles().front();
        const QPoint edge = house.seenAt({far.right() - 4, far.yTop() + 12}); // behind the letters
        QCOMPARE(house.pixel(edge.x(), edge.y()), toQColor(colours::wortelBack));
        house.press(middle);
        QVERIFY(house.r.pointer.isHolding());
        QVERIFY(house.controls.BtnMove1->height() < 26);
        house.drag({200, 150});
        house.release({200, 150});
        const cWortel &moved = *house.r.store.tiles().front();
        QCOMPARE(house.seenAt({moved.xLeft(), moved.yTop()}), QPoint(200, 150));

        house.menu.choose = 0;
        house.click({205, 155}, Qt::RightButton);
        QCOMPARE(house.menu.lastName, MenuName::WortelMenu);
        QVERIFY((house.menu.lastPosition - house.controls.picCanvas->mapToGlobal(QPoint(205, 155)))
                    .manhattanLength() <= 2);
    }

    void keysAndReadersMeetWhatTheySee()
    {
        House house;
        house.open(0);
        house.form.show();
        house.form.activateWindow();
        house.controls.picCanvas->setFocus();
        TestHouse::settle();
        const cWortel &far = *house.r.store.tiles().front();
        house.r.focus.choose(&far);
        house.r.focus.setByKeys(true);
        const QPoint before(far.xLeft(), far.yTop());
        const QPoint seen = house.controls.picCanvas->mapToGlobal(house.seenAt(before));
        QAccessibleInterface *board = QAccessible::queryAccessibleInterface(house.controls.picCanvas);
        QCOMPARE(board->child(0)->rect().topLeft(), seen);
        QCOMPARE(board->childAt(seen.x() + 4, seen.y() + 4), board->child(0));
        QTest::keyClick(house.controls.picCanvas, Qt::Key_Left, Qt::ControlModifier);
        QCOMPARE(QPoint(far.xLeft(), far.yTop()), before - QPoint(10, 0));
    }

    void aNewTileLiesUnderThePointer()
    {
        House house;
        house.open(0);
        house.t.boxes.willType(u"neu"_s);
        house.click({400, 300}, Qt::LeftButton, Qt::ShiftModifier);
        const cWortel &tile = *house.r.store.tiles().back();
        QCOMPARE(tile.txt, u"neu"_s);
        const QPoint corner = house.seenAt({tile.xLeft(), tile.yTop()});
        QVERIFY2((corner - QPoint(400, 300)).manhattanLength() < 40, qPrintable(QString::number(corner.x())));
    }

    void theViewEndsWithItsReason_data()
    {
        columns<int, bool>("command", "stays");
        QTest::newRow("emptied") << 234 << false;
        QTest::newRow("capitals") << 235 << true;
        QTest::newRow("replaced by a board of this window") << 264 << false;
    }
    void theViewEndsWithItsReason()
    {
        QFETCH(int, command);
        House house;
        house.r.undo.ClearCollBuffer();
        house.open(0);
        house.t.options.setBox(Setting::ConfirmBeforeErase, 0);
        const QStringList before = house.described();
        house.run(From::MainMenu, command);
        QTEST(house.r.fit.isOn(), "stays");
        house.run(From::MainMenu, 2801);
        QCOMPARE(house.described(), before);
        QCOMPARE(house.trouble(), QString());
    }
};

WORTEL_TEST(BoardFitTest)
#include "tst_board_fit.moc"
