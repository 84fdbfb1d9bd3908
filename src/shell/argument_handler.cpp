// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/argument_handler.h"

#include "platform/runtime_error.h"
#include "platform/text.h"

#include <QStringList>

void Argument::setArgumentName(const QString &name)
{
    name_ = name;
    dirty_ = true;
}

void Argument::setArgumentValue(const QString &value)
{
    value_ = value;
    dirty_ = true;
}

const Argument &ArgumentHandler::GetArgumentIndex(int index) const
{
    if (index < 0 || index >= ArgumentCount())
        throw RuntimeError::of(RuntimeError::SubscriptOutOfRange);
    return arguments_[static_cast<std::size_t>(index)];
}

const Argument &ArgumentHandler::GetArgumentKey(const QString &key) const
{
    const int index = indexOf(key);
    if (index < 0)
        throw RuntimeError::of(RuntimeError::InvalidCall);
    return GetArgumentIndex(index);
}

bool ArgumentHandler::CheckArgumentKey(const QString &key) const { return indexOf(key) >= 0; }

bool ArgumentHandler::SetArgumentIndex(int index)
{
    GetArgumentIndex(index);
    current_ = index;
    return true;
}

bool ArgumentHandler::SetArgumentKey(const QString &key)
{
    GetArgumentKey(key);
    current_ = indexOf(key);
    return true;
}

const Argument *ArgumentHandler::current() const
{
    return current_ < 0 ? nullptr : &arguments_[static_cast<std::size_t>(current_)];
}

void ArgumentHandler::AddArgument(const QString &name, const QString &value)
{
    if (CheckArgumentKey(name))
        return;
    Argument argument;
    argument.setArgumentName(name);
    argument.setArgumentValue(value);
    argument.setDirty(false);
    arguments_.push_back(argument);
}

void ArgumentHandler::ParseCommandLine(const QString &text)
{
    arguments_.clear();
    current_ = -1;
    const QStringList pieces = text.split(u' ', Qt::SkipEmptyParts);
    for (const QString &piece : pieces) {
        if (!piece.startsWith(u'/'))
            continue;
        const qsizetype colon = piece.indexOf(u':');
        if (colon < 0) {
            AddArgument(piece.mid(1), {});
            continue;
        }
        QString value = Trim(piece.mid(colon + 1));
        if (value.size() >= 2 && value.startsWith(u'"') && value.endsWith(u'"'))
            value = value.mid(1, value.size() - 2);
        AddArgument(piece.mid(1, colon - 1), value);
    }
}

int ArgumentHandler::indexOf(const QString &key) const
{
    for (std::size_t index = 0; index < arguments_.size(); ++index)
        if (arguments_[index].ArgumentName() == key)
            return static_cast<int>(index);
    return -1;
}
