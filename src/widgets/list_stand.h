// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

class StoreList;
struct MainControls;

/// Puts a list beside the word panel with its bottom on the bottom of the band; on a window too narrow for
/// that, on the band's upper edge, so that it never covers the tool that closes it. Brings it before the
/// board.
void standOnBand(const MainControls &controls, StoreList *list);
/// Shows it there, with its height reaching from its top down to the band.
void showDownToBand(const MainControls &controls, StoreList *list);
