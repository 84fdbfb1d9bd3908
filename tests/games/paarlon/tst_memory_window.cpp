// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "games/paarlon/frm_memory.h"
#include "games/paarlon/memory_card.h"
#include "support/test_board.h"
#include "support/test_class.h"

#include <QLabel>
#include <QPushButton>
#include <QRadioButton>

namespace {

/// The house with lists that are long enough, and a player at the card game's window.
struct MemoryTable : TestBoard
{
    explicit MemoryTable(quint64 seed = 1)
        : TestBoard(seed)
    {
        for (const int id : {150, 250, 350})
            setList(id, 24);
        form.show();
        settle();
    }

    /// The list of the game with that number: stems are twins, and all texts of a kind begin alike.
    void setList(int id, int lines)
    {
        // clang-format off
        const auto [file, start, end] = id == 250   ? std::tuple{u"text\\Hauptbausteine.Txt"_s, u" stamm"_s, u"2 \r\n"_s}
                                        : id == 150 ? std::tuple{u"affix\\prefix.afx"_s, u"vor"_s, u"x\r\n"_s}
                                                    : std::tuple{u"affix\\suffix.afx"_s, u"nach"_s, u"x\r\n"_s};
        // clang-format on
        QString text;
        for (int i = 0; i < lines; ++i)
            text += start + QChar(u'a' + i % 24) + end;
        t.writeFile(file, text);
    }
    void store(const QString &key, const QString &value) { t.store.SaveSetting(u"MemoryGame"_s, key, value); }
    QString stored(const QString &key) const { return t.store.GetSetting(u"MemoryGame"_s, key, u"-"_s); }

    frmMemory *window() const { return r.paarlon.window(); }
    const MemoryRules &rules() const { return window()->rules(); }
    const MemoryControls &c() const { return window()->controls(); }
    MemoryCard *card(int index) const { return c().picMorphemeCard[static_cast<std::size_t>(index)]; }

    /// Chooses the game in the menu.
    void open(int id)
    {
        run(command::From::MainMenu, id);
        settle();
    }
    /// So many milliseconds of the intro.
    void intro(int milliseconds)
    {
        for (int passed = 0; passed < milliseconds && window() != nullptr; passed += 50) {
            t.clock.moment = t.clock.moment.addMSecs(50);
            window()->moveBall();
        }
        settle();
    }
    void deal(int id)
    {
        open(id);
        intro(4000);
        t.sound.resources.clear();
    }
    void click(int index) { QTest::mouseClick(card(index), Qt::LeftButton); }
    void press(Qt::Key key) { QTest::keyClick(window()->focusWidget(), key); }
    /// Another card with the same morpheme, or one with another.
    int twinOf(int index, bool same = true) const
    {
        int other = 0;
        while (other == index || (rules().CardMorpheme(other) == rules().CardMorpheme(index)) != same)
            ++other;
        return other;
    }
    /// Two up that are no pair.
    void miss(int index = 0) { click(index), click(twinOf(index, false)); }
    /// The whole game, after so many turns without a pair.
    void solve(int misses = 0, bool byKeys = false)
    {
        for (int index = 0; index < misses; ++index)
            miss(index), window()->tmrFlipMorpheme_Timer();
        for (int index = 0; index < 36; ++index)
            for (const int turned : {index, twinOf(index)})
                if (!rules().isSolved(turned))
                    byKeys ? (card(turned)->setFocus(), press(Qt::Key_Space)) : click(turned);
    }
};

using Act = std::function<void(MemoryTable &)>;

// clang-format off
const std::pair<const char *, Act> moments[] = {
    {"intro",      [](MemoryTable &m) { m.open(150), m.intro(500); }},
    {"one up",     [](MemoryTable &m) { m.deal(150), m.click(0); }},
    {"two up",     [](MemoryTable &m) { m.deal(150), m.miss(); }},
};
const Act cancels = [](MemoryTable &m) { m.c().Abbrechen->click(); };
const Act escapes = [](MemoryTable &m) { QTest::keyClick(m.window(), Qt::Key_Escape); };
const Act quits = [](MemoryTable &m) { m.form.close(); };
const Act nothing = [](MemoryTable &) {};
// clang-format on

/// Acts while the game waits for a list that never fills.
Act inWaiting(const Act &act)
{
    return [act](MemoryTable &m) {
        m.setList(150, 18);
        m.t.pump.waiting = true;
        m.t.pump.onServe = [&m, act, rounds = 0]() mutable {
            if (m.window() != nullptr && ++rounds == 5) {
                QVERIFY(m.c().lblNotice->text().startsWith(u"Für 18 Paare"_s));
                act(m);
            }
        };
        m.deal(150);
    };
}

} // namespace

