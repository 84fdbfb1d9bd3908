// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/desktop.h"

#include <QFrame>
#include <QGuiApplication>
#include <QScreen>
#include <QWidget>

#ifdef Q_OS_WIN
#include <windows.h>
#endif

void CenterForm(QWidget *form)
{
    const QScreen *screen = form->screen() ? form->screen() : QGuiApplication::primaryScreen();
    if (!screen)
        return;
    const QRect area = screen->geometry();
    form->move(area.x() + (area.width() - form->frameGeometry().width()) / 2,
               area.y() + (area.height() - form->frameGeometry().height()) / 2);
}

void MakeTopMost(QWidget *form, bool top)
{
    if (form->windowFlags().testFlag(Qt::WindowStaysOnTopHint) == top)
        return;
    const bool shown = form->isVisible(); // a change of the flag hides the window
    form->setWindowFlag(Qt::WindowStaysOnTopHint, top);
    if (shown)
        form->show();
}

void ThinBorder(QFrame *control, bool thin)
{
    control->setFrameStyle(thin ? static_cast<int>(QFrame::Panel) | static_cast<int>(QFrame::Sunken)
                                : static_cast<int>(QFrame::NoFrame));
    control->setLineWidth(1);
}

void ShowTaskBar(bool shown)
{
#ifdef Q_OS_WIN
    if (HWND bar = FindWindowW(L"Shell_traywnd", nullptr))
        SetWindowPos(bar, nullptr, 0, 0, 0, 0, shown ? SWP_SHOWWINDOW : SWP_HIDEWINDOW);
#else
    Q_UNUSED(shown)
#endif
}
