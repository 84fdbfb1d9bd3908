// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QtGlobal>

#include <csignal>
#include <sys/resource.h>

/// No file may grow beyond `bytes` while this lives: what a full disk looks like to a writer.
class FileSizeLimit
{
public:
    explicit FileSizeLimit(rlim_t bytes)
    {
        std::signal(SIGXFSZ, SIG_IGN);
        getrlimit(RLIMIT_FSIZE, &old_);
        const rlimit tight{bytes, old_.rlim_max};
        setrlimit(RLIMIT_FSIZE, &tight);
    }
    ~FileSizeLimit() { setrlimit(RLIMIT_FSIZE, &old_); }
    Q_DISABLE_COPY_MOVE(FileSizeLimit)

private:
    rlimit old_{};
};
