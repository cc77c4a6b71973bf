#include "log/TraceFile.h"

#include "log/aplog.h"

#include <algorithm>
#include <cerrno>
#include <memory>
#include <string>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace aplog {

namespace {

constexpr off_t largestFile = libaplog_largest_file;

class Descriptor
{
public:
    explicit Descriptor(int opened = -1)
        : number(opened)
    {}
    ~Descriptor()
    {
        if (number >= 0)
            ::close(number);
    }
    Descriptor(const Descriptor &) = delete;
    Descriptor &operator=(const Descriptor &) = delete;

    bool isOpen() const { return number >= 0; }
    int get() const { return number; }
    void take(Descriptor &other) { std::swap(number, other.number); }

private:
    int number;
};

// What nobody reads must not hold up the phone, and nobody else's file must be written through a name laid out for it.
int openWithoutWaiting(int directory, const std::string &name)
{
    constexpr int flags = O_WRONLY | O_CREAT | O_APPEND | O_CLOEXEC | O_NOFOLLOW | O_NONBLOCK | O_NOCTTY;
    return ::openat(directory, name.c_str(), flags, 0600);
}

// 0 when traces may go there. They hold the numbers of calls: a file of one's own, for oneself only.
int makePrivate(int file)
{
    struct stat status = {};
    if (::fstat(file, &status) != 0)
        return errno;
    if (!S_ISREG(status.st_mode))
        return 0;
    if (status.st_uid != ::geteuid())
        return EPERM;
    return (status.st_mode & 07777) == 0600 || ::fchmod(file, 0600) == 0 ? 0 : errno;
}

/// The open file, and where it is so that another can take its place, wherever the process has gone since.
class TraceFile
{
public:
    explicit TraceFile(const std::string &path)
        : folder(path.substr(0, path.rfind('/') + 1)) // empty without a slash
        , name(path.substr(folder.size()))
    {}

    // 0, or the errno of what failed.
    int open()
    {
        Descriptor found(::open(folder.empty() ? "." : folder.c_str(), O_PATH | O_DIRECTORY | O_CLOEXEC));
        if (!found.isOpen())
            return errno;
        directory.take(found);
        return name.empty() ? EISDIR : openFile();
    }

    void write(const char *bytes, std::size_t size)
    {
        while (size > 0) {
            const std::size_t piece = std::min(size, room(size));
            if (!writeAll(bytes, piece))
                return;
            bytes += piece;
            size -= piece;
        }
    }

private:
    int openFile()
    {
        Descriptor opened(openWithoutWaiting(directory.get(), name));
        if (!opened.isOpen())
            return errno;
        const int error = makePrivate(opened.get());
        if (error == 0)
            file.take(opened);
        return error;
    }

    // How much of the next `size` bytes this file takes; if need be, it begins anew before.
    std::size_t room(std::size_t size)
    {
        struct stat status = {};
        if (::fstat(file.get(), &status) != 0 || !S_ISREG(status.st_mode))
            return size;
        const off_t left = std::max<off_t>(largestFile - status.st_size, 0);
        if (size <= static_cast<std::size_t>(left))
            return size;
        if (status.st_size > 0)
            beginAnew(status);
        return static_cast<std::size_t>(largestFile);
    }

    // One old file is kept. Where that cannot be done, an empty file is better than one that grows.
    void beginAnew(const struct stat &own)
    {
        if ((isAtItsName(own) && !putAside()) || openFile() != 0)
            static_cast<void>(::ftruncate(file.get(), 0) == 0);
    }

    // Another program that writes to the same file may have begun anew.
    bool isAtItsName(const struct stat &own) const
    {
        struct stat named = {};
        return ::fstatat(directory.get(), name.c_str(), &named, AT_SYMLINK_NOFOLLOW) == 0 &&
               named.st_dev == own.st_dev && named.st_ino == own.st_ino;
    }

    bool putAside() const
    {
        return ::renameat(directory.get(), name.c_str(), directory.get(), (name + ".1").c_str()) == 0;
    }

    // A line that a full disk cuts off is ended before the next one begins.
    bool writeAll(const char *bytes, std::size_t size)
    {
        if (hasLost && lastByte != '\n' && writeSome("\n", 1) == 0)
            return false;
        hasLost = false;
        while (size > 0) {
            const std::size_t written = writeSome(bytes, size);
            hasLost = written == 0;
            if (hasLost)
                return false;
            bytes += written;
            size -= written;
        }
        return true;
    }

    std::size_t writeSome(const char *bytes, std::size_t size)
    {
        ssize_t written = ::write(file.get(), bytes, size);
        while (written < 0 && errno == EINTR)
            written = ::write(file.get(), bytes, size);
        if (written <= 0)
            return 0;
        lastByte = bytes[written - 1];
        return static_cast<std::size_t>(written);
    }

    const std::string folder;
    const std::string name;
    Descriptor directory;
    Descriptor file;
    bool hasLost = false;
    char lastByte = '\n';
};

// What cannot be written is lost and not kept: a stream with an error would lose all that follows, too.
ssize_t writeToFile(void *cookie, const char *bytes, std::size_t size)
{
    const int error = errno;
    static_cast<TraceFile *>(cookie)->write(bytes, size);
    errno = error;
    return static_cast<ssize_t>(size);
}

int closeFile(void *cookie)
{
    delete static_cast<TraceFile *>(cookie);
    return 0;
}

} // namespace

FILE *openTraceFile(const char *path)
{
    auto file = std::make_unique<TraceFile>(path);
    if (const int error = file->open()) {
        errno = error;
        return nullptr;
    }
    FILE *stream = ::fopencookie(file.get(), "a", {nullptr, &writeToFile, nullptr, &closeFile});
    if (stream)
        static_cast<void>(file.release());
    return stream;
}

} // namespace aplog
