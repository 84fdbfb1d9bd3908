// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "persistence/backup_file.h"
#include "platform/files.h"
#include "support/test_board.h"
#include "support/test_class.h"
#include "version.h"
#include "widgets/gradient.h"

namespace {

/// The house before it is loaded, with these settings in the store.
struct Start : TestHouse
{
    explicit Start(std::initializer_list<std::pair<const char *, const char *>> settings = {},
                   const StartFacts &facts = {})
        : TestHouse(1, {632, 573}, false, facts)
    {
        for (const auto &[key, value] : settings)
            t.store.SaveSetting(u"Settings"_s, QLatin1String(key), QLatin1String(value));
    }
    /// Shows the window as the start does. Its first activation is over when this comes back.
    void appear()
    {
        form.show();
        QVERIFY(QTest::qWaitForWindowActive(&form));
        settle();
    }
    QString backup() const { return Backup::file(t.ground); }
};

QByteArray session(const char *type, const char *text)
{
    return QByteArray("[Morpheme1]\r\nType=") + type + "\r\nLeft=1\r\nTop=2\r\nCaption=" + text +
           "\r\n[NumObjects]\r\nObjCounter=1\r\n";
}

} // namespace

/// The life of the main window, from loading to its last line in the log.
class MainWindowTest : public QObject
{
    Q_OBJECT

private slots:
    void loads()
    {
        Start house({{"NumWortel", "7"}, {"GameDifficult1", "False"}, {"GameDifficult2", "True"}});
        QImage picture(632, 560, QImage::Format_RGB32);
        picture.fill(Qt::green);
        picture.save(house.t.folder.filePath(u"bild.bmp"_s));
        house.t.store.SaveSetting(u"Settings"_s, u"BackgroundPicture"_s, house.t.AppFolder + u"bild.bmp"_s);
        QVERIFY(house.form.Form_Load());
        const MainControls &c = house.controls;
        QCOMPARE(house.form.windowTitle(), u"Wortel-Meister %1.%2"_s.arg(version::major).arg(version::minor));
        QCOMPARE(c.Text1->text(), u"7"_s);
        QCOMPARE(c.Label3->text() + u'/' + c.Label3->toolTip(), u"Hauptbausteine/Hauptbausteine"_s);
        QCOMPARE(house.counters(), (QStringList{u"7"_s, u"18"_s, u"18"_s, u"43"_s}));
        QCOMPARE(house.r.store.countOf(colours::wortelBack), 7);
        QCOMPARE(house.described().count(u"37,5 ver1"_s), 6);
        QCOMPARE(house.described().count(u"33,453 ung1"_s), 6);
        QVERIFY(c.OptType[3]->isChecked());
        QCOMPARE(house.play.GameLevel(), 2);
        QVERIFY(!c.Option2[0]->isChecked() && c.Option2[1]->isChecked() && !c.Option2[2]->isChecked());
        QVERIFY(house.pixel(2, 520) == QColor(Qt::green));
        QVERIFY(!house.r.undo.CanUndo());
    }

    void aMissingChosenListGivesWayToTheUsualOne_data()
    {
        // list: with "%" for the folder
        columns<QString, bool, bool>("list", "listThere", "agrees");
        QTest::newRow("list gone") << u"%text\\Tiere.txt"_s << false << true;
        QTest::newRow("dictionary gone") << u"%text\\Tiere.txt"_s << true << true;
        QTest::newRow("refused") << u"%text\\Tiere.txt"_s << false << false;
        QTest::newRow("no name") << QString() << false << true;
    }
    void aMissingChosenListGivesWayToTheUsualOne()
    {
        QFETCH(bool, listThere);
        QFETCH(bool, agrees);
        Start house;
        QFETCH(QString, list);
        list.replace(u'%', house.t.AppFolder);
        house.t.store.SaveSetting(u"Settings"_s, u"WortelFile"_s, list);
        if (listThere)
            house.t.writeFile(u"text\\Tiere.txt"_s, u"Igel\r\n"_s);
        house.t.boxes.willAnswer(agrees ? Boxes::Answer::Yes : Boxes::Answer::No);
        QCOMPARE(house.form.Form_Load(), agrees);
        QCOMPARE(house.t.store.GetSetting(u"Settings"_s, u"WortelFile"_s, {}),
                 agrees ? u"%APP%text\\Hauptbausteine.Txt"_s : list);
        if (agrees)
            QCOMPARE(house.lists.WortelList.count(), 3);
    }

