// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QtTest>

#include <functional>
#include <memory>
#include <vector>

/// What every test class needs: Qt Test and Qt's core, texts as literals, tables, and a place in its program.
///
/// A test program holds the test classes of one folder. Each registers itself with WORTEL_TEST(Class) at the
/// end of its file; the shared main runs them in turn. `tst_board TileTest` runs one class, further arguments
/// go to Qt Test.
namespace testing {

struct Entry
{
    const char *name;
    std::function<std::unique_ptr<QObject>()> make;
};

std::vector<Entry> &registry();

template <typename Class> struct Registered
{
    explicit Registered(const char *name)
    {
        registry().push_back({name, [] { return std::make_unique<Class>(); }});
    }
};

} // namespace testing

#define WORTEL_TEST(Class) static const testing::Registered<Class> registered##Class{#Class};

using namespace Qt::StringLiterals;

/// The columns of a test's table, types and names in the same order: `columns<int, QString>("id", "title")`.
template <typename... Types, typename... Names> void columns(Names... names)
{
    static_assert(sizeof...(Types) == sizeof...(Names));
    (QTest::addColumn<Types>(names), ...);
}
