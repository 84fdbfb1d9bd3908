// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "games/scores/high_scores.h"

#include "platform/files.h"
#include "support/test_class.h"
#include "support/test_ground.h"

namespace {

const QByteArray freshFile = "Wortel:10\r\nWortel:9\r\nWortel:8\r\nWortel:7\r\nWortel:6\r\n"
                             "Wortel:5\r\nWortel:4\r\nWortel:3\r\nWortel:2\r\nWortel:1\r\n";

/// Ten lines, of which the first is `first`.
QByteArray fileWith(const QByteArray &first) { return first + "\r\n" + freshFile.sliced(11); }

/// The lists on a ground of their own.
struct Scores
{
    TestGround t;
    HighScores scores{t.ground};
    const QString path = t.AppFolder + u"scores.lst"_s;

    QByteArray bytes(const QString &name = u"scores.lst"_s) const
    {
        const QString file = t.AppFolder + name;
        return IsTextFile(file) ? ReadWholeFile(file) : QByteArray("none");
    }
    /// What the list's window shows: the result, then a row a line.
    QStringList shown() const { return t.boxes.asked.last().text.split(u'\n'); }
};

} // namespace

class HighScoresTest : public QObject
{
    Q_OBJECT

private slots:
    void reading_data()
    {
        columns<QByteArray, QString, QByteArray>("bytes", "first", "kept");
        QTest::newRow("empty") << QByteArray() << u"Wortel 10"_s << freshFile;
        QTest::newRow("nine lines") << freshFile.left(91) << u"Wortel 10"_s << freshFile;
        QTest::newRow("eleven lines") << fileWith("Ada:31") + "Bo:1\r\n"
                                      << u"Ada 31"_s << fileWith("Ada:31") + "Bo:1\r\n";
        QTest::newRow("line feeds only")
            << QByteArray("Ada:31\n") + QByteArray(freshFile.sliced(11)).replace("\r", "") << u"Ada 31"_s
            << QByteArray("Ada:31\n") + QByteArray(freshFile.sliced(11)).replace("\r", "");
        const auto kept = [](const char *name, const QByteArray &line, const QString &first) {
            QTest::newRow(name) << fileWith(line) << first << fileWith(line);
        };
        kept("Windows-1252", "J\xF6rg:12", u"Jörg 12"_s);
        kept("UTF-8", "J\xC3\xB6rg:12", u"Jörg 12"_s);
        kept("no colon", "12 Ada", u" 12"_s);
        kept("two colons", "Ada:b:12", u"Ada 0"_s);
        kept("nothing", "", u" 0"_s);
        kept("NUL", QByteArray("A\0da:12", 7), u"Ada 12"_s);
        kept("beyond all numbers", "Ada:1e400", u"Ada 0"_s);
        kept("negative", "Ada:-5", u"Ada -5"_s);
        kept("broken", "Ada:1.5", u"Ada 1.5"_s);
        kept("letters behind", "Ada:12abc", u"Ada 12"_s);
        kept("a line without end", QByteArray(1'000'000, 'a') + ":12", QString(40, u'a') + u" 12"_s);
    }
    void reading()
    {
        QFETCH(QByteArray, bytes);
        QFETCH(QByteArray, kept);
        Scores s;
        writeFileAtomically(s.path, bytes);
        s.t.boxes.willCloseScores();
        s.scores.DisplayHighScores(ScoredGame::Klotar);
        QTEST(s.shown().at(1), "first");
        QCOMPARE(s.shown().at(10), u"Wortel 1"_s);
        QCOMPARE(s.bytes(), kept);
        QCOMPARE(s.bytes(u"scores.lst.alt"_s), bytes != kept && !bytes.isEmpty() ? bytes : "none");
    }