    void firstBoard_data()
    {
        // line: with "%" for the folder
        columns<QString, bool, QString>("line", "recovers", "tiles");
        QTest::newRow("by its full path") << u"%a.wlx"_s << false << u"1,2 ab"_s;
        QTest::newRow("the last of several") << u"%a.wlx %b.wlx"_s << false << u"1,2 er"_s;
        QTest::newRow("recovered") << QString() << true << u"5,6 lich"_s;
        QTest::newRow("recovered, then opened") << u"%b.wlx"_s << true << u"1,2 er"_s;
    }
    void firstBoard()
    {
        QFETCH(QString, line);
        QFETCH(bool, recovers);
        const QTemporaryDir folder;
        writeFileAtomically(folder.filePath(u"a.wlx"_s), session("Prefix", "ab"));
        writeFileAtomically(folder.filePath(u"b.wlx"_s), session("Suffix", "er"));
        Start house({{"NumWortel", "3"}},
                    {{line.replace(u'%', storedPath(folder.path()) + u'\\')}, 1, recovers});
        if (recovers) {
            MyObj array;
            array.AddElementToMyObj(u"M1"_s, 'S', 5, 6, u"lich"_s);
            writeFileAtomically(house.backup(), backup_file::encode(array));
        }
        QVERIFY(house.form.Form_Load());
        QTEST(house.described().join(u'|'), "tiles");
        QVERIFY2(!house.r.undo.CanUndo(), "undo knows nothing before it");
    }

    void tellsThatThePictureCannotBeRead()
    {
        Start house({{"NumWortel", "3"}});
        house.t.writeFile(u"kaputt.jpg"_s, u"kein Bild"_s);
        house.t.store.SaveSetting(u"Settings"_s, u"BackgroundPicture"_s, house.t.AppFolder + u"kaputt.jpg"_s);
        QVERIFY(house.form.Form_Load());
        house.t.boxes.willAnswer(Boxes::Answer::Ok);
        house.appear();
        QVERIFY(house.t.boxes.told().contains(u"Das Bild kann nicht gezeigt werden."_s));
    }

    void whatNamesNoSessionLeavesTheBoardAlone_data()
    {
        columns<QStringList, QString>("arguments", "told");
        QTest::newRow("mistyped") << QStringList{u"\\fort 1.wlx"_s}
                                  << u"Diese Sitzung gibt es nicht:\n/fort 1.wlx"_s;
        QTest::newRow("a switch") << QStringList{u"/L"_s}
                                  << u"Wortel-Meister läuft schon. Das gilt nur beim ersten Start: /L"_s;
    }
    void whatNamesNoSessionLeavesTheBoardAlone()
    {
        QFETCH(QStringList, arguments);
        QFETCH(QString, told);
        Start house({{"NumWortel", "3"}, {"UseBackup", "1"}}, {arguments});
        QVERIFY(house.form.Form_Load()); // its own arguments
        const bool isSwitch = arguments == QStringList{u"/L"_s};
        for (const bool own : {true, false}) {
            if (!own || !isSwitch)
                house.t.boxes.willAnswer(Boxes::Answer::Ok);
            if (own)
                house.appear();
            else
                house.form.HiddenText_Change(arguments);
            TestHouse::settle();
            QCOMPARE(house.counters().first(), u"3"_s);
            QVERIFY(!house.r.undo.CanUndo());
            QCOMPARE(house.t.boxes.told(), own && isSwitch ? QString() : u"Wortel-Meister|"_s + told);
        }
    }

    void tellsOnceThatNothingCanBeStored()
    {
        Start house({{"UseBackup", "1"}}, {{}, 1, false, false, u"Voll"_s});
        QVERIFY(QDir().mkpath(nativePath(house.backup()))); // no file can take its place
        house.t.boxes.willAnswer(Boxes::Answer::Ok);
        QVERIFY(house.form.Form_Load());
        house.appear();
        QCOMPARE(house.t.boxes.told(), u"Wortel-Meister|Voll"_s);
        house.r.news.Commit();
        house.r.news.Commit();
    }

