// How the program ends. The numbers are part of its manual.
#pragma once

namespace host {

enum ExitCode : int {
    ExitSuccess = 0,
    ExitExpectationFailed = 1, ///< a tour saw something else than its script expects
    ExitBadCommandLine = 2,
    ExitNoHandset = 3,     ///< the state directory cannot be used, or the backend is not known
    ExitNoTrace = 4,       ///< the trace file cannot be opened
    ExitNoPlugin = 5,      ///< the plug-in or another library, or a function of it, is missing
    ExitBadScript = 6,     ///< a tour's script cannot be read or says something unknown
    ExitNotWritten = 7,    ///< a photograph, or the text of a tour, cannot be written
    ExitNoTranslation = 8, ///< the translation catalogue cannot be loaded
    ExitNoDisplay = 9,     ///< a window is asked for where there is none to show it on
    ExitInterrupted = 10   ///< a signal ended a tour before its end
};

} // namespace host
