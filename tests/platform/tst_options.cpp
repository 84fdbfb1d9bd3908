// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/options.h"
#include "platform/runtime_error.h"
#include "platform/text_masks.h"
#include "support/test_class.h"
#include "support/test_ground.h"

class OptionsTest : public QObject
{
    Q_OBJECT

private slots:
    /// Each setting by its key, what a first run shows, and what is stored for a field left blank.
    void everyDefaultAndRepair()
    {
        const QStringList rows =
            u"NumWortel=20/20 WortelFile=%APP%text\\Hauptbausteine.Txt/%APP%text\\Hauptbausteine.Txt "
            u"BackgroundPicture=/ ScrollerSpeed=3/3 NumReTypeWords=10/10 NumPseudoReTypeWords=10/10 "
            u"ScrollerCanPan=1/ SoundOnAllReTyped=1/ SoundOnActions=1/ ShowCorrectListAfterGame=0/ "
            u"ShowCorrectListAfterReType=1/ UseLexTip=1/ UseGameLexTip=1/ VokalTipEnabled=1/ TipTime=45/45 "
            u"GameTipTime=45/45 VokalTipTime=60/ AutoCloseTipTime=20/20 UseUndo=1/ UseBackup=0/ "
            u"HideTaskbar=0/ GameShowWordHint=1/ GameShowWordHintTime=60/60 PrintInColor=0/ "
            u"PrintHighQuality=0/ ReTypeAfterGame=0/ ShowWelcomeMsg=1/ TrimEnteredWords=1/ "
            u"ScrollerLeftDownPos=False/ ScrollerRndPos=True/ ScrollerMiddlePos=False/ "
            u"ScrollerLeftUpPos=False/ VerifyWinTime=1/1 CaseCheck=1/ UseSounds=1/ UseSoundsInMemory=1/ "
            u"LCaseOnShuffle=1/ GameTimeOut=7/7 GamePrepareTimeOut=7/7 GameSoundOnTimeOut=1/ "
            u"MoveableInFilter=1/ ConfirmBeforeErase=1/ LongPressIsRight=0/ FillAffix=1/ "
            u"OpenWLXWithStoredLex=1/ UseCaseOnPseudo=1/ InitCapPseudoSuffixes=1/ NoOverlapOnStart=1/ "
            u"NumAffixToFill=5/5 "
            u"AddToSuffixPosition=0/0 MaxTriesToPlace=1/1000 SaveCopyWithLF=True/ SaveCopyWithCol=False/ "
            u"SaveCopyWithColBl=False/ SaveNoColumns=3/3 SaveNoBlocks=3/3 GameDifficult1=True/ "
            u"GameDifficult2=False/ GameDifficult3=False/ ColumnsOnLineUp=5/5 StartPosTopOnLineUp=100/100 "
            u"HorizSpaceOnLineUp=100/100 VertSpaceOnLineUp=100/100 KernlingNumRandomWords=20/20 "
            u"KernlingNumPseudoWords=20/20 KernlingNumScrambleWords=20/20 KernlingNumLetterMixWords=20/20 "
            u"KernlingGameTime=40/40 KernlingShowLists=0/ KernlingShowNoDup=1/ KernlingShowFalse=0/ "
            u"KernlingUseSounds=1/ KernlingShowTooltip=1/ ProgramSize=automatisch/automatisch"_s.split(u' ');
        TestGround t;
        t.options.GetSettings();
        QVERIFY(!t.options.IsChanged());
        QStringList found;
        for (const SettingRow &row : settingsTable()) {
            found << QLatin1String(row.key) + u'=' + t.options.text(row.id) + u'/';
            if (isTextSetting(row.type))
                t.options.setText(row.id, row.type == SettingType::Path ? u"  "_s : QString());
        }
        QSignalSpy applied(&t.options, &Options::applied);
        QVERIFY(t.options.IsChanged(SettingsWindow::frmKernlingOptions));
        QVERIFY(t.options.ApplySettings(SettingsWindow::frmKernlingOptions));
        QCOMPARE(applied.count(), 0);
        QVERIFY(t.store.GetSetting(u"Settings"_s, u"NumWortel"_s, {}).isEmpty()); // another window's
        QVERIFY(t.options.ApplySettings());
        QCOMPARE(applied.count(), 1);
        QCOMPARE(found.size(), rows.size());
        for (qsizetype i = 0; i < rows.size(); ++i) {
            const SettingRow &row = settingsTable()[static_cast<std::size_t>(i)];
            if (isTextSetting(row.type))
                found[i] += t.store.GetSetting(u"Settings"_s, QLatin1String(row.key), u"?"_s).trimmed();
            QCOMPARE(found[i].replace(t.AppFolder, u"%APP%"_s), rows[i]);
        }
    }