    void placing_data()
    {
        columns<double, QString, int, QByteArray>("score", "typed", "place", "line");
        QTest::newRow("best") << 99.0 << u"Ada"_s << 1 << QByteArray("Ada:99");
        QTest::newRow("a tie goes above") << 8.0 << u"Ada"_s << 3 << QByteArray("Ada:8");
        QTest::newRow("last") << 1.0 << u"Ada"_s << 10 << QByteArray("Ada:1");
        QTest::newRow("empty name") << 5.0 << QString() << 6 << QByteArray("Sieger:5");
        QTest::newRow("blanks only") << 5.0 << u" \t "_s << 6 << QByteArray("Sieger:5");
        QTest::newRow("colon and line end") << 5.0 << u"A:9\r\nB:7"_s << 6 << QByteArray("A 9 B 7:5");
        QTest::newRow("markup") << 5.0 << u"<b>&amp;"_s << 6 << QByteArray("<b>&amp;:5");
        QTest::newRow("long") << 5.0 << QString(10'000, u'x') << 6 << QByteArray(40, 'x') + ":5";
        QTest::newRow("umlaut") << 5.0 << u"Jörg"_s << 6 << QByteArray("J\xF6rg:5");
    }
    void placing()
    {
        QFETCH(double, score);
        QFETCH(QString, typed);
        QFETCH(int, place);
        QFETCH(QByteArray, line);
        Scores s;
        s.t.boxes.willEnterName(typed);
        s.t.boxes.willCloseScores();
        s.scores.CheckForHighScore(ScoredGame::Klotar, score, 3);
        QCOMPARE(s.t.boxes.asked.first().title, u"Bestenliste Wortelspiele"_s);
        QCOMPARE(s.t.boxes.asked.last().code, place);
        QByteArray expected = freshFile;
        QList<QByteArray> lines = expected.replace("\r\n", "\n").chopped(1).split('\n');
        lines.insert(place - 1, line);
        lines.removeLast();
        QCOMPARE(s.bytes(), lines.join("\r\n") + "\r\n");
    }

    void noPlace()
    {
        Scores s;
        s.t.boxes.willCloseScores();
        s.scores.CheckForHighScore(ScoredGame::Klotar, 0, 0);
        QCOMPARE(s.shown().first(), QString());
        QCOMPARE(s.bytes(), freshFile);
    }

    void emojiComesBack()
    {
        Scores s;
        s.t.boxes.willEnterName(u"\U0001F600"_s);
        s.t.boxes.willCloseScores();
        s.scores.CheckForHighScore(ScoredGame::Klotar, 50, 1);
        s.t.boxes.willCloseScores();
        s.scores.DisplayHighScores(ScoredGame::Klotar);
        QCOMPARE(s.shown().at(1), u"\U0001F600 50"_s);
    }

    void windows_data()
    {
        columns<ScoredGame, QString, QString>("game", "file", "kind");
        QTest::newRow("Klotar") << ScoredGame::Klotar << u"scores.lst"_s << u"richtige Wörter"_s;
        QTest::newRow("Tonarin") << ScoredGame::Tonarin << u"ScoresVokal.lst"_s << u"richtige Vokale"_s;
        QTest::newRow("Kernling") << ScoredGame::Kernling << u"ScoresKernling.lst"_s << u"falsche Wortele"_s;
    }
    void windows()
    {
        QFETCH(ScoredGame, game);
        QFETCH(QString, file);
        QFETCH(QString, kind);
        Scores s;
        s.t.boxes.willEnterName(u"Ada"_s);
        s.t.boxes.willCloseScores();
        s.scores.CheckForHighScore(game, 17, 4);
        const QString result = u"Punkte: 17\n(4 %1). Sehr gut !\nAda 17\nWortel 10\n"_s.arg(kind);
        QVERIFY(s.t.boxes.asked.last().text.startsWith(result));
        QVERIFY(s.bytes(file).startsWith("Ada:17\r\n"));

        s.t.boxes.willPress(1);
        s.scores.ResetScores(game);
        QVERIFY(s.bytes(file).startsWith("Ada:17\r\n"));
        s.t.boxes.willPress(0);
        s.scores.ResetScores(game);
        QCOMPARE(s.bytes(file), freshFile);
        QCOMPARE(s.t.boxes.asked.last().text, game == ScoredGame::Kernling
                                                  ? u"Möchtest du die Bestenliste (Kernling) zurücksetzen ?"_s
                                                  : u"Möchtest du die Bestenliste zurücksetzen ?"_s);
    }

    void withoutTheCount()
    {
        Scores s;
        s.t.boxes.willEnterName(u"Ada"_s);
        s.t.boxes.willCloseScores();
        s.scores.CheckForHighScore(ScoredGame::Kernling, 17, {});
        QCOMPARE(s.shown().first(), u"Punkte: 17 Sehr gut !"_s);
    }

    void anotherComputerWritesWhileTheNameIsTyped()
    {
        Scores s;
        writeFileAtomically(s.path, freshFile);
        s.t.boxes.willEnterName(u"Ada"_s);
        s.t.boxes.willCloseScores();
        s.t.boxes.whileOpen = [&](const Question &question) {
            if (question.kind == u"ShowEnterName"_s)
                writeFileAtomically(s.path, "Bo:40\r\nCy:35\r\n" + freshFile.first(83));
        };
        s.scores.CheckForHighScore(ScoredGame::Klotar, 38, 9);
        QVERIFY(s.bytes().startsWith("Bo:40\r\nAda:38\r\nCy:35\r\nWortel:10\r\n"));
        QCOMPARE(s.t.boxes.asked.last().code, 2);
    }

    void aWriteThatFails()
    {
        Scores s;
        QVERIFY(QDir(s.t.folder.path()).mkdir(u"scores.lst"_s));
        s.t.boxes.willEnterName(u"Ada"_s);
        s.t.boxes.willAnswer(Boxes::Answer::Ok);
        s.t.boxes.willCloseScores();
        s.scores.CheckForHighScore(ScoredGame::Klotar, 38, 9);
        const Question &fault = s.t.boxes.asked.at(1);
        QCOMPARE(fault.title, u"Wortel-Meister - Fehler"_s);
        QVERIFY2(
            fault.text.startsWith(
                u"scores.lst-Datei (Bestenliste wortelspiele) könnte nicht gespeichert werden.\n ModHighScore (Line: "_s),
            qPrintable(fault.text));
        QVERIFY(s.shown().contains(u"Ada 38"_s)); // for this one display
    }

    void closingAtTheName()
    {
        Scores s;
        writeFileAtomically(s.path, freshFile);
        s.t.boxes.willEnterName(u"Ada"_s);
        s.t.boxes.whileOpen = [&](const Question &) { s.t.gate.requestClose(); };
        s.scores.CheckForHighScore(ScoredGame::Klotar, 38, 9);
        QVERIFY(s.bytes().startsWith("Sieger:38\r\nWortel:10\r\n"));
        QCOMPARE(s.t.boxes.asked.size(), 1); // and no list is shown
    }
};

WORTEL_TEST(HighScoresTest)
#include "tst_high_scores.moc"
