// A trace file that stays small. Not a public header.
#pragma once

#include <cstdio>

namespace aplog {

/// Opens the file `path` for appending, as libaplog_open() promises. The stream, which is the caller's to close, writes
/// through a buffer of its own and has no descriptor. Null with the error in `errno`.
FILE *openTraceFile(const char *path);

} // namespace aplog
