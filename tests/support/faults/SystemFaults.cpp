#include "support/faults/SystemFaults.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <climits>
#include <csignal>
#include <cstdarg>
#include <cstdio>
#include <cstdlib>
#include <cstring>

#include <dlfcn.h>
#include <fcntl.h>
#include <sys/mman.h>
#include <sys/stat.h>
#include <sys/statvfs.h>
#include <unistd.h>

// Only one thread opens a call log, so nothing here is locked.

namespace {

enum Call { Open, Read, Pread, Write, Pwrite, Fsync, Ftruncate, Rename, Link, Unlink, Mmap, CallCount };

struct Plan {
    char directory[PATH_MAX] = "";
    Call call = CallCount;
    long nth = 0;
    int error = 0;
    bool always = false;
    long space = -1; ///< bytes that may still be written; less than 0 for any number
    bool isSpaceTold = false;
    std::array<long, CallCount> counts{};
    long failed = 0;
    char order[64 << 10] = ""; ///< what is more is left out
    std::size_t orderLength = 0;
    std::size_t lastLength = 0; ///< of its last line
};

Plan plan;

template <typename Function>
Function next(Function, const char *name)
{
    return reinterpret_cast<Function>(::dlsym(RTLD_NEXT, name));
}

bool isUnder(const char *path)
{
    const std::size_t length = std::strlen(plan.directory);
    return length > 0 && path && std::strncmp(path, plan.directory, length) == 0 &&
           (path[length] == '/' || path[length] == '\0');
}

// Empty when the system does not say.
void findPath(int fd, char (&path)[PATH_MAX])
{
    char link[64];
    std::snprintf(link, sizeof link, "/proc/self/fd/%d", fd);
    path[std::max<ssize_t>(::readlink(link, path, sizeof path - 1), 0)] = '\0';
}

bool isUnder(int fd)
{
    if (plan.directory[0] == '\0' || fd < 0)
        return false;
    char path[PATH_MAX];
    findPath(fd, path);
    return isUnder(path);
}

[[noreturn]] void die()
{
    ::kill(::getpid(), SIGKILL);
    std::abort();
}

/// Whether this call is to fail; errno is set then. One that is to do half of its work does not fail.
template <typename File>
bool fails(Call call, File file, bool *half = nullptr)
{
    const int before = errno;
    const bool isOurs = isUnder(file);
    errno = before;
    if (!isOurs)
        return false;
    const long count = ++plan.counts[call];
    if (call != plan.call || (plan.always ? count < plan.nth : count != plan.nth))
        return false;
    ++plan.failed;
    if (plan.error == kavFaultsKill)
        die();
    if (half)
        *half = plan.error == kavFaultsHalf || plan.error == kavFaultsKillHalfway;
    errno = std::max(plan.error, 0);
    return plan.error > 0;
}

/// After the half that was to be done.
template <typename Result>
Result dyingHalfway(bool half, Result result)
{
    if (half && plan.error == kavFaultsKillHalfway)
        die();
    return result;
}

const char *nameIn(const char *path)
{
    const char *name = path + std::strlen(plan.directory);
    return *name == '/' ? name + 1 : ".";
}

/// One line of what was done, in its order; the same once more is not another one.
void note(const char *call, const char *path, const char *other = nullptr)
{
    if (!isUnder(path))
        return;
    char *const line = plan.order + plan.orderLength;
    const std::size_t room = sizeof plan.order - plan.orderLength;
    const int written = std::snprintf(line, room, "%s %s%s%s\n", call, nameIn(path), other ? " " : "",
                                      other && isUnder(other) ? nameIn(other) : "");
    const auto length = static_cast<std::size_t>(std::max(written, 0));
    const bool isSame = length <= plan.lastLength && std::strncmp(line - plan.lastLength, line, length) == 0;
    if (length >= room || isSame) {
        *line = '\0';
        return;
    }
    plan.orderLength += length;
    plan.lastLength = length;
}

/// A call that has failed is none.
int noted(int result, const char *call, const char *path, const char *other = nullptr)
{
    const int error = errno;
    if (result == 0)
        note(call, path, other);
    errno = error;
    return result;
}

template <typename Result>
Result notedOn(int fd, Result result, const char *call)
{
    const int error = errno;
    char path[PATH_MAX];
    if (result >= 0 && plan.directory[0] != '\0') {
        findPath(fd, path);
        note(call, path);
    }
    errno = error;
    return result;
}

/// What may be written of `bytes`; 0 with errno when the disk is full.
std::size_t permitted(int fd, std::size_t bytes, off64_t end)
{
    if (plan.space < 0 || !isUnder(fd))
        return bytes;
    struct stat status = {};
    ::fstat(fd, &status);
    const long growth = std::max(0L, static_cast<long>(end) - static_cast<long>(status.st_size));
    if (growth <= plan.space) {
        plan.space -= growth;
        return bytes;
    }
    ++plan.failed;
    errno = ENOSPC;
    return 0;
}

Call callNamed(const char *name)
{
    for (int call = 0; call < CallCount; ++call)
        if (name && std::strcmp(kavFaultsCalls[call], name) == 0)
            return static_cast<Call>(call);
    return CallCount;
}

std::size_t halfOf(bool half, std::size_t bytes)
{
    return half && bytes > 1 ? bytes / 2 : bytes;
}

void plannedFor(const char *directory)
{
    plan = {};
    std::snprintf(plan.directory, sizeof plan.directory, "%s", directory ? directory : "");
}

[[gnu::constructor]] void readEnvironment()
{
    const auto number = [](const char *name, long otherwise) {
        const char *value = std::getenv(name);
        return value ? std::strtol(value, nullptr, 10) : otherwise;
    };
    const char *directory = std::getenv("KAV_FAULTS_UNDER");
    if (!directory)
        return;
    kavFaultsArm(directory, std::getenv("KAV_FAULTS_CALL"), number("KAV_FAULTS_NTH", 1),
                 static_cast<int>(number("KAV_FAULTS_ERRNO", EIO)), std::getenv("KAV_FAULTS_FROM") != nullptr);
    plan.space = number("KAV_FAULTS_SPACE", -1);
    plan.isSpaceTold = true;
}

} // namespace

