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
#include "board/tiles/affix_rows.h"
#include "platform/boxes.h"
#include "platform/file_dialogs.h"
#include "platform/files.h"
#include "platform/gate.h"
#include "platform/gated_boxes.h"
#include "platform/ground.h"
#include "platform/log.h"
#include "platform/options.h"
#include "platform/rnd.h"
#include "platform/settings_file.h"
#include "platform/sound.h"
#include "platform/system_clock.h"
#include "platform/system_printer.h"
#include "shell/frm_main.h"
#include "shell/rooms.h"
#include "shell/start_steps.h"
#include "widgets/picture_box.h"
#include "widgets/resources.h"
#include "widgets/roomy_style.h"

#include <QApplication>
#include <QFile>
#include <QFont>
#include <QMouseEvent>

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
    int ShowMBox(const QString &, bool, int, const QString &, BoxStyle) override
    {
        return below(random_, 8) == 0 ? 1 : 0;
    }
    int ShowInfoBox(const QString &, BoxSign, const QString &) override { return 0; }
    QString ShowIBox(const QString &, BoxStyle, const QString &, const QString &, int, int) override
    {
        const QStringList words{{}, u"neu"_s, u"Ä"_s, u"zwei Wörter"_s, u"Größe\""_s, QString(2000, u'w')};
        return words.at(below(random_, static_cast<std::size_t>(words.size())));
    }
    QString ShowWordBox(const QString &prompt, BoxStyle kind, const QString &text, const QString &title,
                        int left, int top) override
    {
        return ShowIBox(prompt, kind, text, title, left, top);
    }
    QString ShowEnterName(const QString &) override { return u"Kind: 3"_s; }
    void ShowHighScores(const HighScoreSheet &) override {}
    void ShowBestTimes(const HighScoreSheet &) override {}

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
                     const SaveHints &) override
    {
        return path_;
    }
    std::optional<Colour> chooseColour(const QString &, Colour) override { return {}; }

private:
    QString path_;
};

/// A clock that never waits.
class QuickClock : public Clock
{
public:
    QDateTime now() const override { return QDateTime::currentDateTime(); }
    qint64 elapsed() const override { return now().toMSecsSinceEpoch(); }
    void wait(int) override {}
};

class NoSound : public Sound
{
public:
    void PlayResourceSound(int) override {}
    bool playFile(const QString &) override { return true; }
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
    Gate gate;
    QuickBoxes boxes;
    QuickDialogs dialogs;
    SystemPrinter printer;
    Rnd rnd;
    NoSound sound;
    QuickClock clock;
    LoopPump pump{gate};
    SettingsFile store;
    Options options;
    GatedBoxes gatedBoxes{boxes, gate};
    GatedFileDialogs gatedDialogs{dialogs, gate};
    Ground ground{AppFolder, log,   gatedBoxes, gatedDialogs, printer, rnd,
                  sound,     clock, pump,       store,        options, gate};
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
    Player(frmMain &form, Gate &gate, Random &random)
        : form_(form)
        , gate_(gate)
        , rooms_(form.rooms())
        , random_(random)
    {
        // Whatever comes back without anybody at the screen. The lists stay, and nobody stops a search for
        // words.
        constexpr std::array leftOut{201,  402,  504,  901,  1001, 1003, 1601,
                                     1607, 1701, 1904, 1905, 1906, 1907};
        for (const command::Command &row : command::table())
            if (std::ranges::find(leftOut, row.id) == leftOut.end())
                choices_.push_back(&row);
    }

    void step()
    {
        constexpr int mostTiles = 90; // on a fuller board placing takes long
        if (rooms_.store.count() > mostTiles)
            choose(command::From::MainMenu, 1503, {});
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
        choose(row.from, row.id,
               row.from == command::From::Key ? Press{} : rooms_.router.pressAt(pointOnTile()));
    }

    void choose(command::From from, int id, const Press &press)
    {
        if (const Gate::Passage passage = gate_.enter(Gate::Way::Play))
            rooms_.router.run(from, id, press);
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
    Gate &gate_;
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
    QApplication::setStyle(new RoomyStyle);
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
    bool playing = false; // what the start itself keeps is noted once it is over
    const auto intend = [&] {
        if (playing)
            journal.note('I', boardOf(rooms));
    };
    constexpr std::array news{&BoardNews::committed, &BoardNews::moved, &BoardNews::opened,
                              &BoardNews::stepped};
    for (const auto told : news)
        QObject::connect(&rooms.news, told, &form, intend);
    if (!form.Form_Load())
        return 4;
    playing = true;
    const auto done = [&] { journal.note('D'); };
    for (const auto told : news)
        QObject::connect(&rooms.news, told, &form, done);
    form.show();
    if (facts.RecoverOnStart)
        journal.note('R', boardOf(rooms));
    else
        journal.note('N');

    Player player(form, quick.gate, random);
    for (;;)
        player.step();
}
