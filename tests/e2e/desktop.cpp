// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "e2e/desktop.h"

#include "widgets/main_controls.h"

#include <QCoreApplication>
#include <QDir>
#include <QDirIterator>
#include <QElapsedTimer>
#include <QFile>
#include <QThread>
#include <QVector>
#include <QWidget>

#include <csignal>
#include <cstdlib>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace {

/// The strip over a menu goes from teal to a lighter teal, which nothing else on the screen has.
int pixelsOfMenuTitle(const QImage &picture)
{
    int found = 0;
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x) {
            const QRgb pixel = picture.pixel(x, y);
            found += qRed(pixel) < 70 && std::abs(qGreen(pixel) - qBlue(pixel)) < 6 && qGreen(pixel) > 110 &&
                             qGreen(pixel) < 190
                         ? 1
                         : 0;
        }
    }
    return found;
}

} // namespace

Desktop::Desktop(QSize size)
{
    makePortableCopy();
    setSetting(u"ProgramSize"_s, u"100"_s); // places are told in pixels
    display_.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    display_.start(u"Xvfb"_s, {u"-displayfd"_s, u"1"_s, u"-screen"_s, u"0"_s,
                               u"%1x%2x24"_s.arg(size.width()).arg(size.height()), u"-nolisten"_s, u"tcp"_s});
    if (!display_.waitForStarted() || !display_.waitForReadyRead(10000))
        return;
    displayName_ = u':' + QString::fromLatin1(display_.readLine().trimmed());
    manager_.setProcessEnvironment(environment());
    manager_.start(u"openbox"_s, {});
    ready_ = manager_.waitForStarted();
    pause(300);
}

Desktop::~Desktop()
{
    for (QProcess *process : {&game_, &manager_, &display_}) {
        process->kill();
        process->waitForFinished(3000);
    }
}

QProcessEnvironment Desktop::environment() const
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(u"DISPLAY"_s, displayName_);
    environment.insert(u"QT_QPA_PLATFORM"_s, u"xcb"_s);
    environment.insert(u"HOME"_s, home());
    environment.insert(u"XDG_CONFIG_HOME"_s, home() + u"/.config"_s);
    environment.insert(u"XDG_DATA_HOME"_s, home() + u"/.local/share"_s);
    environment.insert(u"XDG_RUNTIME_DIR"_s, home() + u"/run"_s);
    environment.insert(u"LC_ALL"_s, u"C.UTF-8"_s);
    environment.remove(u"WAYLAND_DISPLAY"_s);
    environment.remove(u"PULSE_SERVER"_s);
    for (auto variable = variables_.begin(); variable != variables_.end(); ++variable)
        environment.insert(variable.key(), variable.value());
    return environment;
}

