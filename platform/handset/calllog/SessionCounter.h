// The running totals of the packet-data sessions.
#pragma once

#include <QtCore/QString>
#include <QtCore/QtGlobal>

#include <array>

namespace handset::calllog {

/// What a session, or all of them, have come to: each 0 to 2^63 - 1, where it stops.
struct SessionAmounts {
    qint64 ms = 0;
    qint64 sent = 0;     ///< bytes
    qint64 received = 0; ///< bytes
};

/// Each counts all sessions since its reset.
enum class SessionCounter { Duration, Sent, Received };

struct SessionCounterName {
    SessionCounter counter;
    const char *key; ///< in the database; never change one
    qint64 SessionAmounts::*amount;
};

inline constexpr std::array sessionCounters{
    SessionCounterName{SessionCounter::Duration, "duration", &SessionAmounts::ms},
    SessionCounterName{SessionCounter::Sent, "sent", &SessionAmounts::sent},
    SessionCounterName{SessionCounter::Received, "received", &SessionAmounts::received},
};
static_assert(sessionCounters.size() == 3);
static_assert(
    [] {
        for (std::size_t i = 0; i < sessionCounters.size(); ++i)
            if (static_cast<std::size_t>(sessionCounters[i].counter) != i)
                return false;
        return true;
    }(),
    "sessionCounters is indexed by the counter");

inline QString sessionCounterKey(SessionCounter counter)
{
    return QString::fromLatin1(sessionCounters[static_cast<std::size_t>(counter)].key);
}

} // namespace handset::calllog
