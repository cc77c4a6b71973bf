// Packet data: what the TAPI_GPRS_* functions ask.
#pragma once

#include "handset/CallTime.h"
#include "handset/Status.h"

#include <QtCore/QByteArray>

#include <array>
#include <functional>

namespace handset {

/// One of the three most recent data sessions.
struct DataSession {
    /// What the phone's record has room for, beside the NUL behind it.
    static constexpr qsizetype longestApn = 101;

    quint8 id = 0;         ///< 1 to 255; 0 is an empty slot
    quint32 bytesSent = 0; ///< saturates at 4294967295, as bytesReceived does
    quint32 bytesReceived = 0;
    CallTime duration;
    QByteArray apn; ///< access point name, Latin-1, at most longestApn characters
};

struct DataSessions {
    quint32 count = 0; ///< how many of the records count, from the first on; 0 to 3
    std::array<DataSession, 3> records;
};

/// The packet-data sessions and their totals, the running session counted up to now. Durations are whole seconds, the
/// fraction cut off. A reset during a session zeroes what was counted so far; the rest of the session counts. No reset
/// of calls changes packet data. All of it outlives a restart. StorageFailed where the call log cannot be read or
/// written.
class PacketData
{
public:
    virtual ~PacketData() = default;

    /// The three records, the session that began last in the first; one keeps its place while an earlier one is empty.
    virtual int sessions(DataSessions &sessions) = 0;
    /// The duration of all sessions since resetTotalDuration().
    virtual int totalDuration(CallTime &duration) = 0;
    /// Bytes of all sessions since resetTotalBytes(), each 0 to 4294967295, where it saturates; `total` is both ways
    /// together and saturates by itself.
    virtual int totalBytes(quint32 &total, quint32 &received, quint32 &sent) = 0;
    /// Each zeroes its own total and nothing else; the sessions keep their figures.
    virtual int resetTotalDuration() = 0;
    virtual int resetTotalBytes() = 0;

    /// `listener` is called when a session has begun, when one has ended, and at most once a second while the figures
    /// of one change; it is copied, takes the place of the one before, and must not end the handset. Null for nobody.
    /// A handset that cannot tell never calls it.
    virtual void setUpdateListener(const std::function<void()> &listener) = 0;
};

} // namespace handset
