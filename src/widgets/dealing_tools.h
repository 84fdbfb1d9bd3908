// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

struct MainControls;

/// The tools that deal tiles (the button "Wortel", "Alle" and the number) rest while one of these lives.
class DealingToolsRest
{
public:
    explicit DealingToolsRest(const MainControls &controls);
    ~DealingToolsRest();
    DealingToolsRest(const DealingToolsRest &) = delete;
    DealingToolsRest &operator=(const DealingToolsRest &) = delete;

private:
    const MainControls &controls_;
};
