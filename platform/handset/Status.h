// Status of every operation of the handset.
#pragma once

namespace handset {

/// What every operation returns, as an int: 0 is success, anything else failure. Outputs are written only on
/// success. A backend may answer numbers of its own beside these.
enum Status : int {
    Success = 0,
    InvalidArgument = 1,  ///< a null pointer, a number out of range
    NotAvailable = 2,     ///< no handset is open, or the one that is has no such thing
    StorageFailed = 3,    ///< the call log could not be read or written
    WrongState = 4,       ///< not possible now: no call to hang up, the line is busy
    TextTooLong = 5,      ///< a text does not fit the caller's buffer; nothing was written to it
    NotAllowed = 6,       ///< the SIM or the network refuses
    RecordedElsewhere = 7 ///< another process records: calls and sessions begin and end there alone
};

} // namespace handset
