// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "games/retype/retype_desk.h"
#include "support/test_class.h"
#include "widgets/gradient.h"

namespace {

/// The first of `controls` that does not stand as asked, or nothing.
QString firstOther(const QList<QWidget *> &controls, bool (*isRight)(const QWidget &))
{
    for (const QWidget *control : controls) {
        if (!isRight(*control))
            return control->objectName();
    }
    return {};
}

bool isHidden(const QWidget &control) { return control.isHidden(); }
bool isDisabled(const QWidget &control) { return !control.isEnabled(); }

/// True if the picture of the widget holds a point of that colour.
bool shows(QWidget *widget, QRgb colour)
{
    const QImage picture = widget->grab().toImage().convertToFormat(QImage::Format_RGB32);
    for (int y = 0; y < picture.height(); ++y)
        for (int x = 0; x < picture.width(); ++x)
            if (picture.pixel(x, y) == colour)
                return true;
    return false;
}

} // namespace

/// What happens in the mode "Abschreiben" from its start to the praise.
class RetypeModeTest : public QObject
{
    Q_OBJECT

private slots:
    void preparesWithTheToolsAtRest()
    {
        Desk desk;
        desk.fillList();
        int looked = 0;
        desk.atYield(2, [&] {
            ++looked;
            const MainControls &c = desk.controls;
            QCOMPARE(desk.caption(), u"2 Wörter vorbereitet"_s);
            QVERIFY(c.Label4->isVisible() && c.GameProgress->isVisible() && c.Check4->isEnabled());
            QCOMPARE(firstOther({c.Check2, c.Command2, c.Dropper1, c.Check3}, isDisabled), QString());
        });
        desk.left();
        QCOMPARE(looked, 1);
    }

    void theBoardIsSwitchedToTyping()
    {
        Desk desk;
        QVERIFY(QTest::qWaitForWindowActive(&desk.form));
        const MainControls &c = desk.controls;
        desk.fillList();
        desk.lay(wortelKind, 300, 100, u"halt"_s);
        desk.tool(c.Option1[0]);
        desk.left();
        QCOMPARE(c.GameProgress->maximum(), 3);
        QVERIFY(c.Scroller->isVisible() && c.Scroller->isTimerOn() && c.Dropper1->isActiveControl());
        QCOMPARE(c.Check4->toolTip(), u"Abschreiben abbrechen"_s);
        QCOMPARE(firstOther({c.Text1, c.Command6, c.Check1, c.Check2, c.Label4, c.CorrectWordList}, isHidden),
                 QString());
        desk.press({305, 105}); // no tile is dragged to the field
        QVERIFY(c.Option1[1]->isChecked() && desk.r.pointer.isHolding() && !desk.r.pointer.isDragging());
        desk.release({305, 105});

        desk.type(u"Laus"_s);
        QCOMPARE(desk.shown().size(), 3);
        desk.type(u"laufen"_s);
        QCOMPARE(desk.reports, (QStringList{u"Wort nicht gefunden"_s, u"Richtig !"_s}));
        QVERIFY2(c.Scroller->isTimerOn(), "the words that are left run on");
        // All of this rests to the end, also after a report has gone.
        QCOMPARE(firstOther({c.Check3, c.Option2[0], c.ChkVokal[0], c.Command3, c.Command4, c.Option1[0]},
                            isDisabled),
                 QString());
    }

