#include "log/aplog.h"

#include "log/TraceFile.h"

#include <cerrno>
#include <cstring>

FILE *libaplog_to_module_ptr = nullptr;

namespace {

FILE *ownedFile = nullptr; // what libaplog_open() opened and libaplog_close() closes

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
    FILE *file = toStandardOutput ? stdout : aplog::openTraceFile(path);
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
