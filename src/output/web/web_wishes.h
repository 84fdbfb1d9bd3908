// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

class SettingsStore;
class WebView;

/// What the window `FrmSaveAsWeb` keeps in the section "Web" of the settings, a row of a table each. A stored
/// value that is none counts as never stored.
namespace web_wishes {

void read(const SettingsStore &store, WebView &view);
void save(SettingsStore &store, const WebView &view);

} // namespace web_wishes
