// Work in a process of its own, as one that hangs or breaks is to be told, too.
#pragma once

#include <cstdio>

#include <sys/wait.h>
#include <unistd.h>

namespace handset::faults {

inline constexpr unsigned mostSeconds = 120; ///< for one piece of work: who takes longer hangs

/// Returns the status of waitpid(); -1 where there is no process. What it has started has ended as well, then.
template <typename Work>
int inProcess(Work work)
{
    int lives[2] = {-1, -1};
    if (::pipe(lives) != 0)
        return -1;
    std::fflush(nullptr); // else it is printed twice
    const pid_t child = ::fork();
    if (child == 0) {
        ::close(lives[0]);
        ::alarm(mostSeconds);
        work();
        std::fflush(nullptr);
        std::exit(0); // not _exit(): a build that counts what is run writes its counts at the end
    }
    ::close(lives[1]);
    int status = -1;
    ::waitpid(child, &status, 0);
    char none = 0;
    while (::read(lives[0], &none, 1) > 0) {
    }
    ::close(lives[0]);
    return status;
}

} // namespace handset::faults
