// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "language/list_loader.h"
#include "platform/word_lists.h"
#include "support/file_bytes.h"
#include "support/test_class.h"
#include "support/test_ground.h"

/// The files of a start and what is made of them.
class ListLoaderTest : public QObject
{
    Q_OBJECT

private:
    struct Fixture
    {
        TestGround t;
        WordLists lists;
        ListLoader loader{t.ground, lists};

        void layStartFiles()
        {
            t.writeFile(u"text\\Hauptbausteine.Txt"_s,
                        u"Abend\r\nAbend\r\n  Ball \r\n\r\nAbend\r\nabend\r\n"_s);
            t.writeFile(u"facit\\Hauptbausteine.lex"_s, u"Abend\r\nAbend\r\nBall\r\n"_s);
            t.writeFile(u"affix\\prefix.afx"_s, u"ab\r\nab\r\nan\r\n"_s);
            t.writeFile(u"affix\\suffix.afx"_s, u"er\r\nung\r\nung\r\n"_s);
        }
    };

private slots:
    void startFillsTheListsOnce()
    {
        Fixture f;
        f.layStartFiles();
        QSignalSpy busy(&f.loader, &ListLoader::busy);
        QVERIFY(!f.loader.loadAtStart());
        QCOMPARE(f.lists.WortelList.rows(), QStringList({u"Abend"_s, u"Ball"_s, u"Abend"_s, u"abend"_s}));
        QCOMPARE(f.lists.LexiconList.rows(),
                 QStringList({u"Abend"_s, u"Abend"_s, u"Ball"_s})); // neighbours stay
        QCOMPARE(f.lists.PrefixList.rows(), QStringList({u"ab"_s, u"an"_s}));
        QCOMPARE(f.lists.SuffixList.rows(), QStringList({u"er"_s, u"ung"_s}));
        QCOMPARE(busy.last().first().toBool(), false);

        f.t.writeFile(u"affix\\prefix.afx"_s, u"zer\r\n"_s);
        f.lists.WortelList.clear();
        QVERIFY(!f.loader.loadAtStart());
        QVERIFY(f.lists.WortelList.isEmpty());
        QCOMPARE(f.lists.PrefixList.count(), 2);
    }

    void startStopsAtAMissingFile_data()
    {
        columns<QString, int>("file", "filledStores");
        QTest::newRow("stem list") << u"text\\Hauptbausteine.Txt"_s << 0;
        QTest::newRow("dictionary") << u"facit\\Hauptbausteine.lex"_s << 1;
        QTest::newRow("prefixes") << u"affix\\prefix.afx"_s << 2;
        QTest::newRow("suffixes") << u"affix\\suffix.afx"_s << 3;
    }
    void startStopsAtAMissingFile()
    {
        QFETCH(QString, file);
        QFETCH(int, filledStores);
        Fixture f;
        f.layStartFiles();
        QVERIFY(QFile::remove(f.t.folder.filePath(QString(file).replace(u'\\', u'/'))));

        const std::optional<QString> fatal = f.loader.loadAtStart();
        QVERIFY(fatal);
        const QString start =
            u"Datei "_s + f.t.AppFolder + file + u" fehlt\n\nBreche ab...\n\nSub: ProgInit Line: "_s;
        QVERIFY2(fatal->startsWith(start), qPrintable(*fatal));
        QVERIFY(fatal->mid(start.size()).toInt() > 0);
        const WordStore *const stores[] = {&f.lists.WortelList, &f.lists.LexiconList, &f.lists.PrefixList,
                                           &f.lists.SuffixList};
        for (int i = 0; i < 4; ++i)
            QCOMPARE(stores[i]->isEmpty(), i >= filledStores);
    }

    void dictionaryOfAStemList_data()
    {
        columns<QString, QString>("stemList", "dictionary");
        QTest::newRow("capital ending") << u"C:\\w\\text\\Deutsch.TXT"_s << u"C:\\w\\facit\\Deutsch.lex"_s;
        QTest::newRow("every text") << u"C:\\textaufgaben\\text\\a.txt"_s
                                    << u"C:\\facitaufgaben\\facit\\a.lex"_s;
        QTest::newRow("case matters") << u"C:\\Text\\a.txt"_s << u"C:\\Text\\a.lex"_s;
        QTest::newRow("no ending") << u"C:\\text\\a.lst"_s << u"C:\\facit\\a.lst.lex"_s;
    }
    void dictionaryOfAStemList()
    {
        QFETCH(QString, stemList);
        QTEST(ListLoader::dictionaryOf(stemList), "dictionary");
    }

