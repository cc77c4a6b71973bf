// The trace stream of the phone: every library of the phone writes its traces to this one stream.
#pragma once

#include <cstdio>

extern "C" {

/// Where traces go. Null (the initial state) means that nobody gave the stream a place yet; a writer then uses
/// standard output. Owned by whoever set it; a writer never closes it.
extern FILE *libaplog_to_module_ptr;

/// The bytes that a trace file holds at most, 4 MiB. Before it would grow larger, it is renamed to its name with ".1"
/// behind it, in place of an earlier one, and begun anew: what is kept are the last 4 to 8 MiB of traces.
enum { libaplog_largest_file = 4 * 1024 * 1024 };

/// Gives the trace stream a place: appends to the file `path` (UTF-8; made when missing; of mode 0600 afterwards), or to
/// standard output for "-". The stream is line buffered, so that a crash loses no finished line; what a full disk
/// does not take is lost, and lines are written again as soon as there is room. The file that an earlier call
/// opened is closed only once the new one is open. A writer that traces to a FIFO or to standard output ignores
/// SIGPIPE.
/// Returns 0; EINVAL when `path` is null or empty; ELOOP for a symbolic link, ENXIO for a FIFO that nobody reads, EPERM
/// for a file of another user; otherwise the errno of the failed open. The stream then stays as it was.
int libaplog_open(const char *path);

/// Flushes the stream, closes the file that libaplog_open() opened, if any, and sets the pointer back to null.
void libaplog_close(void);
}
