// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/start.h"

int main(int argc, char *argv[]) { return startWortel(argc, argv); }
