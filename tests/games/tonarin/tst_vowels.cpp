// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "games/tonarin/frm_play_vokal.h"
#include "games/tonarin/vowel_stems.h"
#include "platform/files.h"
#include "platform/text.h"
#include "support/test_class.h"
#include "support/test_house.h"

#include <QPushButton>

namespace {

const QString data = QStringLiteral(WORTEL_SOURCE_DIR "/data/");

/// A board of four stems, two of each kind, and affixes.
struct Desk : TestHouse
{
    Desk()
    {
        lists.kurzvokalList.clear();
        lists.langvokalList.clear();
        lists.kurzvokalList.addAll({u"ball"_s, u"fall"_s});
        lists.langvokalList.addAll({u"bahn"_s, u"tag"_s});
        controls.Text1->setText(u"12"_s);
        lay(prefixKind, 10, 10, u"ver"_s);
        lay(wortelKind, 100, 100, u"halt"_s);
        lay(suffixKind, 200, 300, u"en"_s);
        r.news.Commit();
        t.sound.resources.clear();
    }
    QSet<QString> stems() const
    {
        const QStringList all = texts();
        return {all.begin(), all.end()};
    }
};

} // namespace

class VowelsTest : public QObject
{
    Q_OBJECT

private slots:
    void soundOf_data()
    {
        columns<QString, QString>("stem", "file");
        for (const auto &[stem, file] : {std::pair{u"farb"_s, u"ka"_s},
                                         {u"FARB"_s, u"ka"_s},
                                         {u"farbe"_s, {}},
                                         {u"kreuz"_s, u"leu"_s},
                                         {u"weg"_s, u"le"_s},
                                         {u"kurz"_s, u"ku"_s},
                                         {u"quäl"_s, u"lu"_s},
                                         {u"gräu"_s, u"läu"_s},
                                         {u"putz"_s, u"ku"_s},
                                         {u""_s, {}},
                                         {u"farb hand"_s, {}}})
            QTest::newRow(qPrintable(stem)) << stem << file;
    }
    void soundOf()
    {
        QFETCH(QString, stem);
        const vowel_stems::Row *row = vowel_stems::find(stem);
        QTEST(row == nullptr ? QString() : QString::fromUtf16(row->file), "file");
    }

    /// The table, the folder of the sounds and the two lists know each other.
    void theTableFitsTheData()
    {
        QSet<QString> known;
        for (const vowel_stems::Row &row : vowel_stems::rows) {
            const QStringList stems = QString::fromUtf16(row.stems).split(u' ');
            known.unite(QSet<QString>(stems.begin(), stems.end()));
            QVERIFY(QFile::exists(nativePath(vowel_stems::soundFile(data, QString::fromUtf16(row.file)))));
        }
        QStringList silent;
        for (const char *name : {"kurzer Stammvokal.Txt", "langer Stammvokal.Txt"})
            for (const QString &stem : readListFile(data + u"text kurz lang\\"_s + QString::fromLatin1(name)))
                if (!known.contains(LCase(stem)))
                    silent << stem;
        QVERIFY2(silent.isEmpty(), qPrintable(silent.join(u' ')));
    }

    void theBoardOfBothKinds()
    {
        Desk desk;
        desk.lists.CorrectWordList.add(u"laufen"_s);
        desk.tool(desk.controls.ChkVokal[0]);
        QVERIFY(desk.play.KurzVokalMode());
        QCOMPARE(desk.lists.WortelList.rows(), (QStringList{u"ball"_s, u"fall"_s, u"bahn"_s, u"tag"_s}));
        QCOMPARE(desk.counters(), (QStringList{u"12"_s, u"0"_s, u"0"_s, u"12"_s}));
        const QSet<QString> laid = desk.stems();
        QVERIFY((QSet<QString>{u"ball"_s, u"fall"_s, u"bahn"_s, u"tag"_s}).contains(laid));
        QCOMPARE(desk.t.sound.resources, (QList<int>{122, 122}));
        QVERIFY(desk.lists.CorrectWordList.isEmpty());
        // Three steps: suffixes, prefixes, the stems.
        for (const int tiles : {13, 14, 3}) {
            QVERIFY(desk.play.KurzVokalMode());
            desk.run(command::From::MainMenu, 2801);
            QCOMPARE(desk.r.store.count(), tiles);
        }
        QVERIFY2(desk.play.checkedVowels() == Vowels::None, "with the board before, its lists are back");
        QCOMPARE(desk.lists.WortelList.at(0), u"halt"_s);
        desk.tool(desk.controls.ChkVokal[1]);
        QVERIFY(desk.play.LangVokalMode() && !desk.controls.ChkVokal[0]->isChecked());
        desk.tool(desk.controls.ChkVokal[1]);
        QCOMPARE(desk.play.checkedVowels(), Vowels::None);
        QCOMPARE(desk.lists.WortelList.rows(), (QStringList{u"halt"_s, u"fahr"_s, u"spiel"_s}));
        QCOMPARE(desk.lists.LexiconList.at(0), u"Haus"_s);
        QCOMPARE(desk.controls.Label3->text(), u"Hauptbausteine"_s);
        QCOMPARE(desk.counters().first(), u"12"_s);
        QCOMPARE(desk.trouble(), QString());
    }

