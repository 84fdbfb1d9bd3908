// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
// torture_player FOLDER JOURNAL SEED: starts the program as a user would whose last run has crashed (recovery
// question, main window, first board), then plays random commands until it is killed. Everything is the real
// thing but boxes, dialogs and sound, which answer at once, and the clock, which never waits.
//
// The journal gets a line at every event, each with one write, which a kill does not take back:
//   N            the start found no backup
//   R BOARD      the start has read the backup; this is the board now
//   I BOARD      a change is about to be backed up
//   D            it has been
//   E TEXT       a box has told a fault
#include "board/hand/commands.h"
#include "platform/files.h"
#include "platform/settings_file.h"
#include "platform/system_clock.h"
#include "shell/affix_rows.h"
#include "shell/frm_main.h"
#include "shell/rooms.h"
#include "shell/start_steps.h"
#include "support/test_ground.h"
#include "widgets/picture_box.h"
#include "widgets/resources.h"

#include <QApplication>
#include <QFile>
#include <QFont>
#include <QMouseEvent>
#include <QStyleFactory>

#include <random>

using namespace Qt::StringLiterals;

namespace {

using Random = std::mt19937;

int below(Random &random, std::size_t bound) { return static_cast<int>(random() % bound); }

class Journal
{
public:
    explicit Journal(const QString &path)
        : file_(path)
    {
        if (!file_.open(QIODevice::WriteOnly | QIODevice::Append | QIODevice::Unbuffered))
            qFatal("no journal");
    }
    void note(char what, const QString &text = {})
    {
        file_.write(QByteArray(1, what) + ' ' + text.toUtf8().toBase64() + '\n');
    }

private:
    QFile file_;
};

/// Answers without sense, but yes to the recovery. A box that tells a fault goes into the journal.
class QuickBoxes : public Boxes
{
public:
    QuickBoxes(Random &random, Journal &journal)
        : random_(random)
        , journal_(journal)
    {}

    Answer plainBox(Icon, const QString &, const QString &text, Buttons buttons) override
    {
        if (buttons == Buttons::YesNoCancel)
            return Answer::Yes;
        journal_.note('E', text);
        return Answer::Ok;
    }
    int ShowMBox(const QString &, bool, int, const QString &, const QString &) override
    {
        return below(random_, 8) == 0 ? 1 : 0;
    }
    int ShowInfoBox(const QString &, const QString &, const QString &) override { return 0; }
    QString ShowIBox(const QString &, int, const QString &, const QString &, int, int) override
    {
        const QStringList words{{}, u"neu"_s, u"Ä"_s, u"zwei Wörter"_s, u"Größe\""_s, QString(2000, u'w')};
        return words.at(below(random_, static_cast<std::size_t>(words.size())));
    }
    QString ShowWordBox(const QString &prompt, int kind, const QString &text, const QString &title, int left,
                        int top) override
    {
        return ShowIBox(prompt, kind, text, title, left, top);
    }

private:
    Random &random_;
    Journal &journal_;
};

/// One session file for all dialogs, as soon as there is one.
class QuickDialogs : public FileDialogs
{
public:
    explicit QuickDialogs(const QString &folder)
        : path_(folder + u"spiel.wlx"_s)
    {}
    QStringList openFiles(const QString &, const QString &, const QString &, bool) override
    {
        return IsTextFile(path_) ? QStringList{path_} : QStringList();
    }
    QString saveFile(const QString &, const QString &, const QString &, const QString &,
                     const QString &) override
    {
        return path_;
    }

private:
    QString path_;
};

/// The program's ground with quick seams over real files.
struct QuickGround
{
    QuickGround(const QString &folder, Random &random, Journal &journal)
        : AppFolder(folder)
        , boxes(random, journal)
        , dialogs(folder)
        , rnd(random())
        , store(nativePath(folder) + u"settings.ini"_s)
        , options(store, folder, log)
    {}

    QString AppFolder;
    Log log;
    QuickBoxes boxes;
    QuickDialogs dialogs;
    Rnd rnd;
    RecordedSound sound;
    TestClock clock;
    LoopPump pump;
    SettingsFile store;
    Options options;
    Ground ground{AppFolder, log, boxes, dialogs, rnd, sound, clock, pump, store, options};
};

/// The tiles in their order, in a form that has nothing to do with the backup's.
QString boardOf(const Rooms &rooms)
{
    QStringList lines;
    for (const auto &tile : rooms.store.tiles())
        lines << u"%1 %2,%3 %4"_s.arg(tile->BGColor).arg(tile->xLeft()).arg(tile->yTop()).arg(tile->txt);
    return lines.join(u'\n');
}

class Player
{
public:
    Player(frmMain &form, Random &random)
        : form_(form)
        , rooms_(form.rooms())
        , random_(random)
    {
        // Of what other rooms do, only that which comes back without anybody at the screen.
        constexpr std::array others{401, 501, 601, 1901, 1903, 2801, 2802};
        for (const command::Command &row : command::table())
            if (row.does != command::Does::OtherRoom || std::ranges::find(others, row.id) != others.end())
                choices_.push_back(&row);
    }

