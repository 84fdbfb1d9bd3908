// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "games/retype/retype_desk.h"
#include "support/test_class.h"
#include "support/tool_states.h"

namespace {

using Act = void (*)(Desk &);

constexpr Act none = [](Desk &) {};
constexpr Act words = [](Desk &d) { d.fillList(); };
constexpr Act tiles = [](Desk &d) { d.layTiles(); };
constexpr Act noLexicon = [](Desk &d) { d.layTiles(), d.lists.LexiconList.clear(); };
constexpr Act left = [](Desk &d) { d.left(); };
constexpr Act right = [](Desk &d) { d.right(); };
constexpr Act nonsense = [](Desk &d) { d.nonsense(); };
constexpr Act everyButton = [](Desk &d) { d.left(), d.nonsense(), d.left(); };
constexpr Act cancel = [](Desk &d) { QTest::mouseClick(d.controls.Label4, Qt::LeftButton); };
constexpr Act copyAll = [](Desk &d) { d.copyAll(); };

template <int id> void menu(Desk &d) { d.run(command::From::MainMenu, id); }

template <int box> void vowels(Desk &d)
{
    d.fillVowels();
    d.controls.ChkVokal[box]->setChecked(true);
}

template <Setting setting, int count> void tilesFor(Desk &d)
{
    d.layTiles();
    d.t.options.setText(setting, QString::number(count));
}

/// A way through the mode, from off to off: the lists and tiles, what comes at which yield of the
/// preparation, the start, and what follows in the mode that then runs. `answer` is that of a box.
struct Way
{
    const char *name;
    Act lay;
    int yield;
    Act meanwhile;
    Act start;
    Act then = nullptr;
    int answer = -1;
};

const Way ways[] = {
    {"empty list", none, 0, none, left},
    {"word list, stopped", words, 0, none, left, left},
    {"word list, by menu", words, 0, none, menu<1600>, menu<1600>},
    {"word list, all copied", words, 0, none, left, copyAll, 0},
    {"word list, praise closed with Esc", words, 0, none, left, copyAll, 1},
    {"word list, X at the last word", words, 3, cancel, left},
    {"word list, both buttons while preparing", words, 1, everyButton, left},
    {"word list, none in the dictionary", [](Desk &d) { d.lists.CorrectWordList.add(u"xxx"_s); }, 0, none,
     left},
    {"long vowels, all copied", vowels<1>, 0, none, left, copyAll, 0},
    {"short vowels, none in the list", [](Desk &d) { vowels<0>(d), d.lists.kurzvokalList.clear(); }, 0, none,
     left},
    {"board, no tiles", none, 0, none, right, nullptr, 0},
    {"board, all copied", tiles, 0, none, right, copyAll, 0},
    {"board, no dictionary, X", noLexicon, 50, cancel, right},
    {"board, no words asked for", tilesFor<Setting::NumReTypeWords, 0>, 0, none, right},
    {"board, more than 16 bits", tilesFor<Setting::NumReTypeWords, 99999>, 0, none, right},
    {"nonsense, a list without any",
     [](Desk &d) { d.layTiles(), d.lists.CurrentWortelFile = u"text\\ig oder lich.txt"_s; }, 0, none,
     nonsense, nullptr, 0},
    {"board, by menu", tiles, 0, none, menu<1601>, menu<1601>},
    {"nonsense, by menu", tiles, 0, none, menu<1607>, menu<1607>},
    {"nonsense, all copied", tiles, 0, none, nonsense, copyAll, 0},
    {"nonsense, X before the first word", tiles, 1, cancel, nonsense},
};

/// How the window may stand before the mode begins.
struct Start
{
    const char *name;
    Act make;
    bool closes = false; ///< what it opens is closed by a run
};

const Start starts[] = {
    {"plain", none},
    {"all stems asked for", [](Desk &d) { d.controls.Check1->setChecked(true); }},
    {"word list open", [](Desk &d) { d.tool(d.controls.Command4); }, true},
};

} // namespace

/// Every way through the mode gives each tool of the window back as it was.
class RetypeWaysTest : public QObject
{
    Q_OBJECT

private slots:
    void everyWayGivesTheToolsBack_data()
    {
        columns<int, int>("start", "way");
        for (int start = 0; start < static_cast<int>(std::size(starts)); ++start) {
            for (int way = 0; way < static_cast<int>(std::size(ways)); ++way)
                QTest::addRow("%s: %s", starts[start].name, ways[way].name) << start << way;
        }
    }

    void everyWayGivesTheToolsBack()
    {
        QFETCH(int, start);
        QFETCH(int, way);
        const Way &taken = ways[way];
        Desk desk;
        const QStringList plain = toolStates(desk);
        starts[start].make(desk);
        const QStringList before = toolStates(desk);

        taken.lay(desk);
        if (taken.yield > 0)
            desk.atYield(taken.yield, [&] { taken.meanwhile(desk); });
        if (taken.answer >= 0)
            desk.t.boxes.willBeRead(taken.answer);
        taken.start(desk);
        QCOMPARE(desk.play.RetypeActive(), taken.then != nullptr);
        if (taken.then != nullptr)
            taken.then(desk);

        // A run closes the lists over the board; where none began they stay.
        const bool began =
            taken.start == left ? taken.lay != none : taken.then != nullptr || taken.answer < 0;
        QCOMPARE(firstDifference(began && starts[start].closes ? plain : before, toolStates(desk)),
                 QString());
        QVERIFY(desk.controls.Option1[1]->isChecked());
        QVERIFY(!desk.r.retype.isPreparing());
        if (taken.meanwhile == cancel && taken.lay == words)
            QVERIFY(desk.lists.CorrectWordList.isEmpty());
        QCOMPARE(desk.trouble(), QString());
    }
};

WORTEL_TEST(RetypeWaysTest)
#include "tst_retype_ways.moc"
