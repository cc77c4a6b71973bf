// Circuit-switched data calls: what the UTIL_* functions and the message client ask.
#pragma once

#include <QtCore/QtGlobal>

namespace handset {

class DataCalls
{
public:
    /// The phone's data-call status byte. A reset of the total is allowed at 0 and 2, refused at 1 and 3.
    enum CallStatus : quint8 {
        Idle = 0,      ///< no data call
        SettingUp = 1, ///< one is being set up
        Released = 2,  ///< the last one has ended and its figures are written
        Connected = 3  ///< one is connected
    };

    virtual ~DataCalls() = default;

    /// Brings the total up to date with a running data call.
    virtual int refreshTotals() = 0;
    /// The time of all data calls since the last reset, in whole seconds; stops at 4294967295.
    virtual int totalDuration(quint32 &seconds) = 0;
    /// The status byte; a value outside CallStatus is passed on as it comes.
    virtual int callStatus(quint8 &status) = 0;
    /// Zeroes the total and nothing else.
    virtual int resetTotalDuration() = 0;
};

} // namespace handset
