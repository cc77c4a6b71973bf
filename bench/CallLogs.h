// Call logs of any size on the disk, to be measured.
#pragma once

#include "Clock.h"
#include "SimulatedTelephone.h"

#include <QtCore/QString>

#include <memory>

namespace bench {

/// The simulated telephone on a log of its own, with a clock that stands still.
struct Line {
    std::shared_ptr<handset::simulated::SimulatedTelephone> telephone;
    std::shared_ptr<handset::ManualClock> clock;
    QString error; ///< then there is no telephone
};

/// Logs are built once and kept in the directory; one that is older than the telephone's library is built again.
class CallLogs
{
public:
    explicit CallLogs(const QString &path)
        : directory(path)
    {}

    /// A telephone on a log of `calls` calls. They are in a copy, which goes on to hold what is recorded during this
    /// run if `keep`, and is made anew with every call of this otherwise.
    Line open(int calls, bool keep);

private:
    QString directory;
    QStringList copied; ///< during this run
};

} // namespace bench