    void firstActivation_data()
    {
        columns<bool, bool>("welcome", "sounds");
        QTest::newRow("welcome") << true << true;
        QTest::newRow("silent") << true << false;
        QTest::newRow("no welcome") << false << true;
    }
    void firstActivation()
    {
        QFETCH(bool, welcome);
        QFETCH(bool, sounds);
        Start house({{"ShowWelcomeMsg", welcome ? "1" : "0"}, {"SoundOnActions", sounds ? "1" : "0"}});
        QVERIFY(house.form.Form_Load());
        const QLabel *label = house.controls.txtWelcomeMsg;
        QVERIFY(label->isHidden());
        house.appear();
        QCOMPARE(label->isVisible(), welcome);
        QCOMPARE(house.t.clock.waited, welcome ? 500 : 0);
        QCOMPARE(house.t.sound.resources.contains(117), welcome && sounds);
        if (welcome)
            QCOMPARE(label->geometry().bottom() + 1, house.controls.Picture1->y());
        QVERIFY(house.r.tips.findChild<QTimer *>(u"TipTimer"_s)->isActive());
        QTest::mouseClick(house.controls.Label3, Qt::LeftButton);
        QVERIFY(label->isHidden());
        house.form.hide();
        house.appear();
        QVERIFY2(label->isHidden(), "only the first time");
    }

    /// Nobody could stop a placement in the hidden window: it ends by itself.
    void tellsOfTilesThatFoundNoRoom()
    {
        Start house({{"NumWortel", "30000"}, {"MaxTriesToPlace", "0"}});
        QVERIFY(house.form.Form_Load());
        const int laid = house.r.store.countOf(colours::wortelBack);
        QVERIFY(laid > 50 && laid < 1000);
        QCOMPARE(house.counters().first(), QString::number(laid));
        house.t.boxes.willBeRead();
        house.appear();
        QCOMPARE(
            house.t.boxes.asked.value(0).text,
            u"Beim Start war nicht genug Platz: %1 Wortele wurden nicht gelegt.\nDie Taste \"Wortel\" legt sie auf das ganze Spielfeld."_s
                .arg(30000 - laid));
    }

    /// In whatever it stands: the log ends as told, the backup is gone, and nothing comes after.
    void ends_data()
    {
        QTest::addColumn<QString>("within");
        for (const char *within : {"nothing", "a run", "words that are prepared", "spreading"})
            QTest::newRow(within) << QString::fromLatin1(within);
    }
    void ends()
    {
        QFETCH(QString, within);
        Start house({{"UseBackup", "1"}});
        QVERIFY(house.form.Form_Load());
        house.appear();
        house.lists.CorrectWordList.add(u"Haus"_s);
        house.r.news.Commit();
        QVERIFY(IsTextFile(house.backup()));
        house.t.log.enable(house.t.AppFolder + u"errors.log"_s);
        house.t.pump.waiting = true;
        const QSignalSpy unloaded(&house.form, &frmMain::unloaded);
        const auto close = [&] { house.form.close(); };
        if (within == u"words that are prepared"_s || within == u"spreading"_s)
            house.t.pump.onServe = close;
        if (within == u"words that are prepared"_s || within == u"a run"_s)
            house.tool(house.controls.Check4);
        if (within == u"spreading"_s)
            house.run(command::From::MainMenu, 1505);
        close();
        QCOMPARE(unloaded.size(), 0);
        TestHouse::settle();
        QCOMPARE(unloaded.size(), 1);
        QVERIFY(!house.form.isVisible() && !IsTextFile(house.backup()));
        QVERIFY(house.t.sound.resources.contains(118));
        QCOMPARE(house.t.clock.waited, 1000);

        const QPoint middle = house.controls.Command1->rect().center();
        QTest::mousePress(house.controls.Command1, Qt::LeftButton, {},
                          middle); // help, which may be looked at
        QTest::mouseClick(house.controls.OptType[0], Qt::LeftButton);
        QVERIFY(!house.controls.OptType[0]->isChecked());
        QVERIFY(house.form.findChild<QWidget *>(u"HelpWindow"_s) == nullptr);
        house.tool(house.controls.Check2);
        house.form.HiddenText_Change(house.t.AppFolder + u"a.wlx"_s);
        close();
        TestHouse::settle();
        QCOMPARE(unloaded.size(), 1);
        QVERIFY(!IsTextFile(house.backup()));
        QStringList lines = QString::fromLatin1(ReadWholeFile(house.t.AppFolder + u"errors.log"_s))
                                .split(u"\r\n"_s, Qt::SkipEmptyParts);
        for (QString &line : lines)
            line = line.section(u" - "_s, 0, 0); // without the time of writing
        QCOMPARE(lines.last(4),
                 (QStringList{u"Event: Backup-file "_s + house.backup() + u" closed"_s,
                              u"Event: Backup-file "_s + house.backup() + u" deleted"_s,
                              u"Event: Application ended successfully"_s, u"*** Error-logging ended ***"_s}));
    }
};

WORTEL_TEST(MainWindowTest)
#include "tst_main_window.moc"
