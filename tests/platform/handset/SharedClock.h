// A clock that several processes of a test share, as they share the machine's.
#pragma once

#include "handset/Clock.h"

#include <QtCore/QFile>

#include <atomic>

#include <fcntl.h>
#include <sys/mman.h>
#include <unistd.h>

namespace handset::test {

/// Stands in a file, which is made where it is missing; moved by whichever process wants to.
class SharedClock final : public Clock
{
public:
    explicit SharedClock(const QString &file)
    {
        const int fd = ::open(QFile::encodeName(file).constData(), O_RDWR | O_CREAT | O_CLOEXEC, 0600);
        if (fd < 0 || ::ftruncate(fd, sizeof *now) != 0)
            return;
        void *const mapped = ::mmap(nullptr, sizeof *now, PROT_READ | PROT_WRITE, MAP_SHARED, fd, 0);
        ::close(fd);
        if (mapped != MAP_FAILED)
            now = static_cast<std::atomic<qint64> *>(mapped);
    }
    ~SharedClock() override
    {
        if (now)
            ::munmap(now, sizeof *now);
    }
    SharedClock(const SharedClock &) = delete;
    SharedClock &operator=(const SharedClock &) = delete;

    qint64 monotonicMs() const override { return now ? now->load() : 0; }
    qint64 wallMs() const override { return monotonicMs(); }
    void advance(qint64 ms) { now->fetch_add(ms); }

private:
    std::atomic<qint64> *now = nullptr;
};

} // namespace handset::test
