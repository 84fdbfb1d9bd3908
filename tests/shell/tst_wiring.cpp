// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/files.h"
#include "support/reports.h"
#include "support/test_board.h"
#include "support/test_class.h"

#include <QMenu>
#include <QTextDocument>

using command::From;

namespace {

/// The house with something to play with, in front of the player: "Haus" stands in the word field.
struct House : TestHouse
{
    const MainControls &c = controls;

    House()
    {
        t.writeFile(u"lextip.ini"_s, u"[Tipp]\r\nhauptbausteine=Suche den Stamm.\r\n"_s);
        t.writeFile(u"b.lex"_s, u"Wald\r\n"_s);
        store("UseBackup", "1");
        c.Text1->setText(u"3"_s);
        c.Dropper1->setCaption(u"Haus"_s);
        lay(wortelKind, 300, 200, u"halt"_s);
        lists.CorrectWordList.addAll({u"Haus"_s, u"laufen"_s});
        r.undo.ClearCollBuffer();
        form.show();
        settle();
        t.sound.resources.clear();
    }

    // The player
    void typed(Qt::Key pressed)
    {
        c.Dropper1->takeFocus();
        QTest::keyClick(form.focusWidget(), pressed);
    }
    void clickOn(QWidget *widget) { QTest::mouseClick(widget, Qt::LeftButton); }
    void entry(const char *name) { form.findChild<QAction *>(QLatin1String(name))->trigger(); }
    void store(const char *key, const char *value)
    {
        t.store.SaveSetting(u"Settings"_s, QLatin1String(key), QLatin1String(value));
    }
    void apply(Setting setting, const QString &value)
    {
        t.options.setText(setting, value);
        t.options.ApplySettings();
    }
    QString greenPicture()
    {
        QImage image(64, 64, QImage::Format_RGB32);
        image.fill(Qt::green);
        image.save(t.folder.filePath(u"bild.bmp"_s));
        return t.AppFolder + u"bild.bmp"_s;
    }

