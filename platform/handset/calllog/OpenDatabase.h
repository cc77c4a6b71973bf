// Opens one database as a call log.
#pragma once

#include "CallStore.h"
#include "Finding.h"
#include "StateDirectory.h"
#include "repair/Progress.h"

#include <memory>

namespace handset::calllog {

struct Attempt {
    Finding finding;
    std::unique_ptr<CallStore> store; ///< null unless usable
    QString unread = {};              ///< as OpenedStore::unread
};

enum class Care {
    Quick,    ///< reads what later operations depend on
    Thorough, ///< reads the whole file, and its rows beside its totals
    Leftovers ///< the same, once before anything is written: there are leftovers to be worked in
};

/// `file` is an absolute path, or ":memory:". `directory` goes over to the store; it may be null, and stays where it
/// is when there is no store. `progress` as in migrate().
Attempt openDatabase(const QString &file, std::unique_ptr<StateDirectory> &directory, Care care,
                     const ProgressListener &progress = {});

} // namespace handset::calllog
