// The command line.
#pragma once

#include <QtCore/QString>

namespace bench {

struct Options {
    int repetitions = 0;
    int cycles = 0; ///< of opening and destroying; 0 leaves that out
    QString only;
    QString directory;
};

/// Answers --help, --version and what is wrong by itself, and ends the process.
Options readOptions();

} // namespace bench
