// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QPointer>
#include <QString>

class Gate;
class HelpWindow;
class QWidget;

/// What F1 opens: the help file "wortel.chm" where it lies beside the program and the system can show it,
/// otherwise the handbook in a window of the program. That is made once and stays, hidden while it is closed,
/// so that nothing that happens meanwhile ever finds a window gone. Neither waits for anything.
class Help
{
public:
    /// `appFolder` in the stored form; `owner` is the window that the handbook stays above.
    Help(const QString &appFolder, Gate &gate, QWidget *owner);

    void open();
    /// The handbook's window once it was opened.
    HelpWindow *window() const;

private:
    bool openCompiled() const;

    QString appFolder_;
    Gate &gate_;
    QWidget *owner_;
    QPointer<HelpWindow> window_;
};
