// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "language/chooser/frm_choose_wortel.h"
#include "language/chooser/mark_list.h"
#include "platform/work.h"
#include "support/test_class.h"
#include "support/test_house.h"

#include <QPointingDevice>
#include <QStyleHints>

namespace {

constexpr int holdTime = 120; ///< milliseconds
constexpr int longer = 3 * holdTime;
constexpr QPoint onTile{110, 110};

/// A house with everything in sight that a hand can press.
struct PressHouse : TestHouse
{
    PressHouse()
    {
        form.show();
        lay(wortelKind, 100, 100, u"fahr"_s);
        lists.CorrectWordList.add(u"Haus"_s);
        controls.CorrectWordList->setGeometry(200, 200, 100, 100);
        controls.CorrectWordList->show();
        controls.Scroller->setEnabled(true);
        controls.Scroller->move(0, 300);
        controls.Scroller->show();
        QObject::connect(controls.Scroller, &MsgScroller::mouseDown, &form,
                         [this](const QMouseEvent *event) { rights += event->button() == Qt::RightButton; });
        QObject::connect(controls.Scroller, &MsgScroller::clicked, &form, [this] { ++lefts; });
        t.fileDialogs.willOpen({});
        t.mayLeaveAnswers = true;
        settle();
    }
    void hand(QTest::MouseAction action, QWidget *on, const QPoint &at, bool finger = true)
    {
        if (!finger)
            return QTest::mouseEvent(action, on, Qt::LeftButton, {}, at);
        auto touch = QTest::touchEvent(on, screen.get());
        action == QTest::MousePress  ? touch.press(1, at, on)
        : action == QTest::MouseMove ? touch.move(1, at, on)
                                     : touch.release(1, at, on);
    }

    std::unique_ptr<QPointingDevice> screen{QTest::createTouchDevice()};
    frmChooseWortel chooser{t.ground, lists, r.loader};
    MarkList &stems = *chooser.controls().morphemes[ChooserControls::Stem].list;
    int lefts = 0, rights = 0; ///< of the strip
};

/// What is pressed, and whether its actions have come. Without a right one a slow press is the left one.
struct Kind
{
    const char *name;
    QWidget *(*widget)(PressHouse &);
    bool (*right)(PressHouse &);
    bool (*left)(PressHouse &);
};
using H = PressHouse;
bool menuIsOpen(H &) { return QApplication::activePopupWidget() != nullptr; }
// clang-format off
const Kind kinds[] = {
    {"board", [](H &h) -> QWidget * { return h.controls.picCanvas; }, [](H &h) { return h.menu.shown == 1; }, nullptr},
    {"filter", [](H &h) -> QWidget * { return h.controls.OptType[1]; }, [](H &h) { return h.controls.PrefixList->isVisible(); }, [](H &h) { return h.controls.OptType[1]->isChecked(); }},
    {"tool", [](H &h) -> QWidget * { return h.controls.Command3; }, [](H &h) { return h.t.fileDialogs.asked.size() == 1; }, [](H &h) { return h.controls.LexiconList->isVisible(); }},
    {"tool of one use", [](H &h) -> QWidget * { return h.controls.Option2[2]; }, nullptr, [](H &h) { return h.controls.Option2[2]->isChecked(); }},
    {"list", [](H &h) { return h.controls.CorrectWordList->viewport(); }, menuIsOpen, nullptr},
    {"strip", [](H &h) -> QWidget * { return h.controls.Scroller; }, [](H &h) { return h.rights == 1; }, [](H &h) { return h.lefts == 1; }},
    {"chooser", [](H &h) { h.chooser.show(); return h.stems.viewport(); }, menuIsOpen, [](H &h) { return h.stems.markedCount() == 1; }},
};
// clang-format on

} // namespace

class LongPressTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { QGuiApplication::styleHints()->setMousePressAndHoldInterval(holdTime); }
    void cleanupTestCase() { QGuiApplication::styleHints()->setMousePressAndHoldInterval(-1); }

    void aPressIs_data()
    {
        QTest::addColumn<int>("kind");
        QTest::addColumn<int>("way");
        for (int kind = 0; kind < static_cast<int>(std::size(kinds)); ++kind)
            for (int way = 0; way < 8; ++way)
                QTest::addRow("%s, %s%s%s", kinds[kind].name, way & 1 ? "finger" : "mouse",
                              way & 2 ? ", option" : "", way & 4 ? ", held" : "")
                    << kind << way;
    }

    /// The right press comes while the hand still holds, and the release does nothing more.
    void aPressIs()
    {
        QFETCH(int, kind);
        QFETCH(int, way);
        const Kind &row = kinds[kind];
        PressHouse h;
        h.t.options.setBox(Setting::LongPressIsRight, way & 2 ? 1 : 0);
        const bool isRight = row.right != nullptr && (way & 4) != 0 && (way & 3) != 0;
        h.hand(QTest::MousePress, row.widget(h), {9, 9}, way & 1);
        QTest::qWait(way & 4 ? longer : 0);
        QVERIFY(row.right == nullptr || row.right(h) == isRight);
        if (QWidget *popup = QApplication::activePopupWidget())
            popup->close();
        h.hand(QTest::MouseRelease, row.widget(h), {9, 9}, way & 1);
        QVERIFY(row.left == nullptr || row.left(h) == !isRight);
    }

    /// What fingers do is tried with the board.
    void aMouseThatMovesDragsAndOneThatTremblesDoesNot()
    {
        PressHouse h;
        QWidget *board = h.controls.picCanvas;
        h.t.options.setBox(Setting::LongPressIsRight, 1);
        for (const auto &[to, place] :
             {std::pair{QPoint(114, 113), u"100,100 fahr"_s}, {QPoint(200, 190), u"200,190 fahr"_s}}) {
            h.hand(QTest::MousePress, board, onTile, false);
            h.hand(QTest::MouseMove, board, to, false);
            QTest::qWait(longer);
            h.hand(QTest::MouseRelease, board, to, false);
            QCOMPARE(h.menu.shown, 1);
            QCOMPARE(h.described(), QStringList(place));
        }
    }

    /// Neither a command nor a work is entered; a press that outlasts a command counts. A second finger is
    /// nobody.
    void whatRunsIsNotEntered()
    {
        PressHouse h;
        QWidget *board = h.controls.picCanvas;
        for (const int menus : {0, 1}) {
            h.hand(QTest::MousePress, board, onTile);
            QTest::touchEvent(board, h.screen.get()).move(1, onTile, board).press(2, {400, 100}, board);
            auto command = std::make_unique<Gate::Passage>(h.gate.stay());
            QTest::qWait(longer);
            command.reset();
            if (menus == 0)
                QTest::touchEvent(board, h.screen.get())
                    .release(1, onTile, board)
                    .release(2, {400, 100}, board);
            QTest::qWait(longer);
            QCOMPARE(h.menu.shown, menus);
        }
        QCOMPARE(h.menu.lastPosition, board->mapToGlobal(onTile));
        QTest::touchEvent(board, h.screen.get()).release(1, onTile, board).release(2, {400, 100}, board);
        const Work work(h.t.ground, {WorkPlan::Cancel, 1});
        for (QWidget *pressed : {board, static_cast<QWidget *>(h.controls.Command3)}) {
            h.hand(QTest::MousePress, pressed, {9, 9});
            QTest::qWait(longer);
            h.hand(QTest::MouseRelease, pressed, {9, 9});
        }
        QVERIFY(h.menu.shown == 1 && h.t.fileDialogs.asked.isEmpty());
    }

    void theBandHasAMenu()
    {
        PressHouse h;
        h.menu.choose = 216;
        h.tool(h.controls.CmdMenu);
        QVERIFY(h.texts().size() > 1); // what was chosen was done
        QTest::keyClick(&h.form, Qt::Key_F10);
        QCOMPARE(h.menu.shown, 2);
    }
};

WORTEL_TEST(LongPressTest)
#include "tst_long_press.moc"
