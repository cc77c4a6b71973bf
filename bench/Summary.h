// What a run has found, as texts that are ready to be printed.
#pragma once

#include "bench/Endurance.h"
#include "bench/Instructions.h"
#include "bench/Measurement.h"

#include <string>
#include <vector>

namespace bench {

struct Result {
    Comparison comparison;
    std::vector<Count> counts; ///< of the sides; empty where instructions are not counted
    Measured measured;         ///< no samples where nothing is timed
};

/// One side of a row. What there is nothing to say about is empty.
struct SideLine {
    std::string label;
    std::string instructions;
    std::string ratio; ///< of ours to it
    std::string bar;
    std::string met;
    std::string time;
    std::string timeRatio; ///< of ours to it; in the line of ours, which time it is
};

struct RowLines {
    std::string name;
    std::string error; ///< why it was not measured; then there is nothing else
    std::vector<SideLine> sides;
    std::vector<std::string> notes;
};

/// What one screen takes of one kind of memory.
struct MemoryLine {
    std::string screen;
    std::string memory;
    std::string before;
    std::string after;
    std::string growth; ///< a cycle
    std::string bar;
    std::string met; ///< or why it was not measured
    std::string note;
};

struct Summary {
    std::vector<RowLines> rows;
    std::vector<MemoryLine> memory;
    int warmUp = 0; ///< cycles, of the memory
    int cycles = 0; ///< likewise, after those to warm up
    int bars = 0;
    int met = 0;
    int unjudged = 0;   ///< bars on times, in a run that takes none
    int unmeasured = 0; ///< rows

    bool isGood() const { return met == bars && unmeasured == 0; }
};

Summary summarize(const std::vector<Result> &results, const std::vector<Endured> &endured);

} // namespace bench
