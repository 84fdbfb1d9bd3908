// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/test_board.h"
#include "support/test_class.h"
#include "widgets/alpha_panel.h"
#include "widgets/gradient.h"

namespace {

const QString tipFile = u"[Tipp]\r\nhauptbausteine=Suche den Stamm.\r\nIG ODER LICH=Verlängere "
                        u"es:<BR>lustig<BR><BR>freundlich\r\n"
                        "ß=Nach kurzem Vokal ss\r\nleer=\r\nlang="_s +
                        QString(800, u'x') + u"\r\n"_s;
const QString vokalFile =
    u"[Tipp]\r\nKurzvokal=Kurz klingt schnell.\r\nLangvokal=Lang kannst du ziehen.\r\n"_s;
const QString damaged = u"Die Tipp-Datei (Lextip.ini) ist beschädigt oder unvollständig"_s;

/// The house with both tip files.
struct Desk : TestHouse
{
    Tips *tips = &r.tips;

    Desk()
        : TestHouse(1, {853, 480})
    {
        t.writeFile(u"lextip.ini"_s, tipFile);
        t.writeFile(u"vokaltip.ini"_s, vokalFile);
        lists.CurrentLexiconFile = t.AppFolder + u"facit\\IG ODER LICH.lex"_s;
        form.show();
        settle(); // activated
    }

    QString text() const { return controls.AlphaText->text(); }
    QTimer *timer(const char *name) const { return tips->findChild<QTimer *>(QLatin1String(name)); }
    /// Presses a widget of the window where it lies, as a hand does.
    void pressOn(QWidget *widget) { QTest::mouseClick(widget, Qt::LeftButton); }
};

} // namespace

class TipsTest : public QObject
{
    Q_OBJECT

private slots:
    void lexiconTip_data()
    {
        // text: empty: the box for a damaged file
        columns<QString, QString>("lexicon", "text");
        QTest::newRow("line breaks") << u"C:\\x\\IG ODER LICH.lex"_s
                                     << u"Verlängere es:\nlustig\n\nfreundlich"_s;
        QTest::newRow("one letter of the code page") << u"x\\ß.lex"_s << u"Nach kurzem Vokal ss"_s;
        QTest::newRow("cut at 750") << u"x\\lang.lex"_s << QString(750, u'x');
        QTest::newRow("no such key") << u"x\\TZ ODER Z.lex"_s << QString();
        QTest::newRow("no dictionary") << QString() << QString();
    }
    void lexiconTip()
    {
        QFETCH(QString, lexicon);
        QFETCH(QString, text);
        Desk desk;
        if (text.isEmpty())
            desk.t.boxes.willAnswer(Boxes::Answer::Ok);
        desk.tips->ShowLexiconTip2(lexicon);
        QCOMPARE(desk.tips->isShown(), !text.isEmpty());
        QCOMPARE(desk.text(), text);
        QCOMPARE(desk.t.sound.resources, text.isEmpty() ? QList<int>{} : QList<int>{110});
        if (text.isEmpty())
            QCOMPARE(desk.t.boxes.asked.first().text, damaged);
    }

    void brokenFiles_data()
    {
        // content: null: no file
        columns<QString, QString, QString>("name", "content", "complaint");
        QTest::newRow("lextip missing")
            << u"lextip.ini"_s << QString() << u"Die Tipp-Datei (Lextip.ini) fehlt"_s;
        QTest::newRow("lextip without its first key")
            << u"lextip.ini"_s << u"[Tipp]\r\nIG ODER LICH=x\r\n"_s << damaged;
        QTest::newRow("vokaltip empty")
            << u"vokaltip.ini"_s << u"[Tipp]\r\n"_s
            << u"Die Tipp-Datei (vokaltip.ini) ist beschädigt oder unvollständig"_s;
    }
    void brokenFiles()
    {
        QFETCH(QString, name);
        QFETCH(QString, content);
        Desk desk;
        content.isNull() ? QFile::remove(desk.t.folder.filePath(name))
                         : !desk.t.writeFile(name, content).isEmpty();
        desk.t.boxes.willAnswer(Boxes::Answer::Ok);
        if (name == u"lextip.ini"_s)
            desk.tips->mnuShowTip_Click();
        else
            desk.tips->ShowVokalTip(Vowels::Short);
        QVERIFY(!desk.tips->isShown());
        QTEST(desk.t.boxes.asked.first().text, "complaint");
    }

