// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/start.h"

#include "board/tiles/affix_rows.h"
#include "platform/desktop.h"
#include "platform/files.h"
#include "platform/instance_link.h"
#include "platform/product.h"
#include "platform/program_size.h"
#include "platform/settings_file.h"
#include "shell/about_window.h"
#include "shell/application_folder.h"
#include "shell/argument_handler.h"
#include "shell/command_line.h"
#include "shell/continuation.h"
#include "shell/frm_main.h"
#include "shell/hand_over.h"
#include "shell/program_scale.h"
#include "shell/real_ground.h"
#include "shell/splash.h"
#include "shell/start_steps.h"
#include "shell/storage.h"
#include "shell/termination.h"
#include "widgets/accessible_tools.h"
#include "widgets/resources.h"
#include "widgets/roomy_style.h"

#include <QApplication>
#include <QFileInfo>
#include <QFont>
#include <QIcon>
#include <QLibraryInfo>
#include <QScreen>
#include <QStandardPaths>
#include <QTimer>
#include <QTranslator>

using namespace Qt::StringLiterals;

namespace {

QString findAppFolder()
{
    const QString program = QCoreApplication::applicationDirPath();
    const QString installed = QFileInfo(program + u"/../share/wortel-meister/data"_s).absoluteFilePath();
    const QString user =
        QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation) + u"/Wortel-Meister"_s;
    return application_folder::find(program, installed, user);
}

/// What one round of the program leaves to the next: nothing, if it was the last.
using Kept = std::unique_ptr<Continuation>;

std::unique_ptr<frmSplash> showSplash(Ground &ground)
{
    auto splash = std::make_unique<frmSplash>(ground.clock);
    splash->showWithShadow();
    ground.pump.yield();
    ground.clock.wait(300);
    return splash;
}

/// The waits keep it readable.
void endSplash(std::unique_ptr<frmSplash> splash, Ground &ground)
{
    ground.clock.wait(300);
    ground.pump.yield();
    splash->leaveTop();
    ground.clock.wait(500);
    splash.reset();
    ground.pump.yield();
}

/// In a smaller window some of its tools would lie outside.
void keepToolsInSight(frmMain &form)
{
    constexpr int lowest = 300; // pixels
    if (const QScreen *screen = QGuiApplication::primaryScreen())
        form.setMinimumSize(QSize(frmMain::designSize.width(), lowest).boundedTo(screen->availableSize()));
}

/// The main window and the event loop until the window is closed, or is to be made anew: then `kept` has what
/// goes on. A window that takes the place of another comes without the splash.
int StartApplication(QApplication &application, RealGround &real, InstanceLink &link, const StartFacts &facts,
                     Kept &kept)
{
    Ground &ground = real.ground();
    std::unique_ptr<frmSplash> splash = kept == nullptr ? showSplash(ground) : nullptr;
    frmMain form(ground, facts);
    real.boxes().setMainWindow(&form);
    if (kept != nullptr)
        form.goOn(*kept);
    else if (!form.Form_Load())
        return 1;
    hand_over::receive(link, ground, form);
    if (splash != nullptr)
        endSplash(std::move(splash), ground);

    keepToolsInSight(form);
    if (kept == nullptr || kept->maximised) {
        showMainWindow(form, ground.options);
    } else {
        form.setGeometry(QRect(kept->geometry.topLeft() * 100 / facts.SizePercent,
                               kept->geometry.size() * 100 / facts.SizePercent));
        form.show();
    }
    QGuiApplication::restoreOverrideCursor();
    // Behind the first board, because a folder of a network may take its time.
    if (kept == nullptr)
        QTimer::singleShot(0, &form, [&ground] {
            start_steps::removeLeftOvers(
                ground, {QFileInfo(SettingsFile::defaultFile()).path(),
                         QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation)});
        });
    kept.reset();

    Termination termination;
    QObject::connect(&termination, &Termination::requested, &link, &InstanceLink::forgetAll);
    QObject::connect(&termination, &Termination::requested, &form, &QWidget::close);
    QObject::connect(&form, &frmMain::unloaded, &application, &QCoreApplication::quit);
    QObject::connect(&form, &frmMain::sizeChangeDue, &application, [&] {
        link.rest();
        kept = std::make_unique<Continuation>(continuationOf(form, facts.SizePercent));
        form.leave();
        termination.handOn();
        QCoreApplication::exit(); // a quit would close the window, and the link with it
    });
    return application.exec();
}