class MemoryWindowTest : public QObject
{
    Q_OBJECT

private slots:
    // clang-format off
    void prefixes() { wholeGame(150, false, u"Präfix-Memory"_s, u"Präfixe"_s, u"Präfixe"_s, qRgb(255, 255, 0)); }
    void suffixes() { wholeGame(350, false, u"Suffix-Memory"_s, u"Suffixe"_s, u"Suffixe"_s, qRgb(0, 0, 255)); }
    void stemsByKeys() { wholeGame(250, true, u"Wortel-Memory"_s, u"Wortele"_s, u"Wortel"_s, qRgb(255, 0, 0)); }
    // clang-format on

    void listsThatAreNotBeatenResetOrTried()
    {
        MemoryTable m;
        m.store(u"SuffixeTop 10:"_s, u"18,a~"_s.repeated(10));
        m.deal(350);
        m.solve();
        QVERIFY(m.t.boxes.asked.isEmpty() && m.t.ok());
        QCOMPARE(m.stored(u"SuffixeTop 10:"_s), u" 18,a~"_s.repeated(10).chopped(1));
        QCOMPARE(m.stored(u"Score"_s), u"18"_s);
        m.t.boxes.willPress(0);
        m.open(2907);
        QVERIFY(m.stored(u"SuffixeTop 10:"_s).startsWith(u"999,Wortel~998,"_s));
        m.t.boxes.willType(u"80"_s), m.t.boxes.willEnterName({}), m.t.boxes.willCloseScores();
        m.c().Command2->click(); // the developer's
        QVERIFY(m.t.boxes.asked.last().text.startsWith(u"80very good: \nWortel 80\n"_s));
    }

    void aTurnOnTheCards()
    {
        MemoryTable m;
        m.deal(250);
        const QString morpheme = m.rules().printOf(0).text;
        QVERIFY(morpheme.startsWith(u"stamm"_s));
        if (const Gate::Passage work = m.gate.stay())
            m.click(0);
        QVERIFY(!m.rules().FirstCardTurned());
        m.click(0);
        QCOMPARE(m.card(0)->accessibleName(), u"Reihe 1, Karte 1: %1 2"_s.arg(morpheme));
        QCOMPARE(m.card(0)->look().text, QColor(Qt::white));
        m.t.options.setBox(Setting::UseSoundsInMemory, 0);
        m.click(m.twinOf(0, false));
        m.window()->tmrFlipMorpheme_Timer();
        QVERIFY(!m.card(0)->accessibleName().contains(morpheme));
        m.click(0);
        m.click(m.twinOf(0));
        QCOMPARE(m.card(0)->accessibleName(), u"Reihe 1, Karte 1: %1, gefunden"_s.arg(morpheme));
        QCOMPARE(m.card(0)->look().text, QColor(Qt::black));
        QCOMPARE(m.t.sound.resources, QList<int>{114});
    }

    void keys()
    {
        MemoryTable m;
        m.deal(150);
        QVERIFY(QTest::qWaitForWindowActive(m.window()));
        const auto at = [&m] { return m.window()->focusWidget()->objectName(); };
        m.press(Qt::Key_Up), m.press(Qt::Key_Left);
        QCOMPARE(at(), u"picMorphemeCard(0)"_s);
        for (int i = 0; i < 8; ++i)
            m.press(Qt::Key_Right), m.press(Qt::Key_Down);
        QCOMPARE(at(), u"picMorphemeCard(35)"_s);
        QKeyEvent held(QEvent::KeyPress, Qt::Key_Return, {}, u"\r"_s, true);
        QCoreApplication::sendEvent(m.card(35), &held);
        QVERIFY(!m.rules().FirstCardTurned());
        m.press(Qt::Key_Return);
        QVERIFY(m.rules().isUp(35));
        m.press(Qt::Key_Tab), m.press(Qt::Key_Enter); // on "Anfangen"
        QVERIFY(!m.rules().FirstCardTurned() && at() == u"picMorphemeCard(0)"_s);
    }

