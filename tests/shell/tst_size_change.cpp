// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "games/kernling/kernling_text.h"
#include "games/paarlon/frm_memory.h"
#include "shell/continuation.h"
#include "support/test_class.h"
#include "support/test_house.h"

namespace {

StartFacts factsOf(QSize screen)
{
    StartFacts facts;
    facts.Screen = screen;
    return facts;
}

struct House : TestHouse
{
    QSignalSpy due{&form, &frmMain::sizeChangeDue};

    explicit House(QSize screen = {1920, 1080})
        : TestHouse(1, {632, 573}, true, factsOf(screen))
    {}

    void strg(Qt::Key key, int times = 1)
    {
        for (int i = 0; i < times; ++i)
            QTest::keyClick(controls.picCanvas, key, Qt::ControlModifier);
    }
    QString stored() { return t.store.GetSetting(u"Settings"_s, u"ProgramSize"_s, {}); }
    static void rest() { QTest::qWait(SizeChange::rest + 100); }
};

using Busy = std::function<void(House &, const std::function<void()> &)>;

} // namespace

Q_DECLARE_METATYPE(Busy)

/// Another size is wished for, waits for what is played, and takes the whole board with it.
class SizeChangeTest : public QObject
{
    Q_OBJECT

private slots:
    void keys_data()
    {
        columns<Qt::Key, int, QString, int>("key", "times", "stored", "due");
        QTest::newRow("plus") << Qt::Key_Plus << 1 << u"125"_s << 1;
        QTest::newRow("equal") << Qt::Key_Equal << 1 << u"125"_s << 1;
        QTest::newRow("plus held down: one change, the largest that fits")
            << Qt::Key_Plus << 30 << u"225"_s << 1;
        QTest::newRow("minus at the smallest") << Qt::Key_Minus << 2 << QString() << 0;
        QTest::newRow("automatic") << Qt::Key_0 << 1 << u"automatisch"_s << 1;
    }
    void keys()
    {
        QFETCH(Qt::Key, key);
        QFETCH(int, times);
        House house;
        house.strg(key, times);
        QCOMPARE(house.due.size(), 0);
        QTEST(house.stored(), "stored");
        House::rest();
        QTEST(static_cast<int>(house.due.size()), "due");
    }

    void waits_data()
    {
        columns<Busy, QString>("busy", "sentence");
        QTest::newRow("game") << Busy([](House &house, const std::function<void()> &meanwhile) {
            house.play.startGame(PlayState::Phase::Playing, Vowels::None);
            meanwhile();
            house.play.stop();
        }) << u"Die neue Größe gilt, sobald das Spiel zu Ende ist"_s;
        QTest::newRow("retyping") << Busy([](House &house, const std::function<void()> &meanwhile) {
            house.play.startRetyping(WordSource::UserWords);
            meanwhile();
            house.play.stop();
        }) << u"Die neue Größe gilt, sobald das Abschreiben zu Ende ist"_s;
        QTest::newRow("Paarlon") << Busy([](House &house, const std::function<void()> &meanwhile) {
            house.run(command::From::MainMenu, 250);
            meanwhile();
            QVERIFY(house.r.paarlon.window() != nullptr);
            house.r.paarlon.window()->close();
        }) << u"Die neue Größe gilt, sobald dieses Fenster geschlossen ist"_s;
        QTest::newRow("work") << Busy([](House &house, const std::function<void()> &meanwhile) {
            const Gate::Passage passage = house.gate.stay();
            meanwhile();
        }) << u"Die neue Größe gilt gleich, wenn das hier fertig ist"_s;
    }
    void waits()
    {
        QFETCH(Busy, busy);
        QFETCH(QString, sentence);
        House house;
        busy(house, [&] {
            house.strg(Qt::Key_Plus);
            House::rest();
            QCOMPARE(house.due.size(), 0);
            QCOMPARE(house.t.told.last(), sentence);
        });
        TestHouse::settle();
        QCOMPARE(house.due.size(), 1);
    }

    /// Strg++ would take an hour of marking with it.
    void aTextInKernlingIsNotLost()
    {
        House house;
        house.r.kernling.Form_Load();
        house.r.kernling.findChild<KernlingText *>()->setPlainText(u"Der Ball"_s);
        house.strg(Qt::Key_Plus);
        House::rest();
        QCOMPARE(house.due.size(), 0);
        QVERIFY(house.t.told.last().contains(u"Kernling"_s));
        QCOMPARE(house.stored(), u"125"_s);
    }

    void optionsAndMenu()
    {
        House house;
        house.t.options.setText(Setting::ProgramSize, u"200 %"_s);
        house.t.options.ApplySettings();
        House::rest();
        QCOMPARE(house.due.size(), 1);
        QCOMPARE(house.form.sizeChange().wanted(), 200);
        for (const auto &[id, wanted] : {std::pair{1510, 225}, {1510, 225}, {1511, 200}, {1512, 175}}) {
            house.run(command::From::MainMenu, id);
            QCOMPARE(house.form.sizeChange().wanted(), wanted);
        }
    }

    void moreThanTheScreenHas()
    {
        House house({853, 480});
        house.t.options.setText(Setting::ProgramSize, u"300 %"_s);
        house.t.options.ApplySettings();
        House::rest();
        QCOMPARE(house.due.size(), 0);
        QCOMPARE(house.t.told.last(), u"Auf diesem Bildschirm geht es nur bis 100 %"_s);
    }

