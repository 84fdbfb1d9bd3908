// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "language/chooser_window.h"
#include "platform/files.h"
#include "platform/work.h"
#include "support/test_class.h"
#include "support/test_house.h"

#include <QTimer>

/// The window of the word chooser, as a teacher works with it.
class ChooseWortelTest : public QObject
{
    Q_OBJECT

private slots:
    void searches_data()
    {
        columns<int, QStringList, QString, QString>("kind", "marked", "set", "found");
        const int stem = Kind::Stem;
        QTest::newRow("stem") << stem << QStringList(u"fahr"_s) << QString()
                              << u"Erfahrung abfahren Fahrbahn fahrig Verfahrenstechnik"_s;
        QTest::newRow("stem by stem, each word once")
            << stem << QStringList({u"bahn"_s, u"fahr"_s}) << QString()
            << u"Erfahrung abfahren Fahrbahn fahrig Verfahrenstechnik"_s;
        QTest::newRow("nothing marked") << stem << QStringList() << QString() << QString();
        QTest::newRow("long vowels, but for the list's own")
            << stem << QStringList() << u"ChkUseLangVokal"_s << u"Seeigel"_s;
        QTest::newRow("short vowels, and the list's own")
            << stem << QStringList() << u"ChkUseKurzVokal"_s << u"Ballung"_s;
        QTest::newRow("short words") << stem << QStringList(u"fahr"_s) << u"OptWordFilter(1)"_s
                                     << u"Erfahrung abfahren Fahrbahn fahrig"_s;
        QTest::newRow("long words") << stem << QStringList(u"fahr"_s) << u"OptWordFilter(2)"_s
                                    << u"Verfahrenstechnik"_s;
        QTest::newRow("capitals") << stem << QStringList(u"fahr"_s) << u"OptWordFilter(3)"_s
                                  << u"Erfahrung Fahrbahn Verfahrenstechnik"_s;
        QTest::newRow("small") << stem << QStringList(u"fahr"_s) << u"OptWordFilter(4)"_s
                               << u"abfahren fahrig"_s;
        QTest::newRow("prefix") << int(Kind::Prefix) << QStringList(u"ab"_s) << QString()
                                << u"abfahren ABEND"_s;
        QTest::newRow("suffix") << int(Kind::Suffix) << QStringList(u"en"_s) << QString() << u"abfahren"_s;
        QTest::newRow("nouns before marked ones")
            << int(Kind::Suffix) << QStringList(u"en"_s) << u"ChkUseNomen"_s << u"Erfahrung Ballung"_s;
        QTest::newRow("adjectives, then nouns")
            << int(Kind::Suffix) << QStringList() << u"ChkUseNomen ChkUseAdjektiv"_s
            << u"fahrig Erfahrung Ballung"_s;
    }
    void searches()
    {
        QFETCH(int, kind);
        QFETCH(QStringList, marked);
        QFETCH(QString, set);
        Chooser w;
        w.kind(kind);
        w.mark(w.list(kind), marked);
        w.set(set);
        w.c.Check4->click();
        QTEST(w.c.List2->rows().join(u' '), "found");
        QCOMPARE(w.c.Label3->text(), QString::number(w.c.List2->rows().size()));
        QCOMPARE(w.c.List2->toolTip().isEmpty(), w.c.List2->rows().isEmpty());
        QVERIFY(w.rests() && w.c.Check1->isEnabled() && w.t.ok());
    }

    void aNewSearchAddsOrBeginsAnew()
    {
        Chooser w;
        w.search({u"bahn"_s});
        w.c.List2->markAll();
        QCOMPARE(w.search({u"ball"_s}), QStringList({u"Fahrbahn"_s, u"Ballung"_s}));
        QCOMPARE(w.c.List2->marked(), QStringList(u"Fahrbahn"_s));
        w.set(u"ChkClearListBefore"_s);
        QCOMPARE(w.search({u"ball"_s}), QStringList(u"Ballung"_s));
        w.c.Check21->click();
        QCOMPARE(w.c.Label3->text(), u"0"_s);
        w.choose(w.list(Kind::Stem), "mnuClearList");
        QVERIFY(w.search({}).isEmpty()); // no stems, no search, of whatever kind
    }

