// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "board/canvas/background_picture.h"

#include "board/canvas/canvas.h"
#include "platform/boxes.h"
#include "platform/clock.h"
#include "platform/files.h"
#include "platform/ground.h"
#include "platform/options.h"
#include "platform/procedure.h"
#include "platform/text.h"
#include "widgets/main_controls.h"
#include "widgets/picture_box.h"

#include <QFile>
#include <QFileInfo>
#include <QGuiApplication>
#include <QImage>
#include <QImageReader>
#include <QScreen>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

/// A picture of more pixels is read smaller, just large enough to cover the screen.
constexpr qint64 mostPixels = 24'000'000;
constexpr int imageUnreadable = 481; // the classic number for a picture that is none

RuntimeError pictureError(const QString &description) { return {imageUnreadable, description}; }

QSize sizeToCoverScreen(const QSize &picture)
{
    const QScreen *screen = QGuiApplication::primaryScreen();
    const QSize wanted = screen ? screen->size() : QSize(1920, 1080);
    return picture.scaled(wanted, Qt::KeepAspectRatioByExpanding);
}

/// Reads a picture of any size without filling the memory. The format is told by the contents, so that a
/// misnamed picture is shown all the same. Throws RuntimeError with words for the user.
QImage readPicture(const QString &path)
{
    const QFileInfo info(path);
    if (!info.isFile())
        throw pictureError(u"Die Datei gibt es nicht."_s);
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        throw pictureError(u"Die Datei darf nicht gelesen werden."_s);
    QImageReader reader(&file);
    reader.setDecideFormatFromContent(true);
    reader.setAutoTransform(true);
    if (!reader.canRead())
        throw pictureError(u"Die Datei ist kein Bild oder sie ist beschädigt."_s);
    const QSize size = reader.size();
    const bool huge = size.isValid() && qint64(size.width()) * size.height() > mostPixels;
    if (huge) {
        if (!reader.supportsOption(QImageIOHandler::ScaledSize))
            throw pictureError(
                u"Das Bild ist zu groß: %1 × %2 Bildpunkte."_s.arg(size.width()).arg(size.height()));
        reader.setScaledSize(sizeToCoverScreen(size));
    }
    QImage picture;
    if (!reader.read(&picture))
        throw pictureError(u"Das Bild ist beschädigt oder zu groß."_s);
    return picture;
}

} // namespace

BackgroundPicture::BackgroundPicture(Ground &ground, const MainControls &controls, Canvas &canvas)
    : ground_(ground)
    , controls_(controls)
    , canvas_(canvas)
{}

QString BackgroundPicture::extension(const QString &path)
{
    const QString name = path.mid(std::max(path.lastIndexOf(u'/'), path.lastIndexOf(u'\\')) + 1);
    return UCase(name.mid(name.lastIndexOf(u'.') + 1));
}

bool BackgroundPicture::isPicture(const QString &path)
{
    const QString format = extension(path);
    return format == "JPG"_L1 || format == "GIF"_L1 || format == "BMP"_L1;
}

void BackgroundPicture::show(const QString &path)
{
    const QImage picture = readPicture(path);
    controls_.picCanvas->setPicture(picture);
    canvas_.repaint();
}

void BackgroundPicture::loadFromSetting()
{
    Procedure step{ground_.log, "LoadBackground", "frmMain"};
    step([&] {
        const QString stored = ground_.options.text(Setting::BackgroundPicture);
        if (!IsTextFile(stored))
            return;
        show(::nativePath(stored));
        ground_.pump.yield();
    });
}

void BackgroundPicture::remove()
{
    controls_.picCanvas->setPicture({});
    canvas_.repaint();
}

void BackgroundPicture::drop(const QString &nativePath)
{
    Procedure step{ground_.log, "Form_OLEDragDrop", "frmMain"};
    if (!isPicture(nativePath)) {
        step([&] {
            ground_.boxes.plainBox(
                Boxes::Icon::Warning, u"Wortel-Meister - Fehler: Format"_s,
                u"Bitte ein Bild im Format Gif, JPG oder BMP auswählen!\n\nDieses Bild hat das "
                "Format: "_s +
                    extension(nativePath));
        });
        step([&] { ground_.pump.yield(); });
        return;
    }
    QString trouble;
    step([&] {
        try {
            show(nativePath);
        } catch (const RuntimeError &error) {
            trouble = error.description();
            throw;
        }
    });
    if (!trouble.isEmpty())
        step([&] {
            ground_.boxes.plainBox(Boxes::Icon::Warning, u"Wortel-Meister - Fehler: Bild"_s,
                                   u"Das Bild kann nicht gezeigt werden.\n\n"_s + trouble);
        });
    step([&] { ground_.pump.yield(); });
}
