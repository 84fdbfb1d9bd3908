// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "dialogs/report_window.h"
#include "persistence/backup.h"
#include "platform/files.h"
#include "platform/minute_timer.h"
#include "support/test_class.h"
#include "support/test_hand.h"

#include <QDialog>

#include <algorithm>
#include <random>

namespace {

constexpr QSize windowSize{790, 720};
constexpr int mostTiles = 90;    ///< beyond it the player clears the board
constexpr int patience = 20'000; ///< rounds of one work before the hand always cancels

/// Commands that leave the texts on the board as they are, but for their case.
constexpr std::array keepTexts{105, 108, 235, 236, 241, 261, 264, 308, 1501, 1502, 1504, 1505};

/// Plays the whole house with everything a hand and the system have, without any sense, but always the same
/// for one seed: while works run, too, and until it closes; then it moves into a new house.
class RandomPlayer
{
public:
    explicit RandomPlayer(unsigned seed)
        : random_(seed)
    {
        for (const command::Command &row : command::table())
            if (row.from != command::From::Key)
                ids_ << row.id;
        QObject::connect(&modal_, &QTimer::timeout, &modal_, [this] { pokeAtDialog(); });
        modal_.start(0);
        moveIn();
    }

    QString last; ///< what was done last, for the report
    int commits = 0;
    int houses = 0;

    /// One thing, and what it brings. Empty if nothing is wrong afterwards, otherwise what is.
    QString step()
    {
        stockUp();
        rounds_ = cancels_ = 0;
        last.clear();
        if (hand_->store->count() > mostTiles)
            hand_->bulk->RefillWithSpecNum(below(5));
        const QStringList before = sortedTexts();
        const qsizetype askedBefore = asked();
        const int kept = act();
        const QStringList after = sortedTexts();
        if (kept != 0 && !std::includes(before.begin(), before.end(), after.begin(), after.end()))
            return u"tiles are doubled"_s;
        const bool givenUp = kept == 1505 && (cancels_ > 0 || asked() > askedBefore);
        if (kept != 0 && !givenUp && after != before)
            return u"tiles are lost: %1 of %2"_s.arg(after.size()).arg(before.size());
        for (ReportWindow *report : hand_->form.findChildren<ReportWindow *>())
            if (report->isVisible())
                emit report->closePressed();
        hand_->settle();
        return hand_->gate.isClosing() ? moveOut() : hand_->trouble();
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
        if (hand_->store->isEmpty())
            return anyPoint();
        const cWortel &tile = *hand_->store->tiles()[static_cast<std::size_t>(below(hand_->store->count()))];
        return {tile.xLeft() + 1 + below(std::clamp(tile.Extent() - 1, 1, 100)), tile.yTop() + 12};
    }
    QStringList sortedTexts() const
    {
        QStringList texts = hand_->texts();
        for (QString &text : texts)
            text = text.toLower();
        texts.sort();
        return texts;
    }
    qsizetype asked() const { return hand_->t.boxes.asked.size() + hand_->t.fileDialogs.asked.size(); }

    void moveIn()
    {
        ++houses;
        hand_ = std::make_unique<TestHand>(random_(), windowSize);
        TestGround &t = hand_->t;
        t.mayLeaveAnswers = true;
        t.store.SaveSetting(u"Settings"_s, u"UseBackup"_s, below(3) == 0 ? u"1"_s : u"0"_s);
        hand_->placement->setTryLimit(400);
        for (QTimer *timer : hand_->pointer.findChildren<QTimer *>())
            timer->setInterval(0);
        session_ = t.AppFolder + u"spiel.wlx"_s;
        hand_->bulk->RefillWithSpecNum(30);
        hand_->r.sessions.SaveObjects(session_);
        t.pump.waiting = true;
        t.pump.onServe = [this] { meddle(); };
        t.pump.onYield = [this] {
            if (below(100) == 0)
                comeFromOutside();
        };
        t.boxes.whileOpen = [this](const Question &) { meddle(); };
        QObject::connect(&hand_->gate, &Gate::closeRequested, &hand_->form,
                         [this] { askedAtClosing_ = asked(); });
        hand_->form.show();
        hand_->form.activateWindow();
    }

    /// After closing nothing more was asked or told, and no backup waits for the next start.
    QString moveOut()
    {
        const bool silent = askedAtClosing_ == asked();
        const bool ended = !hand_->form.isVisible() && hand_->store->isEmpty() && hand_->gate.isFree() &&
                           QGuiApplication::overrideCursor() == nullptr;
        const bool backup = QFile::exists(nativePath(Backup::file(hand_->t.ground)));
        commits += hand_->commits;
        moveIn();
        return !silent  ? u"something was told after closing"_s
               : !ended ? u"the window has not closed"_s
               : backup ? u"a backup is left"_s
                        : QString();
    }

