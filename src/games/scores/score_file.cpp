// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "games/scores/score_file.h"

#include "platform/file_lock.h"
#include "platform/files.h"
#include "platform/runtime_error.h"

using namespace Qt::StringLiterals;

namespace {

constexpr int staleAfter = 5000;  ///< milliseconds; a write takes a few
constexpr int longestWait = 1500; ///< milliseconds

} // namespace

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
    const FileLock locked(nativePath(path_), staleAfter, longestWait);
    try {
        return readLocked();
    } catch (const RuntimeError &) {
        return ScoreList::initial();
    }
}

void ScoreFile::update(const std::function<void(ScoreList &)> &change) const
{
    const FileLock locked(nativePath(path_), staleAfter, longestWait);
    ScoreList list = readLocked();
    change(list);
    writeFileAtomically(path_, list.bytes());
}
