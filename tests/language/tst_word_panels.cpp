// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "language/word_window.h"
#include "platform/files.h"
#include "support/test_class.h"

#include <QClipboard>
#include <QGuiApplication>

/// The dictionary and the word list as they open over the board.
class WordPanelsTest : public QObject
{
    Q_OBJECT

private:
    static void choose(WordWindow &w, const QString &action)
    {
        auto *entry = w.form.findChild<QAction *>(action);
        QVERIFY2(entry != nullptr, qPrintable(action));
        entry->trigger();
    }
private slots:
    void dictionaryTakesTheToolsAndGivesThemBack()
    {
        WordWindow w;
        w.c.Dropper1->setCaption(u"Haus"_s);
        w.c.CorrectWordList->setVisible(true);
        w.r.dictionary.toggle();
        QVERIFY(w.r.dictionary.isOpen());
        QVERIFY(w.c.CorrectWordList->isHidden());
        QVERIFY(!w.c.Text2->isHidden());
        QVERIFY(!w.c.Command2->isEnabled() && !w.c.Option1[0]->isEnabled() && w.c.Command4->isEnabled());
        QCOMPARE(w.entry(), QString());
        QCOMPARE(w.c.Command3->toolTip(), u"Suchen"_s);
        w.tool(w.c.Command4); // closes the dictionary
        QVERIFY(!w.r.dictionary.isOpen() && !w.c.CorrectWordList->isHidden());
        choose(w, u"mnuCloseTheList"_s);
        QVERIFY(w.c.CorrectWordList->isHidden());
        QVERIFY(w.c.Text2->isHidden());
        QVERIFY(w.c.Command2->isEnabled() && w.c.Option1[0]->isEnabled());
        QCOMPARE(w.c.Command3->toolTip(), u"Wörterbuch"_s);
    }

    void wordSearch()
    {
        WordWindow w;
        w.c.Dropper1->setCaption(u"Haus"_s);
        w.play.startGame(PlayState::Phase::Playing, Vowels::None);
        w.tool(w.c.Command2, Qt::RightButton);
        QVERIFY(!w.r.dictionary.isOpen());
        w.play.stop();
        w.tool(w.c.Command2, Qt::RightButton);
        QVERIFY(w.r.dictionary.isOpen());
        QVERIFY(!w.c.Command4->isEnabled());
        QCOMPARE(w.c.Text2->text(), QString()); // the word is dropped, as required
        QCOMPARE(w.entry(), QString());
        w.r.dictionary.toggle();
        QVERIFY(w.c.Command4->isEnabled());
        w.r.dictionary.toggleForSearch();
        w.r.dictionary.storeLoading(&w.lists.WortelList);
        QVERIFY(w.r.dictionary.isOpen());
        w.r.dictionary.storeLoading(&w.lists.LexiconList);
        QVERIFY(!w.r.dictionary.isOpen());
        QVERIFY(w.c.Command2->isEnabled() && w.c.Command4->isEnabled() && w.c.Text2->isHidden());
    }

    void searchBox()
    {
        WordWindow w;
        w.lists.LexiconList.add(u"Hof"_s);
        w.r.dictionary.toggle();
        for (const auto &[typed, row] : {std::pair{u"h"_s, 3}, // begins behind the first entry
                                         {u"LÄU"_s, 2},
                                         {u"zz"_s, -1}}) {
            w.c.Text2->setText(typed);
            QCOMPARE(w.c.LexiconList->ListIndex(), row);
        }
    }

    void dictionaryMenuFeedsTheWordList()
    {
        WordWindow w;
        w.r.dictionary.toggle();
        choose(w, u"mnuAddToRetypeList"_s); // nothing is selected
        QVERIFY(w.lists.CorrectWordList.isEmpty());
        w.c.LexiconList->setListIndex(1);
        choose(w, u"mnuAddToRetypeList"_s);
        QCOMPARE(w.lists.CorrectWordList.rows(), QStringList(u"laufen"_s));
        choose(w, u"mnuClearRetypeList"_s);
        QVERIFY(w.lists.CorrectWordList.isEmpty());
    }

