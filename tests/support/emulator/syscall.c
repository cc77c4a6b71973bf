// Qemu has no descriptors of processes, and does not say so to who asks: Qt then starts no process. Part of each program
// that is built for Qemu.
#define _GNU_SOURCE
#include <dlfcn.h>
#include <errno.h>
#include <stdarg.h>
#include <sys/syscall.h>
#include <sys/wait.h>

long syscall(long number, ...)
{
    static long (*next)(long number, ...);
    long values[6];
    va_list arguments;
    va_start(arguments, number);
    for (int i = 0; i < 6; ++i)
        values[i] = va_arg(arguments, long);
    va_end(arguments);
    if (number == SYS_waitid && values[0] == P_PIDFD) {
        errno = EINVAL;
        return -1;
    }
    if (!next)
        next = (long (*)(long, ...))dlsym(RTLD_NEXT, "syscall");
    return next(number, values[0], values[1], values[2], values[3], values[4], values[5]);
}
