// Looks at the file of the call log before SQLite does.
#pragma once

#include "calllog/Finding.h"
#include "calllog/StateDirectory.h"

namespace handset::calllog {

/// Usable says only that SQLite may open it. A file that others may read is made the user's alone.
Finding examineFile(const StateDirectory &directory, const QString &name);

} // namespace handset::calllog