extern "C" {

const char *const kavFaultsCalls[] = {"open",      "read",   "pread", "write",  "pwrite", "fsync",
                                      "ftruncate", "rename", "link",  "unlink", "mmap",   nullptr};

void kavFaultsArm(const char *directory, const char *call, long nth, int error, bool always)
{
    plannedFor(directory);
    plan.call = callNamed(call);
    plan.nth = nth;
    plan.error = error;
    plan.always = always;
}

void kavFaultsLimitSpace(const char *directory, long bytes, bool isTold)
{
    plannedFor(directory);
    plan.space = bytes;
    plan.isSpaceTold = isTold;
}

void kavFaultsDisarm()
{
    plan.directory[0] = '\0';
}

long kavFaultsCount(const char *call)
{
    const Call named = callNamed(call);
    return named == CallCount ? 0 : plan.counts[named];
}

const char *kavFaultsOrder()
{
    return plan.order;
}

long kavFaultsFailed()
{
    return plan.failed;
}

// The calls themselves, under every name that SQLite, Qt and this project use.

int open64(const char *path, int flags, ...)
{
    va_list arguments;
    va_start(arguments, flags);
    const mode_t mode = (flags & O_CREAT) != 0 ? va_arg(arguments, mode_t) : 0;
    va_end(arguments);
    static const auto original = next(&open64, "open64");
    return fails(Open, path) ? -1 : original(path, flags, mode);
}

int open(const char *path, int flags, ...)
{
    va_list arguments;
    va_start(arguments, flags);
    const mode_t mode = (flags & O_CREAT) != 0 ? va_arg(arguments, mode_t) : 0;
    va_end(arguments);
    return open64(path, flags, mode);
}

// A name that is relative to a directory is none of ours: nobody gives one.
int openat64(int directory, const char *path, int flags, ...)
{
    va_list arguments;
    va_start(arguments, flags);
    const mode_t mode = (flags & O_CREAT) != 0 ? va_arg(arguments, mode_t) : 0;
    va_end(arguments);
    static const auto original = next(&openat64, "openat64");
    return fails(Open, path) ? -1 : original(directory, path, flags, mode);
}

int openat(int directory, const char *path, int flags, ...)
{
    va_list arguments;
    va_start(arguments, flags);
    const mode_t mode = (flags & O_CREAT) != 0 ? va_arg(arguments, mode_t) : 0;
    va_end(arguments);
    return openat64(directory, path, flags, mode);
}

ssize_t read(int fd, void *bytes, std::size_t count)
{
    static const auto original = next(&read, "read");
    bool half = false;
    return fails(Read, fd, &half) ? -1 : original(fd, bytes, halfOf(half, count));
}

ssize_t pread64(int fd, void *bytes, std::size_t count, off64_t at)
{
    static const auto original = next(&pread64, "pread64");
    bool half = false;
    return fails(Pread, fd, &half) ? -1 : original(fd, bytes, halfOf(half, count), at);
}

ssize_t write(int fd, const void *bytes, std::size_t count)
{
    static const auto original = next(&write, "write");
    bool half = false;
    if (fails(Write, fd, &half) ||
        (count > 0 && permitted(fd, count, ::lseek64(fd, 0, SEEK_CUR) + static_cast<off64_t>(count)) == 0))
        return -1;
    return notedOn(fd, dyingHalfway(half, original(fd, bytes, halfOf(half, count))), "write");
}

ssize_t pwrite64(int fd, const void *bytes, std::size_t count, off64_t at)
{
    static const auto original = next(&pwrite64, "pwrite64");
    bool half = false;
    if (fails(Pwrite, fd, &half) || (count > 0 && permitted(fd, count, at + static_cast<off64_t>(count)) == 0))
        return -1;
    return notedOn(fd, dyingHalfway(half, original(fd, bytes, halfOf(half, count), at)), "write");
}

ssize_t pread(int fd, void *bytes, std::size_t count, off_t at)
{
    return pread64(fd, bytes, count, at);
}

ssize_t pwrite(int fd, const void *bytes, std::size_t count, off_t at)
{
    return pwrite64(fd, bytes, count, at);
}

int fsync(int fd)
{
    static const auto original = next(&fsync, "fsync");
    return fails(Fsync, fd) ? -1 : notedOn(fd, original(fd), "fsync");
}

int fdatasync(int fd)
{
    static const auto original = next(&fdatasync, "fdatasync");
    return fails(Fsync, fd) ? -1 : notedOn(fd, original(fd), "fsync");
}

int sync_file_range(int fd, off64_t at, off64_t count, unsigned flags)
{
    static const auto original = next(&sync_file_range, "sync_file_range");
    return fails(Fsync, fd) ? -1 : original(fd, at, count, flags);
}

int ftruncate64(int fd, off64_t length) noexcept
{
    static const auto original = next(&ftruncate64, "ftruncate64");
    return fails(Ftruncate, fd) || (length > 0 && permitted(fd, 1, length) == 0)
               ? -1
               : notedOn(fd, original(fd, length), "write");
}

int ftruncate(int fd, off_t length) noexcept
{
    return ftruncate64(fd, length);
}

int rename(const char *from, const char *to) noexcept
{
    static const auto original = next(&rename, "rename");
    return fails(Rename, from) ? -1 : noted(original(from, to), "rename", from, to);
}

int renameat2(int fromFd, const char *from, int toFd, const char *to, unsigned flags) noexcept
{
    static const auto original = next(&renameat2, "renameat2");
    return fails(Rename, from) ? -1 : noted(original(fromFd, from, toFd, to, flags), "rename", from, to);
}

int link(const char *from, const char *to) noexcept
{
    static const auto original = next(&link, "link");
    return fails(Link, from) ? -1 : noted(original(from, to), "link", from, to);
}

int unlink(const char *path) noexcept
{
    static const auto original = next(&unlink, "unlink");
    return fails(Unlink, path) ? -1 : noted(original(path), "unlink", path);
}

void *mmap64(void *address, std::size_t length, int protection, int flags, int fd, off64_t at) noexcept
{
    static const auto original = next(&mmap64, "mmap64");
    return fails(Mmap, fd) ? MAP_FAILED : original(address, length, protection, flags, fd, at);
}

void *mmap(void *address, std::size_t length, int protection, int flags, int fd, off_t at) noexcept
{
    return mmap64(address, length, protection, flags, fd, at);
}

int statvfs64(const char *path, struct statvfs64 *status) noexcept
{
    static const auto original = next(&statvfs64, "statvfs64");
    const int result = original(path, status);
    if (result == 0 && plan.space >= 0 && plan.isSpaceTold && isUnder(path))
        status->f_bavail = static_cast<fsblkcnt64_t>(plan.space) / status->f_frsize;
    return result;
}

int statvfs(const char *path, struct statvfs *status) noexcept
{
    static const auto original = next(&statvfs, "statvfs");
    const int result = original(path, status);
    if (result == 0 && plan.space >= 0 && plan.isSpaceTold && isUnder(path))
        status->f_bavail = static_cast<fsblkcnt_t>(plan.space) / status->f_frsize;
    return result;
}
}
