// The part of the salvage that is about packet-data sessions.
#pragma once

#include "Finding.h"
#include "Progress.h"

namespace handset::calllog {

struct SalvagedSessions {
    bool written = false;    ///< the target has what could be read
    Finding obstacle;        ///< Blocked when it has not because the source could not be read
    qint64 sessions = 0;     ///< how many
    bool totalsRead = false; ///< else they were counted anew from the sessions, resets forgotten
};

/// As salvage(), in the transaction of the caller. A log of the first version has no sessions.
SalvagedSessions salvageSessions(Database &source, Database &target, const ProgressListener &progress);

} // namespace handset::calllog
