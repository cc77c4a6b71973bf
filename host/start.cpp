// Starts the program. It needs the C library only, so that a library that is missing, or one that lacks a function,
// ends the program here with a message and an exit code, and not in the middle of its use.

#include "host/ExitCode.h"

#include <cstdio>

#include <dlfcn.h>

namespace {

using Program = int(int argc, char **argv);

} // namespace

int main(int argc, char **argv)
{
    // All that the libraries call is looked up now, also where one that replaces ours is linked to do that when it calls.
    void *const library = ::dlopen(KAV_PROGRAM_LIBRARY, RTLD_NOW | RTLD_GLOBAL);
    void *const program = library ? ::dlsym(library, "runRecentCalls") : nullptr;
    if (program)
        return reinterpret_cast<Program *>(program)(argc, argv);
    std::fprintf(stderr, "kavrecentcalls: A library cannot be loaded: %s.\n", ::dlerror());
    return host::ExitNoPlugin;
}
