// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "language/word_tests.h"
#include "platform/word_lists.h"
#include "support/test_class.h"
#include "support/test_ground.h"

/// The questions asked of the word stores.
class WordTestsTest : public QObject
{
    Q_OBJECT

private:
    TestGround t;
    WordLists lists;
    WordTests tests{lists, t.options};

private slots:
    void init()
    {
        lists.LexiconList.clear();
        lists.LexiconList.addAll({u"Straße"_s, u"Haus"_s, u"haus"_s, u"ÄPFEL"_s});
        lists.PseudoWordList.clear();
        lists.PseudoWordList.addAll({u"verhausung"_s, u"Verhausung"_s});
    }

    void caseRule_data()
    {
        columns<QString, int, bool>("word", "rule", "found");
        QTest::newRow("exact, as written") << u"Haus"_s << 1 << true;
        QTest::newRow("exact, no such spelling") << u"HAUS"_s << 1 << false;
        QTest::newRow("blind") << u"HAUS"_s << 0 << true;
        QTest::newRow("blind, umlaut folds") << u"äpfel"_s << 0 << true;
        QTest::newRow("blind, sharp s stays itself") << u"STRAßE"_s << 0 << true;
        QTest::newRow("blind, sharp s is no double s") << u"STRASSE"_s << 0 << false;
        QTest::newRow("third state") << u"Haus"_s << 2 << false;
    }
    void caseRule()
    {
        QFETCH(QString, word);
        QFETCH(int, rule);
        t.options.setBox(Setting::CaseCheck, rule);
        QTEST(tests.In_Lexicon(word), "found");
    }

    void nonsenseHasItsOwnCaseRule()
    {
        t.options.setBox(Setting::CaseCheck, 0);
        t.options.setBox(Setting::UseCaseOnPseudo, 1);
        QVERIFY(tests.In_PseudoWordsList(u"verhausung"_s));
        QVERIFY(!tests.In_PseudoWordsList(u"VERHAUSUNG"_s));
        t.options.setBox(Setting::UseCaseOnPseudo, 0);
        QVERIFY(tests.In_PseudoWordsList(u"VERHAUSUNG"_s));
    }

    void vowelsIgnoreTheCaseRule()
    {
        WordLists l;
        WordTests of(l, t.options);
        l.kurzvokalList.addAll({u"ball"_s, QString()});
        l.langvokalList.add(u"bahn"_s);
        t.options.setBox(Setting::CaseCheck, 2);
        QVERIFY(of.InKurzLangVokalList(u"BALL"_s, Vowels::Short));
        QVERIFY(!of.InKurzLangVokalList(u"ball"_s, Vowels::Long));
        QVERIFY(!of.InKurzLangVokalList(u"ball"_s, Vowels::None));
        QVERIFY(!of.InKurzLangVokalList(QString(), Vowels::Short)); // though an empty entry stands there
    }

    void properCaseGivesTheFirstSpelling()
    {
        QCOMPARE(tests.ProperCase(u"HAUS"_s), u"Haus"_s);
        QCOMPARE(tests.ProperCase(u"äpfeL"_s), u"ÄPFEL"_s);
        QCOMPARE(tests.ProperCase(u"Maus"_s), QString());
        QCOMPARE(tests.ProperCase2(QString()), QString());
    }
};

WORTEL_TEST(WordTestsTest)
#include "tst_word_tests.moc"
