// Opens the ledger of a state directory, whatever is found there.
#pragma once

#include "calllog/Ledger.h"
#include "calllog/repair/Progress.h"
#include "handset/Handset.h"

#include <QtCore/QString>

#include <memory>

namespace handset::calllog {

struct OpenedLedger {
    std::unique_ptr<Ledger> ledger; ///< null when it could not be opened
    QString error;                  ///< then: why, in one sentence
    /// What happened to a file, or to what is kept of the card and the account, that could not be used; empty for
    /// nothing.
    QString notice;
};

/// An empty directory name keeps the calls in memory only. A file that cannot be used as a call log, or not by this
/// version, is kept under another name and a new log is begun, with the calls in it that can still be read; that, and a
/// log of an earlier version, need the directory alone. `progress` is told of steps that take long. The clock is not
/// null.
OpenedLedger openLedger(const QString &directory, const std::shared_ptr<Clock> &clock,
                        const Patience &patience = {}, const ProgressListener &progress = {});
/// Likewise that of a handset, which may be given up. A big log is read through while it is in use.
OpenedLedger openLedger(const Settings &settings);

} // namespace handset::calllog