    void listsStayInTheWindowAndOffTheirTools_data()
    {
        QTest::addColumn<QSize>("window");
        QTest::newRow("small") << QSize(632, 480);
        QTest::newRow("netbook") << QSize(853, 480);
        QTest::newRow("wide") << QSize(1920, 1080);
    }
    void listsStayInTheWindowAndOffTheirTools()
    {
        QFETCH(QSize, window);
        WordWindow w(window);
        w.r.dictionary.toggle();
        const QRect list = w.c.LexiconList->geometry();
        const QRect search = w.c.Text2->geometry();
        QVERIFY(QRect(QPoint(), window).contains(list));
        QVERIFY(QRect(QPoint(), window).contains(search));
        QVERIFY(!search.intersects(list));
        for (const PressButton *tool : {w.c.Command3, w.c.Command4, w.c.Command5})
            QVERIFY(!list.intersects(QRect(tool->mapTo(&w.form, QPoint()), tool->size())));
    }

    void wordsAreAddedByTheirDictionarySpelling_data()
    {
        columns<QString, QStringList>("typed", "rows");
        QTest::newRow("in the dictionary") << u"LÄUFER"_s << QStringList({u"Haus"_s, u"Läufer"_s});
        QTest::newRow("not in it") << u"Maus"_s << QStringList(u"Haus"_s);
        QTest::newRow("in the list already") << u"haus"_s << QStringList(u"Haus"_s);
        QTest::newRow("cancelled") << QString() << QStringList(u"Haus"_s);
    }
    void wordsAreAddedByTheirDictionarySpelling()
    {
        QFETCH(QString, typed);
        QFETCH(QStringList, rows);
        WordWindow w;
        w.lists.CorrectWordList.add(u"Haus"_s);
        QSignalSpy edited(&w.r.wordList, &WordListPanel::wordsEdited);
        w.t.boxes.willTypeWord(typed);
        choose(w, u"mnuAddWord"_s);
        QCOMPARE(w.lists.CorrectWordList.rows(), rows);
        QCOMPARE(edited.size(), rows.size() - 1);
        QCOMPARE(w.t.boxes.asked.first().title, u"Wort hinzufügen"_s);
    }

    void anEditedWordStaysAtItsPlace()
    {
        WordWindow w;
        w.lists.CorrectWordList.addAll({u"Haus"_s, u"Läufer"_s});
        w.c.CorrectWordList->setListIndex(1);
        w.lists.LexiconList.add(u"Affe"_s);
        w.t.boxes.willTypeWord(u"affe"_s);
        choose(w, u"mnuEditWord"_s);
        QCOMPARE(w.lists.CorrectWordList.rows(), QStringList({u"Haus"_s, u"Affe"_s}));
        QCOMPARE(w.t.boxes.asked.first().style, u"Läufer"_s);

        w.c.CorrectWordList->setListIndex(-1);
        w.t.boxes.willTypeWord(u"laufen"_s);
        choose(w, u"mnuEditWord"_s); // nothing is selected: nothing happens
        QCOMPARE(w.lists.CorrectWordList.count(), 2);
        w.play.setCheckedVowels(Vowels::Short); // asks for no word; the last one is used as it stands
        choose(w, u"mnuAddWord2"_s);
        QCOMPARE(w.lists.CorrectWordList.rows(), QStringList({u"Haus"_s, u"Affe"_s, u"laufen"_s}));
    }