    void sources_data()
    {
        // strip: nothing: what the generator made; left: when the first word was copied
        columns<QString, QStringList, QString, QString, bool>("way", "strip", "caption", "left", "red");
        QTest::newRow("word list") << u"words"_s << QStringList{u"Haus"_s, u"laufen"_s, u"Maus"_s}
                                   << u"3 Wörter zum Abschreiben"_s << u"2 Wörter übrig zum Abschreiben"_s
                                   << false;
        QTest::newRow("board") << u"board"_s << QStringList{u"belaufen"_s, u"verlaufen"_s}
                               << u"2 Wörter zum Abschreiben"_s << u"1 Wörter übrig zum Abschreiben"_s
                               << false;
        QTest::newRow("nonsense") << u"nonsense"_s << QStringList() << u"2 Unsinnswörter zum Abschreiben"_s
                                  << u"1 Wörter übrig zum Abschreiben"_s << true;
        QTest::newRow("long") << u"long"_s << QStringList{u"bad"_s, u"tag"_s}
                              << u"Noch 4 Wortele mit langem Vokal"_s << u"3 Wortele mit langem Vokal"_s
                              << false;
    }
    void sources()
    {
        QFETCH(QString, way);
        QFETCH(QStringList, strip);
        Desk desk;
        desk.start(way);
        QCOMPARE(desk.shown(), strip.isEmpty() ? desk.lists.PseudoWordList.rows() : strip);
        QTEST(desk.caption(), "caption");
        const auto redLetters = [&] {
            desk.controls.Dropper1->setCaption(u"M"_s);
            while (desk.controls.Scroller->Offset() < 50)
                desk.controls.Scroller->tick();
            return shows(desk.controls.Scroller, 0xFFFF0000) && shows(desk.controls.Dropper1, 0xFFFF0000);
        };
        QTEST(redLetters(), "red");
        desk.type(desk.shown().first());
        QTEST(desk.caption(), "left");
        desk.left();
        for (PressButton *box : desk.controls.ChkVokal)
            box->setChecked(false);
        desk.start(u"words"_s);
        QVERIFY(desk.play.RetypeUserWords() && !redLetters());
    }

    void copiedWordsLeave()
    {
        Desk desk;
        desk.t.options.setBox(Setting::CaseCheck, 0);
        desk.lists.CorrectWordList.addAll({u"Haus"_s, u"Haus"_s, u"Haus"_s, u"Maus"_s});
        desk.left();
        desk.type(u"HAUS"_s); // the row that moves up into the gap is passed over
        QCOMPARE(desk.shown(), (QStringList{u"Haus"_s, u"Maus"_s}));
    }

    void praises_data()
    {
        columns<QString, QString, QString, QString>("mode", "copied", "style", "caption");
        const QString words = u"0 Wörter übrig zum Abschreiben"_s;
        QTest::newRow("words") << u"words"_s << u"alle Wörter"_s << u"SMILEY"_s << words;
        QTest::newRow("nonsense") << u"nonsense"_s << u"alle Wörter"_s << u"SMILEY"_s << words;
        QTest::newRow("short") << u"short"_s << u"alle Wortele mit kurzem Vokal"_s << QString()
                               << u"0 Wortele mit kurzem Vokal"_s;
        QTest::newRow("long") << u"long"_s << u"alle Wortele mit langem Vokal"_s << QString()
                              << u"0 Wortele mit langem Vokal"_s;
    }
    void praises()
    {
        QFETCH(QString, mode);
        QFETCH(QString, copied);
        Desk desk;
        desk.start(mode);
        QVERIFY(desk.play.RetypeActive());
        desk.t.boxes.willBeRead();
        desk.t.boxes.whileOpen = [&](const Question &) { QTEST(desk.caption(), "caption"); };
        desk.t.options.setBox(Setting::UseSounds, 0);
        desk.t.sound.resources.clear();
        desk.copyAll();
        QVERIFY(!desk.play.RetypeActive());
        QCOMPARE(desk.t.boxes.asked.size(), 1);
        QCOMPARE(desk.lastBox(), u"Prima !\nDu hast jetzt "_s + copied + u" richtig abgeschrieben !"_s);
        QTEST(desk.t.boxes.asked.first().style, "style");
        QCOMPARE(desk.t.boxes.asked.first().title, u"Abschreiben: Fertig"_s);
        QCOMPARE(desk.t.sound.resources, QList<int>{103});
        QVERIFY(!desk.controls.ChkVokal[0]->isChecked() && !desk.controls.ChkVokal[1]->isChecked());
        QVERIFY(desk.lists.PseudoWordList.isEmpty());
    }

