// The trace stream of the phone: every library of the phone writes its traces to this one stream.
#pragma once

#include <cstdio>

extern "C" {

/// Where traces go. Null (the initial state) means that nobody gave the stream a place yet; a writer then uses
/// standard output. Owned by whoever set it; a writer never closes it.
extern FILE *libaplog_to_module_ptr;

/// Gives the trace stream a place: appends to the file `path` (UTF-8; made with mode 0600 when missing), or to
/// standard output for "-". The stream is line buffered, so that a crash loses no finished line. The file that an
/// earlier call opened is closed only once the new one is open.
/// Returns 0; EINVAL when `path` is null or empty; otherwise the errno of the failed open, and the stream stays
/// as it was.
int libaplog_open(const char *path);

/// Flushes the stream, closes the file that libaplog_open() opened, if any, and sets the pointer back to null.
void libaplog_close(void);
}
