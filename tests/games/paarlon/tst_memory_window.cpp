// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "games/paarlon/memory_table.h"
#include "support/columns.h"
#include "support/registry.h"

#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QSignalSpy>

using Act = std::function<void(MemoryTable &)>;

namespace {

const QString seedFrom991 = u"~990,Wortel~991,Wortel~992,Wortel~993,Wortel~994,Wortel~995,Wortel~996,Wortel~"
                            u"997,Wortel~998,Wortel"_s;

const Act openIntro = [](MemoryTable &m) { m.open(150), m.intro(500); };
const Act oneUp = [](MemoryTable &m) { m.deal(150), m.click(0); };
const Act twoUp = [](MemoryTable &m) { m.deal(150), m.click(0), m.click(m.twinOf(0, false)); };
const Act abandon = [](MemoryTable &m) { m.window()->controls().Abbrechen->click(); };
const Act escape = [](MemoryTable &m) { QTest::keyClick(m.window(), Qt::Key_Escape); };
const Act quit = [](MemoryTable &m) { m.form.close(); };

/// Closes while the game waits for a list that never fills.
Act inWaiting(const Act &close)
{
    return [close](MemoryTable &m) {
        m.setList(u"affix\\prefix.afx"_s, u"vor#x"_s, 18);
        m.t.pump.waiting = true;
        m.t.pump.onServe = [&m, close, rounds = 0]() mutable {
            if (m.window() != nullptr && ++rounds == 5) {
                QVERIFY(m.window()->controls().lblNotice->text().startsWith(u"Für 18 Paare"_s));
                close(m);
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
    void wholeGame_data()
    {
        columns<int, bool, QString, QString, QString, QRgb>("id", "byKeys", "caption", "plural", "label",
                                                            "back");
        QTest::newRow("prefixes") << 150 << false << u"Präfix-Memory"_s << u"Präfixe"_s << u"Präfixe"_s
                                  << qRgb(255, 255, 0);
        QTest::newRow("stems") << 250 << false << u"Wortel-Memory"_s << u"Wortele"_s << u"Wortel"_s
                               << qRgb(255, 0, 0);
        QTest::newRow("suffixes") << 350 << false << u"Suffix-Memory"_s << u"Suffixe"_s << u"Suffixe"_s
                                  << qRgb(0, 0, 255);
        QTest::newRow("stems, by keys")
            << 250 << true << u"Wortel-Memory"_s << u"Wortele"_s << u"Wortel"_s << qRgb(255, 0, 0);
    }
    void wholeGame()
    {
        QFETCH(int, id);
        QFETCH(bool, byKeys);
        QFETCH(QString, plural);
        QFETCH(QString, label);
        QFETCH(QRgb, back);
        MemoryTable m(4711);
        m.t.store.SaveSetting(u"MemoryGame"_s, label + u"Top 10:"_s, u"20,Alt~ 21,Uwe"_s);
        m.open(id);
        QVERIFY(QTest::qWaitForWindowActive(m.window()));
        const MemoryControls &c = m.window()->controls();
        QTEST(m.window()->windowTitle(), "caption");
        QVERIFY(!c.Anfangen->isEnabled() && c.Abbrechen->isEnabled() && !m.card(0)->isVisible());
        m.intro(4000);
        QCOMPARE(m.t.sound.resources, QList<int>(10, 113));
        m.t.sound.resources.clear();
        QVERIFY(c.Anfangen->isEnabled() && m.card(35)->isVisible() && c.Command3->isHidden());
        QCOMPARE(c.Label1->text(), u"MEMORY-\nMEISTER\n\nAlt\n20 Klicks"_s);
        QCOMPARE(m.card(7)->accessibleName(), u"Reihe 2, Karte 2: verdeckt"_s);

        m.t.boxes.willEnterName(u"Mia"_s);
        m.t.boxes.willCloseScores();
        m.t.clock.moment = m.t.clock.moment.addMSecs(75999);
        m.solve(2, 0, [&m, byKeys](int index) { byKeys ? m.turnByKeys(index) : m.click(index); });

        QCOMPARE(c.LblCurrentScore->text(), u"20"_s);
        QCOMPARE(m.t.sound.resources.count(112), 18);
        QCOMPARE(m.t.sound.resources.count(114), 20);
        QCOMPARE(m.t.sound.resources.count(115), 2);
        const QImage picture = m.card(3)->grab().toImage();
        QCOMPARE(picture.pixel(picture.width() / 2, picture.height() / 8), back);
        QVERIFY2(m.card(3)->accessibleName().endsWith(u", gefunden"_s),
                 qPrintable(m.card(3)->accessibleName()));
        QCOMPARE(m.t.boxes.asked.size(), 2);
        QCOMPARE(m.t.boxes.asked[0].title, u"Bestenliste Paarlon (%1)"_s.arg(plural));
        QCOMPARE(m.t.boxes.asked[1].title, u"Bestenliste - Paarlon (%1)"_s.arg(label));
        QVERIFY2(m.t.boxes.asked[1].text.startsWith(
                     u"Herzlichen Glückwunsch !\n\nDu hast nur 20 Klicks benötigt, und es hat 75 Sekunden "
                     u"gedauert.\n\nDU HAST EINEN NEUEN REKORD AUFGESTELLT !!\nAlt 20\nMia 20\nUwe 21\n"_s),
                 qPrintable(m.t.boxes.asked[1].text));
        QCOMPARE(m.t.boxes.asked[1].code, 2);
        QVERIFY(m.stored(label + u"Top 10:"_s).startsWith(u" 20,Alt~ 20,Mia~ 21,Uwe~992,Wortel~"_s));
        QCOMPARE(m.stored(u"Score"_s) + m.stored(u"Name"_s), u"20"_s);
        QVERIFY(m.t.ok());

        c.Anfangen->click();
        QCOMPARE(c.LblCurrentScore->text(), u"0"_s);
        QCOMPARE(m.card(3)->accessibleName(), u"Reihe 1, Karte 4: verdeckt"_s);
    }

    void outsideTheTenItEndsInSilence()
    {
        MemoryTable m;
        m.t.store.SaveSetting(u"MemoryGame"_s, u"SuffixeTop 10:"_s, (u"18,a~"_s.repeated(10)));
        m.deal(350);
        m.solve();
        QVERIFY(m.t.boxes.asked.isEmpty() && m.t.ok());
        QCOMPARE(m.stored(u"SuffixeTop 10:"_s), u" 18,a~"_s.repeated(10).chopped(1));
        QCOMPARE(m.stored(u"Score"_s), u"18"_s);
    }

    void aTurnOnTheCards()
    {
        MemoryTable m;
        m.deal(250);
        const QString morpheme = m.rules().printOf(0).text;
        QVERIFY(morpheme.startsWith(u"stamm"_s));
        m.click(0);
        QCOMPARE(m.card(0)->accessibleName(), u"Reihe 1, Karte 1: %1 2"_s.arg(morpheme));
        QCOMPARE(m.card(0)->look().text, QColor(Qt::white));
        const int other = m.twinOf(0, false);
        m.t.options.setBox(Setting::UseSoundsInMemory, 0);
        m.click(other);
        for (int i = 0; i < 1000; ++i)
            m.click(i % 36);
        QVERIFY(m.card(other)->look().side == MemoryCard::Side::Up);
        QCOMPARE(m.t.sound.resources, QList<int>{114});
        m.window()->tmrFlipMorpheme_Timer();
        QVERIFY(!m.card(0)->accessibleName().contains(morpheme));
        m.click(0);
        m.click(m.twinOf(0));
        QCOMPARE(m.card(0)->accessibleName(), u"Reihe 1, Karte 1: %1, gefunden"_s.arg(morpheme));
        QCOMPARE(m.card(0)->look().text, QColor(Qt::black));
    }

    void theyAreDownAgainInTime()
    {
        MemoryTable m;
        m.t.store.SaveSetting(u"MemoryGame"_s, u"MemoryVisibleTime"_s, u"0.2"_s);
        m.deal(150);
        m.click(0);
        m.click(m.twinOf(0, false));
        QElapsedTimer timer;
        timer.start();
        while (m.rules().isWaiting() && timer.elapsed() < 5000)
            m.click(int(timer.elapsed()) % 36), QCoreApplication::processEvents();
        QVERIFY2(timer.elapsed() >= 150 && timer.elapsed() < 2000,
                 qPrintable(QString::number(timer.elapsed())));
    }

    void keys()
    {
        MemoryTable m;
        m.deal(150);
        QVERIFY(QTest::qWaitForWindowActive(m.window()));
        const auto press = [&m](Qt::Key key) { QTest::keyClick(m.window()->focusWidget(), key); };
        const auto at = [&m] { return m.window()->focusWidget()->objectName(); };
        press(Qt::Key_Up), press(Qt::Key_Left);
        QCOMPARE(at(), u"picMorphemeCard(0)"_s);
        for (int i = 0; i < 8; ++i)
            press(Qt::Key_Right), press(Qt::Key_Down);
        QCOMPARE(at(), u"picMorphemeCard(35)"_s);
        QKeyEvent held(QEvent::KeyPress, Qt::Key_Return, {}, u"\r"_s, true);
        QCoreApplication::sendEvent(m.card(35), &held);
        QVERIFY(!m.rules().FirstCardTurned());
        press(Qt::Key_Return);
        QVERIFY(m.rules().isUp(35));
        press(Qt::Key_Tab);
        QCOMPARE(at(), u"cmdCommand(0)"_s);
        press(Qt::Key_Enter);
        QVERIFY(m.rules().isDealt() && !m.rules().FirstCardTurned());
        QCOMPARE(at(), u"picMorphemeCard(0)"_s);
    }

    void closing_data()
    {
        columns<Act, Act, QString>("before", "close", "colours");
        const Act none = [](MemoryTable &) {};
        const QString kept = u"65535 65535 16711680 65535 65535"_s;
        for (const auto &[name, act] :
             {std::pair{"intro", openIntro}, {"one up", oneUp}, {"two up", twoUp}}) {
            QTest::addRow("%s: Abbrechen", name) << act << abandon << kept;
            QTest::addRow("%s: Esc", name) << act << escape << kept;
            QTest::addRow("%s: the program", name) << act << quit << u"- - - - -"_s;
        }
        QTest::newRow("waiting for a list: Abbrechen") << inWaiting(abandon) << none << kept;
        QTest::newRow("waiting for a list: the program") << inWaiting(quit) << none << u"- - - - -"_s;
        QTest::newRow("waiting for a list: the work is cancelled")
            << inWaiting([](MemoryTable &m) { m.gate.cancelWork(); }) << abandon << kept;
        const Act name = [](MemoryTable &m) {
            m.deal(150);
            m.t.boxes.whileOpen = [&m](const Question &) { m.form.close(); };
            m.t.boxes.willEnterName(u"Mia"_s);
            m.solve();
        };
        QTest::newRow("name entry: the program") << name << none << u"- - - - -"_s;
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
        QStringList colours;
        for (const auto *key : {u"Current", u"BG", u"Fore", u"Morpheme1", u"Morpheme2"})
            colours << m.stored(QString::fromUtf16(key));
        QTEST(colours.join(u' '), "colours");
        QCOMPARE(m.stored(u"PräfixeTop 10:"_s), u"-"_s);
        QCOMPARE(unloaded.size(), m.gate.isClosing() ? 1 : 0);
        QVERIFY(m.gate.isFree() && m.t.ok());
        QVERIFY(QGuiApplication::overrideCursor() == nullptr);
        if (m.gate.isClosing())
            return;
        QVERIFY(m.window() == nullptr);
        m.setList(u"affix\\prefix.afx"_s, u"vor#x"_s, 24);
        m.deal(150); // a new window
        QVERIFY(m.rules().isDealt());
    }

    void lists_data()
    {
        columns<int, int, bool>("id", "lines", "isDealt");
        for (const auto &[lines, isDealt] :
             {std::pair{0, false}, {1, false}, {9, false}, {10, true}, {18, true}, {19, true}, {40000, true}})
            QTest::addRow("%d stems", lines) << 250 << lines << isDealt;
        QTest::newRow("18 suffixes") << 350 << 18 << false;
        QTest::newRow("19 suffixes") << 350 << 19 << true;
    }
    void lists()
    {
        QFETCH(int, id);
        QFETCH(int, lines);
        MemoryTable m;
        m.setList(id == 250 ? u"text\\Hauptbausteine.Txt"_s : u"affix\\suffix.afx"_s, u" wort# "_s, lines);
        int rounds = 0;
        m.t.pump.waiting = true;
        m.t.pump.onServe = [&] { ++rounds == 100 ? m.gate.cancelWork() : void(); };
        m.deal(id);
        QTEST(m.rules().isDealt(), "isDealt");
        QCOMPARE(rounds, m.rules().isDealt() ? 0 : 100);
        QCOMPARE(m.window()->EnoughWortelInFile(), id == 350 || lines >= 19);
        QVERIFY(!m.window()->AllreadyExists(u"worta"_s) && m.t.ok());
    }

    void anotherKindWhileItWaits()
    {
        MemoryTable m;
        m.setList(u"affix\\prefix.afx"_s, u"vor#x"_s, 3);
        m.t.pump.waiting = true;
        m.t.pump.onServe = [&m, rounds = 0]() mutable {
            if (++rounds == 5) {
                m.window()->controls().OptMorphemeType[2]->click();
                m.window()->controls().Anfangen->click();
            }
        };
        m.deal(150);
        QVERIFY(m.rules().isDealt() && m.window()->controls().lblNotice->isHidden());
        QCOMPARE(m.window()->windowTitle(), u"Suffix-Memory"_s);
    }

    void aListVanishesBetweenGames()
    {
        MemoryTable m;
        m.deal(150);
        m.click(0);
        QVERIFY(QFile::remove(m.t.folder.filePath(u"affix/prefix.afx"_s)));
        m.t.boxes.willAnswer(Boxes::Answer::Ok);
        m.window()->controls().Anfangen->click();
        QCOMPARE(m.t.boxes.asked.last().title, u"Wortel-Meister - Fehler"_s);
        const QString told = m.t.boxes.asked.last().text;
        QVERIFY2(told.startsWith(u"Datei "_s) &&
                     told.contains(u"prefix.afx fehlt\n\nBreche ab...\n\nSub: ProgInit Line: "_s),
                 qPrintable(told));
        QVERIFY(m.rules().isUp(0) && m.t.ok()); // the game goes on
    }

    /// An option counts for the next game; only the leader that is shown at the end is that of the option.
    void anotherKindInTheMiddle()
    {
        MemoryTable m;
        m.deal(150);
        m.window()->controls().OptMorphemeType[2]->click();
        m.t.store.SaveSetting(u"MemoryGame"_s, u"SuffixeTop 10:"_s, u"19,Uwe"_s);
        m.t.boxes.willEnterName(u"Mia"_s);
        m.t.boxes.willCloseScores();
        m.solve();
        QCOMPARE(m.stored(u"PräfixeTop 10:"_s), u" 18,Mia"_s + seedFrom991);
        QCOMPARE(m.window()->controls().Label1->text(), u"MEMORY-\nMEISTER\n\nUwe\n19 Klicks"_s);
        QCOMPARE(m.window()->windowTitle(), u"Präfix-Memory"_s);
        m.window()->controls().Anfangen->click();
        QCOMPARE(m.window()->windowTitle(), u"Suffix-Memory"_s);
        m.click(0);
        QVERIFY(m.card(0)->accessibleName().contains(u"nach"_s));
    }

    void openedAgain()
    {
        MemoryTable m;
        m.deal(150);
        const frmMemory *first = m.window();
        m.click(0);
        m.click(m.twinOf(0, false));
        m.open(350);
        m.intro(100); // the button acts already, so the cards are dealt at once
        QCOMPARE(m.window(), first);
        QVERIFY(!m.rules().isWaiting() && m.window()->windowTitle() == u"Suffix-Memory"_s);
        QTest::qWait(20);
        m.window()->close();
        m.run(command::From::MainMenu, 250); // before the old one is dropped
        QVERIFY(m.window() != first && m.window()->isVisible());
    }

    void theGateIsAsked()
    {
        MemoryTable m;
        m.deal(150);
        {
            const Gate::Passage work = m.gate.stay();
            m.click(0);
            m.window()->controls().Anfangen->click();
        }
        QVERIFY(!m.rules().FirstCardTurned());
    }

    void developersScore()
    {
        MemoryTable m;
        m.deal(350);
        m.t.boxes.willType(u"80"_s);
        m.t.boxes.willEnterName({});
        m.t.boxes.willCloseScores();
        m.window()->controls().Command2->click();
        QCOMPARE(m.t.boxes.asked.first().text, u"Enter a score"_s);
        QVERIFY(m.t.boxes.asked.last().text.startsWith(u"80very good: \nWortel 80\n"_s));
        QCOMPARE(m.stored(u"PräfixeTop 10:"_s), u" 80,Wortel"_s + seedFrom991);
    }

    void sizes_data()
    {
        columns<QSize, QSize>("room", "window");
        QTest::newRow("853x480") << QSize(853, 450) << QSize(594, 450);
        QTest::newRow("1366x768") << QSize(1366, 738) << QSize(974, 738);
        QTest::newRow("1920x1080: twice the size") << QSize(1920, 1050) << QSize(1070, 810);
        QTest::newRow("upright") << QSize(540, 1920) << QSize(540, 408);
    }
    void sizes()
    {
        QFETCH(QSize, room);
        QFETCH(QSize, window);
        const QSize opened = MemoryControls::openingSize(room);
        QVERIFY2(qAbs(opened.width() - window.width()) < 2 && qAbs(opened.height() - window.height()) < 2,
                 qPrintable(u"%1x%2"_s.arg(opened.width()).arg(opened.height())));
        MemoryTable m;
        m.deal(150);
        m.window()->resize(room);
        for (int index = 0; index < 36; ++index) {
            const QRect place = m.card(index)->geometry();
            QVERIFY(m.window()->rect().contains(place) && qAbs(place.width() - place.height()) <= 1);
            for (int other = 0; other < index; ++other)
                QVERIFY(!place.intersects(m.card(other)->geometry()));
        }
    }
};

WORTEL_TEST(MemoryWindowTest)
#include "tst_memory_window.moc"
