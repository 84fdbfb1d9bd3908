// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "games/kernling/workshop.h"

#include "platform/files.h"

#include <QLabel>
#include <QWheelEvent>

/// The text's ways in: files of each kind, drops, its division into words, and what a text box must bear.
class TextSourceTest : public QObject
{
    Q_OBJECT

private slots:
    void filesOfEachKind_data()
    {
        columns<QString, QString, QString, QString, QString>("file", "content", "text", "stems", "told");
        const QString own = u"halt renn wirk"_s;
        const QString all = u"ball bahn"_s;
        QTest::newRow("plain") << u"a.TXT"_s << u"Fünf\r\nSätze."_s << u"Fünf\nSätze."_s << all << QString();
        QTest::newRow("rich") << u"a.rtf"_s << u"{\\rtf1\\ansi Eins\\par {\\b zwei}}"_s << u"Eins\nzwei"_s
                              << all << QString();
        QTest::newRow("dictionary") << u"facit\\Zwei.LEX"_s << u"Haus\r\nMaus\r\n"_s << u"Haus\nMaus"_s
                                    << u"zwei1 zwei2"_s << QString();
        QTest::newRow("dictionary alone")
            << u"facit\\Drei.lex"_s << u"Haus"_s << u"Haus"_s << QString()
            << u"Zu diesem Wörterbuch gibt es keine Wortstamm-Liste:\nDrei.lex"_s;
        QTest::newRow("page") << u"a.html"_s << u"<title>T & U</title><body><b>Ein</b> Satz</body>"_s
                              << u"Ein Satz"_s << own << QString();
        QTest::newRow("NULs") << u"a.txt"_s << u"a\0\ab"_s << u"ab"_s << all << QString();
        QTest::newRow("missing")
            << u"weg.txt"_s << QString() << u"before"_s << own
            << u"Die Datei konnte nicht gelesen werden:\nweg.txt\n\nDie Datei gibt es nicht."_s;
        QTest::newRow("blank") << u"a.txt"_s << u" \r\n"_s << u"before"_s << own
                               << u"Die Datei enthält keinen Text: a.txt"_s;
        QTest::newRow("cut") << u"a.rtf"_s << u"{\\rtf1\\ansi"_s << u"before"_s << own
                             << u"Die Datei enthält keinen Text: a.rtf"_s;
        QTest::newRow("strange") << u"bild.png"_s << u"x"_s << u"before"_s << own
                                 << u"Hier passen nur Texte (*.txt), Rich-Text-Dateien (*.rtf), "
                                    u"Wörterbücher (*.lex) und Webseiten (*.html)."_s;
    }
    void filesOfEachKind()
    {
        QFETCH(QString, file);
        QFETCH(QString, content);
        QFETCH(QString, text);
        QFETCH(QString, stems);
        QFETCH(QString, told);
        for (const bool dropped : {false, true}) {
            Workshop w;
            w.t.writeFile(u"text\\Zwei.txt"_s, u"zwei1\r\nzwei2\r\n"_s);
            w.write(u"before"_s);
            const QString path = content.isEmpty() ? w.t.AppFolder + file : w.t.writeFile(file, content);
            if (!told.isEmpty())
                file.startsWith(u"weg"_s) ? w.t.boxes.willAnswer(Boxes::Answer::Ok) : w.t.boxes.willBeRead();
            if (dropped) {
                drop(w, path);
            } else {
                w.t.fileDialogs.willOpen({path});
                w.press(w.c().Command5);
                QCOMPARE(w.t.fileDialogs.asked.last().style, w.t.AppFolder);
                QCOMPARE(w.t.store.GetSetting(u"Path"_s, u"InternalOpenKernling"_s, {}),
                         path.left(path.lastIndexOf(u'\\')));
            }
            QCOMPARE(w.text().text().trimmed(), text);
            QCOMPARE(w.rows(w.c().wortellist).join(u' '), stems);
            QCOMPARE(w.lastBox().section(u'|', 1), told);
            if (file == u"a.html"_s)
                QCOMPARE(w.c().textGroup->title(), u"Text: T && U"_s);
        }
    }