    // clang-format off
    void closing_data()
    {
        columns<Act, Act>("before", "close");
        for (const auto &[moment, act] : moments)
            for (const auto &[way, close] : {std::pair{"Abbrechen", cancels}, {"Esc", escapes}, {"the program", quits}})
                QTest::addRow("%s: %s", moment, way) << act << close;
        QTest::newRow("waiting: Abbrechen") << inWaiting(cancels) << nothing;
        QTest::newRow("waiting: the program") << inWaiting(quits) << nothing;
        QTest::newRow("waiting: X") << inWaiting([](MemoryTable &m) { m.gate.cancelWork(); }) << cancels;
    }
    void theProgramEndsWhileTheNameIsAsked()
    {
        MemoryTable m;
        m.deal(150);
        m.t.boxes.whileOpen = [&m](const Question &) { m.form.close(); };
        m.t.boxes.willEnterName(u"Mia"_s);
        m.solve();
        m.settle();
        QVERIFY(m.stored(u"PräfixeTop 10:"_s).startsWith(u" 18,"_s) && m.gate.isClosing() && m.t.ok());
    }

    /// Nothing is stored but the colours, and nothing of it goes on.
    void closing()
    {
        QFETCH(Act, before);
        QFETCH(Act, close);
        MemoryTable m;
        const QSignalSpy unloaded(&m.form, &frmMain::unloaded);
        before(m);
        close(m);
        m.settle();
        const bool ended = m.gate.isClosing();
        QCOMPARE(m.stored(u"Current"_s) + m.stored(u"BG"_s) + m.stored(u"Morpheme1"_s) + m.stored(u"Morpheme2"_s) + m.stored(u"Fore"_s),
                 u"6553565535655356553516711680"_s);
        QCOMPARE(m.stored(u"PräfixeTop 10:"_s), u"-"_s);
        QCOMPARE(unloaded.size(), ended ? 1 : 0);
        QVERIFY(m.gate.isFree() && m.t.ok() && QGuiApplication::overrideCursor() == nullptr);
        QVERIFY(ended || m.window() == nullptr);
    }

    void lists()
    {
        for (const auto &[id, lines, isDealt] :
             {std::tuple{250, 0, false}, {250, 1, false}, {250, 9, false}, {250, 10, true}, {250, 18, true}, {250, 19, true},
              {250, 40000, true}, {350, 18, false}, {350, 19, true}}) {
            MemoryTable m;
            m.setList(id, lines);
            int rounds = 0;
            m.t.pump.waiting = true;
            m.t.pump.onServe = [&] { ++rounds == 100 ? m.gate.cancelWork() : void(); };
            m.deal(id);
            QVERIFY2(m.rules().isDealt() == isDealt, qPrintable(u"%1: %2"_s.arg(id).arg(lines)));
            QCOMPARE(rounds, isDealt ? 0 : 100);
            QCOMPARE(m.window()->EnoughWortelInFile(), id == 350 || lines >= 19);
        }
    }

    // clang-format on
    void anotherKindWhileItWaits()
    {
        MemoryTable m;
        inWaiting([](MemoryTable &w) { w.c().OptMorphemeType[2]->click(), w.c().Anfangen->click(); })(m);
        QVERIFY(m.rules().isDealt() && m.window()->windowTitle() == u"Suffix-Memory"_s);
    }

    void aListVanishesBetweenGames()
    {
        MemoryTable m;
        m.deal(150);
        m.click(0);
        QVERIFY(QFile::remove(m.t.folder.filePath(u"affix/prefix.afx"_s)));
        m.t.boxes.willAnswer(Boxes::Answer::Ok);
        m.c().Anfangen->click();
        const QString told = m.t.boxes.asked.last().text;
        QVERIFY(told.contains(u"prefix.afx fehlt\n\nBreche ab...\n\nSub: ProgInit Line: "_s));
        QVERIFY(m.rules().isUp(0) && m.t.ok()); // the game goes on
    }

    /// An option counts for the next game; only the leader that is shown at the end is that of the option.
    void anotherKindInTheMiddle()
    {
        MemoryTable m;
        m.deal(150);
        m.c().OptMorphemeType[2]->click();
        m.store(u"SuffixeTop 10:"_s, u"19,Uwe"_s);
        m.t.boxes.willEnterName(u"Mia"_s);
        m.t.boxes.willCloseScores();
        m.solve();
        QVERIFY(m.stored(u"PräfixeTop 10:"_s).startsWith(u" 18,Mia~990,Wortel~"_s));
        QCOMPARE(m.c().Label1->text(), u"MEMORY-\nMEISTER\n\nUwe\n19 Klicks"_s);
        QCOMPARE(m.window()->windowTitle(), u"Präfix-Memory"_s);
        m.c().Anfangen->click();
        m.click(0);
        QVERIFY(m.card(0)->accessibleName().contains(u"nach"_s));
    }

