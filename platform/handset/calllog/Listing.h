// The rows that are kept: listed by when they began, and deleted one by one.
#pragma once

#include "calllog/Ledger.h"

#include <limits>

namespace handset::calllog {

/// Moments of the wall clock, in ms since 1970 UTC.
struct Period {
    qint64 from = std::numeric_limits<qint64>::min();
    qint64 until = std::numeric_limits<qint64>::max(); ///< no longer in it
};

struct ListedCall {
    qint64 id = 0; ///< more than 0; keeps its call as long as that is kept
    PastCall call; ///< a running one up to now
    CallState state = CallState::Finished;
};

struct ListedSession {
    qint64 id = 0;
    QByteArray apn; ///< Latin-1
    qint64 startWallMs = 0;
    SessionAmounts amounts; ///< of a running one up to now
    CallState state = CallState::Finished;
};

// Each returns a status of handset/Status.h: StorageFailed where the log cannot be read or written.

/// The calls, or sessions, that began in a period, in the order in which they did.
int listCalls(Ledger &ledger, const Period &period, QList<ListedCall> &calls);
int listSessions(Ledger &ledger, const Period &period, QList<ListedSession> &sessions);
/// The `most` newest calls with an id of less than `before`, the newest first.
int newestCalls(Ledger &ledger, qint64 before, int most, QList<ListedCall> &calls);
/// How many have an id from `first` on, and less than `before`.
int countCalls(Ledger &ledger, qint64 first, qint64 before, qint64 &count);
/// Deletes a call that is over: no total changes. WrongState for one that runs, InvalidArgument where there is none.
int deleteCall(Ledger &ledger, qint64 id);
/// Deletes the calls of a period that are over; `count` is how many they were.
int deleteCalls(Ledger &ledger, const Period &period, qint64 &count);

} // namespace handset::calllog
