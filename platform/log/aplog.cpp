#include "aplog.h"

#include <cerrno>
#include <cstring>

#include <fcntl.h>
#include <unistd.h>

FILE *libaplog_to_module_ptr = nullptr;

namespace {

FILE *ownedFile = nullptr; // what libaplog_open() opened and libaplog_close() closes

FILE *openForAppend(const char *path)
{
    const int fd = ::open(path, O_WRONLY | O_CREAT | O_APPEND | O_CLOEXEC, 0600);
    if (fd < 0)
        return nullptr;
    FILE *file = ::fdopen(fd, "a");
    if (!file) {
        const int error = errno;
        ::close(fd);
        errno = error;
    }
    return file;
}

void replaceStream(FILE *stream, FILE *owned)
{
    FILE *previous = ownedFile;
    libaplog_to_module_ptr = stream;
    ownedFile = owned;
    if (previous)
        std::fclose(previous);
}

} // namespace

int libaplog_open(const char *path)
{
    if (!path || !*path)
        return EINVAL;
    const bool toStandardOutput = std::strcmp(path, "-") == 0;
    FILE *file = toStandardOutput ? stdout : openForAppend(path);
    if (!file)
        return errno;
    std::setvbuf(file, nullptr, _IOLBF, BUFSIZ);
    replaceStream(file, toStandardOutput ? nullptr : file);
    return 0;
}

void libaplog_close(void)
{
    if (libaplog_to_module_ptr)
        std::fflush(libaplog_to_module_ptr);
    replaceStream(nullptr, nullptr);
}
