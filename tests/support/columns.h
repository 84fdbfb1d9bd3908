// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QTest>

/// The columns of a test's table, types and names in the same order: `columns<int, QString>("id", "title")`.
template <typename... Types, typename... Names> void columns(Names... names)
{
    static_assert(sizeof...(Types) == sizeof...(Names));
    (QTest::addColumn<Types>(names), ...);
}
