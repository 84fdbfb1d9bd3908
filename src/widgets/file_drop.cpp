// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "widgets/file_drop.h"

#include "platform/files.h"

#include <QDropEvent>
#include <QMimeData>
#include <QUrl>
#include <QWidget>

FileDrop::FileDrop(QWidget *field)
    : QObject(field)
{
    field->setAcceptDrops(true);
    field->installEventFilter(this);
}

bool FileDrop::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() != QEvent::DragEnter && event->type() != QEvent::DragMove &&
        event->type() != QEvent::Drop)
        return QObject::eventFilter(watched, event);
    auto *drop = static_cast<QDropEvent *>(event);
    if (!drop->mimeData()->hasUrls())
        return QObject::eventFilter(watched, event);
    drop->setDropAction(Qt::CopyAction); // a source that moves would delete its file
    drop->accept();
    const QUrl url = drop->mimeData()->urls().value(0);
    if (event->type() == QEvent::Drop && url.isLocalFile())
        QMetaObject::invokeMethod(
            this, [this, path = storedPath(url.toLocalFile())] { emit dropped(path); }, Qt::QueuedConnection);
    return true;
}
