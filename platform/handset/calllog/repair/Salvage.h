// Reads what can still be read of a damaged call log.
#pragma once

#include "calllog/Finding.h"
#include "calllog/repair/Progress.h"

namespace handset::calllog {

struct Salvaged {
    qint64 calls = 0;        ///< how many
    bool totalsRead = false; ///< else they were counted anew from the calls, resets forgotten

    qint64 sessions = 0;            ///< how many packet-data sessions
    bool sessionTotalsRead = false; ///< as totalsRead, for the sessions
};

/// Copies the calls, the sessions, and the totals of each where all of them can be read, from `source` into the empty
/// `target`, in one transaction. Blocked when anything but damage keeps it from reading: then there may be more, and the
/// target has nothing.
Finding salvage(Database &source, Database &target, Salvaged &salvaged, const ProgressListener &progress);

} // namespace handset::calllog
