// The tables at the end.
#pragma once

#include "Endurance.h"
#include "Instructions.h"
#include "Measurement.h"

#include <vector>

namespace bench {

struct Result {
    Comparison comparison;
    std::vector<Count> counts; ///< of the sides; empty where instructions are not counted
    Measured measured;         ///< no samples where nothing is timed
};

/// Prints both tables and how many bars there are to meet and are met. Answers whether all are and every row could be
/// measured.
bool report(const std::vector<Result> &results, const std::vector<Endured> &endured);

} // namespace bench
