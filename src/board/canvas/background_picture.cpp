// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "board/canvas/background_picture.h"

#include "board/canvas/canvas.h"
#include "platform/boxes.h"
#include "platform/clock.h"
#include "platform/files.h"
#include "platform/gate.h"
#include "platform/ground.h"
#include "platform/options.h"
#include "platform/picture_file.h"
#include "platform/procedure.h"
#include "platform/text.h"
#include "widgets/main_controls.h"
#include "widgets/picture_box.h"

#include <algorithm>

using namespace Qt::StringLiterals;

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

/// Why the picture is not shown, for the user; the error itself is logged.
QString BackgroundPicture::troubleWith(const QString &path)
{
    Procedure step{ground_.log, "LoadBackground", "frmMain"};
    QString trouble;
    step([&] {
        try {
            show(path);
        } catch (const RuntimeError &error) {
            trouble = error.description();
            throw;
        }
    });
    return trouble;
}

void BackgroundPicture::tell(const QString &trouble)
{
    ground_.boxes.plainBox(Boxes::Icon::Warning, u"Wortel-Meister - Fehler: Bild"_s,
                           u"Das Bild kann nicht gezeigt werden.\n\n"_s + trouble);
}

QString BackgroundPicture::loadFromSetting()
{
    const QString stored = ground_.options.text(Setting::BackgroundPicture);
    if (!IsTextFile(stored))
        return {};
    const QString trouble = troubleWith(::nativePath(stored));
    ground_.pump.yield();
    return trouble;
}

void BackgroundPicture::takeSetting()
{
    remove();
    const QString trouble = loadFromSetting();
    if (!trouble.isEmpty()) // once the options are gone
        ground_.gate.whenFree([this, trouble] { tell(trouble); });
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
    if (const QString trouble = troubleWith(nativePath); !trouble.isEmpty())
        step([&] { tell(trouble); });
    step([&] { ground_.pump.yield(); });
}