    void aTextBecomesWords_data()
    {
        columns<QString, QString>("length", "words");
        QTest::newRow("all") << u"0"_s << u"Ein Satz mit 3 Wörtern"_s;
        QTest::newRow("four letters") << u"4"_s << u"Satz"_s;
        QTest::newRow("empty field") << QString() << u"Ein Satz mit 3 Wörtern"_s;
        QTest::newRow("none so long") << u"99999"_s << u"(kept)"_s;
    }
    void aTextBecomesWords()
    {
        QFETCH(QString, length);
        QFETCH(QString, words);
        Workshop w;
        const QString sentence = u"Ein Satz, Ein Satz\tmit 3 Wörtern"_s;
        w.c().Check8->setChecked(true);
        w.c().cboWordLen->setEditText(length);
        w.t.fileDialogs.willOpen({w.t.writeFile(u"a.txt"_s, sentence)});
        if (words == u"(kept)"_s)
            w.t.boxes.willBeRead();
        w.press(w.c().Command5);
        QString expected = words == u"(kept)"_s ? sentence : words;
        if (expected == words)
            expected.remove(u" 3"_s); // a digit begins no word
        QCOMPARE(w.text().text().simplified(), expected.simplified());
    }

    void aTextKeepsItsStemsAndTitle()
    {
        Workshop w;
        w.c().wortellist->selectRows({0, 1});
        w.t.fileDialogs.willOpen({w.t.writeFile(u"a.txt"_s, u"4 5"_s)});
        w.c().Check8->setChecked(true);
        w.t.boxes.willBeRead(); // no word in it
        w.press(w.c().Command5);
        QVERIFY(w.c().wortellist->selectedRows().isEmpty());
        for (const QString &kept : {u"4 5|ball|Text: a.txt"_s, u"|halt|Text"_s}) {
            w.k.Form_Load();
            const QString stem = w.rows(w.c().wortellist).first();
            QCOMPARE(w.text().text() + u'|' + stem + u'|' + w.c().textGroup->title(), kept);
            w.write(QString());
        }
    }

    void aFileDroppedInAGameIsLeft()
    {
        Workshop w;
        w.write(u"before"_s);
        w.press(w.c().Command10);
        drop(w, w.t.writeFile(u"a.txt"_s, u"after"_s));
        QCOMPARE(w.text().text(), u"before"_s);
    }

    void rowsAreDroppedAtTheirPlace()
    {
        Workshop w;
        w.write(u"ab"_s);
        QMimeData words;
        words.setText(u"eins zwei"_s);
        words.setHtml(u"<img src='file:///etc/passwd'>"_s);
        w.drop(words, 1);
        QCOMPARE(w.text().text(), u"a eins zwei b"_s);
        words.setText(QString(20000, u'x')); // no layout bears such a line
        w.drop(words);
        QVERIFY(w.text().document()->blockCount() > 4);
    }

    void lettersGrowAndShrink()
    {
        Workshop w;
        const int before = w.text().font().pixelSize();
        w.press(w.c().cmdLarger);
        QVERIFY(w.text().font().pixelSize() > before);
        w.press(w.c().cmdSmaller);
        QCOMPARE(w.text().font().pixelSize(), before);
        for (int turn = 0; turn < 100; ++turn) {
            QWheelEvent event(QPointF(20, 20), QPointF(20, 20), {}, QPoint(0, 120), Qt::NoButton,
                              Qt::ControlModifier, Qt::NoScrollPhase, false);
            QCoreApplication::sendEvent(w.text().viewport(), &event);
        }
        QVERIFY(w.text().font().pixelSize() > 3 * before);
        QVERIFY(w.text().font().pixelSize() <= 96);
    }

private:
    static void drop(const Workshop &w, const QString &path)
    {
        QMimeData file;
        file.setUrls({QUrl::fromLocalFile(nativePath(path))});
        w.drop(file);
    }
};

WORTEL_TEST(TextSourceTest)
#include "tst_text_source.moc"
