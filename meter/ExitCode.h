// How the program ends. The numbers are part of its manual.
#pragma once

namespace meter {

enum ExitCode : int {
    ExitSuccess = 0,
    ExitFailed = 1,         ///< the telephone has refused, or the call log could not be read or written
    ExitBadCommandLine = 2, ///< also a change without --yes
    ExitNoHandset = 3,      ///< there is no state, or the telephone cannot be opened
    ExitNotAvailable = 4,   ///< the telephone has no such figure
    ExitLimitReached = 5,   ///< the credit limit or the credit is used up
    ExitAlert = 6,          ///< a figure has come to that of --alert
    ExitBadFile = 7         ///< a file, or the output, cannot be read or written, or has a mistake
};

} // namespace meter