    void keepsTheWords()
    {
        // answer 1: Esc
        for (const auto &[option, answer] : {std::pair{1, 0}, {1, 1}, {0, 0}}) {
            Desk desk;
            desk.fillList();
            desk.t.options.setBox(Setting::ShowCorrectListAfterReType, option);
            desk.left();
            desk.t.boxes.willBeRead(answer);
            desk.copyAll();
            QCOMPARE(desk.lists.CorrectWordList.count(), option == 1 ? 3 : 0);
            QCOMPARE(desk.controls.CorrectWordList->isVisible(), option == 1);
            // A new start keeps its own words.
            desk.lists.CorrectWordList.clear();
            desk.lists.CorrectWordList.add(u"maus"_s);
            desk.left();
            QCOMPARE(desk.r.retype.KeptWords(), option == 1 ? QStringList{u"Maus"_s} : QStringList{});
        }
    }

    void aCopiedStemLeavesTheBoard()
    {
        Desk desk;
        desk.tool(desk.controls.ChkVokal[0]);
        desk.lay(wortelKind, 10, 50, u"Bild"_s);
        desk.lay(wortelKind, 90, 50, u"hand"_s);
        desk.right();
        QVERIFY2(!desk.play.RetypeActive(), "the right button knows no vowels");
        desk.fillVowels();
        desk.left();
        QVERIFY(desk.controls.Text1->isVisible() && desk.controls.Command6->isVisible());
        desk.type(u"tag"_s);
        QCOMPARE(desk.shown().size(), 2);
        desk.type(u"bild"_s);
        QCOMPARE(desk.described(), QStringList{u"90,50 hand"_s});
        QCOMPARE(desk.counters(), (QStringList{u"1"_s, u"0"_s, u"0"_s, u"1"_s}));
        desk.left();
        QVERIFY2(desk.controls.ChkVokal[0]->isChecked(), "the vowel board stays when the mode is stopped");
    }

    void theListHoldsNoMoreThan1023()
    {
        for (const auto &[count, notice] : {std::pair{0, u"Es gibt keine Wörter zum Abschreiben"_s},
                                            {1023, QString()},
                                            {1024, u"Es können max. 1024 Wörter benutzt werden"_s}}) {
            Desk desk;
            for (int word = 0; word < count; ++word) {
                desk.lists.LexiconList.add(u"wort%1"_s.arg(word));
                desk.lists.CorrectWordList.add(u"wort%1"_s.arg(word));
            }
            if (!notice.isEmpty())
                desk.t.boxes.willBeRead();
            desk.form.findChild<QAction *>(u"mnuStartRetypeFromList"_s)->trigger();
            QCOMPARE(desk.play.RetypeActive(), count == 1023);
            QCOMPARE(desk.controls.Scroller->ListCount(), count == 1023 ? count : 0);
            QCOMPARE(desk.lastBox(), notice);
        }
    }

    void refusals()
    {
        for (const QString &notice : {u"Es sind keine Wortele auf dem Bildschirm"_s,
                                      u"Zu dieser Wortel-Liste gibt es keine Unsinnswörter"_s, QString()}) {
            Desk desk;
            if (!notice.isEmpty())
                desk.t.boxes.willBeRead();
            if (notice.startsWith(u'E')) {
                desk.right();
            } else if (!notice.isEmpty()) {
                desk.layTiles();
                desk.lists.CurrentWortelFile = u"text\\ig oder lich.txt"_s;
                desk.nonsense();
            } else {
                desk.play.startGame(PlayState::Phase::Playing, Vowels::None);
                desk.layTiles();
                desk.fillList();
                desk.left();
                desk.right();
            }
            QVERIFY(!desk.play.RetypeActive());
            QCOMPARE(desk.lastBox(), notice);
        }
    }

