// Marks what of a benchmark counts when instructions are counted. Costs nothing otherwise.
#pragma once

#include <benchmark/benchmark.h>

#include <valgrind/callgrind.h>

namespace bench {

/// What the profiles are told by that Counted ends with.
inline constexpr auto countedMark = "counted";

/// Whether only the thread that has a Counted is counted: callgrind is then started so that it counts none by itself.
inline bool countsOneThread = false;

/// The instructions while this lives are one count: one for each iteration of a loop.
class Counted
{
public:
    Counted()
    {
        CALLGRIND_ZERO_STATS;
        toggleThread();
    }
    ~Counted()
    {
        toggleThread();
        CALLGRIND_DUMP_STATS_AT(countedMark);
    }
    Counted(const Counted &) = delete;
    Counted &operator=(const Counted &) = delete;

private:
    static void toggleThread()
    {
        if (countsOneThread)
            CALLGRIND_TOGGLE_COLLECT;
    }
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
