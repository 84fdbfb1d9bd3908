// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/keyed_hand.h"
#include "support/test_class.h"

namespace {

/// A board of five tiles.
struct KeyedBoard : KeyedHand
{
    KeyedBoard()
    {
        lay(prefix, 100, 100, u"ver"_s);
        lay(wortel, 200, 100, u"fahr"_s);
        lay(suffix, 300, 100, u"ung"_s);
        lay(wortel, 200, 200, u"lauf"_s);
        lay(wortel, 330, 215, u"halt"_s);
        r.undo.ClearCollBuffer();
    }
    void dragFahr()
    {
        press({210, 110});
        drag({150, 160});
        release({150, 160});
    }
    void moveFrom(int x, int y, const QString &key)
    {
        store->tiles().front()->setXLeft(x);
        store->tiles().front()->setYTop(y);
        keys(u"Home"_s);
        r.focus.choose(store->tiles().front().get());
        keys(key);
    }
    /// How many tiles lie there, the chosen one, the word, and the moves that were told.
    QString outcome() const
    {
        const cWortel *tile = r.focus.chosen();
        const QString chosen =
            tile == nullptr ? QString() : u"%1,%2 %3"_s.arg(tile->xLeft()).arg(tile->yTop()).arg(tile->txt);
        return u"%1|%2|%3|%4"_s.arg(store->count()).arg(chosen, controls.Dropper1->Caption()).arg(moves);
    }
};

using Act = void (*)(KeyedBoard &);
struct Row
{
    const char *name;
    Act act;
    const char16_t *outcome;
};

// clang-format off
#define ACT(...) [](KeyedBoard &b) { __VA_ARGS__; }
#define KEYS(names) names, ACT(b.keys(QStringLiteral(names)))
const Row rows[] = {
    {KEYS("Right"), u"5|100,100 ver||0"}, // the first key only shows where it goes on
    {KEYS("Right Right Down"), u"5|200,200 lauf||0"},
    {KEYS("Right *Right"), u"5|300,100 ung||0"}, // and there it ends
    {KEYS("Right Left Up"), u"5|100,100 ver||0"},
    {KEYS("End Left Up PgDown"), u"5|300,100 ung||0"},
    {KEYS("Home PgUp PgDown PgDown PgDown"), u"5|200,200 lauf||0"},
    {KEYS("Right Alt+Right"), u"5|100,100 ver||0"},
    {KEYS("Right Esc"), u"5|||0"},
    {"stems only", ACT(b.optTypes->select(0), b.keys(u"Right Left"_s)), u"5|200,100 fahr||0"},
    {"suffixes only", ACT(b.optTypes->select(2), b.keys(u"Down *Down"_s)), u"5|300,100 ung||0"},
    {"drawn anew", ACT(b.keys(u"Home Right"_s), b.canvas->CanvasRedrawAll()), u"5|200,100 fahr||0"},
    {"dragged", ACT(b.keys(u"Home"_s), b.dragFahr(), b.keys(u"F2"_s)), u"5|150,160 fahr||1"}, // F2 only shows it
    {"another one goes", ACT(b.t.boxes.willPress(0), b.keys(u"Home Right"_s), b.run(command::From::TileMenu, 105, {110, 110})), u"4|200,100 fahr||0"},
    {"it goes", ACT(b.t.boxes.willPress(0), b.keys(u"Home Right"_s), b.run(command::From::TileMenu, 105, {210, 110})), u"4|||0"},
    {"other text", ACT(b.keys(u"Home Right"_s), b.canvas->EditObject({200, 100}, u"neu"_s, wortel.back)), u"5|200,100 neu||0"},
    {KEYS("Home Right Ctrl+A Ctrl+Z Ctrl+Y"), u"6|200,100 fahr||0"},
    {"hidden", ACT(b.keys(u"Home Right"_s), b.optTypes->select(1)), u"5|||0"},
    {"an empty board", ACT(b.keys(u"Home"_s), b.store->replaceAll({}), b.store->recount(), b.canvas->repaint(), b.keys(u"Left End *Del F2 Return Ctrl+Up"_s)), u"0|||0"},
    // Moving: a run is told once
    {"a step", ACT(b.moveFrom(200, 100, u"Ctrl+Right"_s)), u"5|210,100 ver||1"},
    {"a fine step", ACT(b.moveFrom(200, 100, u"Ctrl+Shift+Up"_s)), u"5|200,99 ver||1"},
    {"left edge", ACT(b.moveFrom(15, 100, u"*Ctrl+Left"_s)), u"5|0,100 ver||1"},
    {"right edge", ACT(b.moveFrom(595, 100, u"*Ctrl+Right"_s)), u"5|602,100 ver||1"},
    {"the band", ACT(b.moveFrom(300, 440, u"*Ctrl+Down"_s)), u"5|300,459 ver||1"},
    {"from beyond", ACT(b.moveFrom(900, 100, u"Ctrl+Left"_s)), u"5|602,100 ver||1"},
    // Acting, once however long a key is held
    {"removed", ACT(b.t.boxes.willPress(0), b.keys(u"Home Right *Del"_s)), u"4|100,100 ver||0"},
    {"not removed", ACT(b.t.boxes.willPress(1), b.keys(u"Home Right Del"_s)), u"5|200,100 fahr||0"},
    {KEYS("*Del *Return *F2 *Ctrl+Up"), u"5|||0"}, // nothing is seen to be chosen
    {"edited", ACT(b.t.boxes.willType(u"ge"_s), b.keys(u"Home F2"_s)), u"5|100,100 ge||0"},
    {KEYS("Home *Return Right *Space PgDown Enter"), u"5|300,100 ung|verfahrung|0"},
    {"no word is taken", ACT(b.controls.Dropper1->setEnabled(false), b.keys(u"Home Return"_s), b.controls.Dropper1->setEnabled(true)), u"5|100,100 ver||0"},
    {"copied by menu", ACT(b.menu.choose = 116, b.keys(u"Home *Menu"_s)), u"6|100,100 ver||0"},
    {"changed by menu", ACT(b.menu.choose = 106, b.keys(u"Home Right Shift+F10"_s)), u"5|200,100 Fahr||0"},
    {"board's menu", ACT(b.menu.choose = 216, b.keys(u"Menu"_s)), u"6|||0"},
};
// clang-format on

} // namespace

class TileKeysTest : public QObject
{
    Q_OBJECT

private slots:
    void keysOnTheBoard_data()
    {
        columns<Act, QString>("act", "outcome");
        for (const Row &row : rows)
            QTest::newRow(row.name) << row.act << QString::fromUtf16(row.outcome);
    }
    void keysOnTheBoard()
    {
        QFETCH(Act, act);
        KeyedBoard board;
        act(board);
        QTEST(board.outcome(), "outcome");
        QCOMPARE(board.controls.picCanvas->frame(), board.r.focus.frame());
        QCOMPARE(board.trouble(), QString());
    }
};

WORTEL_TEST(TileKeysTest)
#include "tst_tile_keys.moc"