    void everySettingIsKept()
    {
        TestGround t;
        for (const SettingRow &row : settingsTable()) {
            if (row.type == SettingType::Box)
                t.options.setBox(row.id, t.options.isOn(row.id) ? 2 : 1);
            else if (row.type == SettingType::Option)
                t.options.setOption(row.id);
            else
                t.options.setText(row.id, row.type == SettingType::Path ? u"C:\\Bäume\\x y.txt"_s : u"123"_s);
        }
        Options next(t.store, t.AppFolder, t.log);
        for (const auto window : {SettingsWindow::frmOptions, SettingsWindow::frmKernlingOptions}) {
            QVERIFY(t.options.ApplySettings(window));
            next.GetSettings(window);
        }
        for (const SettingRow &row : settingsTable())
            QCOMPARE(next.text(row.id), t.options.text(row.id));
        QVERIFY(next.isOn(Setting::GameDifficult3));
        QVERIFY(!next.isOn(Setting::GameDifficult1));
        QVERIFY(!next.isOn(Setting::UseUndo)); // third state
    }

    void storedTexts_data()
    {
        columns<Setting, QString, QString>("id", "stored", "shown");
        const QString before = u"(before)"_s;
        QTest::newRow("box in its third state") << Setting::UseBackup << u"2"_s << u"2"_s;
        QTest::newRow("box out of range") << Setting::UseBackup << u"3"_s << before;
        QTest::newRow("box garbage") << Setting::UseBackup << u"ja\x01ö"_s << before;
        QTest::newRow("option by number") << Setting::ScrollerMiddlePos << u"-1"_s << u"True"_s;
        QTest::newRow("option zero") << Setting::ScrollerRndPos << u"0"_s << u"False"_s;
        QTest::newRow("option garbage") << Setting::ScrollerRndPos << u"vielleicht"_s << before;
        QTest::newRow("number garbage") << Setting::NumWortel << u"a1b-2\n3"_s << u"123"_s;
        QTest::newRow("number huge") << Setting::NumWortel << u"99999999999999999999"_s
                                     << u"99999999999999999999"_s;
        QTest::newRow("signed") << Setting::AddToSuffixPosition << u"x-1-00"_s << u"-100"_s;
        QTest::newRow("path") << Setting::WortelFile << u"Z:\\ß\\\"a\".txt"_s << u"Z:\\ß\\\"a\".txt"_s;
    }
    void storedTexts()
    {
        QFETCH(Setting, id);
        QFETCH(QString, stored);
        QFETCH(QString, shown);
        TestGround t;
        const QString before = t.options.text(id);
        t.store.SaveSetting(u"Settings"_s, QLatin1String(settingRow(id).key), stored);
        t.options.GetSettings();
        QCOMPARE(t.options.text(id), shown == u"(before)"_s ? before : shown);
    }

    void readersPastTheEditedValue()
    {
        const std::pair<QString, bool> rows[] = {
            {u"0"_s, false}, {u"1"_s, true}, {u"2"_s, true}, {u"False"_s, false}, {u"??"_s, true}};
        for (const auto &[stored, on] : rows) { // garbage gives the default
            TestGround t;
            t.store.SaveSetting(u"Settings"_s, u"UseUndo"_s, stored);
            t.options.setBox(Setting::UseUndo, on ? 0 : 1);
            QCOMPARE(t.options.storedIsOn(Setting::UseUndo), on);
        }
    }

    void aStoreThatCannotBeWrittenIsTold()
    {
        struct FullStore : MemoryStore
        {
            void SaveSetting(const QString &, const QString &, const QString &) override
            {
                throw RuntimeError::of(RuntimeError::DiskFull);
            }
        } store;
        TestGround t;
        Options options(store, t.AppFolder, t.log);
        QSignalSpy applied(&options, &Options::applied);
        options.setText(Setting::NumWortel, u"7"_s);
        QVERIFY(!options.ApplySettings());
        QCOMPARE(applied.count(), 1); // in force all the same, until the program ends
        QCOMPARE(options.number(Setting::NumWortel), 7.0);
    }

    void masks_data()
    {
        columns<bool, QString, int, QString, int>("all", "typed", "caret", "kept", "caretAfter");
        QTest::newRow("dropped before the caret") << false << u"1a2b3"_s << 4 << u"123"_s << 2;
        QTest::newRow("dropped behind the caret") << false << u"1a2b3"_s << 1 << u"123"_s << 1;
        QTest::newRow("minus stays in front") << true << u"-100"_s << 1 << u"-100"_s << 1;
        QTest::newRow("minus behind letters leads") << true << u"ab-4"_s << 4 << u"-4"_s << 2;
        QTest::newRow("other scripts' digits go") << true << u"\u0663\u00B27"_s << 3 << u"7"_s << 1;
    }
    void masks()
    {
        QFETCH(bool, all);
        QFETCH(QString, typed);
        QFETCH(int, caret);
        QTEST(all ? Integer_All(typed, &caret) : Integer_Pos(typed, &caret), "kept");
        QTEST(caret, "caretAfter");
    }
};

WORTEL_TEST(OptionsTest)
#include "tst_options.moc"
