// Counts the instructions of comparisons with valgrind's callgrind, each side in a process of its own.
#pragma once

#include "bench/Comparison.h"

#include <QtCore/QString>

#include <string>
#include <vector>

namespace bench {

/// The instructions of one side, per operation.
struct Count {
    double median = 0;
    double least = 0;
    double most = 0;
    std::string error; ///< why there is none
};

/// What the counting needs to know of this run.
struct CountingPlace {
    QString profiles; ///< the directory for callgrind's files, which callgrind_annotate reads
    QString data;     ///< the directory of the call logs
};

/// For every comparison the counts of its sides, ours first; none for one that does not count instructions. As many
/// sides at once as there are processors: counts do not depend on what else the machine does.
std::vector<std::vector<Count>> countInstructions(const std::vector<Comparison> &comparisons,
                                                  const CountingPlace &place);

} // namespace bench
