// Marks what of a benchmark counts when instructions are counted. Costs nothing otherwise.
#pragma once

#include <benchmark/benchmark.h>

#include <valgrind/callgrind.h>

namespace bench {

/// What the profiles are told by that Counted ends with.
inline constexpr auto countedMark = "counted";

/// The instructions of all threads while this lives are one count: one for each iteration of a loop.
class Counted
{
public:
    Counted() { CALLGRIND_ZERO_STATS; }
    ~Counted() { CALLGRIND_DUMP_STATS_AT(countedMark); }
    Counted(const Counted &) = delete;
    Counted &operator=(const Counted &) = delete;
};

/// What this thread does while this lives is neither counted nor timed.
class Uncounted
{
public:
    explicit Uncounted(benchmark::State &loop)
        : state(loop)
    {
        CALLGRIND_TOGGLE_COLLECT;
        state.PauseTiming();
    }
    ~Uncounted()
    {
        state.ResumeTiming();
        CALLGRIND_TOGGLE_COLLECT;
    }
    Uncounted(const Uncounted &) = delete;
    Uncounted &operator=(const Uncounted &) = delete;

private:
    benchmark::State &state;
};

} // namespace bench
