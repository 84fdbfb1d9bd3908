// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "language/word_window.h"
#include "support/test_board.h"
#include "support/test_class.h"

#include <QLabel>

/// Choosing lists by hand, and tiles laid from a list.
class ListChooserTest : public QObject
{
    Q_OBJECT

private slots:
    void stemLists_data()
    {
        // names: of the chosen lists; told: B has no dictionary
        columns<QStringList, QStringList, QString, bool>("names", "stems", "toolTip", "told");
        QTest::newRow("one") << QStringList(u"A"_s) << QStringList({u"baum"_s, u"blatt"_s}) << u"A"_s
                             << false;
        QTest::newRow("two") << QStringList({u"A"_s, u"B"_s})
                             << QStringList({u"baum"_s, u"blatt"_s, u"zweig"_s}) << QString() << true;
    }
    void stemLists()
    {
        QFETCH(QStringList, names);
        QFETCH(bool, told);
        WordWindow w;
        w.t.writeFile(u"text\\A.txt"_s, u"baum\r\nblatt\r\n"_s);
        w.t.writeFile(u"text\\B.txt"_s, u"blatt\r\nzweig\r\n"_s);
        w.t.writeFile(u"facit\\A.lex"_s, u"Baum\r\n"_s);
        w.lists.CorrectWordList.add(u"alt"_s);
        w.t.options.setBox(Setting::NoOverlapOnStart, 0);
        w.c.Text1->setText(u"3"_s);
        w.tool(w.c.OptType[0], Qt::RightButton);
        for (QString &name : names)
            name = w.t.AppFolder + u"text\\"_s + name + u".txt"_s;
        w.t.fileDialogs.willOpen(names);
        if (told)
            w.t.boxes.willAnswer(Boxes::Answer::Ok);
        bool locked = false;
        w.t.pump.waiting = true;
        w.t.pump.onServe = [&] {
            locked = !w.c.Check2->isEnabled() && !w.c.Check1->isEnabled() && !w.c.Text1->isEnabled();
        };
        w.tool(w.c.Check2, Qt::RightButton);
        QCOMPARE(w.t.fileDialogs.asked.first().title, u"Wortel laden (Multi)"_s);
        QCOMPARE(w.t.fileDialogs.asked.first().style, w.t.AppFolder + u"text"_s);
        QCOMPARE(w.c.Label3->text(), u"[%1]"_s.arg(names.size()));
        QTEST(w.c.Label3->toolTip(), "toolTip");
        QTEST(w.lists.WortelList.rows(), "stems");
        QCOMPARE(w.lists.LexiconList.rows(), QStringList(u"Baum"_s));
        QVERIFY(w.lists.CorrectWordList.isEmpty() && w.c.WortelList->isHidden());
        QCOMPARE(w.counters().first(), u"3"_s); // new tiles are dealt
        QVERIFY(locked);
        w.tool(w.c.Check2);
        QTEST(w.c.Label3->toolTip(), "toolTip"); // the next work changes nothing in it
        QCOMPARE(w.trouble(), QString());
    }

    void dictionaries()
    {
        WordWindow w;
        w.lists.CurrentLexiconFile = u"kept"_s;
        w.lay(wortelKind, 9, 9, u"alt"_s);
        const QString a = w.t.writeFile(u"facit\\A.lex"_s, u"Baum\r\nBaum\r\n"_s);
        const QString b = w.t.writeFile(u"facit\\B.lex"_s, u"Baum\r\nZweig\r\n"_s);
        w.t.fileDialogs.willOpen({a, b});
        w.tool(w.c.Command3, Qt::RightButton);
        QCOMPARE(w.c.Label3->text(), u"[2]"_s);
        QCOMPARE(w.lists.LexiconList.rows(), QStringList({u"Baum"_s, u"Zweig"_s}));
        QCOMPARE(w.lists.CurrentLexiconFile, u"kept"_s);
        QCOMPARE(w.texts(), QStringList(u"alt"_s));
        QCOMPARE(w.trouble(), QString());
    }
};

WORTEL_TEST(ListChooserTest)
#include "tst_list_chooser.moc"