    void aMissingVowelFileIsToldAndTheSearchGoesOn()
    {
        Chooser w;
        QFile::remove(nativePath(w.longFile));
        w.set(u"ChkUseLangVokal ChkUseKurzVokal"_s);
        w.t.boxes.willAnswer(Boxes::Answer::Ok);
        QCOMPARE(w.search({}), QStringList(u"Ballung"_s));
        QVERIFY(w.lastBox().startsWith(u"Datei "_s + w.longFile +
                                       u" fehlt\n\nBreche ab...\n\nSub: ProgInit Line: "_s));
    }

    void cancelledBehindTheStem()
    {
        Chooser w;
        w.t.pump.waiting = true;
        QString told;
        w.t.pump.onServe = [&] {
            QVERIFY(!w.c.List2->isEnabled() && !w.c.Check2->isEnabled() && !w.c.sProgressBar->isHidden());
            if (w.c.Label7->text() == u"bahn"_s) {
                QTest::mouseClick(w.c.Label6, Qt::LeftButton);
                told = w.c.sProgressBar->Caption();
            }
        };
        QCOMPARE(w.search({u"bahn"_s, u"ball"_s}), QStringList(u"Fahrbahn"_s));
        QCOMPARE(told, u"Breche ab..."_s);
        QVERIFY(w.rests() && w.c.List2->isEnabled() && w.c.Check2->isEnabled());
        QCOMPARE(w.c.sProgressBar->Caption(), QString());
    }

    /// Whatever is pressed while words are searched does nothing; closing ends it, of the window or of the
    /// game.
    void nothingPlaysIntoASearch()
    {
        for (const bool bringsDown : {false, true}) {
            Chooser w;
            w.search({u"bahn"_s});
            w.t.pump.waiting = true;
            int served = 0;
            w.t.pump.onServe = [&] {
                const QString before = w.state();
                for (auto *button : w.window->findChildren<QAbstractButton *>())
                    if (button != w.c.Check4 && served == 0)
                        button->click();
                emit w.list(Kind::Stem).menuWanted({});
                QCOMPARE(w.state(), before);
                if (++served == 3)
                    bringsDown ? w.t.gate.requestClose() : w.window->reject();
            };
            w.search({u"fahr"_s, u"ball"_s});
            QVERIFY(served >= 3);
            QVERIFY(!w.c.List2->rows().contains(u"Ballung"_s) && w.t.gate.work() == nullptr && w.rests());
            QVERIFY(QGuiApplication::overrideCursor() == nullptr && w.t.ok());
            QCOMPARE(w.window->isHidden(), !bringsDown); // the main window closes it with the other boxes
        }
    }

    void drawing()
    {
        Chooser w;
        w.search({u"fahr"_s, u"ball"_s});
        w.c.TxtNumWords->setText(u"4"_s);
        w.c.Check5->click();
        QCOMPARE(w.c.Label4->text(), u"4"_s);
        w.mark(w.list(Kind::Suffix), {u"ig"_s, u"en"_s});
        w.mark(w.list(Kind::Prefix), {u"ab"_s});
        w.c.TxtNumWords->setText(u"6"_s); // all of them, so that chance has no say
        w.set(u"ChkUseSuffixes Check5"_s);
        QCOMPARE(w.c.List2->marked(), QStringList({u"abfahren"_s, u"fahrig"_s}));
        w.set(u"ChkUsePrefixes Check5"_s);
        QCOMPARE(w.c.List2->marked(), QStringList(u"abfahren"_s));
        for (const ChooserControls::Morphemes &kind : w.c.morphemes) {
            kind.number->setText(u"1"_s);
            kind.random->click();
            QCOMPARE(kind.list->markedCount(), 1);
            QVERIFY(kind.count->text().endsWith(u", 1 markiert"_s));
            kind.number->setText(QString());
            kind.random->click();
            QCOMPARE(kind.list->markedCount(), 0);
        }
        QTest::keyClicks(w.c.TxtNumWords, u"-5x1"_s);
        QCOMPARE(w.c.TxtNumWords->text(), u"651"_s);
    }

