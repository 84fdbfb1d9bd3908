// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QPointer>
#include <QString>

class HelpWindow;
class QWidget;

/// What F1 opens: the help file "wortel.chm" where it lies beside the program and the system can show it,
/// otherwise the handbook in a window of the program, of which there is never more than one. Neither waits
/// for anything.
class Help
{
public:
    /// `appFolder` in the stored form; `owner` is the window that the handbook stays above.
    Help(const QString &appFolder, QWidget *owner);

    void open();
    /// The handbook's window while it is open.
    HelpWindow *window() const;

private:
    bool openCompiled() const;

    QString appFolder_;
    QWidget *owner_;
    QPointer<HelpWindow> window_;
};