    void step()
    {
        constexpr int mostTiles = 90; // on a fuller board placing takes long
        if (rooms_.store.count() > mostTiles)
            rooms_.commands.run(command::From::MainMenu, 1503, {});
        if (below(random_, 4) == 0)
            dragTile();
        else
            chooseCommand();
        QCoreApplication::processEvents();
    }

private:
    QPoint anyPoint() { return {below(random_, 640), below(random_, 560)}; }
    QPoint pointOnTile()
    {
        if (rooms_.store.isEmpty())
            return anyPoint();
        const auto count = static_cast<std::size_t>(rooms_.store.count());
        const cWortel &tile = *rooms_.store.tiles()[static_cast<std::size_t>(below(random_, count))];
        return {tile.xLeft() + 4, tile.yTop() + 12};
    }

    void chooseCommand()
    {
        const command::Command &row = *choices_[static_cast<std::size_t>(below(random_, choices_.size()))];
        if (row.from == command::From::Key)
            rooms_.commands.runKey(row.id);
        else
            rooms_.commands.run(row.from, row.id, rooms_.commands.pressAt(pointOnTile()));
    }

    void dragTile()
    {
        const QPoint from = pointOnTile();
        const QPoint to = anyPoint();
        mouse(QEvent::MouseButtonPress, from, Qt::LeftButton, Qt::LeftButton);
        mouse(QEvent::MouseMove, (from + to) / 2, Qt::NoButton, Qt::LeftButton);
        mouse(QEvent::MouseMove, to, Qt::NoButton, Qt::LeftButton);
        mouse(QEvent::MouseButtonRelease, to, Qt::LeftButton, Qt::NoButton);
    }

    void mouse(QEvent::Type type, const QPoint &point, Qt::MouseButton button, Qt::MouseButtons buttons)
    {
        QWidget *board = form_.controls().picCanvas;
        QMouseEvent event(type, point, board->mapToGlobal(point), button, buttons, Qt::NoModifier);
        QApplication::sendEvent(board, &event);
    }

    frmMain &form_;
    Rooms &rooms_;
    Random &random_;
    std::vector<const command::Command *> choices_;
};

} // namespace

int main(int argc, char *argv[])
{
    QApplication application(argc, argv);
    const QStringList arguments = QApplication::arguments();
    if (arguments.size() != 4)
        return 2;
    initResources();
    QApplication::setStyle(QStyleFactory::create(u"Fusion"_s));
    QFont font(u"Liberation Sans"_s);
    font.setPixelSize(11);
    QApplication::setFont(font);

    Journal journal(arguments.at(2));
    Random random(arguments.at(3).toUInt());
    QuickGround quick(storedPath(arguments.at(1)) + u'\\', random, journal);

    start_steps::removeLeftOvers(quick.ground, {});
    StartFacts facts;
    facts.ScreenResolutionCode = affix_rows::GetScreenResolution(800, 600);
    if (start_steps::askForRecovery(quick.ground, facts.RecoverOnStart) == start_steps::Next::End)
        return 3;
    frmMain form(quick.ground, facts);
    Rooms &rooms = form.rooms();
    // Connected before the window wires itself, so that the journal knows of a change before the backup does.
    const auto intend = [&] { journal.note('I', boardOf(rooms)); };
    QObject::connect(&rooms.commands, &BoardCommands::committed, &form, intend);
    QObject::connect(&rooms.commands, &BoardCommands::backupWanted, &form, intend);
    if (!form.Form_Load())
        return 4;
    const auto done = [&] { journal.note('D'); };
    QObject::connect(&rooms.commands, &BoardCommands::committed, &form, done);
    QObject::connect(&rooms.commands, &BoardCommands::backupWanted, &form, done);
    form.show();
    if (facts.RecoverOnStart)
        journal.note('R', boardOf(rooms));
    else
        journal.note('N');

    Player player(form, random);
    for (;;)
        player.step();
}