    void bulb()
    {
        for (const QString &start : {u"Verl"_s, u"Kurz"_s, u"Lang"_s}) {
            Desk desk;
            desk.play.setCheckedVowels(start == u"Kurz"_s   ? Vowels::Short
                                       : start == u"Lang"_s ? Vowels::Long
                                                            : Vowels::None);
            QTest::mouseClick(desk.controls.Image1, Qt::LeftButton);
            QVERIFY2(desk.text().startsWith(start), qPrintable(desk.text()));
            desk.controls.AlphaText->setText(u"steht"_s);
            QTest::mouseClick(desk.controls.Image1, Qt::LeftButton); // while a tip is shown the bulb rests
            QCOMPARE(desk.text(), u"steht"_s);
        }
    }

    /// A word that is being typed goes on when the tip has been read, however it came and went.
    void aClickHidesItAndGivesTheFocusBack()
    {
        Desk desk;
        QVERIFY(QTest::qWaitForWindowActive(&desk.form));
        for (const bool byBulb : {true, false}) {
            for (QWidget *target : {static_cast<QWidget *>(desk.controls.Label5),
                                    static_cast<QWidget *>(desk.controls.PicAlpha)}) {
                desk.controls.Dropper1->takeFocus();
                byBulb ? desk.pressOn(desk.controls.Image1) : desk.tips->TipTimer_Tick();
                TestHouse::settle();
                QVERIFY(desk.tips->isShown());
                desk.pressOn(target);
                QVERIFY(!desk.tips->isShown());
                QVERIFY(desk.controls.Dropper1->isActiveControl());
            }
        }
        desk.controls.picCanvas->setFocus();
        desk.pressOn(desk.controls.Image1);
        desk.pressOn(desk.controls.PicAlpha);
        QVERIFY(desk.controls.picCanvas->hasFocus());
    }

    void timers_data()
    {
        // interval: of the timer that runs then, or -1
        columns<Setting, int, Setting, QString, int>("box", "state", "time", "seconds", "interval");
        QTest::newRow("on") << Setting::UseLexTip << 1 << Setting::TipTime << u"7"_s << 7000;
        QTest::newRow("off") << Setting::UseLexTip << 0 << Setting::TipTime << u"7"_s << -1;
        QTest::newRow("game on") << Setting::UseGameLexTip << 1 << Setting::GameTipTime << u"8"_s << 8000;
        QTest::newRow("vowels on") << Setting::VokalTipEnabled << 1 << Setting::VokalTipTime << u"9"_s
                                   << 9000;
        QTest::newRow("no time") << Setting::VokalTipEnabled << 1 << Setting::VokalTipTime << u"0"_s << -1;
        QTest::newRow("ages") << Setting::VokalTipEnabled << 1 << Setting::VokalTipTime << u"99999999999"_s
                              << std::numeric_limits<int>::max();
    }
    void timers()
    {
        QFETCH(Setting, box);
        QFETCH(int, state);
        QFETCH(Setting, time);
        QFETCH(QString, seconds);
        Desk desk;
        desk.tips->stopTimers();
        desk.t.options.setBox(box, state);
        desk.t.options.setText(time, seconds);
        const char *name = "TipTimer";
        if (box == Setting::UseLexTip) {
            desk.tips->startTipTimer();
        } else if (box == Setting::UseGameLexTip) {
            desk.tips->startGameTipTimer();
            name = "GameTipTimer";
        } else {
            desk.tips->startVokalTipTimer();
            name = "VokalTipTimer";
        }
        QTEST(desk.timer(name)->isActive() ? desk.timer(name)->interval() : -1, "interval");
        desk.tips->stopTimers();
        QVERIFY(!desk.timer(name)->isActive());
    }

