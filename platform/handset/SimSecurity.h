// SIM security: the second PIN.
#pragma once

#include "handset/Status.h"

#include <QtCore/QByteArray>

namespace handset {

/// The SIM's PINs (3GPP TS 51.011, 9.3): PIN2 has 4 to 8 digits and three tries, then it is blocked until PUK2 is
/// entered; the count survives power-off, that it has been entered does not. Of PIN1 nothing but the status is known
/// here: all else returns NotAvailable for it, and InvalidArgument for a number that is no Pin.
class SimSecurity
{
public:
    enum Pin : quint8 { Pin1 = 0, Pin2 = 1 };
    /// What stands between the user and what a PIN guards.
    enum PinStatus : quint32 {
        EntryNeeded = 1,  ///< the PIN has to be entered
        Blocked = 2,      ///< too many wrong tries: only the PUK helps
        NoEntryNeeded = 3 ///< the PIN is switched off, or has been entered and still counts
    };

    virtual ~SimSecurity() = default;

    /// PinStatus of `pin`; InvalidArgument for a number that is no Pin.
    virtual int pinStatus(quint8 pin, quint32 &status) = 0;
    /// Tries that are left, 0 (blocked) to 3. NotAvailable for PIN1, InvalidArgument for a number that is no Pin.
    virtual int triesLeft(quint8 pin, int &tries) = 0;
    /// Presents `digits` to the SIM. The right ones (`accepted` true) give all tries back; wrong ones cost a try and
    /// take back what earlier right ones allowed. NotAllowed for a blocked PIN. InvalidArgument for what is not 4 to 8
    /// digits, and StorageFailed when the try cannot be kept: neither costs one. NotAvailable for PIN1, InvalidArgument
    /// for a number that is no Pin. The digits are neither kept nor traced.
    virtual int verifyPin(quint8 pin, const QByteArray &digits, bool &accepted) = 0;
};

} // namespace handset
