// The tables of the call log and how an older database gets them.
#pragma once

#include "calllog/Database.h"
#include "calllog/repair/Progress.h"

#include <span>

namespace handset::calllog {

/// Marks the database as a call log of this handset ("KAVl").
inline constexpr qint64 applicationId = 0x4b41566c;

/// The steps from one schema version to the next: statements that are run in one transaction.
using Migration = std::span<const char *const>;

/// From this version on every value that a backend keeps has a row in `kept`.
inline constexpr qint64 versionWithAllKept = 3;

/// The migration at index v leads from version v to v + 1; a database without tables is version 0.
std::span<const Migration> migrations();

/// Brings a database of version 0 to `steps.size()` up to the newest version, each step in one transaction together
/// with its version number. False leaves the database at the version that the last finished step made. `progress` is
/// told how far a step is that reads many calls; it must leave the database alone.
bool migrate(Database &database, std::span<const Migration> steps, const ProgressListener &progress = {});

/// Of a call's row; the numbers are in the database.
enum class CallState {
    Running = 0,      ///< connected; the duration is that of the last checkpoint
    Finished = 1,     ///< was connected and ended
    NotConnected = 2, ///< ended before it was connected
    Interrupted = 3   ///< was running when the handset stopped; the duration is that of the last checkpoint
};

} // namespace handset::calllog