    /// Answers for whatever will be asked.
    void stockUp()
    {
        TestGround &t = hand_->t;
        for (int i = 0; i < 4; ++i) {
            const auto text = anyOf<QString>({u""_s, u"neu"_s, u"Ä"_s, u"zwei Wörter"_s, u"a\tb\r\nc"_s,
                                              u"\U0001F600\u202Eklein"_s, QString(10000, u'w')});
            t.boxes.willPress(below(2));
            t.boxes.willBeRead(below(2));
            t.boxes.willAnswer(anyOf({Boxes::Answer::Yes, Boxes::Answer::No, Boxes::Answer::Cancel}));
            t.boxes.willType(text);
            t.boxes.willTypeWord(text);
            t.boxes.willEnterName(text);
            t.boxes.willCloseScores();
            t.fileDialogs.willOpen(
                anyOf<QStringList>({{}, {session_}, {t.AppFolder + u"text\\Hauptbausteine.Txt"_s}}));
            t.fileDialogs.willSave(anyOf<QString>({{}, session_}));
        }
    }

    /// What can happen while a work lets a hand in, or a box stands: anything, and now and then the end of
    /// it.
    void meddle()
    {
        if (++rounds_ > patience)
            cancel();
        if (meddling_ || below(8) != 0)
            return;
        meddling_ = true;
        switch (below(8)) {
        case 0:
            cancel();
            break;
        case 1:
            key(Qt::Key_Escape);
            break;
        case 2:
            QCoreApplication::processEvents();
            break;
        case 3:
            comeFromOutside();
            break;
        default:
            act();
        }
        meddling_ = false;
    }

    void cancel()
    {
        ++cancels_;
        QTest::mouseClick(hand_->controls.Label4, Qt::LeftButton);
    }

    void pokeAtDialog()
    {
        if (QWidget *popup = QApplication::activePopupWidget())
            popup->close();
        auto *dialog = qobject_cast<QDialog *>(QApplication::activeModalWidget());
        if (dialog == nullptr)
            return;
        meddle();
        below(10) == 0 ? void(hand_->form.close()) : dialog->reject();
    }

    /// One thing that comes from a hand or from outside. 0 if it may change the texts, otherwise the number
    /// of its command or 1.
    int act()
    {
        using P = RandomPlayer;
        constexpr std::array actions{
            &P::dragTile,       &P::dragTile,       &P::dragTile, &P::chooseFromMenu, &P::chooseFromMenu,
            &P::chooseFromMenu, &P::chooseFromMenu, &P::click,    &P::pressKey,       &P::pressTool,
            &P::pressTool,      &P::changeSetting,  &P::touch,    &P::comeFromOutside};
        return (this->*actions.at(static_cast<std::size_t>(below(int(actions.size())))))();
    }

    /// What needs no hand: a second start, another size, another window, the end.
    int comeFromOutside()
    {
        last += u" outside"_s;
        QEvent activation(QEvent::ActivationChange);
        switch (below(10)) {
        case 0:
            ++cancels_;
            hand_->form.close();
            break;
        case 1:
        case 2:
            hand_->form.HiddenText_Change(anyOf<QString>({session_, u"/L fehlt.wlx"_s, {}}));
            break;
        case 3:
            hand_->form.resize(windowSize - QSize(below(300), below(200)));
            break;
        case 4:
        case 5:
            hand_->t.clock.moment = hand_->t.clock.moment.addSecs(60LL * below(10));
            for (MinuteTimer *timer : hand_->r.game.findChildren<MinuteTimer *>())
                timer->look();
            break;
        default:
            QCoreApplication::sendEvent(&hand_->form, &activation);
        }
        return 1;
    }

    int dragTile()
    {
        last += u" drag"_s;
        const QPoint field = hand_->controls.Dropper1->mapTo(&hand_->form, QPoint(20, 10));
        const QPoint end = below(3) == 0 ? field : anyPoint();
        hand_->popup.choose = 0;
        hand_->press(pointOnTile());
        for (int i = below(4); i > 0; --i)
            hand_->drag(anyPoint());
        hand_->drag(end);
        if (below(8) == 0)
            key(Qt::Key_Escape);
        if (below(8) == 0)
            hand_->press(end, Qt::RightButton);
        hand_->release(end);
        return 1;
    }

