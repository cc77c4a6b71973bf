// A row of the table: something of ours beside what a user would pick instead.
#pragma once

#include <benchmark/benchmark.h>

#include <functional>
#include <optional>
#include <string>

namespace bench {

/// What decides a row. Processor time leaves out what else the machine does meanwhile; wall time takes in the disk.
enum class Clock { Processor, Wall };

struct Side {
    std::string label;
    /// A benchmark as Google Benchmark has them. What comes before its loop is not timed and may be run several times;
    /// a side that cannot be measured says why with SkipWithError().
    std::function<void(benchmark::State &)> run;
};

struct Comparison {
    std::string name; ///< one of its kind
    Side ours;
    Side beside;
    std::optional<double> bar; ///< ours may take this many times as long; nothing is for information only
    Clock clock = Clock::Processor;
    benchmark::IterationCount iterations = 0; ///< of a repetition; 0 is as many as it takes to be timed well
    int operations = 1; ///< of an iteration; where there are many, how many a second are printed too
};

} // namespace bench