    void whatIsRefusedChangesNothing_data()
    {
        columns<bool, QString>("hasStems", "text1");
        QTest::newRow("no stems") << false << u"12"_s;
        QTest::newRow("no number") << true << u"viele"_s;
    }
    void whatIsRefusedChangesNothing()
    {
        QFETCH(bool, hasStems);
        QFETCH(QString, text1);
        Desk desk;
        desk.controls.Text1->setText(text1);
        if (!hasStems) {
            desk.lists.kurzvokalList.clear();
            desk.lists.langvokalList.clear();
        }
        desk.t.boxes.willBeRead();
        desk.tool(desk.controls.ChkVokal[1]);
        QVERIFY(!desk.controls.ChkVokal[1]->isChecked());
        desk.t.boxes.willBeRead();
        desk.run(command::From::MainMenu, 1702);
        QVERIFY2(!desk.play.GameActive(), "no game without its board");
        QCOMPARE(desk.play.checkedVowels(), Vowels::None);
        QCOMPARE(desk.lists.WortelList.at(0), u"halt"_s);
        QCOMPARE(desk.texts(), (QStringList{u"ver"_s, u"halt"_s, u"en"_s}));
        QCOMPARE(desk.trouble(), QString());
    }

    void theOtherBoxIsRefused()
    {
        Desk desk;
        desk.r.tips.mnuShowTip_Click();
        desk.form.show();
        QVERIFY(QTest::qWaitForWindowActive(&desk.form));
        desk.tool(desk.controls.ChkVokal[0]);
        QVERIFY2(!desk.r.tips.isShown(), "it shows the board that was");
        QVERIFY(desk.controls.Dropper1->isActiveControl());
        desk.controls.Text1->clear();
        desk.t.boxes.willBeRead();
        desk.tool(desk.controls.ChkVokal[1]);
        QCOMPARE(desk.lists.WortelList.at(0), u"halt"_s);
        QCOMPARE(desk.play.checkedVowels(), Vowels::None);
    }

    /// The list of the options may be gone: then the one that was in use comes back.
    void theListInUseComesBack()
    {
        Desk desk;
        desk.t.writeFile(u"text\\Eigene.txt"_s, u"eigen\r\n"_s);
        desk.t.writeFile(u"facit\\Eigene.lex"_s, u"Eigentum\r\n"_s);
        QString own = desk.t.AppFolder + u"text\\Eigene.txt"_s;
        desk.lists.WortelList.clear();
        desk.lists.LexiconList.clear();
        desk.r.loader.FillWortelList(own);
        desk.tool(desk.controls.ChkVokal[0]);
        desk.t.options.setText(Setting::WortelFile, desk.t.AppFolder + u"text\\fort.txt"_s);
        desk.tool(desk.controls.ChkVokal[0]);
        QCOMPARE(desk.lists.WortelList.at(0), u"eigen"_s);
        QCOMPARE(desk.lists.LexiconList.at(0), u"Eigentum"_s);
    }

    void hearing()
    {
        Desk desk;
        desk.tool(desk.controls.ChkVokal[0]);
        desk.controls.Dropper1->setCaption(u"fall"_s);
        desk.tool(desk.controls.Command2);
        desk.controls.Dropper1->setCaption(u"bahn"_s); // a long one
        desk.tool(desk.controls.Command2);
        QCOMPARE(desk.t.sound.files, QStringList{desk.t.AppFolder + u"sounds kurz lang\\ka.wav"_s});
        QCOMPARE(desk.t.sound.resources.last(), 124);
        desk.t.options.setBox(Setting::SoundOnActions, 0);
        desk.r.vowelBoard.PlayTheVokal(u"fall"_s);
        QCOMPARE(desk.t.sound.files.size(), 1);
    }

    void theWindowOfTheSounds()
    {
        Desk desk;
        FrmPlayVokal window(desk.t.ground, nullptr);
        QSet<QString> names;
        for (int i = 0; i < 38; ++i) {
            auto *label = window.findChild<QPushButton *>(u"LblPlaySound(%1)"_s.arg(i));
            QVERIFY(label != nullptr && !label->accessibleName().isEmpty());
            label->click();
            QVERIFY(label->isChecked());
            names.insert(desk.t.sound.files.last());
            const QString file = desk.t.sound.files.last().section(u'\\', -1);
            QVERIFY2(QFile::exists(data + u"sounds kurz lang/"_s + file), qPrintable(file));
        }
        QCOMPARE(names.size(), 38);
        desk.t.sound.filesCanBePlayed = false;
        desk.t.boxes.willAnswer(Boxes::Answer::Ok);
        window.findChild<QPushButton *>(u"LblPlaySound(3)"_s)->click();
        QCOMPARE(desk.t.boxes.asked.last().text, u"Can not play the sound for this vokal"_s);
        QVERIFY(desk.t.boxes.asked.last().title.endsWith(u" - Fehler"_s));
    }
};

WORTEL_TEST(VowelsTest)
#include "tst_vowels.moc"
