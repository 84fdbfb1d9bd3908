// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/start.h"

#include "board/tiles/affix_rows.h"
#include "platform/desktop.h"
#include "platform/files.h"
#include "platform/instance_link.h"
#include "platform/product.h"
#include "platform/settings_file.h"
#include "shell/about_window.h"
#include "shell/application_folder.h"
#include "shell/argument_handler.h"
#include "shell/command_line.h"
#include "shell/frm_main.h"
#include "shell/hand_over.h"
#include "shell/real_ground.h"
#include "shell/splash.h"
#include "shell/start_steps.h"
#include "shell/storage.h"
#include "shell/termination.h"
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

/// Splash, main window, and the event loop until the window is closed. The waits keep the splash readable.
int StartApplication(QApplication &application, RealGround &real, InstanceLink &link, const StartFacts &facts)
{
    Ground &ground = real.ground();
    auto splash = std::make_unique<frmSplash>(ground.clock);
    splash->showWithShadow();
    ground.pump.yield();

    ground.clock.wait(300);
    frmMain form(ground, facts);
    real.boxes().setMainWindow(&form);
    if (!form.Form_Load())
        return 1;
    hand_over::receive(link, ground, form);
    ground.clock.wait(300);
    ground.pump.yield();

    splash->leaveTop();
    ground.clock.wait(500);
    splash.reset();
    ground.pump.yield();

    showMainWindow(form, ground.options);
    QGuiApplication::restoreOverrideCursor();
    // Behind the first board, because a folder of a network may take its time.
    QTimer::singleShot(0, &form, [&ground] {
        start_steps::removeLeftOvers(ground,
                                     {QFileInfo(SettingsFile::defaultFile()).path(),
                                      QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation)});
    });

    Termination termination;
    QObject::connect(&termination, &Termination::requested, &link, &InstanceLink::forgetAll);
    QObject::connect(&termination, &Termination::requested, &form, &QWidget::close);
    QObject::connect(&form, &frmMain::unloaded, &application, &QCoreApplication::quit);
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

/// From the switches to the end of the main window. Returns the process's exit code.
int run(QApplication &application, InstanceLink &link)
{
    RealGround real(findAppFolder());
    Ground &ground = real.ground();
    StartFacts facts;
    facts.CommandLine = command_line::read(QCoreApplication::arguments().mid(1));
    if (goThroughArguments(ground, link, facts.CommandLine) == start_steps::Next::End)
        return 0;
    if (start_steps::askForRecovery(ground, facts.RecoverOnStart) == start_steps::Next::End)
        return 0;
    checkStorage(ground, facts);
    if (ground.options.stored(Setting::HideTaskbar) == u"1")
        ShowTaskBar(false);
    if (const QScreen *screen = QGuiApplication::primaryScreen())
        facts.ScreenResolutionCode =
            affix_rows::GetScreenResolution(screen->size().width(), screen->size().height());
    return StartApplication(application, real, link, facts);
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
    QApplication application(argc, argv);
    initResources();
    dressApplication(application);
    auto link = std::make_unique<InstanceLink>(); // the first start listens from here on
    const int exitCode = run(application, *link);
    hand_over::passOn(std::move(link));
    return exitCode;
}
