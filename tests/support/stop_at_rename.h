// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <csignal>
#include <cstddef>
#include <linux/filter.h>
#include <linux/seccomp.h>
#include <sys/prctl.h>
#include <sys/syscall.h>
#include <unistd.h>

/// From here on this process stops for ever at the moment in which it would rename a file: as a program that
/// is killed there, or is still at work. It goes with its parent at the latest.
inline void stopAtRename()
{
    prctl(PR_SET_PDEATHSIG, SIGKILL);
    std::signal(SIGSYS, [](int) {
        for (;;)
            pause();
    });
    sock_filter filter[] = {
        BPF_STMT(BPF_LD | BPF_W | BPF_ABS, offsetof(seccomp_data, nr)),
#ifdef SYS_rename
        BPF_JUMP(BPF_JMP | BPF_JEQ | BPF_K, SYS_rename, 3, 0),
#endif
        BPF_JUMP(BPF_JMP | BPF_JEQ | BPF_K, SYS_renameat, 2, 0),
        BPF_JUMP(BPF_JMP | BPF_JEQ | BPF_K, SYS_renameat2, 1, 0),
        BPF_STMT(BPF_RET | BPF_K, SECCOMP_RET_ALLOW),
        BPF_STMT(BPF_RET | BPF_K, SECCOMP_RET_TRAP),
    };
    sock_fprog program{sizeof filter / sizeof filter[0], filter};
    if (prctl(PR_SET_NO_NEW_PRIVS, 1, 0, 0, 0) != 0 ||
        prctl(PR_SET_SECCOMP, SECCOMP_MODE_FILTER, &program) != 0)
        _exit(1);
}
