// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "language/chooser_window.h"
#include "platform/files.h"
#include "support/test_class.h"

#include <QClipboard>
#include <QScrollBar>
#include <QSignalSpy>

/// What is done to the lists of the word chooser, and with its words.
class ChooserListsTest : public QObject
{
    Q_OBJECT

private slots:
    void morphemesAreAddedOnce_data()
    {
        columns<QString, bool>("typed", "added");
        QTest::newRow("new") << u"neu"_s << true;
        QTest::newRow("blanks") << u"  neu "_s << true;
        QTest::newRow("500 letters") << QString(500, u'ä') << true;
        QTest::newRow("there, in capitals") << u"FAHR"_s << false;
        QTest::newRow("nothing") << u"  "_s << false;
    }
    void morphemesAreAddedOnce()
    {
        QFETCH(QString, typed);
        QFETCH(bool, added);
        Chooser w;
        w.list(Kind::Stem).markAll();
        const QStringList titles{u"Präfix hinzufügen"_s, u"Wortel hinzufügen"_s, u"Suffix hinzufügen"_s};
        for (const int kind : {Kind::Prefix, Kind::Stem, Kind::Suffix}) {
            const QStringList before = w.list(kind).rows();
            w.t.boxes.willTypeWord(typed);
            w.c.morphemes[static_cast<std::size_t>(kind)].add->click();
            const bool isNew = added || (kind != Kind::Stem && typed == u"FAHR"_s);
            QCOMPARE(w.list(kind).rows(), isNew ? before + QStringList(typed.trimmed()) : before);
            QCOMPARE(w.t.boxes.asked.last().title, titles.at(kind));
        }
        QCOMPARE(w.list(Kind::Stem).marked(), QStringList({u"fahr"_s, u"bahn"_s, u"ball"_s}));
        QCOMPARE(w.lists.WortelList.count(), 3); // the game's own list stays
    }

    void stemListsAreLoaded()
    {
        Chooser w;
        const QString one = w.t.writeFile(u"text\\a.txt"_s, u"komm\r\n\r\n geh \r\n"_s);
        const QString two = w.t.writeFile(u"text\\b.txt"_s, u"geh\r\nsteh"_s);
        PressButton *add = w.c.morphemes[Kind::Stem].add;
        w.t.fileDialogs.willOpen({});
        QTest::mouseClick(add, Qt::RightButton);
        QCOMPARE(w.list(Kind::Stem).rows().size(), 3);
        QVERIFY(QTest::qWaitForWindowActive(w.window.get()));
        w.t.fileDialogs.willOpen({one});
        QTest::keyClick(w.window.get(), Qt::Key_O, Qt::ControlModifier);
        QCOMPARE(w.list(Kind::Stem).rows(), QStringList({u"komm"_s, u"geh"_s}));
        w.t.fileDialogs.willOpen({one, u"C:\\fort.txt"_s, two});
        QTest::mouseClick(add, Qt::RightButton);
        QCOMPARE(w.list(Kind::Stem).rows(), QStringList({u"komm"_s, u"geh"_s, u"steh"_s}));
        QCOMPARE(w.t.fileDialogs.asked.last().title, u"Wortel laden (Multi)"_s);
    }

