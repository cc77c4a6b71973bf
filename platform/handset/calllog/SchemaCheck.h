// Whether a database has the tables of a call log and nothing else.
#pragma once

#include "calllog/Finding.h"

namespace handset::calllog {

/// Looks at nothing but the list of tables, and is the first to look at the database: a view or a trigger that somebody
/// put there never runs. A database of version 0 has no tables.
///
/// Damaged when a table, an index, a view or a trigger is missing, is too many or reads otherwise than the migrations
/// up to `version` make it. Takes no time, however many there are.
Finding checkSchema(Database &database, qint64 version);

} // namespace handset::calllog
