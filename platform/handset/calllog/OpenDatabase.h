// Opens one database as a call log.
#pragma once

#include "CallStore.h"
#include "Finding.h"
#include "StateDirectory.h"

#include <memory>

namespace handset::calllog {

struct Attempt {
    Finding finding;
    std::unique_ptr<CallStore> store; ///< null unless usable
};

/// `file` is an absolute path, or ":memory:". `directory` goes over to the store; it may be null, and stays where it
/// is when there is no store. `thorough` reads the whole file first.
Attempt openDatabase(const QString &file, std::unique_ptr<StateDirectory> &directory, bool thorough);

} // namespace handset::calllog