    void downInTimeAndOpenedAgain()
    {
        MemoryTable m;
        m.store(u"MorphemeVisibleTime"_s, u"0.1"_s);
        m.deal(150);
        const frmMemory *first = m.window();
        m.miss();
        QElapsedTimer timer;
        for (timer.start(); m.rules().isWaiting() && timer.elapsed() < 5000;
             QCoreApplication::processEvents())
            m.click(int(timer.elapsed()) % 36);
        QVERIFY(timer.elapsed() >= 70 && timer.elapsed() < 3000);
        m.miss();
        m.open(350);
        m.intro(100); // the button acts already, so the cards are dealt at once
        QVERIFY(m.window() == first && !m.rules().isWaiting());
        m.click(0);
        QTest::qWait(200);
        QVERIFY(m.rules().isUp(0)); // the old turn's time is nothing to the new game
        m.window()->close();
        m.run(command::From::MainMenu, 250); // before the old one is dropped
        QVERIFY(m.window() != first && m.window()->isVisible());
    }

    void sizes()
    {
        QCOMPARE(MemoryControls::openingSize({853, 450}), QSize(594, 450));
        QCOMPARE(MemoryControls::openingSize({1920, 1050}), QSize(1070, 810)); // twice the size
        MemoryTable m;
        m.deal(150);
        m.window()->resize(540, 1920);
        for (const MemoryCard *card : m.c().picMorphemeCard)
            QVERIFY(m.window()->rect().contains(card->geometry()) && card->width() == card->height());
    }

private:
    void wholeGame(int id, bool byKeys, const QString &caption, const QString &plural, const QString &label,
                   QRgb back)
    {
        MemoryTable m(4711);
        m.store(label + u"Top 10:"_s, u"20,Alt~ 21,Uwe"_s);
        m.t.sound.resources.clear();
        m.open(id);
        QVERIFY(QTest::qWaitForWindowActive(m.window()) && !m.c().Anfangen->isEnabled());
        QCOMPARE(m.window()->windowTitle(), caption);
        m.intro(4000);
        QCOMPARE(m.t.sound.resources, QList<int>(10, 113));
        QVERIFY(m.c().Anfangen->isEnabled() && m.card(35)->isVisible() && m.c().Command3->isHidden());
        QCOMPARE(m.c().Label1->text(), u"MEMORY-\nMEISTER\n\nAlt\n20 Klicks"_s);

        m.t.boxes.willEnterName(u"Mia"_s);
        m.t.boxes.willCloseScores();
        m.t.clock.moment = m.t.clock.moment.addMSecs(75999);
        m.solve(2, byKeys);
        QCOMPARE(m.c().LblCurrentScore->text(), u"20"_s);
        QCOMPARE(m.t.sound.resources.count(112), 18);
        QCOMPARE(m.t.sound.resources.count(114), 20);
        QCOMPARE(m.t.sound.resources.count(115), 2);
        const QImage picture = m.card(3)->grab().toImage();
        QCOMPARE(picture.pixel(picture.width() / 2, picture.height() / 8), back);
        const auto &asked = m.t.boxes.asked;
        QCOMPARE(asked[0].title, u"Bestenliste Paarlon (%1)"_s.arg(plural));
        QCOMPARE(asked[1].title, u"Bestenliste - Paarlon (%1)"_s.arg(label));
        QCOMPARE(asked[1].text.section(u'\n', 0, 8).replace(u'\n', u'|'),
                 u"Herzlichen Glückwunsch !||Du hast nur 20 Klicks benötigt, und es hat 75 Sekunden gedauert."
                 u"||DU HAST EINEN NEUEN REKORD AUFGESTELLT !!|Alt 20|Mia 20|Uwe 21|Wortel 992"_s);
        QCOMPARE(asked[1].code, 2); // the new entry
        QVERIFY(m.stored(label + u"Top 10:"_s).startsWith(u" 20,Alt~ 20,Mia~ 21,Uwe~992,Wortel~"_s));
        QCOMPARE(m.stored(u"Score"_s) + m.stored(u"Name"_s), u"20"_s);
        m.c().Anfangen->click();
        QCOMPARE(m.c().LblCurrentScore->text(), u"0"_s);
        QCOMPARE(m.card(3)->accessibleName(), u"Reihe 1, Karte 4: verdeckt"_s);
    }
};

WORTEL_TEST(MemoryWindowTest)
#include "tst_memory_window.moc"
