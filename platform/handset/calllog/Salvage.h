// Reads what can still be read of a damaged call log.
#pragma once

#include "CallStore.h"

#include <QtCore/QString>

namespace handset::calllog {

/// Copies the calls, and the totals where all of them can be read, from the database `file` into the empty `target`;
/// without the totals those are counted anew from the calls, resets forgotten. `file` is only read. The number of
/// calls copied; -1 when `target` could not be written.
qint64 salvage(const QString &file, CallStore &target);

} // namespace handset::calllog
