// The trace function that every source file of the plug-in has for itself, and its two formats.
//
// To be included by source files only: each gets a log() of its own. The source file defines KAV_SOURCE, the name
// under which it appears in the traces.
#pragma once

#include "log/aplog.h"

#include <cstdarg>
#include <cstdio>

inline constexpr int highestTraceLevel = 7; // of the platform's log library: higher levels are dropped
inline constexpr int traceLevel = 3;        // every trace of the plug-in is written at this level

/// Writes to the platform's trace stream, or to standard output while the stream has no place.
[[gnu::format(printf, 2, 3)]] static void log(int level, const char *format, ...)
{
    if (level > highestTraceLevel)
        return;
    std::va_list arguments;
    va_start(arguments, format);
    std::vfprintf(libaplog_to_module_ptr ? libaplog_to_module_ptr : stdout, format, arguments);
    va_end(arguments);
}

/// The short form, around every telephony call: runs `call` between two such lines and returns its result.
template <typename Call>
static int tracedCall(const char *source, const char *method, int line, Call call)
{
    log(traceLevel, "%s,%s,%d \n", source, method, line);
    const int result = call();
    log(traceLevel, "%s,%s,%d \n", source, method, line);
    return result;
}

#define KAV_TRACED(CALL) tracedCall(KAV_SOURCE, __func__, __LINE__, [&] { return CALL; })

/// The long form, for messages and failures. `MESSAGE` is a literal with conversions for the arguments behind it.
#define KAV_TRACE(MESSAGE, ...)                                                                                   \
    log(traceLevel, "\n%s, %s, %d: \"" MESSAGE "\"\n", KAV_SOURCE, __func__, __LINE__ __VA_OPT__(, ) __VA_ARGS__)
