// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "games/scores/score_list.h"

#include <functional>

/// The file of a score list, in a folder that several computers may share.
class ScoreFile
{
public:
    /// `path` in stored form.
    explicit ScoreFile(const QString &path)
        : path_(path)
    {}

    /// The list as the file holds it at this moment. For a missing or damaged file it is the initial list,
    /// which is written without a word; the bytes of a damaged one are kept beside it, as ".alt". A file that
    /// cannot be read is left alone.
    ScoreList read() const;
    /// Reads, lets `change` act on what the file holds now, and writes, while no other computer can do the
    /// same. Throws RuntimeError if the file cannot be read or written; then it is as it was.
    void update(const std::function<void(ScoreList &)> &change) const;

private:
    /// Throws RuntimeError if there is a file that cannot be read.
    ScoreList readLocked() const;

    QString path_;
};
