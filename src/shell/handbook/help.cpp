// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/handbook/help.h"

#include "platform/files.h"
#include "shell/handbook/compiled_help.h"
#include "shell/handbook/help_window.h"

#include <QDesktopServices>
#include <QStandardPaths>
#include <QUrl>

Help::Help(const QString &appFolder, Gate &gate, QWidget *owner)
    : appFolder_(appFolder)
    , gate_(gate)
    , owner_(owner)
{}

HelpWindow *Help::window() const { return window_; }

void Help::open()
{
    if (openCompiled())
        return;
    if (window_.isNull())
        window_ = new HelpWindow(nativePath(appFolder_ + QStringLiteral("hilfe")), gate_, owner_);
    else if (!window_->isVisible())
        window_->startAfresh();
    window_->showNormal();
    window_->raise();
    window_->activateWindow();
}

bool Help::openCompiled() const
{
    const QString file = compiled_help::file(appFolder_);
    return !file.isEmpty() &&
           compiled_help::canBeShown(
               QStandardPaths::standardLocations(QStandardPaths::GenericDataLocation)) &&
           QDesktopServices::openUrl(QUrl::fromLocalFile(file));
}
