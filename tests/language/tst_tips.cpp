// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "language/tips.h"
#include "platform/modes.h"
#include "platform/word_lists.h"
#include "support/columns.h"
#include "support/registry.h"
#include "support/test_ground.h"
#include "widgets/alpha_panel.h"
#include "widgets/click_label.h"
#include "widgets/gradient.h"
#include "widgets/main_controls.h"
#include "widgets/picture_box.h"

#include <QTimer>
#include <QtTest>

using namespace Qt::StringLiterals;

namespace {

const QString tipFile = u"[Tipp]\r\nhauptbausteine=Suche den Stamm.\r\nIG ODER LICH=Verlängere "
                        u"es:<BR>lustig<BR><BR>freundlich\r\n"
                        "ß=Nach kurzem Vokal ss\r\nleer=\r\nlang="_s +
                        QString(800, u'x') + u"\r\n"_s;
const QString vokalFile =
    u"[Tipp]\r\nKurzvokal=Kurz klingt schnell.\r\nLangvokal=Lang kannst du ziehen.\r\n"_s;
const QString damaged = u"Die Tipp-Datei (Lextip.ini) ist beschädigt oder unvollständig"_s;

struct Desk
{
    Desk()
    {
        form.resize(853, 480);
        controls = makeMainControls(&form);
        layOutMainControls(controls, form.width(), form.height());
        lists.CurrentLexiconFile = t.AppFolder + u"facit\\IG ODER LICH.lex"_s;
        tips = new Tips(t.ground, controls, lists, modes);
        form.show();
    }

    QString text() const { return controls.AlphaText->text(); }
    QTimer *timer(const QString &name) const { return tips->findChild<QTimer *>(name); }

    TestGround t;
    Modes modes;
    WordLists lists;
    QWidget form;
    MainControls controls;
    Tips *tips;
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
        QTest::newRow("case of the ending")
            << u"x\\ig oder lich.LEX"_s << u"Verlängere es:\nlustig\n\nfreundlich"_s;
        QTest::newRow("one letter of the code page") << u"x\\ß.lex"_s << u"Nach kurzem Vokal ss"_s;
        QTest::newRow("cut at 750") << u"x\\lang.lex"_s << QString(750, u'x');
        QTest::newRow("no such key") << u"x\\TZ ODER Z.lex"_s << QString();
        QTest::newRow("empty value") << u"x\\leer.lex"_s << QString();
        QTest::newRow("no dictionary") << QString() << QString();
    }
    void lexiconTip()
    {
        QFETCH(QString, lexicon);
        QFETCH(QString, text);
        Desk desk;
        desk.t.writeFile(u"lextip.ini"_s, tipFile);
        if (text.isEmpty())
            desk.t.boxes.willAnswer(Boxes::Answer::Ok);
        desk.tips->ShowLexiconTip2(lexicon, u"ONREQUEST"_s);
        QCOMPARE(desk.tips->isShown(), !text.isEmpty());
        QCOMPARE(desk.text(), text);
        QCOMPARE(desk.t.sound.resources, text.isEmpty() ? QList<int>{} : QList<int>{110});
        if (text.isEmpty())
            QCOMPARE(desk.t.boxes.asked.first().text, damaged);
        QVERIFY(desk.t.ok());
    }

    void brokenFiles_data()
    {
        // content: null: no file
        columns<QString, QString, QString>("name", "content", "complaint");
        QTest::newRow("lextip missing")
            << u"lextip.ini"_s << QString() << u"Die Tipp-Datei (Lextip.ini) fehlt"_s;
        QTest::newRow("lextip without its first key")
            << u"lextip.ini"_s << u"[Tipp]\r\nIG ODER LICH=x\r\n"_s << damaged;
        QTest::newRow("lextip garbage")
            << u"lextip.ini"_s << (u"\x01\r[=]\n["_s + QString(5000, u'=')) << damaged;
        QTest::newRow("vokaltip missing")
            << u"vokaltip.ini"_s << QString() << u"Die Tipp-Datei (vokaltip.ini) fehlt"_s;
        QTest::newRow("vokaltip empty")
            << u"vokaltip.ini"_s << u"[Tipp]\r\n"_s
            << u"Die Tipp-Datei (vokaltip.ini) ist beschädigt oder unvollständig"_s;
    }
    void brokenFiles()
    {
        QFETCH(QString, name);
        QFETCH(QString, content);
        QFETCH(QString, complaint);
        Desk desk;
        if (!content.isNull())
            desk.t.writeFile(name, content);
        desk.t.boxes.willAnswer(Boxes::Answer::Ok);
        if (name == u"lextip.ini"_s)
            desk.tips->mnuShowTip_Click();
        else
            desk.tips->ShowVokalTip(u"KURZ"_s, u"GAME"_s);
        QVERIFY(!desk.tips->isShown());
        QCOMPARE(desk.t.boxes.asked.first().text, complaint);
        QVERIFY(desk.t.ok());
    }

    void anotherModeWordKeepsTheText()
    {
        Desk desk;
        desk.t.writeFile(u"vokaltip.ini"_s, vokalFile);
        for (const QString &mode : {u"wortel"_s, u"WORTEL"_s, u"GAME"_s, u"ONREQUEST"_s}) {
            desk.controls.AlphaText->setText(u"vorher"_s);
            desk.tips->ShowVokalTip(u"KURZ"_s, mode);
            QCOMPARE(desk.text(), mode == u"wortel"_s ? u"vorher"_s : u"Kurz klingt schnell."_s);
            QVERIFY(desk.tips->isShown());
        }
    }