    void deleting()
    {
        WordWindow w;
        w.lists.CorrectWordList.addAll({u"a"_s, u"b"_s, u"c"_s});
        QSignalSpy edited(&w.r.wordList, &WordListPanel::wordsEdited);
        choose(w, u"mnuDeleteWord"_s); // nothing is selected
        QCOMPARE(w.lists.CorrectWordList.count(), 3);
        w.c.CorrectWordList->setListIndex(1);
        choose(w, u"mnuDeleteWord"_s);
        QCOMPARE(w.lists.CorrectWordList.rows(), QStringList({u"a"_s, u"c"_s}));
        QCOMPARE(edited.last(), QVariantList({QStringList({u"a"_s, u"c"_s}), false}));

        w.t.boxes.willPress(1);
        choose(w, u"mnuDeleteAllWords"_s);
        QCOMPARE(w.lists.CorrectWordList.count(), 2);
        w.t.boxes.willPress(0);
        choose(w, u"mnuDeleteAllWords"_s);
        QVERIFY(w.lists.CorrectWordList.isEmpty());
        QCOMPARE(w.t.boxes.asked.last().text, u"Entfernen alle Wörter?"_s);

        w.lists.CorrectWordList.add(u"a"_s);
        w.t.options.setBox(Setting::ConfirmBeforeErase, 0);
        choose(w, u"mnuDeleteAllWords"_s);
        QVERIFY(w.lists.CorrectWordList.isEmpty());
    }

    void saving()
    {
        WordWindow w;
        w.t.boxes.willBeRead();
        w.r.wordList.Save_Result();
        QCOMPARE(w.t.boxes.asked.last().text, u"Es gibt noch keine richtigen Wörter zum Speichern !"_s);

        w.lists.CorrectWordList.addAll({u"Läufer"_s, u"Haus"_s});
        w.t.fileDialogs.willSave(QString());
        w.r.wordList.Save_Result();
        const QString path = w.t.AppFolder + u"wörter.txt"_s;
        w.t.fileDialogs.willSave(w.t.AppFolder + u"fort\\wörter.txt"_s);
        w.t.boxes.willAnswer(Boxes::Answer::Ok);
        w.r.wordList.Save_Result();
        QCOMPARE(w.t.boxes.asked.last().title, u"Wortel - Fehler"_s);
        QCOMPARE(w.t.boxes.asked.last().text,
                 u"Die richtigen Wörter konnten nicht in die Datei geschrieben werden"_s);
        QCOMPARE(w.t.boxes.asked.last().code, int(Boxes::Icon::Warning));
        QCOMPARE(w.t.store.GetSetting(u"Path"_s, u"Export"_s, u"none"_s), u"none"_s);
        w.t.fileDialogs.willSave(path);
        w.r.wordList.Save_Result();
        QCOMPARE(ReadWholeFile(path), QByteArray("Haus\r\nL\xE4ufer\r\n"));
        w.t.options.setOption(Setting::SaveCopyWithCol);
        w.t.fileDialogs.willSave(path);
        w.r.wordList.Save_Result();
        QCOMPARE(ReadWholeFile(path), QByteArray("Haus     L\xE4ufer     \r\n"));
        QCOMPARE(w.t.store.GetSetting(u"Path"_s, u"Export"_s, {}) + u'\\', w.t.AppFolder);
        QCOMPARE(w.t.fileDialogs.asked.last().title, u"Richtige Wörter Speichern"_s);
    }

    void copying()
    {
        WordWindow w;
        QGuiApplication::clipboard()->setText(u"before"_s);
        w.t.boxes.willBeRead();
        w.r.wordList.CorrectWordsToClip();
        QCOMPARE(w.t.boxes.asked.last().text, u"Es gibt noch keine richtigen Wörter zum kopieren !"_s);
        QCOMPARE(QGuiApplication::clipboard()->text(), u"before"_s);
        w.lists.CorrectWordList.addAll({u"Läufer"_s, u"Haus"_s});
        w.r.wordList.CorrectWordsToClip();
        QCOMPARE(QGuiApplication::clipboard()->text(), u"Haus\r\nLäufer\r\n"_s);
    }
};

WORTEL_TEST(WordPanelsTest)
#include "tst_word_panels.moc"
