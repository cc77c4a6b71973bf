// The command line.
#pragma once

#include <QtCore/QString>

namespace bench {

struct Options {
    int repetitions = 0; ///< of timing; 0 leaves that out
    int cycles = 0;      ///< of opening and destroying; 0 leaves that out
    QString only;
    QString directory;
    QString profiles; ///< empty: they are not kept

    // What the program calls itself with under callgrind.
    QString countedRow; ///< empty in a run of a user's
    int countedSide = 0;
};

/// Answers --help, --version and what is wrong by itself, and ends the process.
Options readOptions();

} // namespace bench