    void theListEditedInARun_data()
    {
        columns<QString, QStringList>("entry", "strip"); // an empty strip: the run has ended
        QTest::newRow("a word more") << u"mnuAddWord"_s
                                     << QStringList{u"belaufen"_s, u"haus"_s, u"laufen"_s, u"maus"_s};
        QTest::newRow("a word less") << u"mnuDeleteWord"_s << QStringList{u"laufen"_s, u"maus"_s};
        QTest::newRow("emptied") << u"mnuDeleteAllWords"_s << QStringList();
    }
    /// A run of nonsense words goes on as it is.
    void theListEditedInARun()
    {
        QFETCH(QString, entry);
        QFETCH(QStringList, strip);
        for (const bool nonsense : {false, true}) {
            Desk desk;
            desk.fillList();
            desk.layTiles();
            nonsense ? desk.nonsense() : desk.left();
            const QStringList before = desk.shown();
            desk.controls.CorrectWordList->setListIndex(0);
            desk.t.boxes.willTypeWord(u"belaufen"_s);
            desk.t.boxes.willPress(0);
            desk.t.mayLeaveAnswers = true; // each entry asks for one at most
            desk.form.findChild<QAction *>(entry)->trigger();
            QCOMPARE(desk.shown(), nonsense || strip.isEmpty() ? before : strip);
            QCOMPARE(desk.play.RetypeActive(), nonsense || !strip.isEmpty());
            QCOMPARE(desk.trouble(), QString());
            QCOMPARE(desk.t.boxes.unexpected, 0); // there is no praise
        }
    }

    /// Asked while words are prepared, wherever the focus is; not when nothing is.
    void escapeAsks_data()
    {
        // answer: -1: not asked
        columns<QString, QString, int, bool>("way", "focus", "answer", "cancelled");
        QTest::newRow("word list") << u"words"_s << u"picCanvas"_s << 0 << true;
        QTest::newRow("nonsense") << u"nonsense"_s << u"Text1"_s << 0 << true;
        QTest::newRow("went on") << u"words"_s << u"lblprefix"_s << 1 << false;
        QTest::newRow("by the option") << u"without"_s << u"lblprefix"_s << -1 << true;
        QTest::newRow("nothing is prepared") << u"running"_s << u"picCanvas"_s << -1 << true;
    }
    void escapeAsks()
    {
        QFETCH(QString, way);
        QFETCH(QString, focus);
        QFETCH(int, answer);
        QFETCH(bool, cancelled);
        Desk desk;
        desk.layTiles();
        desk.fillList();
        desk.t.options.setText(Setting::NumPseudoReTypeWords, u"1000"_s);
        desk.t.options.setBox(Setting::ConfirmBeforeErase, way == u"without"_s ? 0 : 1);
        if (answer >= 0)
            desk.t.boxes.willPress(answer);
        desk.form.findChild<QWidget *>(focus)->setFocus();
        const auto escape = [&] {
            QWidget *to = desk.form.focusWidget();
            QTest::keyClick(to != nullptr ? to : &desk.form, Qt::Key_Escape);
        };
        if (way != u"running"_s)
            desk.atYield(3, escape);
        way == u"nonsense"_s ? desk.nonsense() : desk.left();
        if (way == u"running"_s)
            escape();
        // The nonsense words that were made so far are used.
        QCOMPARE(desk.play.RetypeActive(), !cancelled || way == u"nonsense"_s);
        QCOMPARE(desk.lastBox(), answer < 0 ? QString()
                                            : u"Es werden gerade noch einige Wörter vorbereitet...\n\n"
                                              u"Willst du wirklich aufhören?"_s);
    }
};

WORTEL_TEST(RetypeModeTest)
#include "tst_retype_mode.moc"
