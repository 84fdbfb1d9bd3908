// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/runtime_error.h"

#include <array>

namespace {

struct Description
{
    int number;
    const char16_t *text;
};

constexpr std::array<Description, 22> descriptions{{
    {5, u"Invalid procedure call or argument"},
    {6, u"Overflow"},
    {7, u"Out of memory"},
    {9, u"Subscript out of range"},
    {11, u"Division by zero"},
    {13, u"Type mismatch"},
    {52, u"Bad file name or number"},
    {53, u"File not found"},
    {54, u"Bad file mode"},
    {55, u"File already open"},
    {57, u"Device I/O error"},
    {58, u"File already exists"},
    {61, u"Disk full"},
    {62, u"Input past end of file"},
    {67, u"Too many files"},
    {68, u"Device unavailable"},
    {70, u"Permission denied"},
    {75, u"Path/File access error"},
    {76, u"Path not found"},
    {457, u"This key is already associated with an element of this collection"},
    {481, u"Invalid picture"},
    {482, u"Printer error"},
}};

} // namespace

RuntimeError RuntimeError::of(int number)
{
    for (const Description &row : descriptions)
        if (row.number == number)
            return {number, QString::fromUtf16(row.text)};
    return {number, QStringLiteral("Application-defined or object-defined error")};
}
