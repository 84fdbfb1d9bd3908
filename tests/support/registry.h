// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>

#include <functional>
#include <memory>
#include <vector>

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