    // What is seen
    QString report() { return takeReports(*this).value(0).section(u'|', 0, 0); }
    QString state() const
    {
        return play.RetypeActive() ? u"retyping"_s
               : play.GameActive() ? u"level %1"_s.arg(play.GameLevel())
                                   : u"free"_s;
    }
    QString stored(const char *key) const
    {
        return t.store.GetSetting(u"Settings"_s, QLatin1String(key), {});
    }
    bool isBackedUp() const { return IsTextFile(Backup::file(t.ground)); }
    static bool sessionsAreKnown()
    {
        return QFile::exists(qEnvironmentVariable("XDG_DATA_HOME") +
                             u"/applications/wortel-meister-session.desktop"_s);
    }
    QString visible(const QString &name)
    {
        auto *widget = form.findChild<QWidget *>(name);
        const bool shown = widget != nullptr && !widget->isHidden();
        if (shown && qobject_cast<QMenu *>(widget) != nullptr)
            widget->close();
        return shown ? name : QString();
    }
    QString firstRows() const
    {
        QStringList first;
        for (const StoreList *list :
             {c.WortelList, c.PrefixList, c.SuffixList, c.LexiconList, c.CorrectWordList})
            first << (list->store() == nullptr ? u"-"_s : list->store()->at(0));
        return first.join(u' ');
    }
    /// The beginning of the box that `act` brings up.
    template <typename Act> QString boxOf(Act act)
    {
        t.boxes.willBeRead();
        t.boxes.willPress(1);
        t.boxes.willCloseScores();
        act();
        return t.boxes.asked.isEmpty() ? QString() : t.boxes.asked.last().text.left(20);
    }
    /// The heading of the list of the best that `act` shows.
    template <typename Act> QString listOf(Act act)
    {
        t.boxes.willCloseScores();
        act();
        return t.boxes.asked.last().style + t.boxes.asked.last().title.section(u'(', 1);
    }
    /// The file that the menu's entry writes.
    QString listReset(int id)
    {
        t.boxes.willPress(0);
        run(From::MainMenu, id);
        return QDir(t.folder.path()).entryList({u"*.lst"_s}).join(u' ');
    }
    /// The title of the file dialog that `act` brings up, and that is cancelled.
    template <typename Act> QString dialogOf(Act act)
    {
        t.fileDialogs.willOpen({});
        t.fileDialogs.willSave({});
        act();
        return t.fileDialogs.asked.isEmpty() ? QString() : t.fileDialogs.asked.last().title;
    }
    /// The name of the window that `act` opens, and that is closed.
    template <typename Act> QString windowOf(Act act)
    {
        QString name;
        QTimer::singleShot(0, &form, [&name] {
            if (auto *dialog = qobject_cast<QDialog *>(QApplication::activeModalWidget())) {
                name = dialog->objectName();
                dialog->reject();
            }
        });
        act();
        settle();
        for (QWidget *window : QApplication::topLevelWidgets())
            if (window->isVisible() && window != &form && name.isEmpty()) {
                name = window->objectName();
                window->close();
            }
        return name;
    }
    QString cancelled()
    {
        const Work work(t.ground, {WorkPlan::Cancel, 1});
        clickOn(c.Label4);
        return work.isCancelled() ? u"yes"_s : u"no"_s;
    }
    /// The pointer while a list is read, and afterwards.
    QString shapesWhileRead()
    {
        QStringList shapes;
        QObject::connect(&r.loader, &ListLoader::busy, &form, [&] {
            shapes << (QGuiApplication::overrideCursor() != nullptr ? u"yes"_s : u"no"_s);
        });
        r.loader.Fill_Lexicon(t.AppFolder + u"b.lex"_s);
        return shapes.join(u' ');
    }
    QString triesOnAFullBoard()
    {
        for (int x = 0; x < 632; x += 60)
            for (int y = 0; y < 573; y += 40)
                lay(wortelKind, x, y, u"x"_s);
        t.pump.waiting = true;
        t.pump.yields = 0;
        key(Qt::Key_A);
        return QString::number(t.pump.yields / 1000.0, 'f', 0);
    }
    /// Whether a window that is open goes when the main window is to close.
    QString closedInTime()
    {
        bool inTime = true;
        QTimer::singleShot(0, &form, [this] { gate.requestClose(); });
        QTimer::singleShot(2000, &form, [&inTime] {
            inTime = false;
            qobject_cast<QDialog *>(QApplication::activeModalWidget())->reject();
        });
        clickOn(c.Label2);
        return inTime ? u"yes"_s : u"no"_s;
    }
    QString unloads()
    {
        const QSignalSpy unloaded(&form, &frmMain::unloaded);
        form.close();
        settle();
        return QString::number(unloaded.size());
    }
};

using Act = std::function<QString(House &)>;

QString yes(bool answer) { return answer ? u"yes"_s : u"no"_s; }

const QString later = u"Das gibt es in diese"_s;

/// A wire: what is pressed or said at its one end, and what is seen at its other.
struct Wire
{
    const char *name;
    Act act;
    QString effect;
};

// clang-format off
#define ACT(...) [](House &h) { return __VA_ARGS__; }
const Wire wires[] = {
    {"Check2 left", ACT(h.tool(h.c.Check2), h.counters().first()), u"3"_s},
    {"Check2 right", ACT(h.dialogOf([&] { h.tool(h.c.Check2, Qt::RightButton); })), u"Wortel laden (Multi)"_s},
    {"Command6", ACT(h.windowOf([&] { h.tool(h.c.Command6); })), u"frmOptions"_s},
    {"Command1", ACT(h.windowOf([&] { h.tool(h.c.Command1); })), u"HelpWindow"_s},
    {"Label2", ACT(h.windowOf([&] { h.clickOn(h.c.Label2); })), u"fAbout"_s},
    {"Label4", ACT(h.cancelled()), u"yes"_s},
    {"Command2 left", ACT(h.tool(h.c.Command2), h.report()), u"Richtig !"_s},
    {"Command2 right", ACT(h.tool(h.c.Command2, Qt::RightButton), h.visible(u"LexiconList"_s)), u"LexiconList"_s},
    {"Command5 left", ACT(h.tool(h.c.Command5), h.c.Dropper1->Caption()), QString()},
    {"Command5 right", ACT(h.tool(h.c.Command5, Qt::RightButton), yes(h.t.sound.resources.contains(111))), u"yes"_s},
    {"Command3 left", ACT(h.tool(h.c.Command3), h.visible(u"LexiconList"_s)), u"LexiconList"_s},
    {"Command3 right", ACT(h.dialogOf([&] { h.tool(h.c.Command3, Qt::RightButton); })), u"Wörterbuch laden (multi)"_s},
    {"Command4 left", ACT(h.tool(h.c.Command4), h.visible(u"CorrectWordList"_s)), u"CorrectWordList"_s},
    {"Command4 right", ACT(h.dialogOf([&] { h.tool(h.c.Command4, Qt::RightButton); })), u"Richtige Wörter Speichern"_s},
    {"Check3 left", ACT(h.tool(h.c.Check3), h.state()), u"level 1"_s},
    {"Check3 right", ACT(h.listOf([&] { h.tool(h.c.Check3, Qt::RightButton); })), u"Klotar"_s},
    {"Option2(1)", ACT(h.tool(h.c.Option2[1]), h.tool(h.c.Check3), h.state()), u"level 2"_s},
    {"Option2(2)", ACT(h.tool(h.c.Option2[2]), h.stored("GameDifficult3")), u"True"_s},
    {"Check4", ACT(h.tool(h.c.Check4), h.state()), u"retyping"_s},
    {"ChkVokal right", ACT(h.windowOf([&] { h.tool(h.c.ChkVokal[1], Qt::RightButton); })), u"FrmPlayVokal"_s},
    {"vowel said", ACT(emit h.r.check.vowelWordFound(u"bahn"_s), h.t.sound.files.value(0).right(7)), u"\\la.wav"_s},
    {"vowel board left", ACT(h.tool(h.c.ChkVokal[0]), h.tool(h.c.ChkVokal[0]), h.firstRows().section(u' ', 0, 0)), u"halt"_s},
    {"vowel board", ACT(h.tool(h.c.ChkVokal[0]), h.firstRows().section(u' ', 0, 0)), u"ball"_s},
    {"session on a vowel board", ACT(h.tool(h.c.ChkVokal[0]), emit h.r.sessions.boardOpens(), yes(h.play.KurzVokalMode())), u"no"_s},
    {"session in a vowel game", ACT(h.tool(h.c.ChkVokal[0]), h.tool(h.c.Check3), emit h.r.sessions.boardOpens(), h.state()), u"free"_s},
    {"copying after the game", ACT(h.lists.CorrectWordList.add(u"Haus"_s), emit h.r.game.retypeWanted(), h.state()), u"retyping"_s},
    {"1702", ACT(h.run(From::MainMenu, 1702), yes(h.play.GameShortVowels())), u"yes"_s},
    {"1703", ACT(h.run(From::MainMenu, 1703), h.firstRows().section(u' ', 0, 0)), u"ball"_s},
    {"ChkVokal(0)", ACT(h.tool(h.c.ChkVokal[0]), yes(h.play.KurzVokalMode())), u"yes"_s},
    {"ChkVokal(1)", ACT(h.tool(h.c.ChkVokal[1]), yes(h.play.LangVokalMode())), u"yes"_s},
    {"Enter", ACT(h.typed(Qt::Key_Return), h.report()), u"Richtig !"_s},
    {"another key", ACT(h.typed(Qt::Key_H), yes(h.t.sound.resources.contains(106))), u"yes"_s},

    {"rows", ACT(h.firstRows()), u"halt ver0 ung0 Haus Haus"_s},
    {"WortelList", ACT(h.c.WortelList->rowClicked(1), h.texts().last()), u"fahr"_s},
    {"PrefixList", ACT(h.c.PrefixList->rowClicked(1), h.texts().last()), u"ver1"_s},
    {"SuffixList", ACT(h.c.SuffixList->rowClicked(1), h.texts().last()), u"ung1"_s},
    {"LexiconList", ACT(h.c.LexiconList->rightPressed({5, 5}), h.visible(u"mnuLex"_s)), u"mnuLex"_s},
    {"CorrectWordList", ACT(h.c.CorrectWordList->rightPressed({5, 5}), h.visible(u"mnuTest"_s)), u"mnuTest"_s},
    {"Text2", ACT(h.tool(h.c.Command3), h.c.Text2->setText(u"läu"_s), QString::number(h.c.LexiconList->ListIndex())), u"2"_s},
    {"hourglass of a list that is read", ACT(h.shapesWhileRead()), u"yes no"_s},
    {"dictionary that is read closes", ACT(h.tool(h.c.Command3), h.shapesWhileRead(), yes(h.r.dictionary.isOpen())), u"no"_s},
    {"mnuShowTip", ACT(h.entry("mnuShowTip"), yes(h.r.tips.isShown())), u"yes"_s},
    {"mnuAddWortelToRetypeList", ACT(h.windowOf([&] { h.entry("mnuAddWortelToRetypeList"); })), u"frmChooseWortel"_s},
    {"the chooser closes the dictionary", ACT(h.tool(h.c.Command3), h.windowOf([&] { h.entry("mnuAddWortelToRetypeList"); }), yes(h.r.dictionary.isOpen())), u"no"_s},

    {"copied word", ACT(h.tool(h.c.Check4), h.r.check.retypeWordFound(u"Haus"_s), QString::number(h.c.Scroller->ListCount())), u"1"_s},
    {"edited list", ACT(h.tool(h.c.Check4), h.r.wordList.wordsEdited({u"a"_s}, true), h.c.Scroller->List(1)), u"a"_s},
    {"mnuStartRetypeFromList", ACT(h.entry("mnuStartRetypeFromList"), h.state()), u"retyping"_s},
    {"lists chosen in a run", ACT(h.tool(h.c.Check4), h.r.chooser.listsChosen(), h.state()), u"free"_s},
    {"lists of a session in a run", ACT(h.tool(h.c.Check4), h.r.sessions.listsChosen(), h.state()), u"free"_s},
    {"no chooser on a vowel board", ACT(h.tool(h.c.ChkVokal[0]), h.boxOf([&] { emit h.r.dictionary.chooserRequested(); })), u"Die Auswahl von Wört"_s},
    {"chooser", ACT(h.windowOf([&] { h.run(From::MainMenu, 1608); })), u"frmChooseWortel"_s},
    {"chosen words", ACT(h.r.wordChooser.wordsChosen(), h.state()), u"retyping"_s},
    {"menus follow the mode", ACT(h.tool(h.c.Check4), yes(h.offers(1901))), u"no"_s},
    {"menus follow undo", ACT(h.r.news.Commit(), yes(h.offers(2801))), u"yes"_s},
    {"menus follow a filter's press", ACT(h.r.news.Commit(), h.store("UseUndo", "0"), h.tool(h.c.OptType[1]), yes(h.offers(2801))), u"no"_s},

    {"command", ACT(h.r.news.Commit(), yes(h.r.undo.CanUndo())), u"yes"_s},
    {"move", ACT(h.r.store.tiles().front()->setXLeft(77), h.r.news.move(), h.key(Qt::Key_A), h.key(Qt::Key_I), h.described().join(u'|')), u"77,200 halt"_s},
    {"another board", ACT(h.r.news.Commit(), h.r.news.open(), yes(h.r.undo.CanUndo())), u"no"_s},
    {"backup of a command", ACT(h.r.news.Commit(), yes(h.isBackedUp())), u"yes"_s},
    {"backup of a move", ACT(h.r.news.move(), yes(h.isBackedUp())), u"yes"_s},
    {"backup of a board", ACT(h.r.news.open(), yes(h.isBackedUp())), u"yes"_s},
    {"backup of a step", ACT(h.r.news.stepTo(), yes(h.isBackedUp())), u"yes"_s},

    {"level", ACT(h.t.options.setOption(Setting::GameDifficult3), h.t.options.ApplySettings(), QString::number(h.play.GameLevel())), u"3"_s},
    {"tries, in thousands", ACT(h.apply(Setting::MaxTriesToPlace, u"2"_s), h.triesOnAFullBoard()), u"2"_s},
    {"background", ACT(h.apply(Setting::BackgroundPicture, h.greenPicture()), h.pixel(20, 20).name()), u"#00ff00"_s},
    {"no background", ACT(h.apply(Setting::BackgroundPicture, h.greenPicture()), h.apply(Setting::BackgroundPicture, {}), h.pixel(20, 20).name()), u"#0080c0"_s},
    {"strip", ACT(h.apply(Setting::ScrollerSpeed, u"9"_s), QString::number(h.c.Scroller->ScrollSpeed())), u"9"_s},
    {"undo", ACT(h.r.news.Commit(), h.t.options.setBox(Setting::UseUndo, 0), h.t.options.ApplySettings(), yes(h.r.undo.CanUndo())), u"no"_s},
    {"file type", ACT(h.r.options.registerFileType(), yes(h.sessionsAreKnown())), u"yes"_s},
    {"no file type", ACT(h.r.fileType.registerSessions(), h.r.options.removeFileType(), yes(h.sessionsAreKnown())), u"no"_s},
    {"scores", ACT(h.boxOf([&] { emit h.r.options.resetScores(frmOptions::Scores::Klotar); })), u"Möchtest du die Best"_s},

    {"scores of Tonarin", ACT(h.boxOf([&] { emit h.r.options.resetScores(frmOptions::Scores::Tonarin); })), u"Möchtest du die Best"_s},
    {"2900", ACT(h.listOf([&] { h.run(From::MainMenu, 2900); })), u"Klotar"_s},
    {"3104", ACT(h.listOf([&] { h.run(From::MainMenu, 3104); })), u"Kernling"_s},
    {"3106", ACT(h.listOf([&] { h.run(From::MainMenu, 3106); })), u"Tonarin"_s},
    {"scores of Paarlon", ACT(h.boxOf([&] { emit h.r.options.resetScores(frmOptions::Scores::Paarlon); })), u"Möchtest du Paarlon\n"_s},
    {"menus follow the card game", ACT(h.r.news.Commit(), h.store("UseUndo", "0"), h.run(From::MainMenu, 150), yes(h.offers(2801))), u"no"_s},
    {"2902", ACT(h.listOf([&] { h.run(From::MainMenu, 2902); })), u"PaarlonWortel)"_s},
    {"2904", ACT(h.listOf([&] { h.run(From::MainMenu, 2904); })), u"PaarlonPräfixe)"_s},
    {"2906", ACT(h.listOf([&] { h.run(From::MainMenu, 2906); })), u"PaarlonSuffixe)"_s},
    {"2901", ACT(h.listReset(2901)), u"scores.lst"_s},
    {"3105", ACT(h.listReset(3105)), u"ScoresKernling.lst"_s},
    {"3107", ACT(h.listReset(3107)), u"ScoresVokal.lst"_s},
    {"601", ACT(h.run(From::MainMenu, 601), h.report()), u"Richtig !"_s},
    {"901", ACT(h.windowOf([&] { h.run(From::MainMenu, 901); })), u"frmOptions"_s},
    {"1001", ACT(h.windowOf([&] { h.run(From::MainMenu, 1001); })), u"HelpWindow"_s},
    {"1003", ACT(h.windowOf([&] { h.run(From::MainMenu, 1003); })), u"fAbout"_s},
    {"1701", ACT(h.windowOf([&] { h.run(From::MainMenu, 1701); })), u"FrmKernling"_s},
    {"stems, page set-up", ACT(h.windowOf([&] { QTextDocument text(u"Kern"_s); emit h.r.kernling.PrintRTF(&text); })), u"frmPrinterSetUp"_s},
    {"1906", ACT(h.run(From::MainMenu, 1906), yes(h.gate.isClosing())), u"yes"_s},
    {"701", ACT(h.run(From::MainMenu, 701), h.state()), u"level 1"_s},
    {"201", ACT(h.dialogOf([&] { h.run(From::MainMenu, 201); })), u"Wortel laden (Multi)"_s},
    {"275", ACT(h.run(From::MainMenu, 275), yes(h.r.tips.isShown())), u"yes"_s},
    {"401", ACT(h.run(From::MainMenu, 401), h.visible(u"LexiconList"_s)), u"LexiconList"_s},
    {"501", ACT(h.run(From::MainMenu, 501), h.visible(u"CorrectWordList"_s)), u"CorrectWordList"_s},
    {"504", ACT(h.run(From::MainMenu, 504), QString::number(h.t.printer.jobs.size())), u"1"_s},
    {"1904", ACT(h.run(From::MainMenu, 1904), QString::number(h.t.printer.jobs.size())), u"1"_s},
    {"1905", ACT(h.windowOf([&] { h.run(From::MainMenu, 1905); })), u"frmPrinterSetUp"_s},
    {"1907", ACT(h.windowOf([&] { h.t.fileDialogs.willSave({}); h.run(From::MainMenu, 1907); })), u"FrmSaveAsWeb"_s},
    {"1600", ACT(h.run(From::MainMenu, 1600), h.state()), u"retyping"_s},
    {"1901", ACT(h.dialogOf([&] { h.run(From::MainMenu, 1901); })), u"Wortel - Sitzung laden"_s},
    {"2801", ACT(h.key(Qt::Key_A), h.run(From::MainMenu, 2801), QString::number(h.r.store.count())), u"1"_s},

    {"closing answers an open window", ACT(h.closedInTime()), u"yes"_s},
    {"closing unloads", ACT(h.unloads()), u"1"_s},
};
#undef ACT
// clang-format on

} // namespace

/// Each wire of the main window is joined.
class WiringTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        qputenv("XDG_DATA_HOME", QFile::encodeName(home_.path()));
        qputenv("PATH", ""); // no index of a desktop is brought up to date
    }
    void cleanupTestCase() { qputenv("PATH", path_); }

    void joined_data()
    {
        columns<Act, QString>("act", "effect");
        for (const Wire &wire : wires)
            QTest::newRow(wire.name) << wire.act << wire.effect;
    }
    void joined()
    {
        QFETCH(Act, act);
        House house;
        QVERIFY(QTest::qWaitForWindowActive(&house.form));
        QTEST(act(house), "effect");
    }

private:
    QTemporaryDir home_; ///< keeps the user's own out of it
    QByteArray path_ = qgetenv("PATH");
};

WORTEL_TEST(WiringTest)
#include "tst_wiring.moc"
