// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>

class QWidget;

/// Lets files be dropped on a field. It tells their paths from the event loop: whoever drops waits until the
/// drop has come back.
class FileDrop : public QObject
{
    Q_OBJECT

public:
    explicit FileDrop(QWidget *field);

signals:
    /// The first of the dropped files, in stored form.
    void dropped(const QString &path);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
};
