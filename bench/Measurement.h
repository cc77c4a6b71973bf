// Measures both sides of a comparison with Google Benchmark, turn by turn.
#pragma once

#include "Comparison.h"

#include <string>
#include <vector>

namespace bench {

/// What one repetition of one side took, per iteration.
struct Sample {
    double processorNs = 0;
    double wallNs = 0;
};

struct Measured {
    std::vector<Sample> ours;
    std::vector<Sample> beside;
    std::string error; ///< why there is nothing to compare
};

/// Repetitions of the two sides take turns, so that whatever else the machine does meets both alike. The first of
/// each is not counted.
Measured measure(const Comparison &comparison, int repetitions);

} // namespace bench