    /// What another start has handed over is done first: the new window would not know it.
    void whatWaitsComesFirst()
    {
        House house;
        bool done = false;
        {
            const Gate::Passage passage = house.gate.stay();
            house.strg(Qt::Key_Plus);
            House::rest();
            house.gate.whenFree([&] { done = true; });
        }
        connect(&house.form, &frmMain::sizeChangeDue, this, [&] { QVERIFY(done); });
        TestHouse::settle();
        QCOMPARE(house.due.size(), 1);
    }

    void everythingGoesOn()
    {
        House first;
        const auto commit = [](TestHouse &house, const QString &text, int x) {
            house.lay(wortelKind, x, 200, text);
            house.r.news.Commit();
        };
        commit(first, u"fahr"_s, 100);
        commit(first, u"halt"_s, 200);
        commit(first, u"spiel"_s, 300);
        first.run(command::From::MainMenu, 2801);
        first.lists.CorrectWordList.add(u"Läufer"_s);
        first.lists.LexiconList.clear();
        first.lists.LexiconList.addAll({u"Wald"_s, u"Wiese"_s});
        first.lists.CurrentLexiconFile = u"C:\\facit\\Wald.lex"_s;
        first.controls.Label3->setText(u"Wald"_s);
        first.controls.Dropper1->setCaption(u"halt"_s);
        first.controls.Text1->setText(u"7"_s);
        first.controls.Check1->setChecked(true);
        first.controls.Option1[0]->setChecked(true);
        first.r.optTypes.select(0);
        first.r.sessions.makeCurrent(u"C:\\meine\\Stunde.wlx"_s);
        first.t.options.setText(Setting::TipTime, u"99"_s);
        first.press({110, 210}); // held in the hand
        first.drag({150, 260});

        first.t.sound.resources.clear();
        const Continuation kept = continuationOf(first.form, 100);
        first.form.leave();
        QVERIFY2(!first.r.pointer.isHolding(), "a tile in the hand is let go");
        QVERIFY(!first.gate.letsIn(Gate::Way::Play));
        QVERIFY2(first.t.sound.resources.isEmpty(), "no goodbye");

        TestHouse second(2, {500, 400}, false, factsOf({1920, 1080}));
        second.form.goOn(kept);
        QCOMPARE(second.described(), first.described());
        QCOMPARE(second.described().size(), 2);
        QCOMPARE(second.counters(), first.counters());
        QCOMPARE(second.lists.CorrectWordList.rows(), QStringList{u"Läufer"_s});
        QCOMPARE(second.lists.LexiconList.rows(), (QStringList{u"Wald"_s, u"Wiese"_s}));
        QCOMPARE(second.lists.WortelList.rows(), first.lists.WortelList.rows());
        QCOMPARE(second.lists.CurrentLexiconFile, u"C:\\facit\\Wald.lex"_s);
        QCOMPARE(second.controls.Label3->text(), u"Wald"_s);
        QCOMPARE(second.controls.Dropper1->Caption(), u"halt"_s);
        QCOMPARE(second.controls.Text1->text(), u"7"_s);
        QVERIFY(second.controls.Check1->isChecked());
        QVERIFY(!second.controls.Text1->isEnabled());
        QVERIFY(second.r.canvas.WordCheckDrag());
        QCOMPARE(second.r.optTypes.selected(), 0);
        QCOMPARE(second.r.sessions.CurrentSessionFile(), u"C:\\meine\\Stunde.wlx"_s);
        QCOMPARE(second.t.options.text(Setting::TipTime), u"99"_s);
        QCOMPARE(second.trouble(), QString());

        second.run(command::From::MainMenu, 2802);
        QCOMPARE(second.texts(), (QStringList{u"fahr"_s, u"halt"_s, u"spiel"_s}));
        for (int i = 0; i < 3; ++i)
            second.run(command::From::MainMenu, 2801);
        QCOMPARE(second.texts(), QStringList());
        QVERIFY(!second.offers(2801));
    }

    void aVowelBoardAndOpenListsGoOn()
    {
        House first;
        first.form.show();
        first.controls.Text1->setText(u"2"_s);
        first.tool(first.controls.ChkVokal[1]);
        QVERIFY(first.play.LangVokalMode());
        first.tool(first.controls.OptType[1], Qt::RightButton);
        QVERIFY(!first.controls.PrefixList->isHidden());
        const Continuation kept = continuationOf(first.form, 100);
        first.form.leave();
        first.form.hide();

        TestHouse second(2, {632, 573}, false, factsOf({1920, 1080}));
        second.form.goOn(kept);
        second.form.show();
        QVERIFY(QTest::qWaitForWindowActive(&second.form));
        TestHouse::settle();
        QCOMPARE(second.described(), first.described());
        QVERIFY(second.controls.ChkVokal[1]->isChecked());
        QVERIFY(second.play.LangVokalMode());
        QVERIFY(!second.controls.PrefixList->isHidden());
        QVERIFY(second.controls.SuffixList->isHidden());
        second.tool(second.controls.ChkVokal[1]); // the boxes are off: the list of before comes back
        QCOMPARE(second.play.checkedVowels(), Vowels::None);
        QCOMPARE(second.lists.WortelList.at(0), first.lists.WortelList.isEmpty() ? QString() : u"halt"_s);
    }
};

WORTEL_TEST(SizeChangeTest)
#include "tst_size_change.moc"
