// How the contract test makes calls on a backend.
#pragma once

#include "Call.h"
#include "Handset.h"

#include <QtCore/QString>

#include <memory>

namespace handset::test {

class HandsetRig
{
public:
    virtual ~HandsetRig() = default;

    /// Opens the telephone, for the first time or once more after close(); false when that fails.
    virtual bool open() = 0;
    virtual void close() = 0;
    virtual Handset &handset() = 0;

    /// The call is being set up, but not connected; false when that fails, as for all the others.
    virtual bool begin(CallKind kind, CallDirection direction) = 0;
    virtual bool connectCall() = 0;
    virtual bool end() = 0;
    /// A packet-data session that counts so many bytes a second.
    virtual bool beginSession(const QByteArray &apn, quint32 sentPerSecond, quint32 receivedPerSecond) = 0;
    virtual bool endSession() = 0;
    /// Lets time go by.
    virtual void pass(qint64 ms) = 0;
};

/// The rig of the backend that this program is built for, with an empty state of its own.
std::unique_ptr<HandsetRig> makeRig();

} // namespace handset::test
