// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "widgets/resources.h"

#include <QDir>

void initResources() { Q_INIT_RESOURCE(wortel); }
