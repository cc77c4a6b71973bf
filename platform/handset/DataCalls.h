// Circuit-switched data calls: what the UTIL_* functions and the message client ask.
#pragma once

#include <QtCore/QtGlobal>

namespace handset {

/// The total time of circuit-switched data calls, and the state of the one on the line. It is a time of its own: no
/// reset of CallLog or CallService touches it. StorageFailed where the call log cannot be read or written.
class DataCalls
{
public:
    /// The phone's data-call status byte. A screen lets the total be reset at 0 and 2, and refuses it at 1 and 3;
    /// resetTotalDuration() itself works at any time.
    enum CallStatus : quint8 {
        Idle = 0,      ///< no data call
        SettingUp = 1, ///< one is being set up
        Released = 2,  ///< the last one has ended and its figures are final
        Connected = 3  ///< one is connected
    };

    virtual ~DataCalls() = default;

    /// Brings the total up to date with a running data call; without one it does nothing. It changes no figure.
    virtual int refreshTotals() = 0;
    /// The time of all data calls since the last reset, in whole seconds, the running one included; 0 to 4294967295,
    /// where it saturates.
    virtual int totalDuration(quint32 &seconds) = 0;
    /// The status byte: a CallStatus, or whatever else the handset has, 0 to 255; Idle after a start. A voice call
    /// leaves it alone.
    virtual int callStatus(quint8 &status) = 0;
    /// Zeroes the total and nothing else; of a running data call the rest counts.
    virtual int resetTotalDuration() = 0;
};

} // namespace handset
