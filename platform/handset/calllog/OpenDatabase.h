// Opens one database as a call log.
#pragma once

#include "calllog/Finding.h"
#include "calllog/repair/Progress.h"

#include <memory>

namespace handset::calllog {

struct Attempt {
    Finding finding;
    std::unique_ptr<Database> database; ///< null unless usable
    bool isReadThrough = false;
};

enum class Care {
    Quick,    ///< reads what later operations depend on
    Thorough, ///< reads the whole file, and its rows beside its totals
    Leftovers ///< the same, once before anything is written: there are leftovers to be worked in
};

/// How the directory of the file is held.
enum class Hold {
    Shared, ///< tables of an earlier version are left as they are: Older
    Alone
};

/// `file` is an absolute path, or ":memory:". `progress` as in migrate(). The database keeps `waiting`, for its writers;
/// null for a database of nobody else.
Attempt openDatabase(const QString &file, Care care, Hold hold, Waiting *waiting,
                     const ProgressListener &progress = {});

} // namespace handset::calllog
