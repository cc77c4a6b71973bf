// Follows what changes until a signal comes.
#pragma once

#include <functional>

namespace meter {

/// What a look at the figures has come to.
struct Look {
    int code = 0; ///< an ExitCode
    bool isNew = false;
};

/// Calls `look` now and at each change that a process announces on the bus; every second while figures go on changing, as
/// they do during a call, and else every 5 s, as who is on no bus says nothing. Ends in order with a signal: then 0, else
/// the exit code of a look that could not be taken.
int watch(const std::function<Look()> &look);

} // namespace meter