void Desktop::makePortableCopy()
{
    QDir().mkpath(home() + u"/run"_s);
    QFile::setPermissions(home() + u"/run"_s, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    QDir().mkpath(programFolder());
    const QString program = QCoreApplication::applicationDirPath() + u"/wortel"_s;
    const QString copy = programFolder() + u"/wortel"_s;
    // A link where the file system has it: a copy of a debug build is large.
    if (link(program.toLocal8Bit().constData(), copy.toLocal8Bit().constData()) != 0)
        QFile::copy(program, copy);
    const QString data = QStringLiteral(WORTEL_SOURCE_DIR "/data");
    QDirIterator files(data, QDir::Files, QDirIterator::Subdirectories);
    while (files.hasNext()) {
        const QString source = files.next();
        const QString target = programFolder() + source.mid(data.size());
        QDir().mkpath(QFileInfo(target).path());
        QFile::copy(source, target);
    }
}

void Desktop::setSetting(const QString &key, const QString &value)
{
    const QString folder = home() + u"/.config/Wortel-Meister"_s;
    QDir().mkpath(folder);
    QFile file(folder + u"/settings.ini"_s);
    if (!file.open(QIODevice::Append))
        return;
    if (file.size() == 0)
        file.write("[Settings]\n");
    file.write((key + u'=' + value + u'\n').toUtf8());
}

QString Desktop::storedSettings() const
{
    QFile file(home() + u"/.config/Wortel-Meister/settings.ini"_s);
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

QString Desktop::writeFile(const QString &name, const QByteArray &content)
{
    QFile file(programFolder() + u'/' + name);
    if (file.open(QIODevice::WriteOnly))
        file.write(content);
    return name;
}

void Desktop::start(const QStringList &arguments)
{
    game_.setProcessEnvironment(environment());
    game_.setWorkingDirectory(programFolder());
    game_.setProcessChannelMode(QProcess::ForwardedChannels);
    game_.start(programFolder() + u"/wortel"_s, arguments);
    game_.waitForStarted();
}

int Desktop::startAgain(const QStringList &arguments)
{
    QProcess second;
    second.setProcessEnvironment(environment());
    second.setWorkingDirectory(programFolder());
    second.setProcessChannelMode(QProcess::ForwardedChannels);
    second.start(programFolder() + u"/wortel"_s, arguments);
    return second.waitForFinished(15000) && second.exitStatus() == QProcess::NormalExit ? second.exitCode()
                                                                                        : -1;
}

bool Desktop::isRunning() const { return game_.state() == QProcess::Running; }

bool Desktop::waitForEnd(int milliseconds)
{
    if (isRunning() && !game_.waitForFinished(milliseconds))
        return false;
    return game_.exitStatus() == QProcess::NormalExit;
}

bool Desktop::close()
{
    const QString window = waitForWindow(u"^Wortel-Meister [0-9]"_s);
    run(u"xdotool"_s, {u"windowactivate"_s, u"--sync"_s, window});
    key(u"alt+F4"_s);
    return waitForEnd();
}

void Desktop::kill()
{
    game_.kill();
    game_.waitForFinished(5000);
}

void Desktop::signal(int number) { ::kill(static_cast<pid_t>(game_.processId()), number); }

QString Desktop::waitForWindow(const QString &titlePattern, int milliseconds)
{
    QElapsedTimer timer;
    timer.start();
    while (timer.elapsed() < milliseconds) {
        const QByteArray found =
            run(u"xdotool"_s, {u"search"_s, u"--onlyvisible"_s, u"--name"_s, titlePattern});
        if (!found.trimmed().isEmpty())
            return QString::fromLatin1(found.trimmed().split('\n').first());
        pause(50);
    }
    return {};
}

bool Desktop::waitForNoWindow(const QString &titlePattern, int milliseconds)
{
    QElapsedTimer timer;
    timer.start();
    while (timer.elapsed() < milliseconds) {
        if (run(u"xdotool"_s, {u"search"_s, u"--onlyvisible"_s, u"--name"_s, titlePattern})
                .trimmed()
                .isEmpty())
            return true;
        pause(50);
    }
    return false;
}

bool Desktop::answer(const QString &titlePattern, const QString &keys)
{
    if (waitForWindow(titlePattern).isEmpty())
        return false;
    pause(300);
    key(keys);
    return waitForNoWindow(titlePattern);
}

bool Desktop::answerWith(const QString &titlePattern, const QString &text)
{
    if (waitForWindow(titlePattern).isEmpty())
        return false;
    enter(text);
    return waitForNoWindow(titlePattern);
}

QRect Desktop::geometry(const QString &window)
{
    // Not xdotool's geometry: below a window manager it counts the frame twice.
    const QString text = QString::fromLatin1(run(u"xwininfo"_s, {u"-id"_s, window}));
    const auto number = [&text](const QString &key) {
        return text.section(key + u':', 1, 1).section(u'\n', 0, 0).trimmed().toInt();
    };
    return {number(u"Absolute upper-left X"_s), number(u"Absolute upper-left Y"_s), number(u"Width"_s),
            number(u"Height"_s)};
}

QRect Desktop::toolArea(const QString &name)
{
    const QRect window = geometry(waitForWindow(u"^Wortel-Meister [0-9]"_s));
    QWidget form;
    form.resize(window.size());
    const MainControls controls = makeMainControls(&form);
    layOutMainControls(controls, form.width(), form.height());
    const auto *child = form.findChild<QWidget *>(name);
    return child == nullptr ? QRect()
                            : QRect(window.topLeft() + child->mapTo(&form, QPoint(0, 0)), child->size());
}

QRect Desktop::boardArea()
{
    const QRect canvas = toolArea(u"picCanvas"_s);
    return {canvas.topLeft(), QPoint(canvas.right(), toolArea(u"Picture1"_s).top() - 1)};
}

QPoint Desktop::childOf(const QString &titlePattern, QWidget &same, const QString &name)
{
    const QRect window = geometry(waitForWindow(titlePattern));
    same.resize(window.size());
    QCoreApplication::processEvents();
    const auto *child = same.findChild<QWidget *>(name);
    return child == nullptr ? QPoint() : window.topLeft() + child->mapTo(&same, child->rect().center());
}

QImage Desktop::screenshot()
{
    // Not packed: a test looks often.
    return QImage::fromData(run(u"import"_s, {u"-window"_s, u"root"_s, u"ppm:-"_s}), "PPM")
        .convertToFormat(QImage::Format_RGB32);
}

bool Desktop::waitForPicture(const std::function<bool(const QImage &)> &isAsWished, int milliseconds)
{
    QElapsedTimer timer;
    timer.start();
    do {
        if (isAsWished(screenshot()))
            return true;
        pause(100);
    } while (timer.elapsed() < milliseconds);
    return false;
}

bool Desktop::boardBecomes(const QImage &board, bool same)
{
    const QRect area = boardArea();
    return waitForPicture([&](const QImage &picture) { return (picture.copy(area) == board) == same; });
}

void Desktop::keepPicture(const QString &name)
{
    const QString folder = QCoreApplication::applicationDirPath() + u"/../pictures"_s;
    QDir().mkpath(folder);
    screenshot().save(folder + u'/' + name + u".png"_s);
}

void Desktop::move(QPoint position)
{
    // Without --sync, which waits in vain where the pointer stands there already.
    run(u"xdotool"_s, {u"mousemove"_s, QString::number(position.x()), QString::number(position.y())});
}

void Desktop::click(QPoint position, int button)
{
    move(position);
    run(u"xdotool"_s, {u"click"_s, QString::number(button)});
    pause(150);
}

void Desktop::drag(QPoint from, QPoint to)
{
    move(from);
    run(u"xdotool"_s, {u"mousedown"_s, u"1"_s});
    pause(80);
    constexpr int steps = 8;
    for (int step = 1; step <= steps; ++step)
        move(from + (to - from) * step / steps);
    pause(80);
    run(u"xdotool"_s, {u"mouseup"_s, u"1"_s});
    pause(150);
}

void Desktop::chooseFromMenu(QPoint position, const QString &keys)
{
    click(position, 3);
    waitForPicture([](const QImage &picture) { return pixelsOfMenuTitle(picture) > 1000; });
    key(keys);
}

void Desktop::key(const QString &keys)
{
    for (const QString &one : keys.split(u' ')) {
        run(u"xdotool"_s, {u"key"_s, u"--clearmodifiers"_s, one});
        pause(80);
    }
}

void Desktop::hold(const QString &key, const std::function<void()> &meanwhile)
{
    run(u"xdotool"_s, {u"keydown"_s, key});
    meanwhile();
    run(u"xdotool"_s, {u"keyup"_s, key});
}

void Desktop::type(const QString &text)
{
    run(u"xdotool"_s, {u"type"_s, u"--clearmodifiers"_s, u"--delay"_s, u"30"_s, text});
    pause(80);
}

void Desktop::enter(const QString &text)
{
    type(text);
    key(u"Return"_s);
}

void Desktop::pause(int milliseconds) { QThread::msleep(static_cast<unsigned long>(milliseconds)); }

QByteArray Desktop::run(const QString &program, const QStringList &arguments)
{
    QProcess process;
    process.setProcessEnvironment(environment());
    process.start(program, arguments);
    process.waitForFinished(10000);
    return process.readAllStandardOutput();
}

QVector<QRect> areasOfColour(const QImage &picture, QRgb colour, QSize least)
{
    QVector<QRect> areas;
    QVector<bool> seen(picture.width() * picture.height(), false);
    QVector<QPoint> open;
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x) {
            if (seen[y * picture.width() + x] || picture.pixel(x, y) != colour)
                continue;
            QRect area(x, y, 1, 1);
            open = {QPoint(x, y)};
            seen[y * picture.width() + x] = true;
            while (!open.isEmpty()) {
                const QPoint at = open.takeLast();
                area = area.united(QRect(at, QSize(1, 1)));
                for (const QPoint &step : {QPoint(1, 0), QPoint(-1, 0), QPoint(0, 1), QPoint(0, -1)}) {
                    const QPoint next = at + step;
                    if (!picture.rect().contains(next) || seen[next.y() * picture.width() + next.x()] ||
                        picture.pixel(next) != colour)
                        continue;
                    seen[next.y() * picture.width() + next.x()] = true;
                    open << next;
                }
            }
            if (area.width() >= least.width() && area.height() >= least.height())
                areas << area;
        }
    }
    return areas;
}

int pixelsOfColour(const QImage &picture, const QRect &area, QRgb colour)
{
    const QRect inside = area.intersected(picture.rect());
    int found = 0;
    for (int y = inside.top(); y <= inside.bottom(); ++y)
        for (int x = inside.left(); x <= inside.right(); ++x)
            found += picture.pixel(x, y) == colour ? 1 : 0;
    return found;
}
