// The copy that a call log which cannot be used is read from, so that it is kept as it was found.
#pragma once

#include "calllog/Finding.h"
#include "calllog/StateDirectory.h"

#include <memory>

namespace handset::calllog {

/// Bytes: an empty log, and what SQLite needs beside it to make one and to open it.
inline constexpr qint64 spaceOfNewLog = 512 << 10;

/// Blocked when the disk has less left: a disk that fills up half way is found as well, but costs the time.
Finding findSpace(const StateDirectory &directory, qint64 bytes);

/// Removed with the object.
class LogCopy
{
public:
    /// In the state directory.
    static constexpr auto name = "calllog-copy.db";

    /// `stateDirectory` outlives this. `listener` is told how far a big copy is.
    LogCopy(StateDirectory &stateDirectory, ProgressListener listener)
        : directory(stateDirectory)
        , progress(std::move(listener))
    {}
    ~LogCopy();
    LogCopy(const LogCopy &) = delete;
    LogCopy &operator=(const LogCopy &) = delete;

    /// Returns `verdict`, or Damaged for a log that is foreign or newer by its header alone: its tables say that it is
    /// ours. Blocked when that cannot be found out. Makes the copy where it takes one.
    Finding look(Verdict verdict);
    /// Makes the copy, unless it is there. Blocked when it cannot be made, or there is no room for a new log beside it; what is wrong with its header is put right.
    Finding make();
    /// Blocked when the copy that has been made cannot be read: SQLite calls some failed reads damage.
    Finding check() const;
    /// Of the copy that has been made.
    Database &database() { return *opened; }

private:
    Finding mend();
    Finding open(); ///< Damaged when the list of its tables is

    StateDirectory &directory;
    ProgressListener progress;
    std::unique_ptr<Database> opened;
};

} // namespace handset::calllog