    int chooseFromMenu()
    {
        const bool onTile = below(3) == 0;
        const int id = onTile ? anyOf({0, 104, 105, 106, 116, 118, 121, 123})
                       : below(2) == 0
                           ? anyOf({201, 213, 222, 223, 241, 241, 402, 1505, 1505, 1522, 1601, 1607})
                           : ids_.at(below(static_cast<int>(ids_.size())));
        hand_->popup.choose = id;
        last += u" menu %1"_s.arg(id);
        // No tile lies in the last row of pixels.
        hand_->click(onTile ? pointOnTile() : QPoint(below(windowSize.width()), windowSize.height() - 1),
                     Qt::RightButton);
        return !onTile && std::ranges::find(keepTexts, id) != keepTexts.end() ? id : 0;
    }

    int click()
    {
        last += u" click"_s;
        hand_->click(anyPoint(), anyOf({Qt::LeftButton, Qt::RightButton, Qt::MiddleButton}), anyShift());
        return 0;
    }

    void key(Qt::Key code, Qt::KeyboardModifiers modifiers = {})
    {
        cancels_ += code == Qt::Key_Escape ? 1 : 0;
        QWidget *focus = hand_->form.focusWidget();
        QTest::keyClick(focus != nullptr ? focus : &hand_->form, code, modifiers);
    }

    int pressKey()
    {
        const auto letter = static_cast<Qt::Key>(Qt::Key_A + below(26));
        last += u" key %1"_s.arg(QChar(letter));
        hand_->popup.choose = 0;
        key(letter, Qt::ControlModifier);
        key(anyOf({Qt::Key_Escape, Qt::Key_F1, Qt::Key_Menu, Qt::Key_Tab, Qt::Key_Return, Qt::Key_X}));
        return letter == Qt::Key_B || letter == Qt::Key_D || letter == Qt::Key_F ? 1 : 0;
    }

    int pressTool()
    {
        const QList<PressButton *> tools = hand_->form.findChildren<PressButton *>();
        PressButton *tool = tools.at(below(static_cast<int>(tools.size())));
        last += u' ' + tool->objectName();
        hand_->controls.Text1->setText(
            anyOf<QString>({u""_s, u"-5"_s, u"abc"_s, u"99999"_s, u"25"_s, u"40.5"_s}));
        if (tool->isVisible())
            hand_->tool(tool, anyOf({Qt::LeftButton, Qt::LeftButton, Qt::RightButton}), anyShift());
        return 0;
    }

    int changeSetting()
    {
        last += u" setting"_s;
        Options &options = hand_->t.options;
        options.setBox(anyOf({Setting::MoveableInFilter, Setting::ConfirmBeforeErase,
                              Setting::NoOverlapOnStart, Setting::LCaseOnShuffle, Setting::SoundOnActions,
                              Setting::GameSoundOnTimeOut, Setting::FillAffix}),
                       below(3));
        options.setText(Setting::ColumnsOnLineUp, anyOf<QString>({u"0"_s, u"1"_s, u"7"_s, u"-3"_s}));
        options.setText(Setting::NumAffixToFill, anyOf<QString>({u""_s, u"0"_s, u"2"_s}));
        return 1;
    }

    /// A finger rests, and becomes the right button as its timer falls due, or lets go at once.
    int touch()
    {
        last += u" touch"_s;
        hand_->popup.choose = anyOf({0, 106, 216});
        const QPoint point = pointOnTile();
        QWidget *board = hand_->controls.picCanvas;
        if (!board->rect().contains(point))
            return 0;
        QTest::touchEvent(board, finger_.get()).press(1, point);
        if (below(2) == 0)
            QCoreApplication::processEvents();
        if (below(2) == 0)
            QTest::touchEvent(board, finger_.get()).move(1, anyPoint());
        QTest::touchEvent(board, finger_.get()).release(1, point);
        return 0;
    }

    std::mt19937 random_;
    std::unique_ptr<TestHand> hand_;
    std::unique_ptr<QPointingDevice> finger_{QTest::createTouchDevice()};
    QTimer modal_;
    QList<int> ids_;
    QString session_;
    bool meddling_ = false;
    int rounds_ = 0;
    int cancels_ = 0;
    qsizetype askedAtClosing_ = 0;
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
        constexpr int steps = 600;
        for (int i = 0; i < steps; ++i) {
            const QString wrong = player.step();
            if (!wrong.isEmpty() || QTest::currentTestFailed())
                QFAIL(qPrintable(u"step %1,%2: %3"_s.arg(i).arg(player.last, wrong)));
        }
        // It did play.
        QVERIFY2(player.commits > steps / 40 && player.houses > 2,
                 qPrintable(u"%1 commits, %2 houses"_s.arg(player.commits).arg(player.houses)));
    }
};

WORTEL_TEST(RandomPlayerTest)
#include "tst_random_player.moc"
