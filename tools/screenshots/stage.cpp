// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "stage.h"

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

} // namespace

Stage::Stage(const QString &data, const QString &folder)
    : folder_(folder)
    , rnd_(seed)
    , options_(store_, application_folder::withTrailingBackslash(data), log_)
    , ground_{application_folder::withTrailingBackslash(data),
              log_,
              boxes_,
              fileDialogs_,
              rnd_,
              sound_,
              clock_,
              pump_,
              store_,
              options_}
{
    set(QStringLiteral("ShowWelcomeMsg"), QStringLiteral("0"));
}

Stage::~Stage() { close(); }

void Stage::open(const QSize &size)
{
    form_ = std::make_unique<frmMain>(ground_, StartFacts{});
    boxes_.setMainWindow(form_.get());
    if (!form_->Form_Load())
        qFatal("The program does not start with these data.");
    if (size.isEmpty()) {
        form_->showMaximized();
    } else {
        form_->show();
        form_->resize(size);
    }
    for (int waited = 0; !isSeen(*form_) && waited < untilSeen; waited += untilOpen)
        play(untilOpen);
    play(untilOpen);
}

void Stage::close()
{
    if (form_)
        form_->close();
    form_.reset();
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
