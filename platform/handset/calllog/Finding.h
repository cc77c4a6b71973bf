// What is found in the place of the call log.
#pragma once

#include "Database.h"

#include <QtCore/QString>

namespace handset::calllog {

/// In the state directory.
inline constexpr auto databaseName = "calllog.db";

enum class Verdict {
    Usable,
    Missing, ///< never made yet
    Damaged, ///< a call log of ours that cannot be trusted
    Lost,    ///< an empty file, or nothing but what SQLite keeps beside a database in use
    Foreign, ///< something else
    Newer,   ///< a call log of a later version
    Blocked  ///< nothing is known to be wrong with it, but it cannot be used now
};

struct Finding {
    Verdict verdict = Verdict::Usable;
    QString reason; ///< part of a sentence; empty where the verdict says it all
};

/// Blocked, for the reason of an errno.
Finding blocked(int error);
/// What the last error of a database says about it.
Finding failure(const Database &database);

} // namespace handset::calllog