/// What the switches ask for. A later start hands its arguments over, unless they have ended it; with none it
/// ends in silence and does not bring the first window forward.
start_steps::Next goThroughArguments(Ground &ground, InstanceLink &link, const QStringList &commandLine)
{
    using enum start_steps::Next;
    ArgumentHandler arguments;
    arguments.ParseCommandLine(command_line::text(commandLine));
    const auto apply = [&] {
        return start_steps::ApplyArguments(ground, arguments, link.isFirst(), [] { fAbout().exec(); });
    };
    if (apply() == End)
        return End;
    if (link.isFirst())
        return GoOn;
    return hand_over::toFirst(ground, link, commandLine) == End ? End : apply();
}

void checkStorage(const Ground &ground, StartFacts &facts)
{
    const storage::State state =
        storage::stateOf({nativePath(ground.AppFolder), QFileInfo(SettingsFile::defaultFile()).path()});
    facts.CanStore = state == storage::State::Writable;
    facts.Complaint = storage::complaint(state);
}

/// The steps before the first window.
start_steps::Next begin(Ground &ground, InstanceLink &link, StartFacts &facts)
{
    using enum start_steps::Next;
    facts.CommandLine = command_line::read(QCoreApplication::arguments().mid(1));
    if (goThroughArguments(ground, link, facts.CommandLine) == End ||
        start_steps::askForRecovery(ground, facts.RecoverOnStart) == End)
        return End;
    if (ground.options.stored(Setting::HideTaskbar) == u"1")
        ShowTaskBar(false);
    return GoOn;
}

/// One life of the application object: the whole program, or from one change of its size to the next. Returns
/// the process's exit code.
int runRound(QApplication &application, const ProgramScale &scale, InstanceLink &link, Kept &kept)
{
    initResources();
    installAccessibleTools(); // they go with the application object
    dressApplication(application);
    RealGround real(findAppFolder());
    Ground &ground = real.ground();
    StartFacts facts;
    facts.SizePercent = scale.percent();
    facts.Screen = scale.screen();
    if (kept == nullptr && begin(ground, link, facts) == start_steps::Next::End)
        return 0;
    checkStorage(ground, facts);
    if (kept != nullptr) {
        facts.Complaint.clear(); // it has been told
        if (!kept->logFile.isEmpty())
            ground.log.enable(kept->logFile);
    }
    if (const QScreen *screen = QGuiApplication::primaryScreen())
        facts.ScreenResolutionCode =
            affix_rows::GetScreenResolution(screen->size().width(), screen->size().height());
    return StartApplication(application, real, link, facts, kept);
}

/// What the settings say, before there is an application object.
int storedSize()
{
    const SettingRow &row = settingRow(Setting::ProgramSize);
    return program_size::wishOf(
        SettingsFile().GetSetting(QLatin1String(row.section), QLatin1String(row.key), {}));
}

} // namespace

void showMainWindow(QWidget &form, const Options &options)
{
    if (options.stored(Setting::HideTaskbar) == u"1")
        form.showFullScreen();
    else
        form.showMaximized();
}

// Looks alike on every desktop; tiles are measured in this font, in pixels whatever the screen's dpi.
void dressApplication(QApplication &application)
{
    QCoreApplication::setApplicationName(product::name);
    QCoreApplication::setApplicationVersion(product::version());
    QGuiApplication::setDesktopFileName(u"wortel-meister"_s);
    QApplication::setStyle(new RoomyStyle);
    QFont font(u"Liberation Sans"_s);
    font.setPixelSize(11);
    QApplication::setFont(font);
    QApplication::setWindowIcon(QIcon(u":/icons/wortel-meister.svg"_s));
    // Qt's own words (file dialogs, standard buttons) in German, whatever the desktop's language is.
    auto *german = new QTranslator(&application);
    if (german->load(u"qtbase_de"_s, QLibraryInfo::path(QLibraryInfo::TranslationsPath)))
        QCoreApplication::installTranslator(german);
}

int startWortel(int argc, char *argv[])
{
    ProgramScale scale;
    std::unique_ptr<InstanceLink> link;
    Kept kept;
    int exitCode = 0;
    do {
        const std::unique_ptr<QApplication> application = scale.makeApplication(argc, argv, storedSize());
        if (link == nullptr)
            link = std::make_unique<InstanceLink>(); // the first start listens from here on
        else
            link->goOn();
        exitCode = runRound(*application, scale, *link, kept);
        if (kept == nullptr)
            hand_over::passOn(std::move(link));
    } while (kept != nullptr);
    return exitCode;
}