    void bulb()
    {
        for (const QString &start : {u"Verl"_s, u"Kurz"_s, u"Lang"_s}) {
            Desk desk;
            desk.t.writeFile(u"lextip.ini"_s, tipFile);
            desk.t.writeFile(u"vokaltip.ini"_s, vokalFile);
            desk.modes.KurzVokalMode = start == u"Kurz"_s;
            desk.modes.LangVokalMode = start == u"Lang"_s;
            QTest::mouseClick(desk.controls.Image1, Qt::LeftButton);
            QVERIFY2(desk.text().startsWith(start), qPrintable(desk.text()));
            desk.controls.AlphaText->setText(u"steht"_s);
            QTest::mouseClick(desk.controls.Image1, Qt::LeftButton); // while a tip is shown the bulb rests
            QCOMPARE(desk.text(), u"steht"_s);
        }
    }

    void aClickHidesIt()
    {
        Desk desk;
        desk.t.writeFile(u"lextip.ini"_s, tipFile);
        for (QWidget *target :
             {static_cast<QWidget *>(desk.controls.Label5), static_cast<QWidget *>(desk.controls.PicAlpha)}) {
            desk.tips->mnuShowTip_Click();
            QVERIFY(desk.tips->isShown());
            QTest::mouseClick(target, Qt::LeftButton);
            QVERIFY(!desk.tips->isShown());
        }
    }

    void timers()
    {
        Desk desk;
        desk.t.options.setText(Setting::TipTime, u"7"_s);
        desk.t.options.setBox(Setting::UseLexTip, 1);
        desk.tips->startTipTimer();
        QCOMPARE(desk.timer(u"TipTimer"_s)->interval(), 7000);
        QVERIFY(desk.timer(u"TipTimer"_s)->isActive());
        desk.t.options.setBox(Setting::UseGameLexTip, 0);
        desk.tips->startGameTipTimer();
        QVERIFY(!desk.timer(u"GameTipTimer"_s)->isActive());
        desk.t.options.setBox(Setting::VokalTipEnabled, 1);
        desk.t.options.setText(Setting::VokalTipTime, u"0"_s);
        desk.tips->startVokalTipTimer();
        QVERIFY(!desk.timer(u"VokalTipTimer"_s)->isActive());
        desk.t.options.setText(Setting::VokalTipTime, u"99999999999"_s);
        desk.tips->startVokalTipTimer();
        QVERIFY(desk.timer(u"VokalTipTimer"_s)->isActive());
        desk.tips->stopGameTimers();
        QVERIFY(!desk.timer(u"VokalTipTimer"_s)->isActive());
    }

    void aTickShowsTheTipOnce()
    {
        Desk desk;
        desk.t.writeFile(u"lextip.ini"_s, tipFile);
        desk.tips->startTipTimer();
        QWidget side;
        side.setObjectName(u"frmMemory"_s);
        side.show();
        QVERIFY(Tips::IsSideWindowOpen());
        desk.tips->TipTimer_Tick();
        QVERIFY(!desk.tips->isShown());
        QVERIFY(!desk.timer(u"TipTimer"_s)->isActive());
        side.hide();
        desk.tips->TipTimer_Tick();
        QVERIFY(desk.tips->isShown());
        desk.tips->GameTipTimer_Tick();
        QCOMPARE(desk.t.sound.resources.size(), 1);
    }

    void theLayerShowsTheBoardFaintly()
    {
        Desk desk;
        desk.t.writeFile(u"lextip.ini"_s, tipFile);
        desk.controls.picCanvas->image().fill(Qt::black);
        desk.tips->mnuShowTip_Click();
        const AlphaPanel *panel = desk.controls.PicAlpha;
        QCOMPARE(panel->width(), desk.controls.picCanvas->width());
        QVERIFY(panel->geometry().bottom() < desk.controls.Picture1->y());
        QCOMPARE(panel->face().pixelColor(50, 50), QColor(223, 223, 223));
        QVERIFY(panel->rect().contains(desk.controls.Label5->geometry()));
        desk.form.resize(1024, 700);
        layOutMainControls(desk.controls, 1024, 700);
        desk.tips->recompose();
        QCOMPARE(panel->width(), desk.controls.picCanvas->width());
    }

    void aFullTipFitsOnASmallBoard()
    {
        Desk desk;
        desk.t.writeFile(u"lextip.ini"_s, u"[Tipp]\r\nhauptbausteine="_s + u"Bausteine<BR>"_s.repeated(20) +
                                              u"Wort "_s.repeated(90) + u"\r\n"_s);
        desk.tips->ShowLexiconTip2(u"x\\Hauptbausteine.lex"_s, u"WORTEL"_s);
        const QLabel *words = desk.controls.AlphaText;
        const QRect needed =
            QFontMetrics(words->font()).boundingRect(words->rect(), Qt::TextWordWrap, words->text());
        QVERIFY2(needed.height() <= words->height(), qPrintable(QString::number(needed.height())));
    }
};

WORTEL_TEST(TipsTest)
#include "tst_tips.moc"
