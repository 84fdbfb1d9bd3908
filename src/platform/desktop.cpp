// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/desktop.h"

#include <QtGlobal>

#ifdef Q_OS_WIN
#include <windows.h>
#endif

void ShowTaskBar(bool shown)
{
#ifdef Q_OS_WIN
    if (HWND bar = FindWindowW(L"Shell_traywnd", nullptr))
        SetWindowPos(bar, nullptr, 0, 0, 0, 0, shown ? SWP_SHOWWINDOW : SWP_HIDEWINDOW);
#else
    Q_UNUSED(shown)
#endif
}
