// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/registry.h"
#include "support/test_hand.h"

using namespace Qt::StringLiterals;

namespace {

/// A board of five tiles that has the keyboard.
struct KeyedBoard : TestHand
{
    KeyedBoard()
    {
        form.show();
        form.activateWindow();
        lay(prefix, 100, 100, u"ver"_s);
        lay(wortel, 200, 100, u"fahr"_s);
        lay(suffix, 300, 100, u"ung"_s);
        lay(wortel, 200, 200, u"lauf"_s);
        lay(wortel, 330, 215, u"halt"_s);
        r.undo.ClearCollBuffer();
        settle();
        controls.picCanvas->setFocus();
    }
    /// Keys by their names, divided by blanks; "*" before one holds it down for three repeats.
    void keys(const QString &names)
    {
        for (const QString &name : names.split(u' ', Qt::SkipEmptyParts)) {
            const QKeyCombination key = QKeySequence(QString(name).remove(u'*'))[0];
            QWidget *focus = form.focusWidget();
            const auto send = [&](QEvent::Type type, bool repeats) {
                QKeyEvent event(type, key.key(), key.keyboardModifiers(), QString(), repeats);
                QApplication::sendEvent(focus, &event);
            };
            send(QEvent::KeyPress, false);
            for (int i = 0; name.startsWith(u'*') && i < 3; ++i) {
                send(QEvent::KeyRelease, true);
                send(QEvent::KeyPress, true);
            }
            send(QEvent::KeyRelease, false);
        }
    }
    QString chosen() const
    {
        const cWortel *tile = r.focus.chosen();
        return tile == nullptr ? QString()
                               : u"%1,%2 %3"_s.arg(tile->xLeft()).arg(tile->yTop()).arg(tile->txt);
    }
    bool frameIsSeen() const { return !controls.picCanvas->frame().isEmpty(); }
};

using Act = std::function<void(KeyedBoard &)>;

} // namespace

class TileKeysTest : public QObject
{
    Q_OBJECT

private slots:
    // clang-format off
    void keysChoose_data()
    {
        QTest::addColumn<int>("filter");
        QTest::addColumn<QString>("keys");
        QTest::addColumn<QString>("chosen");
        const auto row = [](int filter, const char *keys, const char16_t *chosen) {
            QTest::addRow("%d %s", filter, keys)
                << filter << QString::fromLatin1(keys) << QString::fromUtf16(chosen);
        };
        row(3, "Right", u"100,100 ver"); // the first key only shows where it goes on
        row(3, "Right Right", u"200,100 fahr");
        row(3, "Right Right Down", u"200,200 lauf");
        row(3, "Right *Right", u"300,100 ung"); // and there it ends
        row(3, "Right Left Up", u"100,100 ver");
        row(3, "End", u"330,215 halt");
        row(3, "End Left Up PgDown", u"300,100 ung");
        row(3, "Home PgUp PgDown PgDown PgDown", u"200,200 lauf");
        row(0, "Right Left", u"200,100 fahr");
        row(2, "Down *Down", u"300,100 ung");
        row(3, "Right Esc", u"");
        row(3, "Right Ctrl+A Alt+Left", u"100,100 ver");
    }
    // clang-format on
    void keysChoose()
    {
        QFETCH(int, filter);
        QFETCH(QString, keys);
        QFETCH(QString, chosen);
        KeyedBoard board;
        board.optTypes->select(filter);
        board.keys(keys);
        QCOMPARE(board.chosen(), chosen);
        QCOMPARE(board.frameIsSeen(), !chosen.isEmpty());
        QCOMPARE(board.trouble(), QString());
    }

    // clang-format off
    void theChoiceStays_data()
    {
        QTest::addColumn<Act>("act");
        QTest::addColumn<QString>("chosen");
        const auto row = [](const char *name, const char16_t *chosen, const Act &act) {
            QTest::newRow(name) << act << QString::fromUtf16(chosen);
        };
        row("drawn anew", u"200,100 fahr", [](KeyedBoard &b) { b.canvas->CanvasRedrawAll(); });
        row("dragged", u"150,160 fahr", [](KeyedBoard &b) { b.press({210, 110}); b.drag({150, 160}); b.release({150, 160}); });
        row("another one goes", u"200,100 fahr", [](KeyedBoard &b) { b.canvas->CanvasEraseWortel({100, 100}, u"ver"_s, prefix.back); b.r.store.recount(); });
        row("it goes", u"", [](KeyedBoard &b) { b.canvas->CanvasEraseWortel({200, 100}, u"fahr"_s, wortel.back); b.r.store.recount(); });
        row("other text", u"200,100 neu", [](KeyedBoard &b) { b.canvas->EditObject({200, 100}, u"neu"_s, wortel.back); });
        row("put back by undo", u"200,100 fahr", [](KeyedBoard &b) { b.keys(u"Ctrl+A Ctrl+Z"_s); });
        row("hidden", u"", [](KeyedBoard &b) { b.optTypes->select(1); });
        row("an empty board", u"", [](KeyedBoard &b) { b.r.store.replaceAll({}); b.r.store.recount(); b.canvas->repaint(); b.keys(u"Left End *Del F2 Return Ctrl+Up"_s); });
    }
    // clang-format on
    void theChoiceStays()
    {
        QFETCH(Act, act);
        QFETCH(QString, chosen);
        KeyedBoard board;
        board.keys(u"Home Right"_s);
        act(board);
        QCOMPARE(board.chosen(), chosen);
        QCOMPARE(board.controls.picCanvas->frame().topLeft(),
                 board.frameIsSeen() ? board.r.focus.frame().topLeft() : QPoint());
        QCOMPARE(board.trouble(), QString());
    }

