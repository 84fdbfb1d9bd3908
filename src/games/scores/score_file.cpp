// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "games/scores/score_file.h"

#include "platform/files.h"
#include "platform/runtime_error.h"

#include <QLockFile>

using namespace Qt::StringLiterals;

/// Keeps other computers from writing meanwhile. In a folder where no lock can be laid, or behind one that
/// hangs, it goes on without: then no write succeeds, or nobody else is writing.
class ScoreFile::Locked
{
public:
    explicit Locked(const QString &path)
        : lock_(nativePath(path) + u".lock"_s)
    {
        lock_.setStaleLockTime(staleAfter);
        lock_.tryLock(longestWait);
    }

private:
    static constexpr int staleAfter = 5000;  ///< milliseconds; a write takes a few
    static constexpr int longestWait = 1500; ///< milliseconds

    QLockFile lock_;
};

ScoreList ScoreFile::readLocked() const
{
    QByteArray bytes;
    try {
        bytes = ReadWholeFile(path_);
    } catch (const RuntimeError &error) {
        if (error.number() != RuntimeError::FileNotFound)
            throw;
    }
    if (const std::optional<ScoreList> list = ScoreList::parse(bytes))
        return *list;
    if (!bytes.isEmpty())
        writeFileAtomically(path_ + u".alt"_s, bytes);
    writeFileAtomically(path_, ScoreList::initial().bytes());
    return ScoreList::initial();
}

ScoreList ScoreFile::read() const
{
    const Locked locked(path_);
    try {
        return readLocked();
    } catch (const RuntimeError &) {
        return ScoreList::initial();
    }
}

void ScoreFile::update(const std::function<void(ScoreList &)> &change) const
{
    const Locked locked(path_);
    ScoreList list = readLocked();
    change(list);
    writeFileAtomically(path_, list.bytes());
}
