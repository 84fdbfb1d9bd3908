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
#include "shell/frm_main.h"
#include "shell/real_ground.h"
#include "shell/splash.h"
#include "shell/start_steps.h"
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
    QObject::connect(&link, &InstanceLink::textReceived, &form, &frmMain::HiddenText_Change);
    link.listen();
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
    QObject::connect(&termination, &Termination::requested, &form, &QWidget::close);
    QObject::connect(&form, &frmMain::unloaded, &application, &QCoreApplication::quit);
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

int startWortel(int argc, char *argv[])
{
    QApplication application(argc, argv);
    initResources();
    installAccessibleTools();
    dressApplication(application);

    RealGround real(findAppFolder());
    Ground &ground = real.ground();
    InstanceLink link;

    StartFacts facts;
    facts.CommandLine = commandLineText(application.arguments().mid(1));
    ArgumentHandler arguments;
    arguments.ParseCommandLine(facts.CommandLine);
    const auto showAbout = [] { fAbout().exec(); };
    if (start_steps::ApplyArguments(ground, arguments, link.isFirst(), showAbout) == start_steps::Next::End)
        return 0;

    if (!link.isFirst()) {
        // A second start with nothing to hand over ends in silence and does not bring the first window
        // forward.
        if (!facts.CommandLine.trimmed().isEmpty())
            link.send(facts.CommandLine);
        return 0;
    }
    if (start_steps::askForRecovery(ground, facts.RecoverOnStart) == start_steps::Next::End)
        return 0;
    if (ground.options.stored(Setting::HideTaskbar) == u"1")
        ShowTaskBar(false);
    if (const QScreen *screen = QGuiApplication::primaryScreen())
        facts.ScreenResolutionCode =
            affix_rows::GetScreenResolution(screen->size().width(), screen->size().height());
    return StartApplication(application, real, link, facts);
}
