// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/registry.h"
#include "support/test_hand.h"
#include "widgets/dropper.h"
#include "widgets/floating_tile.h"

#include <QApplication>
#include <QPointingDevice>
#include <QtTest>

#include <random>

using namespace Qt::StringLiterals;

namespace {

constexpr QSize windowSize{1000, 720};
constexpr int mostTiles = 90; ///< beyond it the player clears the board: one command searches without a limit

/// Plays with everything the hand has, without any sense, but always the same for one seed.
class RandomPlayer
{
public:
    explicit RandomPlayer(unsigned seed)
        : hand(seed, windowSize)
        , random_(seed)
        , finger_(QTest::createTouchDevice())
    {
        hand.form.show();
        hand.t.options.setText(Setting::MaxTriesToPlace, u"1"_s);
        hand.placement->setTryLimit(400);
        for (QTimer *timer : hand.pointer.findChildren<QTimer *>())
            timer->setInterval(0);
        hand.t.pump.onYield = [this] { meddle(); };
        for (const command::Command &row : command::table())
            if (row.from != command::From::Key)
                ids_ << row.id;
        stockUp(200);
    }

    TestHand hand;
    QString last; ///< what was done last, for the report

    void step()
    {
        stockUp(4);
        if (hand.store->count() > mostTiles)
            hand.bulk->RefillWithSpecNum(below(5));
        switch (below(12)) {
        case 0:
        case 1:
        case 2:
            dragTile();
            break;
        case 3:
        case 4:
        case 5:
            chooseFromMenu();
            break;
        case 6:
            hand.click(anyPoint(), anyOf({Qt::LeftButton, Qt::RightButton, Qt::MiddleButton}), anyShift());
            last = u"click"_s;
            break;
        case 7:
            pressKey();
            break;
        case 8:
            pressButton();
            break;
        case 9:
            changeSetting();
            break;
        case 10:
            touch();
            break;
        default:
            changeMode();
        }
        QCoreApplication::processEvents(); // due timers
    }

    /// Empty if nothing is stuck, otherwise what is.
    QString stuck() const
    {
        for (const auto &tile : hand.store->tiles())
            if (tile->Selected)
                return u"a tile is still held"_s;
        if (hand.store->current() != nullptr)
            return u"there is a current tile"_s;
        if (!hand.controls.BtnMove1->isHidden())
            return u"the floating copy is still there"_s;
        if (hand.pointer.isDragging() || hand.controls.Dropper1->isHighlighted())
            return u"a drag goes on"_s;
        if (hand.surface->isLocked())
            return u"the board is frozen"_s;
        if (hand.modes.PlacingBusy)
            return u"a placement goes on"_s;
        if (QGuiApplication::overrideCursor() != nullptr)
            return u"the pointer is still the hourglass"_s;
        if (!hand.controls.Check2->isEnabled() || !hand.controls.Command3->isEnabled())
            return u"buttons are still disabled"_s;
        for (const TileKind &kind : tileKinds)
            if (hand.store->countOf(kind.back) != hand.optTypes->value(kind.filterIndex))
                return u"the counter of %1 says %2 for %3 tiles"_s
                    .arg(QString::fromUtf16(kind.styleWord), hand.optTypes->caption(kind.filterIndex))
                    .arg(hand.store->countOf(kind.back));
        return {};
    }

    /// Everything that hangs on the window, by class.
    QStringList objects() const
    {
        QStringList classes;
        for (const QObject *object : hand.form.findChildren<QObject *>())
            classes << QString::fromLatin1(object->metaObject()->className());
        return classes;
    }

private:
    int below(int bound) { return static_cast<int>(random_() % static_cast<unsigned>(bound)); }
    template <typename T> T anyOf(std::initializer_list<T> all)
    {
        return *(all.begin() + below(static_cast<int>(all.size())));
    }
    QPoint anyPoint() { return {below(windowSize.width() + 60) - 30, below(windowSize.height() + 60) - 30}; }
    Qt::KeyboardModifiers anyShift()
    {
        return anyOf<Qt::KeyboardModifiers>(
            {Qt::NoModifier, Qt::NoModifier, Qt::ShiftModifier, Qt::ControlModifier, Qt::AltModifier,
             Qt::ShiftModifier | Qt::ControlModifier, Qt::AltModifier | Qt::ShiftModifier});
    }
    QPoint pointOnTile()
    {
        if (hand.store->isEmpty())
            return anyPoint();
        const cWortel &tile = *hand.store->tiles()[static_cast<std::size_t>(below(hand.store->count()))];
        return {tile.xLeft() + 1 + below(std::max(1, tile.Extent() - 1)), tile.yTop() + 12};
    }

    /// Answers for whatever will be asked.
    void stockUp(int count)
    {
        for (int i = 0; i < count; ++i) {
            hand.t.boxes.willPress(below(2));
            hand.t.boxes.willBeRead(below(2));
            hand.t.boxes.willAnswer(anyOf({Boxes::Answer::Yes, Boxes::Answer::No, Boxes::Answer::Cancel}));
            hand.t.boxes.willType(anyOf<QString>({u""_s, u"neu"_s, u"Ä"_s, u"zwei Wörter"_s, u"a\tb\r\nc"_s,
                                                  u"\U0001F600\u202Eklein"_s, QString(10000, u'w')}));
        }
    }

    /// What can happen while a command lets events in: the mouse moves, a tile is touched, a filter is
    /// chosen.
    void meddle()
    {
        if (meddling_ || below(40) != 0)
            return;
        meddling_ = true;
        const QPoint point = pointOnTile();
        hand.press(point);
        hand.drag(anyPoint());
        if (below(2) == 0)
            hand.optTypes->select(below(4));
        hand.release(point);
        meddling_ = false;
    }

