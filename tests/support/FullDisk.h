// A disk that has no room left.
#pragma once

#include <csignal>

#include <sys/resource.h>

namespace support {

/// Files cannot grow beyond a size while this lives, as on a full disk.
class FullDisk
{
public:
    explicit FullDisk(rlim_t bytes)
    {
        std::signal(SIGXFSZ, SIG_IGN);
        ::getrlimit(RLIMIT_FSIZE, &previous);
        const rlimit limit{bytes, previous.rlim_max};
        ::setrlimit(RLIMIT_FSIZE, &limit);
    }
    ~FullDisk() { ::setrlimit(RLIMIT_FSIZE, &previous); }
    FullDisk(const FullDisk &) = delete;
    FullDisk &operator=(const FullDisk &) = delete;

private:
    rlimit previous{};
};

} // namespace support