    void severalListsGrowTogether()
    {
        Fixture f;
        QString a = f.t.writeFile(u"text\\A.txt"_s, u"Alm\r\nBerg\r\n"_s);
        QString b = f.t.writeFile(u"text\\B.txt"_s, u"Berg\r\nTal\r\nAlm\r\n"_s);
        f.t.writeFile(u"facit\\A.lex"_s, u"almen\r\nbergen\r\n"_s);
        f.t.writeFile(u"facit\\B.lex"_s, u"bergen\r\nbergen\r\ntäler\r\n"_s);
        const QString second = b;
        f.loader.FillWortelList(a);
        f.loader.FillWortelList(b);
        QCOMPARE(f.lists.WortelList.rows(), QStringList({u"Alm"_s, u"Berg"_s, u"Tal"_s, u"Alm"_s}));
        QCOMPARE(f.lists.LexiconList.rows(), QStringList({u"almen"_s, u"bergen"_s, u"täler"_s}));
        QCOMPARE(f.lists.CurrentWortelFile, second);
        QVERIFY(b.endsWith(u"\\facit\\B.txt"_s));
        QVERIFY(f.lists.CurrentLexiconFile.endsWith(u"\\facit\\B.lex"_s));
    }

    void missingFilesLaterDoNotStop()
    {
        Fixture f;
        int hourglasses = 0;
        connect(&f.loader, &ListLoader::busy, this, [&](bool on) {
            hourglasses += on ? 1 : -1;
            QVERIFY(hourglasses >= 0);
        });
        f.lists.LexiconList.add(u"Haus"_s);
        f.lists.CurrentLexiconFile = u"old"_s;
        QString gone = f.t.AppFolder + u"text\\weg.txt"_s;
        const QString asked = gone;
        f.loader.FillWortelList(gone);
        QCOMPARE(f.lists.CurrentWortelFile, asked); // and nothing else has changed
        QCOMPARE(f.lists.CurrentLexiconFile, u"old"_s);
        QCOMPARE(f.lists.LexiconList.count(), 1);
        QVERIFY(f.t.boxes.asked.isEmpty());

        QString alone = f.t.writeFile(u"text\\allein.txt"_s, u"Alm\r\n"_s);
        f.t.boxes.willAnswer(Boxes::Answer::Ok);
        f.loader.FillWortelList(alone);
        QCOMPARE(f.lists.WortelList.count(), 1);
        QCOMPARE(f.lists.LexiconList.count(), 1);
        QCOMPARE(f.t.boxes.asked.last().title, u"Wortel-Meister - Fehler"_s);
        QCOMPARE(f.t.boxes.asked.last().text, u"Datei "_s + f.t.AppFolder + u"facit\\allein.lex fehlt"_s);

        f.t.boxes.willAnswer(Boxes::Answer::Ok);
        f.loader.Fill_Lexicon(u"\\proc\\self\\mem"_s); // there, but every read fails
        QCOMPARE(f.t.boxes.asked.last().text, u"Datei \\proc\\self\\mem kann nicht gelesen werden"_s);
        QCOMPARE(f.lists.LexiconList.count(), 1);
        QCOMPARE(hourglasses, 0);
    }

    void vowelListsRefuseDoubles()
    {
        Fixture f;
        f.t.writeFile(u"text kurz lang\\langer Stammvokal.Txt"_s, u"bahn\r\n\r\nBAHN\r\ntal\r\n"_s);
        f.t.writeFile(u"text kurz lang\\kurzer Stammvokal.Txt"_s, u"ball\r\n\r\n ball \r\n  \r\n"_s);
        f.loader.FillKurzLanglist();
        QCOMPARE(f.lists.langvokalList.rows(), QStringList({u"bahn"_s, u"tal"_s}));
        QCOMPARE(f.lists.kurzvokalList.rows(), QStringList({u"ball"_s, QString(), QString()}));
        f.loader.FillKurzLanglist();
        QCOMPARE(f.lists.langvokalList.count(), 2);
        QCOMPARE(f.lists.kurzvokalList.count(), 5); // each blank line makes an empty entry each time
    }

    void aMissingVowelListLeavesTheOther()
    {
        Fixture f;
        f.t.writeFile(u"text kurz lang\\kurzer Stammvokal.Txt"_s, u"ball\r\n"_s);
        f.t.boxes.willAnswer(Boxes::Answer::Ok);
        f.loader.FillKurzLanglist();
        QCOMPARE(f.lists.kurzvokalList.count(), 1);
        QVERIFY(f.t.boxes.asked.first().text.contains(u"langer Stammvokal.Txt fehlt\n\nBreche ab...\n\nSub: "
                                                      u"FillKurzLanglist Line: "_s));
    }
};

WORTEL_TEST(ListLoaderTest)
#include "tst_list_loader.moc"