    void dragTile()
    {
        last = u"drag"_s;
        hand.press(pointOnTile());
        for (int i = below(4); i > 0; --i)
            hand.drag(anyPoint());
        QPoint end = anyPoint();
        const Dropper &field = *hand.controls.Dropper1;
        if (below(3) == 0)
            end = hand.controls.picCanvas->mapFromGlobal(field.mapToGlobal(field.rect().center()));
        hand.drag(end);
        if (below(8) == 0)
            QTest::keyClick(&hand.form, Qt::Key_Escape);
        if (below(8) == 0)
            hand.press(end, Qt::RightButton);
        hand.release(end);
    }

    void chooseFromMenu()
    {
        const bool onTile = below(2) == 0;
        hand.popup.choose = onTile ? anyOf({0, 104, 105, 106, 116, 118, 121, 123})
                                   : ids_.at(below(static_cast<int>(ids_.size())));
        last = u"menu %1"_s.arg(hand.popup.choose);
        hand.click(onTile ? pointOnTile() : QPoint(below(windowSize.width()), 560), Qt::RightButton);
    }

    void pressKey()
    {
        const auto key = static_cast<Qt::Key>(Qt::Key_A + below(26));
        last = u"key %1"_s.arg(key);
        QTest::keyClick(&hand.form, key, Qt::ControlModifier);
        QTest::keyClick(&hand.form, anyOf({Qt::Key_Escape, Qt::Key_F1, Qt::Key_Menu, Qt::Key_Tab}));
    }

    void pressButton()
    {
        last = u"button"_s;
        const int index = below(4);
        if (below(3) == 0)
            hand.controls.Option1[static_cast<std::size_t>(below(2))]->setChecked(true);
        else if (below(2) == 0)
            hand.optTypes->select(index);
        else
            hand.morphemeLists.OptType_MouseDown(index, anyOf({Qt::LeftButton, Qt::RightButton}));
        hand.controls.Text1->setText(
            anyOf<QString>({u""_s, u"-5"_s, u"abc"_s, u"7"_s, u"2.5"_s, u"99999"_s}));
    }

    void changeSetting()
    {
        const Setting box = anyOf({Setting::MoveableInFilter, Setting::ConfirmBeforeErase,
                                   Setting::NoOverlapOnStart, Setting::LCaseOnShuffle,
                                   Setting::SoundOnActions, Setting::GameSoundOnTimeOut, Setting::FillAffix});
        hand.t.options.setBox(box, below(3));
        hand.t.options.setText(Setting::ColumnsOnLineUp, anyOf<QString>({u"0"_s, u"1"_s, u"7"_s, u"-3"_s}));
        hand.t.options.setText(Setting::NumAffixToFill, anyOf<QString>({u""_s, u"0"_s, u"2"_s}));
        last = u"setting"_s;
    }

    /// A finger rests, and becomes the right button as its timer falls due, or lets go at once.
    void touch()
    {
        last = u"touch"_s;
        hand.popup.choose = anyOf({0, 106, 216});
        const QPoint point = pointOnTile();
        QWidget *board = hand.controls.picCanvas;
        QTest::touchEvent(board, finger_.get()).press(1, point);
        if (below(2) == 0)
            QCoreApplication::processEvents();
        if (below(2) == 0)
            QTest::touchEvent(board, finger_.get()).move(1, anyPoint());
        QTest::touchEvent(board, finger_.get()).release(1, point);
    }

    void changeMode()
    {
        last = u"mode"_s;
        Modes &modes = hand.modes;
        modes.MoveAllowed = below(6) != 0;
        modes.GameActive = below(4) == 0;
        modes.RetypeActive = !modes.GameActive && below(3) == 0;
        modes.CanUndo = below(2) == 0;
        modes.StopPlacing = below(5) == 0;
        hand.menus.CreateMenus();
    }

    std::mt19937 random_;
    std::unique_ptr<QPointingDevice> finger_;
    QList<int> ids_;
    bool meddling_ = false;
};

} // namespace

class RandomPlayerTest : public QObject
{
    Q_OBJECT

private slots:
    void play_data()
    {
        QTest::addColumn<unsigned>("seed");
        for (const unsigned seed : {1U, 2U, 3U, 4U})
            QTest::addRow("seed %u", seed) << seed;
    }
    void play()
    {
        QFETCH(unsigned, seed);
        RandomPlayer player(seed);
        constexpr int steps = 1000;
        constexpr int warmUp = 100; // widgets that are made when first needed
        QStringList objects;
        for (int i = 0; i < steps; ++i) {
            player.step();
            if (i == warmUp)
                objects = player.objects();
            // A stop that was asked for while a tile was held keeps it until the next press.
            player.hand.modes.MoveAllowed = true;
            if (player.hand.modes.StopPlacing)
                player.hand.click({2, 2}, Qt::LeftButton);
            const QString stuck = player.stuck();
            QVERIFY2(stuck.isEmpty(), qPrintable(u"step %1, %2: %3"_s.arg(i).arg(player.last, stuck)));
        }
        QCOMPARE(player.hand.t.boxes.unexpected, 0);
        player.hand.canvas->CanvasRedrawAll();
        QVERIFY(player.hand.countersEqualTiles());
        QStringList now = player.objects();
        for (const QString &object : objects)
            now.removeOne(object);
        QCOMPARE(now.join(u' '), QString());       // nothing was made and left behind
        QVERIFY(player.hand.commits > steps / 20); // it did play
    }
};

WORTEL_TEST(RandomPlayerTest)
#include "tst_random_player.moc"
