// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/start_steps.h"

#include <QStringList>

#include <memory>

class InstanceLink;
class frmMain;
struct Ground;

/// How a later start's arguments come to the first one, and are opened there.
namespace hand_over {

/// Hands `arguments` over to the first start. GoOn if this start has become the first one itself; otherwise
/// the program ends, with a box if the first start did not take them.
start_steps::Next toFirst(Ground &ground, InstanceLink &link, const QStringList &arguments);

/// From now on `form` opens what later starts hand over and have handed over already, whenever the gate is
/// free, each in its order. Once the window is to close nothing is taken any more; what was taken and not
/// opened stays in the link.
void receive(InstanceLink &link, Ground &ground, frmMain &form);

/// The first start has ended. What it has taken and not opened goes to a new start of the program; `link` is
/// given up for it.
void passOn(std::unique_ptr<InstanceLink> link);

} // namespace hand_over
