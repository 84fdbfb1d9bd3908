// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "language/list_chooser.h"
#include "language/word_window.h"
#include "support/plain_board.h"
#include "support/registry.h"

#include <QLabel>
#include <QtTest>

using namespace Qt::StringLiterals;

/// Choosing lists by hand, and tiles laid from a list.
class ListChooserTest : public QObject
{
    Q_OBJECT

private:
    struct Window : WordWindow
    {
        ListLoader loader{t.ground, lists};
        PlainBoard board{t.ground};
        int refills = 0;
        int drops = 0;
        ListChooser chooser{t.ground, c,           lists,
                            loader,   board.tiles, {[this] { refill(); }, [this] { ++drops; }}};

        void refill()
        {
            ++refills;
            lockedDuringRefill = !c.Check2->isEnabled() && !c.Check1->isEnabled() && !c.Text1->isEnabled();
        }
        bool lockedDuringRefill = false;

        bool toolsFree() const
        {
            return c.Check2->isEnabled() && c.Check1->isEnabled() && c.Text1->isEnabled() &&
                   QGuiApplication::overrideCursor() == nullptr;
        }
    };

private slots:
    void oneStemList()
    {
        Window w;
        const QString path = w.t.writeFile(u"text\\Wald.Txt"_s, u"baum\r\nblatt\r\n"_s);
        w.t.writeFile(u"facit\\Wald.lex"_s, u"Baum\r\n"_s);
        w.lists.WortelList.add(u"alt"_s);
        w.lists.CorrectWordList.add(u"alt"_s);
        w.t.fileDialogs.willOpen({path});
        w.chooser.chooseStemLists();
        QCOMPARE(w.t.fileDialogs.asked.first().title, u"Wortel laden (Multi)"_s);
        QCOMPARE(w.t.fileDialogs.asked.first().style, w.t.AppFolder + u"text"_s);
        QCOMPARE(w.c.Label3->text(), u"[1]"_s);
        QCOMPARE(w.c.Label3->toolTip(), u"Wald"_s);
        QCOMPARE(w.lists.WortelList.rows(), QStringList({u"baum"_s, u"blatt"_s}));
        QCOMPARE(w.lists.LexiconList.rows(), QStringList(u"Baum"_s));
        QVERIFY(w.lists.CorrectWordList.isEmpty());
        QCOMPARE(w.refills, 1);
        QVERIFY(w.lockedDuringRefill);
        QVERIFY(w.toolsFree());
        QVERIFY(w.t.ok());
    }

    void severalStemLists()
    {
        Window w;
        const QString a = w.t.writeFile(u"text\\A.txt"_s, u"baum\r\nblatt\r\n"_s);
        const QString b = w.t.writeFile(u"text\\B.txt"_s, u"blatt\r\nzweig\r\n"_s);
        w.t.writeFile(u"facit\\A.lex"_s, u"Baum\r\n"_s);
        w.c.Label3->setToolTip(u"alt"_s);
        w.t.fileDialogs.willOpen({a, b});
        w.t.boxes.willAnswer(Boxes::Answer::Ok); // B has no dictionary
        w.chooser.chooseStemLists();
        QCOMPARE(w.c.Label3->text(), u"[2]"_s);
        QCOMPARE(w.c.Label3->toolTip(), QString());
        QCOMPARE(w.lists.WortelList.rows(), QStringList({u"baum"_s, u"blatt"_s, u"zweig"_s}));
        QCOMPARE(w.lists.LexiconList.rows(), QStringList(u"Baum"_s));
        QVERIFY(w.t.ok());
    }

    void cancelledChoiceChangesNothing()
    {
        Window w;
        w.lists.WortelList.add(u"alt"_s);
        w.lists.CorrectWordList.add(u"alt"_s);
        const int words = w.lists.LexiconList.count();
        w.t.fileDialogs.willOpen({});
        w.chooser.chooseStemLists();
        w.t.fileDialogs.willOpen({});
        w.chooser.chooseDictionaries();
        QCOMPARE(w.lists.WortelList.count(), 1);
        QCOMPARE(w.lists.CorrectWordList.count(), 1);
        QCOMPARE(w.lists.LexiconList.count(), words);
        QCOMPARE(w.refills, 0);
        QVERIFY(w.toolsFree());
        QVERIFY(w.t.ok());
    }

    void dictionaries()
    {
        Window w;
        w.lists.CurrentLexiconFile = u"kept"_s;
        const QString a = w.t.writeFile(u"facit\\A.lex"_s, u"Baum\r\nBaum\r\n"_s);
        const QString b = w.t.writeFile(u"facit\\B.lex"_s, u"Baum\r\nZweig\r\n"_s);
        w.t.fileDialogs.willOpen({a, b});
        w.chooser.chooseDictionaries();
        QCOMPARE(w.c.Label3->text(), u"[2]"_s);
        QCOMPARE(w.lists.LexiconList.rows(), QStringList({u"Baum"_s, u"Zweig"_s}));
        QCOMPARE(w.lists.CurrentLexiconFile, u"kept"_s);
        QCOMPARE(w.refills, 0);
        QVERIFY(w.toolsFree());
        QVERIFY(w.t.ok());
    }

    void aClickLaysATile()
    {
        Window w;
        w.lists.WortelList.add(u"haus"_s);
        w.lists.PrefixList.addAll({u"ab"_s, u"an"_s});
        w.board.captions = {u"3"_s, u"4"_s, u"5"_s, u"12"_s};
        w.c.PrefixList->move(200, 300);
        w.chooser.PrefixList_Click(1);
        QCOMPARE(w.board.tiles.count(), 1);
        const cWortel &tile = *w.board.tiles.tiles().front();
        QCOMPARE(tile.txt, u"an"_s);
        QCOMPARE(QPoint(tile.xLeft(), tile.yTop()), QPoint(200, 260));
        QCOMPARE(tile.BGColor, colours::prefixBack);
        QCOMPARE(w.board.captions[1], u"5"_s);
        QCOMPARE(w.drops, 1);
        w.chooser.WortelList_Click(0);
        QCOMPARE(w.board.tiles.tiles().back()->BGColor, colours::wortelBack);
        w.chooser.SuffixList_Click(0); // an empty list
        w.chooser.PrefixList_Click(2);
        w.chooser.PrefixList_Click(-1);
        QCOMPARE(w.board.tiles.count(), 2);
        QCOMPARE(w.drops, 2);
    }
};

WORTEL_TEST(ListChooserTest)
#include "tst_list_chooser.moc"
