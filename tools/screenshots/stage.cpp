// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "stage.h"

#include "dialogs/real_boxes.h"
#include "platform/gate.h"
#include "platform/gated_boxes.h"
#include "platform/ground.h"
#include "platform/log.h"
#include "platform/notes.h"
#include "platform/options.h"
#include "platform/sound.h"
#include "platform/system_clock.h"
#include "platform/system_printer.h"
#include "platform/window_file_dialogs.h"
#include "shell/application_folder.h"
#include "shell/frm_main.h"

#include <QEventLoop>
#include <QGuiApplication>
#include <QPixmap>
#include <QScreen>
#include <QTimer>

namespace {
constexpr std::uint64_t seed = 14;
constexpr int untilOpen = 1200;  ///< milliseconds that menus and windows need to be open and painted
constexpr int untilSeen = 20000; ///< milliseconds that a slow machine may take to show the window

/// True if the board's colour is on the screen where the window has an empty spot, right below the prefixes.
bool isSeen(const QWidget &form)
{
    const QPoint spot = form.mapToGlobal(QPoint(form.width() - 8, 60));
    const QImage pixel = QGuiApplication::primaryScreen()->grabWindow(0, spot.x(), spot.y(), 1, 1).toImage();
    return form.isActiveWindow() && pixel.pixelColor(0, 0) == form.palette().color(QPalette::Window);
}

/// Nothing is heard.
class Silence : public Sound
{
public:
    void PlayResourceSound(int) override {}
    bool playFile(const QString &) override { return true; }
};

} // namespace

/// One run of the program: what begins and ends with its window.
struct Stage::Run
{
    Run(const QString &appFolder, Rnd &rnd, SettingsStore &store)
        : options(store, appFolder, log)
        , ground{appFolder, log,  gatedBoxes, gatedDialogs, printer, rnd,  sound,
                 clock,     pump, store,      options,      gate,    notes}
        , form(ground, StartFacts{})
    {
        boxes.setMainWindow(&form);
    }

    Log log;
    Gate gate;
    RealBoxes boxes;
    GatedBoxes gatedBoxes{boxes, gate};
    WindowFileDialogs fileDialogs;
    GatedFileDialogs gatedDialogs{fileDialogs, gate};
    SystemPrinter printer;
    Silence sound;
    SystemClock clock{gate};
    LoopPump pump{gate};
    Options options;
    Notes notes;
    Ground ground;
    frmMain form;
};

Stage::Stage(const QString &data, const QString &folder)
    : data_(application_folder::withTrailingBackslash(data))
    , folder_(folder)
    , rnd_(seed)
{
    set(QStringLiteral("ShowWelcomeMsg"), QStringLiteral("0"));
}

Stage::~Stage() { close(); }

frmMain &Stage::form() { return run_->form; }

void Stage::open(const QSize &size)
{
    run_ = std::make_unique<Run>(data_, rnd_, store_);
    frmMain &window = form();
    if (!window.Form_Load())
        qFatal("The program does not start with these data.");
    if (size.isEmpty()) {
        window.showMaximized();
    } else {
        window.show();
        window.resize(size);
    }
    for (int waited = 0; !isSeen(window) && waited < untilSeen; waited += untilOpen)
        play(untilOpen);
    play(untilOpen);
}

void Stage::close()
{
    if (!run_)
        return;
    form().close();
    while (form().isVisible())
        play(100);
    run_.reset();
}

void Stage::play(int milliseconds)
{
    QEventLoop loop;
    QTimer::singleShot(milliseconds, &loop, &QEventLoop::quit);
    loop.exec();
}

void Stage::during(const std::function<void()> &opening, const std::function<void()> &act)
{
    QTimer::singleShot(untilOpen, act);
    opening();
}

void Stage::keep(const QString &name, const QRect &area, int width) const
{
    QPixmap picture =
        QGuiApplication::primaryScreen()->grabWindow(0, area.x(), area.y(), area.width(), area.height());
    picture.setDevicePixelRatio(1);
    const int wanted = width > 0 ? width : area.width();
    if (picture.width() != wanted)
        picture = picture.scaledToWidth(wanted, Qt::SmoothTransformation);
    if (!picture.save(folder_ + u'/' + name + QStringLiteral(".png")))
        qFatal("A picture could not be stored.");
}

void Stage::keep(const QString &name, const QWidget &widget, int width) const
{
    keep(name, placeOf(widget), width);
}

QRect placeOf(const QWidget &widget) { return {widget.mapToGlobal(QPoint(0, 0)), widget.size()}; }