    void keysMove_data()
    {
        QTest::addColumn<QPoint>("from");
        QTest::addColumn<QString>("key");
        QTest::addColumn<QPoint>("to");
        QTest::newRow("a step") << QPoint(200, 100) << u"Ctrl+Right"_s << QPoint(210, 100);
        QTest::newRow("a fine step") << QPoint(200, 100) << u"Ctrl+Shift+Up"_s << QPoint(200, 99);
        QTest::newRow("held") << QPoint(200, 100) << u"*Ctrl+Down"_s << QPoint(200, 140);
        QTest::newRow("left edge") << QPoint(15, 100) << u"*Ctrl+Left"_s << QPoint(0, 100);
        QTest::newRow("right edge") << QPoint(595, 100) << u"*Ctrl+Right"_s << QPoint(602, 100);
        QTest::newRow("the band") << QPoint(300, 440) << u"*Ctrl+Down"_s << QPoint(300, 459);
        QTest::newRow("from beyond") << QPoint(900, 100) << u"Ctrl+Left"_s << QPoint(602, 100);
    }
    /// A run of moves is told once, when the key is let go.
    void keysMove()
    {
        QFETCH(QPoint, from);
        QFETCH(QString, key);
        QFETCH(QPoint, to);
        KeyedBoard board;
        board.r.store.tiles().front()->setXLeft(from.x());
        board.r.store.tiles().front()->setYTop(from.y());
        board.r.focus.choose(board.r.store.tiles().front().get());
        board.r.focus.setByKeys(true);
        board.keys(key);
        QCOMPARE(board.chosen(), u"%1,%2 ver"_s.arg(to.x()).arg(to.y()));
        QCOMPARE(board.moves, 1);
        QCOMPARE(board.commits, 0);
        QCOMPARE(board.trouble(), QString());
    }

    // clang-format off
    void keysAct_data()
    {
        QTest::addColumn<QString>("keys");
        QTest::addColumn<Act>("before");
        QTest::addColumn<QString>("outcome"); // number of tiles, chosen, the word
        const Act nothing = [](KeyedBoard &) {};
        const auto row = [](const char *keys, const Act &before, const char16_t *outcome) {
            QTest::newRow(keys) << QString::fromLatin1(keys) << before << QString::fromUtf16(outcome);
        };
        const Act agrees = [](KeyedBoard &b) { b.t.boxes.willPress(0); };
        row("Home Right *Del", agrees, u"4|100,100 ver|");
        row("Home Right  Del", [](KeyedBoard &b) { b.t.boxes.willPress(1); }, u"5|200,100 fahr|");
        row("*Del *Return *F2", nothing, u"5||"); // nothing is seen to be chosen
        row("Home F2", [](KeyedBoard &b) { b.t.boxes.willType(u"ge"_s); }, u"5|100,100 ge|");
        row("Home *Return Right *Space PgDown Enter", nothing, u"5|300,100 ung|verfahrung");
        row("Home  Return", [](KeyedBoard &b) { b.controls.Dropper1->setEnabled(false); }, u"5|100,100 ver|");
        row("Home *Menu", [](KeyedBoard &b) { b.menu.choose = 116; }, u"6|100,100 ver|");
        row("Home Right Shift+F10", [](KeyedBoard &b) { b.menu.choose = 106; }, u"5|200,100 Fahr|");
        row("Menu", [](KeyedBoard &b) { b.menu.choose = 216; }, u"6||");
    }
    // clang-format on
    void keysAct()
    {
        QFETCH(QString, keys);
        QFETCH(Act, before);
        QFETCH(QString, outcome);
        KeyedBoard board;
        before(board);
        board.keys(keys);
        QCOMPARE(
            u"%1|%2|%3"_s.arg(board.store->count()).arg(board.chosen(), board.controls.Dropper1->Caption()),
            outcome);
        QVERIFY(board.controls.picCanvas->hasFocus());
        QVERIFY(board.t.ok());
        board.controls.Dropper1->setEnabled(true);
        QCOMPARE(board.trouble(), QString());
    }

    void aPressHidesTheFrame()
    {
        KeyedBoard board;
        board.keys(u"Home"_s);
        board.click({310, 110}, Qt::LeftButton);
        QVERIFY(!board.frameIsSeen());
        board.keys(u"Del"_s); // only shows what is chosen
        QCOMPARE(board.store->count(), 5);
        QCOMPARE(board.chosen(), u"300,100 ung"_s);
        QVERIFY(board.frameIsSeen());
        board.controls.Dropper1->takeFocus();
        QVERIFY(!board.frameIsSeen());
    }
};

WORTEL_TEST(TileKeysTest)
#include "tst_tile_keys.moc"
