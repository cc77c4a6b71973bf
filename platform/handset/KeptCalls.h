// The calls that a handset keeps, one by one.
#pragma once

#include "handset/Call.h"

#include <QtCore/QList>

#include <limits>

namespace handset {

struct KeptCall {
    qint64 id = 0; ///< more than 0, and more than those of the calls that are kept and began earlier
    PastCall call; ///< a running one up to now
    bool isRunning = false;
    bool wasConnected = true; ///< false for one that nobody has answered

    friend bool operator==(const KeptCall &, const KeptCall &) = default;
};

/// GUI thread only. Each operation returns a status of handset/Status.h: StorageFailed where the call log cannot be read
/// or written. What is deleted here changes no total; the handset's change listener is told of it.
class KeptCalls
{
public:
    static constexpr qint64 endOfTime = std::numeric_limits<qint64>::max();

    virtual ~KeptCalls() = default;

    /// The `most` newest calls with an id of less than `before`, the newest first. Costs no more in a log of a million.
    virtual int newest(qint64 before, int most, QList<KeptCall> &calls) = 0;
    /// How many have an id from `first` on, and less than `before`.
    virtual int count(qint64 first, qint64 before, qint64 &count) = 0;
    /// Deletes one. WrongState for one that runs, InvalidArgument where there is none.
    virtual int remove(qint64 id) = 0;
    /// Deletes those that began before `wallMs` (since 1970 UTC), endOfTime for all, and are over; in one transaction.
    /// `count` is how many they were.
    virtual int removeBefore(qint64 wallMs, qint64 &count) = 0;
};

} // namespace handset
