// The command line.
#pragma once

#include <QtCore/QString>

namespace bench {

struct Options {
    int repetitions = 0; ///< of timing; 0 leaves that out
    int cycles = 0;      ///< of opening and destroying; 0 leaves that out
    QString only;
    QString directory;
    QString profiles;   ///< empty: they are not kept
    QString markdown;   ///< the file for the tables; empty: none
    int largestLog = 0; ///< calls of the largest log that is reopened

    // What the program calls itself with, under callgrind and to crash.
    QString countedRow; ///< empty in a run of a user's
    int countedSide = 0;
    QString crashIn; ///< the log in which it records and crashes; likewise empty
};

/// Returns --help, --version and what is wrong by itself, and ends the process.
Options readOptions();

} // namespace bench
