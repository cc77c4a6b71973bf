// What may be read of a database that somebody else may have changed.
#pragma once

#include "calllog/Database.h"

namespace handset::calllog {

/// Takes everything out of a copy that computes while it is read: views, triggers, virtual tables, tables with
/// generated columns. A view may never come to an end. False when that cannot be done; nothing may be read then.
bool leaveOnlyTables(Database &copy);

} // namespace handset::calllog