    void aTickShowsItsTip()
    {
        struct Tick
        {
            void (Tips::*tick)();
            Vowels vowels;
            const char16_t *text;
        };
        for (const Tick &due : {Tick{&Tips::TipTimer_Tick, Vowels::Short, u"Verl"},
                                {&Tips::GameTipTimer_Tick, Vowels::Short, u"Verl"},
                                {&Tips::VokalTipTimer_Tick, Vowels::Short, u"Kurz"},
                                {&Tips::VokalTipTimer_Tick, Vowels::Long, u"Lang"}}) {
            Desk desk;
            desk.play.setCheckedVowels(due.vowels);
            (desk.tips->*due.tick)();
            TestHouse::settle();
            QVERIFY2(desk.text().startsWith(QString::fromUtf16(due.text)), qPrintable(desk.text()));
        }
    }

    void aTickStaysQuiet_data()
    {
        columns<QString, bool>("meanwhile", "comesLater");
        QTest::newRow("a side window") << u"window"_s << false;
        QTest::newRow("words run") << u"strip"_s << false;
        QTest::newRow("a tip lies there") << u"tip"_s << false;
        QTest::newRow("a tile is held") << u"tile"_s << true;
        QTest::newRow("a work runs") << u"work"_s << true;
    }
    void aTickStaysQuiet()
    {
        QFETCH(QString, meanwhile);
        QFETCH(bool, comesLater);
        Desk desk;
        QWidget side;
        side.setObjectName(u"frmMemory"_s);
        std::optional<Work> work;
        desk.lay(wortelKind, 100, 100, u"haus"_s);
        if (meanwhile == u"window"_s)
            side.show();
        if (meanwhile == u"tile"_s)
            desk.press({105, 105});
        if (meanwhile == u"tip"_s)
            desk.pressOn(desk.controls.Image1);
        if (meanwhile == u"work"_s)
            work.emplace(desk.t.ground);
        if (meanwhile == u"strip"_s) {
            desk.lists.CorrectWordList.add(u"Haus"_s);
            desk.tool(desk.controls.Check4);
        }
        desk.t.sound.resources.clear();
        desk.controls.AlphaText->clear();
        desk.tips->startTipTimer();
        desk.tips->TipTimer_Tick();
        TestHouse::settle();
        QCOMPARE(desk.text(), QString());
        QVERIFY(desk.t.sound.resources.isEmpty() && !desk.timer("TipTimer")->isActive());
        work.reset();
        desk.release({105, 105});
        desk.t.sound.resources.clear();
        if (comesLater)
            QTRY_COMPARE(desk.t.sound.resources, QList<int>{110});
        QCOMPARE(desk.text().isEmpty(), !comesLater);
    }

    void theLayerShowsTheBoardFaintly()
    {
        Desk desk;
        desk.controls.picCanvas->image().fill(Qt::black);
        desk.tips->mnuShowTip_Click();
        const AlphaPanel *panel = desk.controls.PicAlpha;
        QCOMPARE(panel->width(), desk.controls.picCanvas->width());
        QVERIFY(panel->geometry().bottom() < desk.controls.Picture1->y());
        QCOMPARE(panel->face().pixelColor(50, 50), QColor(223, 223, 223));
        QVERIFY(panel->rect().contains(desk.controls.Label5->geometry()));
        desk.form.resize(1024, 700);
        QCOMPARE(panel->width(), desk.controls.picCanvas->width());
    }

    void aFullTipFitsOnASmallBoard()
    {
        Desk desk;
        desk.t.writeFile(u"lextip.ini"_s, u"[Tipp]\r\nhauptbausteine="_s + u"Bausteine<BR>"_s.repeated(20) +
                                              u"Wort "_s.repeated(90) + u"\r\n"_s);
        desk.tips->ShowLexiconTip2(u"x\\Hauptbausteine.lex"_s);
        const QLabel *words = desk.controls.AlphaText;
        const QRect needed =
            QFontMetrics(words->font()).boundingRect(words->rect(), Qt::TextWordWrap, words->text());
        QVERIFY2(needed.height() <= words->height(), qPrintable(QString::number(needed.height())));
    }
};

WORTEL_TEST(TipsTest)
#include "tst_tips.moc"