    /// It goes on for ever, as it may, and stops at once.
    void aDrawBeyondTheListIsEndedByHand_data()
    {
        columns<QString>("way");
        for (const char *way : {"wait text", "Esc", "the window closes", "the game closes"})
            QTest::newRow(way) << QString::fromLatin1(way);
    }
    void aDrawBeyondTheListIsEndedByHand()
    {
        QFETCH(QString, way);
        Chooser w;
        w.t.pump.waiting = true;
        int served = 0;
        w.t.pump.onServe = [&] {
            if (++served != 2000)
                return;
            QVERIFY(!w.c.Label8->isHidden());
            if (way == u"wait text"_s)
                QTest::mouseClick(w.c.Label8, Qt::LeftButton);
            else if (way == u"Esc"_s)
                QTest::keyClick(w.window.get(), Qt::Key_Escape);
            else if (way == u"the window closes"_s)
                w.window->close();
            else
                w.t.gate.requestClose();
        };
        w.c.morphemes[Kind::Stem].number->setText(u"5"_s);
        w.c.morphemes[Kind::Stem].random->click();
        QCOMPARE(served, 2000);
        QCOMPARE(w.list(Kind::Stem).markedCount(), 3);
        QCOMPARE(w.window->isHidden(), way == u"the window closes"_s);
        QVERIFY(w.rests());
    }

    void handingOver_data()
    {
        columns<int, bool, QString>("count", "all", "box");
        QTest::newRow("none") << 0 << true << u"Es gibt keine Wörter zum Abschreiben"_s;
        QTest::newRow("none marked") << 0 << false << u"Es wurden keine Wörter ausgewählt"_s;
        QTest::newRow("1,023") << 1023 << true << QString();
        QTest::newRow("1,023 marked") << 1023 << false << QString();
        QTest::newRow("1,024") << 1024 << true << u"Es können max. 1024 Wörter benutzt werden."_s;
        QTest::newRow("1,024 marked") << 1024 << false << u"Es können max. 1024 Wörter benutzt werden"_s;
    }
    void handingOver()
    {
        QFETCH(int, count);
        QFETCH(bool, all);
        QFETCH(QString, box);
        TestHouse h;
        h.lists.LexiconList.clear();
        for (int i = 0; i < count; ++i)
            h.lists.LexiconList.add(u"halt%1"_s.arg(count - i));
        h.lists.CorrectWordList.add(u"Haus"_s);
        if (!box.isEmpty())
            h.t.boxes.willBeRead();
        QTimer::singleShot(0, &h.form, [&] {
            auto *window = qobject_cast<frmChooseWortel *>(QApplication::activeModalWidget());
            QVERIFY(window != nullptr);
            const ChooserControls &c = window->controls();
            c.morphemes[Kind::Stem].markAll->click();
            c.Check4->click();
            c.List2->markAll();
            (all ? c.Check1 : c.Check3)->click();
            QCOMPARE(window->isHidden(), box.isEmpty());
            window->reject();
        });
        h.run(command::From::MainMenu, 1608);
        QCOMPARE(h.t.boxes.asked.isEmpty() ? QString() : h.t.boxes.asked.first().text, box);
        QCOMPARE(h.play.RetypeChosenWords(), box.isEmpty());
        QCOMPARE(h.lists.CorrectWordList.count(), box.isEmpty() ? count : 1);
        if (box.isEmpty())
            QCOMPARE(h.controls.Scroller->ListCount(), 1023);
    }

    /// All of it is in the window, and no caption is cut.
    void everythingFits_data()
    {
        columns<QSize>("size");
        QTest::newRow("smallest screen") << QSize(837, 448);
        QTest::newRow("as wished") << QSize(1080, 700);
    }
    void everythingFits()
    {
        QFETCH(QSize, size);
        Chooser w;
        w.window->resize(size);
        QCOMPARE(w.window->size(), size);
        for (const int kind : {Kind::Prefix, Kind::Stem, Kind::Suffix}) {
            w.kind(kind);
            TestHouse::settle();
            for (QWidget *part : w.window->findChildren<QWidget *>()) {
                const bool says = qobject_cast<QAbstractButton *>(part) || qobject_cast<QLabel *>(part) ||
                                  qobject_cast<QLineEdit *>(part);
                if (!says || !part->isVisible())
                    continue;
                const QRect place(part->mapTo(w.window.get(), QPoint()), part->size());
                QVERIFY2(w.window->rect().contains(place), qPrintable(part->objectName()));
                const QSize least = part->minimumSizeHint();
                const bool wraps = part->hasHeightForWidth();
                const int needed = wraps ? part->heightForWidth(part->width()) : least.height();
                QVERIFY2(wraps || part->width() >= least.width(), qPrintable(part->objectName()));
                QVERIFY2(part->height() >= needed, qPrintable(part->objectName()));
            }
        }
    }
};

WORTEL_TEST(ChooseWortelTest)
#include "tst_choose_wortel.moc"
