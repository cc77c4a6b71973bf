// Measures the sides of a comparison in this process with Google Benchmark.
#pragma once

#include "bench/Comparison.h"

#include <string>
#include <vector>

namespace bench {

/// What one repetition of one side took, per operation.
struct Sample {
    double processorNs = 0;
    double wallNs = 0;
};

struct Measured {
    std::vector<std::vector<Sample>> sides; ///< ours, then those beside it
    std::string error;                      ///< why there is nothing to compare
};

/// The sides of a row: ours, then those beside it.
std::vector<Side> sidesOf(const Comparison &comparison);

/// Repetitions of the sides take turns, so that whatever else the machine does meets all alike. The first of each is
/// not counted.
Measured measure(const Comparison &comparison, int repetitions);

/// Runs a side so that callgrind, under which this process runs, counts `iterations` of it after some to warm up.
/// Returns what went wrong.
std::string runCounted(const Side &side, int iterations);

} // namespace bench
