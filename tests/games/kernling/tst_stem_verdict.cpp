// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "games/kernling/kernling_lists.h"
#include "games/kernling/stem_verdict.h"
#include "language/word_tests.h"
#include "platform/word_lists.h"
#include "support/test_class.h"
#include "support/test_ground.h"

using namespace kernling;

Q_DECLARE_METATYPE(kernling::VerdictOptions)

/// Markings and what is said of them. In the texts of the tables a run in red stands in [], one in blue in
/// ().
class StemVerdictTest : public QObject
{
    Q_OBJECT

private:
    struct Desk
    {
        explicit Desk(const QString &ini = u"[Stamm]\nrenn=brenn, trenn\nrück=drück\naß=fraß"_s)
        {
            if (!ini.isNull())
                t.writeFile(u"Wortel enthalten.ini"_s, ini);
            words.LexiconList.addAll({u"Haus"_s, u"hausen"_s});
            t.options.setBox(Setting::CaseCheck, 0);
        }

        TestGround t;
        WordLists words;
        WordTests tests{words, t.options};
        KernlingLists lists;
        StemJudge judge{lists, tests, t.AppFolder};
    };

    static QString asText(const Verdict &verdict)
    {
        QString text;
        for (const VerdictPiece &piece : verdict.pieces) {
            switch (piece.colour) {
            case 0x0000FF:
                text += u'[' + piece.text + u']';
                break;
            case 0xFF0000:
                text += u'(' + piece.text + u')';
                break;
            default:
                text += piece.colour == 0 ? piece.text : u"<strange colour>"_s;
            }
        }
        return text;
    }

    static Verdict reminded(const Desk &desk, const QString &marked)
    {
        Verdict verdict = desk.judge.judge(marked, {});
        desk.judge.remind(verdict);
        return verdict;
    }

private slots:
    void reminders_data()
    {
        columns<QString, QString>("stem", "reminder");
        const auto rows = [](const QString &stems, const QString &reminder) {
            for (const QString &stem : stems.split(u' '))
                QTest::newRow(qPrintable(stem)) << stem << reminder;
        };
        rows(u"renn irr lass ess eck nick lock ruck rück rank halt leb lag leg rat aß las eis ließ leit lieb "
             "rieb lief lieg riech lies ahn ehr lieh"_s,
             u"aber prüfe selbst, ob [%1]\nhier nicht zu einem anderen Stamm gehört, wie z.B.:\n[%2]"_s);
        rows(u"end los"_s, u"aber prüfe selbst,\nob es sich hierbei auch nicht um ein Suffix handelt !"_s);
        rows(u"ein"_s, u"aber prüfe selbst,\nob es sich hierbei auch nicht um ein Präfix handelt !"_s);
        rows(u"herr herz bet erb geb geh zerr"_s, u"aber prüfe selbst, ob [%1]\nhier kein Präfix ist !\n"_s);
        rows(u"haus rennen ass liess gehe"_s, u""_s);
    }
    void reminders()
    {
        QFETCH(QString, stem);
        QFETCH(QString, reminder);
        Desk desk;
        desk.lists.wortellist.add(stem);
        const QHash<QString, QString> likes{
            {u"renn"_s, u"brenn, trenn"_s}, {u"rück"_s, u"drück"_s}, {u"aß"_s, u"fraß"_s}};
        for (const QString &marked : {stem, stem.left(1).toUpper() + stem.mid(1)}) {
            const Verdict verdict = reminded(desk, marked);
            QString expected = QString(reminder).replace(u"%1"_s, marked).replace(u"%2"_s, likes.value(stem));
            QCOMPARE(asText(verdict), u"(ist ein Wortstamm\n)"_s + expected);
            QCOMPARE(verdict.complaint, QString());
            QCOMPARE(verdict.Text1, marked);
            QVERIFY(verdict.Image1 && verdict.kind == Verdict::Kind::Stem);
        }
    }

    void wrongAnswers_data()
    {
        columns<QString, QString>("marked", "verdict");
        const auto row = [](const char *name, const QString &marked, const QString &verdict) {
            QTest::newRow(name) << marked << verdict;
        };
        row("prefix", u"AB"_s, u"[AB]\nist kein Wortstamm\nsondern [ein Präfix]\n"_s);
        row("suffix", u" lich\t"_s, u"[lich]\nist kein Wortstamm\nsondern [ein Suffix]\n"_s);
        row("prefix and suffix", u"er"_s, u"[er]\nist kein Wortstamm\nsondern [ein Präfix]\n"_s);
        row("a word", u"haus"_s,
            u"[haus][\nsteht nicht in der Wortstamm-Liste][\nhaus]\nist ein Wort im Wörterbuch"_s);
        row("nonsense", u"xyz"_s, u"[xyz][\nsteht nicht in der Wortstamm-Liste]"_s);
        row("two words", u"wirk\r\nwirk"_s, u"[wirk wirk][\nsteht nicht in der Wortstamm-Liste]"_s);
        row("two paragraphs", u"wirk\u2029wirk"_s, u"[wirk wirk][\nsteht nicht in der Wortstamm-Liste]"_s);
        row("blanks alone", u" \t\n"_s, u"[][\nsteht nicht in der Wortstamm-Liste]"_s);
    }
    void wrongAnswers()
    {
        QFETCH(QString, marked);
        Desk desk;
        desk.lists.wortellist.addAll({u"wirk"_s, u""_s});
        desk.lists.UserFalseWortelList.add(u"alt"_s);
        const Verdict verdict = desk.judge.judge(marked, {.KernlingShowFalse = 1});
        QTEST(asText(verdict), "verdict");
        QVERIFY(!verdict.Image1 && verdict.kind == Verdict::Kind::NoStem && verdict.Text1.isEmpty());
        QCOMPARE(verdict.falseRow, std::optional(marked));
        QVERIFY(!verdict.foundRow);
    }

