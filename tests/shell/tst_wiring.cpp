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
        t.mayLeaveAnswers = true; // of the boxes that might come one does
        form.show();
        settle();
        t.sound.resources.clear();
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
};

using Act = std::function<QString(House &)>;

QString yes(bool answer) { return answer ? u"yes"_s : u"no"_s; }

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
    {"Command6", ACT(h.windowOf([&] { h.tool(h.c.Command6); })), u"frmOptions"_s},
    {"Command1", ACT(h.windowOf([&] { h.tool(h.c.Command1); })), u"HelpWindow"_s},
    {"Label2", ACT(h.windowOf([&] { h.clickOn(h.c.Label2); })), u"fAbout"_s},
    {"Option2(2)", ACT(h.tool(h.c.Option2[2]), h.stored("GameDifficult3")), u"True"_s},
    {"ChkVokal right", ACT(h.windowOf([&] { h.tool(h.c.ChkVokal[1], Qt::RightButton); })), u"FrmPlayVokal"_s},
    {"session on a vowel board", ACT(h.tool(h.c.ChkVokal[0]), emit h.r.sessions.boardOpens(), yes(h.play.KurzVokalMode())), u"no"_s},
    {"session in a vowel game", ACT(h.tool(h.c.ChkVokal[0]), h.tool(h.c.Check3), emit h.r.sessions.boardOpens(), h.state()), u"free"_s},
    {"1703", ACT(h.run(From::MainMenu, 1703), h.firstRows().section(u' ', 0, 0)), u"ball"_s},

    {"rows", ACT(h.firstRows()), u"halt ver0 ung0 Haus Haus"_s},
    {"LexiconList", ACT(h.c.LexiconList->rightPressed({5, 5}), h.visible(u"mnuLex"_s)), u"mnuLex"_s},
    {"CorrectWordList", ACT(h.c.CorrectWordList->rightPressed({5, 5}), h.visible(u"mnuTest"_s)), u"mnuTest"_s},
    {"hourglass of a list that is read", ACT(h.shapesWhileRead()), u"yes no"_s},
    {"dictionary that is read closes", ACT(h.tool(h.c.Command3), h.shapesWhileRead(), yes(h.r.dictionary.isOpen())), u"no"_s},
    {"mnuShowTip", ACT(h.entry("mnuShowTip"), yes(h.r.tips.isShown())), u"yes"_s},
    {"mnuAddWortelToRetypeList", ACT(h.windowOf([&] { h.entry("mnuAddWortelToRetypeList"); })), u"frmChooseWortel"_s},
    {"the chooser closes the dictionary", ACT(h.tool(h.c.Command3), h.windowOf([&] { h.entry("mnuAddWortelToRetypeList"); }), yes(h.r.dictionary.isOpen())), u"no"_s},

    {"lists of a session in a run", ACT(h.tool(h.c.Check4), h.r.sessions.listsChosen(), h.state()), u"free"_s},
    {"no chooser on a vowel board", ACT(h.tool(h.c.ChkVokal[0]), h.boxOf([&] { emit h.r.dictionary.chooserRequested(); })), u"Die Auswahl von Wört"_s},
    {"menus follow the mode", ACT(h.tool(h.c.Check4), yes(h.offers(1901))), u"no"_s},
    {"menus follow a filter's press", ACT(h.r.news.Commit(), h.store("UseUndo", "0"), h.tool(h.c.OptType[1]), yes(h.offers(2801))), u"no"_s},

    {"level", ACT(h.t.options.setOption(Setting::GameDifficult3), h.t.options.ApplySettings(), QString::number(h.play.GameLevel())), u"3"_s},
    {"tries, in thousands", ACT(h.apply(Setting::MaxTriesToPlace, u"2"_s), h.triesOnAFullBoard()), u"2"_s},
    {"background", ACT(h.apply(Setting::BackgroundPicture, h.greenPicture()), h.pixel(20, 20).name()), u"#00ff00"_s},
    {"no background", ACT(h.apply(Setting::BackgroundPicture, h.greenPicture()), h.apply(Setting::BackgroundPicture, {}), h.pixel(20, 20).name()), u"#0080c0"_s},
    {"file type", ACT(h.r.options.registerFileType(), yes(h.sessionsAreKnown())), u"yes"_s},
    {"no file type", ACT(h.r.fileType.registerSessions(), h.r.options.removeFileType(), yes(h.sessionsAreKnown())), u"no"_s},
    {"scores", ACT(h.boxOf([&] { emit h.r.options.resetScores(frmOptions::Scores::Klotar); })), u"Möchtest du die Best"_s},

    {"scores of Tonarin", ACT(h.boxOf([&] { emit h.r.options.resetScores(frmOptions::Scores::Tonarin); })), u"Möchtest du die Best"_s},
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
    {"501", ACT(h.run(From::MainMenu, 501), h.visible(u"CorrectWordList"_s)), u"CorrectWordList"_s},
    {"1907", ACT(h.windowOf([&] { h.t.fileDialogs.willSave({}); h.run(From::MainMenu, 1907); })), u"FrmSaveAsWeb"_s},

    {"closing answers an open window", ACT(h.closedInTime()), u"yes"_s},
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