    void menusOfTheLists()
    {
        Chooser w;
        const QString path = w.t.AppFolder + u"auswahl.txt"_s;
        const auto box = [&](auto act) {
            w.t.boxes.willBeRead();
            act();
            return w.lastBox();
        };
        MarkList &words = *w.c.List2;
        QVERIFY(QTest::qWaitForWindowActive(w.window.get()));
        QCOMPARE(box([&] { w.choose(words, "mnuCopySelWords"); }), u"No words to copy"_s);
        QCOMPARE(box([&] { w.choose(words, "mnuSaveSelWords"); }), u"No words to save"_s);
        QCOMPARE(box([&] { QTest::keyClick(w.window.get(), Qt::Key_S, Qt::ControlModifier); }),
                 u"Es gibt noch keine Ausgewählte Wörter Wörter zum Speichern !"_s);
        w.search({u"fahr"_s});
        QCOMPARE(box([&] { w.choose(words, "mnuCopySelWords"); }), u"Please select word(s) to copy"_s);
        QCOMPARE(box([&] { w.choose(words, "mnuSaveSelWords"); }), u"Please select word(s) to save"_s);
        w.mark(words, {u"abfahren"_s, u"fahrig"_s});
        w.choose(words, "mnuCopySelWords");
        QCOMPARE(QGuiApplication::clipboard()->text(), u"abfahren\r\nfahrig\r\n"_s);
        w.mark(words, {u"fahrig"_s, u"Fahrbahn"_s});
        QTest::keyClick(&words, Qt::Key_C, Qt::ControlModifier);
        QCOMPARE(QGuiApplication::clipboard()->text(), u"Fahrbahn\r\nfahrig\r\n"_s);
        w.mark(words, {u"abfahren"_s, u"fahrig"_s});
        w.t.options.setOption(Setting::SaveCopyWithCol);
        w.t.fileDialogs.willSave(path);
        w.choose(words, "mnuSaveSelWords");
        QCOMPARE(ReadWholeFile(path), QByteArray("abfahren     fahrig     \r\n"));
        QCOMPARE(w.t.fileDialogs.asked.last().title, u"Ausgewählte Wörter speichern"_s);
        w.t.fileDialogs.willSave(w.t.AppFolder + u"fort\\a.txt"_s);
        w.t.boxes.willAnswer(Boxes::Answer::Ok);
        QTest::keyClick(w.window.get(), Qt::Key_S, Qt::ControlModifier);
        QCOMPARE(w.lastBox(), u"Could not write the selected words to file."_s);
        w.choose(words, "mnuDelWortel");
        QCOMPARE(words.rows(), QStringList({u"Erfahrung"_s, u"Fahrbahn"_s, u"Verfahrenstechnik"_s}));
        w.choose(words, "mnuSelectAll");
        QCOMPARE(w.c.Label4->text(), u"3"_s);
        w.choose(words, "mnuUnSelectAll");
        QCOMPARE(words.markedCount(), 0);
        w.mark(w.list(Kind::Stem), {u"fahr"_s});
        w.choose(w.list(Kind::Stem), "mnuDelWortel");
        QCOMPARE(w.list(Kind::Stem).rows(), QStringList({u"bahn"_s, u"ball"_s}));
    }

    void fingersMarkAndScroll()
    {
        MarkList list;
        QStringList rows;
        for (int i = 0; i < 100; ++i)
            rows << QString::number(i);
        list.showRows(rows);
        list.resize(150, 200);
        list.show();
        QVERIFY(QTest::qWaitForWindowExposed(&list));
        const QScopedPointer<QPointingDevice> screen(QTest::createTouchDevice());
        const auto touch = [&](int from, int to) {
            QWidget *view = list.viewport();
            QTest::touchEvent(view, screen.data()).press(0, {9, from}, view);
            QTest::touchEvent(view, screen.data()).move(0, {9, to}, view);
            QTest::touchEvent(view, screen.data()).release(0, {9, to}, view);
        };
        const int height = list.sizeHintForRow(0);
        touch(5, 5);
        touch(5 + 2 * height, 5 + 2 * height);
        QCOMPARE(list.marked(), QStringList({u"0"_s, u"2"_s}));
        touch(150, 50);
        QCOMPARE(list.verticalScrollBar()->value(), 100);
        QTest::mouseClick(list.viewport(), Qt::RightButton, {}, {9, 9});
        QCOMPARE(list.markedCount(), 2);
        touch(150, 250);
        touch(5, 5);
        QCOMPARE(list.marked(), QStringList(u"2"_s));
    }
};

WORTEL_TEST(ChooserListsTest)
#include "tst_chooser_lists.moc"