    void options_data()
    {
        columns<QString, VerdictOptions, QString>("marked", "options", "outcome");
        const auto row = [](const char *name, const QString &marked, const VerdictOptions &options,
                            const QString &outcome) { QTest::newRow(name) << marked << options << outcome; };
        // tone, listed right, listed wrong; "wirk" was found before
        row("defaults, found before", u"Wirk"_s, {}, u"112 - -"_s);
        row("defaults, new", u"spiel"_s, {}, u"112 spiel -"_s);
        row("every answer is listed", u"wirk"_s, {.KernlingShowNoDup = 0}, u"112 wirk -"_s);
        row("third state lists none", u"spiel"_s, {.KernlingShowNoDup = 2}, u"112 - -"_s);
        row("no sounds", u"spiel"_s, {.KernlingUseSounds = 0}, u"- spiel -"_s);
        row("wrong", u"xyz"_s, {}, u"beep - -"_s);
        row("wrong without stored sounds", u"xyz"_s, {.storedUseSounds = false}, u"- - -"_s);
        row("the edited sounds do not matter", u"xyz"_s, {.KernlingUseSounds = 0}, u"beep - -"_s);
        row("wrong ones are listed", u"xyz"_s, {.KernlingShowFalse = 1}, u"beep - xyz"_s);
        row("third state lists no wrong one", u"xyz"_s, {.KernlingShowFalse = 2}, u"beep - -"_s);
    }
    void options()
    {
        QFETCH(QString, marked);
        QFETCH(VerdictOptions, options);
        Desk desk;
        desk.lists.wortellist.addAll({u"wirk"_s, u"spiel"_s});
        desk.lists.UserFoundWortelList.add(u"wirk"_s);
        const Verdict verdict = desk.judge.judge(marked, options);
        const char *const tones[] = {"-", "112", "beep"};
        QTEST(QLatin1String(tones[static_cast<int>(verdict.tone)]) + u' ' +
                  verdict.foundRow.value_or(u"-"_s) + u' ' + verdict.falseRow.value_or(u"-"_s),
              "outcome");
    }

    /// Five megabytes are judged, and not shown.
    void theWholeTextIsMarked()
    {
        const QString text = u"Wort\u2029"_s.repeated(1'000'000);
        const Verdict verdict = Desk().judge.judge(text, {.KernlingShowFalse = 1});
        QCOMPARE(asText(verdict),
                 u'[' + u"Wort "_s.repeated(40) + u"…][\nsteht nicht in der Wortstamm-Liste]"_s);
        QCOMPARE(verdict.falseRow, std::optional(u"Wort\u2029"_s.repeated(40) + u'…'));
    }

    void nothingIsMarked() { QVERIFY(Desk().judge.judge(u""_s, {}).kind == Verdict::Kind::Nothing); }

    void theFileIsBroken_data()
    {
        columns<QString, QString>("ini", "complaint");
        const QString damaged = u"Die Stamm-Datei (Wortel enthalten.ini) ist beschädigt oder unvollständig"_s;
        QTest::newRow("missing") << QString() << u"Die Stamm-Datei (Wortel enthalten.ini) fehlt"_s;
        QTest::newRow("empty") << u""_s << damaged;
        QTest::newRow("cut short") << u"[Stamm]\nrück=drück\nrenn="_s << damaged;
        QTest::newRow("another section") << u"[Stämme]\nrück=drück\nrenn=x"_s << damaged;
    }
    void theFileIsBroken()
    {
        QFETCH(QString, ini);
        Desk desk(ini);
        desk.lists.wortellist.add(u"rück"_s);
        const Verdict verdict = reminded(desk, u"rück"_s);
        QTEST(verdict.complaint, "complaint");
        QVERIFY(asText(verdict).endsWith(u"wie z.B.:\n[]"_s));
    }

    void cleanSelection()
    {
        QCOMPARE(CleanSelection(u"\ra\r\nb\n\nc\t\u0001d\u000B\u2028e"_s), u" a b  c d e"_s);
    }
};

WORTEL_TEST(StemVerdictTest)
#include "tst_stem_verdict.moc"
