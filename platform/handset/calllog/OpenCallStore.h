// Opens the call log of a state directory, whatever is found there.
#pragma once

#include "CallStore.h"
#include "repair/Progress.h"

#include <QtCore/QString>

#include <memory>

namespace handset::calllog {

struct OpenedStore {
    std::unique_ptr<CallStore> store; ///< null when it could not be opened
    QString error;                    ///< then: why, in one sentence
    /// What happened to a file that could not be used; empty for nothing. Every start has it until whoever tells it
    /// keeps an empty value under keptNotice (Finding.h).
    QString notice;
    QString unread = {}; ///< the file that is still to be read through, by CheckBeside; empty when it has been
};

/// An empty directory name keeps the calls in memory only. A file that cannot be used as a call log, or not by this
/// version, is kept under another name and a new log is begun, with the calls in it that can still be read.
/// `progress` is told of steps that take long.
OpenedStore openCallStore(const QString &directory, const ProgressListener &progress = {});

} // namespace handset::calllog
