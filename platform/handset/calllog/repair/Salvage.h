// Reads what can still be read of a damaged call log.
#pragma once

#include "CallStore.h"

#include <QtCore/QString>

namespace handset::calllog {

struct Salvaged {
    bool written = false;    ///< the target has what could be read
    qint64 calls = 0;        ///< how many
    bool totalsRead = false; ///< else they were counted anew from the calls, resets forgotten

    qint64 sessions = 0;            ///< how many packet-data sessions
    bool sessionTotalsRead = false; ///< as totalsRead, for the sessions
};

/// Copies the calls, the sessions, and the totals of each where all of them can be read, from the database `file` into
/// the empty `target`, in one transaction. `file` may be changed on the way: it is to be a copy.
Salvaged salvage(const QString &file, CallStore &target);

} // namespace handset::calllog
