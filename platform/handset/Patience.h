// How long other processes are waited for.
#pragma once

namespace handset {

/// Milliseconds.
struct Patience {
    int opening = 5000;   ///< open() waits this long, for all that others may hold on its way
    int operation = 1000; ///< an operation waits this long for a writer; more would freeze the screen
    int bus = 250;        ///< open() waits this long for a system bus that takes a connection and says nothing
};

} // namespace handset
