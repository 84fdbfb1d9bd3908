// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/reports.h"
#include "support/test_board.h"
#include "support/test_class.h"
#include "support/tool_states.h"

namespace {

/// The house with a word to copy, and a work that can be begun.
struct House : TestHouse
{
    std::optional<Work> work;

    House() { lists.CorrectWordList.add(u"Haus"_s); }
    void chooseList()
    {
        t.fileDialogs.willOpen({t.AppFolder + u"text\\Hauptbausteine.Txt"_s});
        r.chooser.chooseStemLists();
        lists.CorrectWordList.add(u"Haus"_s);
    }
};

/// Why tools rest: how it comes and how it goes. Each can come while any other stands.
struct Cause
{
    const char *name;
    void (*come)(House &);
    void (*go)(House &);
};

const Cause causes[] = {
    {"all stems", [](House &h) { h.controls.Check1->setChecked(true); },
     [](House &h) { h.controls.Check1->setChecked(false); }},
    {"dictionary", [](House &h) { h.r.dictionary.toggle(); }, [](House &h) { h.r.dictionary.close(); }},
    {"word search", [](House &h) { h.r.dictionary.toggleForSearch(); },
     [](House &h) { h.r.dictionary.close(); }},
    {"report", [](House &h) { h.r.popup.Display({}, {}, {}, {}, 60, SoundId::WordRight, false, false); },
     [](House &h) { takeReports(h); }},
    {"words", [](House &h) { h.r.retype.StartTheRetyping(WordSource::UserWords); },
     [](House &h) { h.r.retype.endRun(); }},
    {"work",
     [](House &h) {
         h.work.emplace(h.t.ground, WorkPlan{WorkPlan::Bar | WorkPlan::Cancel | WorkPlan::HidesModes, 1});
     },
     [](House &h) { h.work.reset(); }},
    {"list chosen", [](House &h) { h.chooseList(); }, [](House &) {}},
};

bool isDictionary(const Cause &cause) { return cause.come == causes[1].come || cause.come == causes[2].come; }

/// The second cause takes the first one away itself: a run and a list that is read close the dictionary, a
/// list that is chosen ends the run.
bool endsIt(const Cause &first, const Cause &second)
{
    const bool isRun = first.come == causes[4].come;
    const bool chooses = second.come == causes[6].come;
    return (isDictionary(first) && (chooses || second.come == causes[4].come)) || (isRun && chooses);
}

} // namespace

/// Sheets come off in any order, and the tools then stand as what is left wants them.
class SheetsTest : public QObject
{
    Q_OBJECT

private slots:
    void anyOrder_data()
    {
        columns<int, int, bool>("first", "second", "firstGoesFirst");
        for (int first = 0; first < int(std::size(causes)); ++first)
            for (int second = 0; second < int(std::size(causes)); ++second)
                for (const bool order : {true, false})
                    if (first != second && !(isDictionary(causes[first]) && isDictionary(causes[second])))
                        QTest::addRow("%s, %s, off in %s", causes[first].name, causes[second].name,
                                      order ? "the same order" : "the other order")
                            << first << second << order;
    }
    void anyOrder()
    {
        QFETCH(int, first);
        QFETCH(int, second);
        QFETCH(bool, firstGoesFirst);
        const Cause &one = causes[first];
        const Cause &other = causes[second];
        const Cause &left = firstGoesFirst ? other : one;
        const auto aloneStands = [](const Cause &cause) {
            House alone;
            alone.chooseList(); // what a list that was chosen leaves is the same in all
            cause.come(alone);
            return toolStates(alone);
        };
        const bool nothingIsLeft = !firstGoesFirst && endsIt(one, other);
        const QStringList expected = nothingIsLeft ? aloneStands(causes[6]) : aloneStands(left);

        House house;
        house.chooseList();
        const QStringList before = toolStates(house);
        one.come(house);
        other.come(house);
        (firstGoesFirst ? one : other).go(house);
        if (house.work)
            house.work->tell(u"Bitte warten..."_s); // words that were prepared in it have said something else
        QCOMPARE(firstDifference(expected, toolStates(house)), QString());
        left.go(house);
        QCOMPARE(firstDifference(before, toolStates(house)), QString());
        QCOMPARE(house.trouble(), QString());
    }
};

WORTEL_TEST(SheetsTest)
#include "tst_sheets.moc"
