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
#include "shell/continuation.h"
#include "shell/frm_main.h"
#include "shell/program_scale.h"
#include "shell/real_ground.h"
#include "shell/splash.h"
#include "shell/start_steps.h"
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

/// The main window and the event loop until the window is closed, or is to be made anew: then `kept` has what
/// goes on. A window that takes the place of another comes without the splash.
int StartApplication(QApplication &application, RealGround &real, InstanceLink &link, const StartFacts &facts,
                     Kept &kept)
{
    Ground &ground = real.ground();
    std::unique_ptr<frmSplash> splash = kept == nullptr ? showSplash(ground) : nullptr;
    frmMain form(ground, facts);
    real.boxes().setMainWindow(&form);
    QObject::connect(&link, &InstanceLink::textReceived, &form, &frmMain::HiddenText_Change);
    if (kept != nullptr)
        form.goOn(*kept);
    else if (!form.Form_Load())
        return 1;
    link.listen();
    if (splash != nullptr)
        endSplash(std::move(splash), ground);

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
    QObject::connect(&termination, &Termination::requested, &form, &QWidget::close);
    QObject::connect(&form, &frmMain::unloaded, &application, &QCoreApplication::quit);
    QObject::connect(&form, &frmMain::sizeChangeDue, &application, [&] {
        link.rest();
        kept = std::make_unique<Continuation>(continuationOf(form, facts.SizePercent));
        form.leave();
        QCoreApplication::quit();
    });
    return application.exec();
}

/// A switch has one "/" and stands before its value's colon; any other text that begins so is a path, also of
/// a session that is gone.
bool namesAFile(const QString &argument)
{
    if (QFileInfo(argument).isFile())
        return true;
    const QString name = argument.section(u':', 0, 0).mid(1);
    return argument.startsWith(u'/') &&
           (name.contains(u'/') || name.endsWith(u".wlx"_s, Qt::CaseInsensitive));
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

QString commandLineText(const QStringList &arguments)
{
    QStringList pieces;
    for (const QString &argument : arguments)
        pieces << (namesAFile(argument) ? storedPath(QFileInfo(argument).absoluteFilePath()) : argument);
    return pieces.join(u' ');
}

namespace {

/// The steps before the first window. False if the program ends with them.
bool begin(Ground &ground, InstanceLink &link, StartFacts &facts)
{
    facts.CommandLine = commandLineText(QCoreApplication::arguments().mid(1));
    ArgumentHandler arguments;
    arguments.ParseCommandLine(facts.CommandLine);
    const auto showAbout = [] { fAbout().exec(); };
    if (start_steps::ApplyArguments(ground, arguments, link.isFirst(), showAbout) == start_steps::Next::End)
        return false;

    if (!link.isFirst()) {
        // A second start with nothing to hand over ends in silence and does not bring the first window
        // forward.
        if (!facts.CommandLine.trimmed().isEmpty())
            link.send(facts.CommandLine);
        return false;
    }
    if (start_steps::askForRecovery(ground, facts.RecoverOnStart) == start_steps::Next::End)
        return false;
    if (ground.options.stored(Setting::HideTaskbar) == u"1")
        ShowTaskBar(false);
    return true;
}

/// One life of the application object: the whole program, or from one change of its size to the next. `link`
/// is made by the first and kept for all.
int runRound(QApplication &application, const ProgramScale &scale, std::unique_ptr<InstanceLink> &link,
             Kept &kept)
{
    initResources();
    dressApplication(application);
    RealGround real(findAppFolder());
    Ground &ground = real.ground();

    StartFacts facts;
    facts.SizePercent = scale.percent();
    facts.Screen = scale.screen();
    if (link == nullptr)
        link = std::make_unique<InstanceLink>();
    if (kept == nullptr && !begin(ground, *link, facts))
        return 0;
    if (kept != nullptr && !kept->logFile.isEmpty())
        ground.log.enable(kept->logFile);
    if (const QScreen *screen = QGuiApplication::primaryScreen())
        facts.ScreenResolutionCode =
            affix_rows::GetScreenResolution(screen->size().width(), screen->size().height());
    return StartApplication(application, real, *link, facts, kept);
}

/// What the settings say, before there is an application object.
int storedSize()
{
    return program_size::wishOf(SettingsFile().GetSetting(u"Settings"_s, u"ProgramSize"_s, {}));
}

} // namespace

int startWortel(int argc, char *argv[])
{
    ProgramScale scale;
    std::unique_ptr<InstanceLink> link;
    Kept kept;
    int code = 0;
    do {
        const std::unique_ptr<QApplication> application = scale.makeApplication(argc, argv, storedSize());
        code = runRound(*application, scale, link, kept);
    } while (kept != nullptr);
    return code;
}
