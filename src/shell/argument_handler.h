// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

#include <vector>

/// One argument of the command line. `Dirty` tells that it was changed after it was filled.
class Argument
{
public:
    bool Dirty() const { return dirty_; }
    void setDirty(bool dirty) { dirty_ = dirty; }
    QString ArgumentName() const { return name_; }
    void setArgumentName(const QString &name);
    QString ArgumentValue() const { return value_; }
    void setArgumentValue(const QString &value);

private:
    bool dirty_ = false;
    QString name_;
    QString value_;
};

/// The arguments of the command line that begin with "/", in their order and by their name, with one of them
/// current.
class ArgumentHandler
{
public:
    int ArgumentCount() const { return static_cast<int>(arguments_.size()); }
    /// Throws RuntimeError 9 for an index that is not there; the first has index 0.
    const Argument &GetArgumentIndex(int index) const;
    /// Throws RuntimeError 5 for a name that is not there. Names differ by case.
    const Argument &GetArgumentKey(const QString &key) const;
    bool CheckArgumentKey(const QString &key) const;
    /// Both throw as their Get, and make that argument the current one.
    bool SetArgumentIndex(int index);
    bool SetArgumentKey(const QString &key);
    /// The current argument, or nullptr before one was set.
    const Argument *current() const;

    /// Appends an argument; a second one of the same name is left out.
    void AddArgument(const QString &name, const QString &value);
    /// Starts afresh from `text`: pieces between blanks; those that begin with "/" become arguments, cut at
    /// their first ":".
    void ParseCommandLine(const QString &text);

private:
    int indexOf(const QString &key) const;

    std::vector<Argument> arguments_;
    int current_ = -1;
};
