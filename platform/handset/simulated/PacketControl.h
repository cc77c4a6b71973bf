// The simulation's packet data.
#pragma once

#include "PacketData.h"

#include <QtCore/QByteArray>

namespace handset::simulated {

/// One session at a time. Operations answer a status of handset/Status.h; one that fails has changed nothing.
class PacketControl
{
public:
    /// The longest access point name (3GPP TS 23.003, 9.1: 100 octets; the telephone's record has room for 101).
    static constexpr qsizetype longestApn = DataSession::longestApn;

    virtual ~PacketControl() = default;

    /// Begins a session with access point name `apn` (Latin-1, 1 to longestApn characters, no NUL; else
    /// InvalidArgument). It counts the given bytes each second, each way. WrongState while one runs.
    virtual int startSession(const QByteArray &apn, quint32 sentPerSecond, quint32 receivedPerSecond) = 0;
    /// Ends it, also where the call log cannot be written: then that is owed to it (SimulatedTelephone::owesRecord()).
    /// WrongState without one.
    virtual int stopSession() = 0;

    virtual bool isSessionRunning() const = 0;
};

} // namespace handset::simulated
