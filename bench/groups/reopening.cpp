// Opening a call log after a crash, until the first figure is there: a large log beside a small one.
#include "CallLogs.h"
#include "Counted.h"
#include "Groups.h"
#include "Handset.h"
#include "tapi.h"

namespace bench {

namespace {

constexpr int few = 100;
constexpr Bar hardlySlower{1.5, 1.1};

Side side(const std::string &label, const CallLogs &logs, int calls)
{
    return {label, [logs, calls](benchmark::State &state) {
                for (auto _ : state) {
                    state.PauseTiming();
                    const auto where = logs.copy(calls, CallLogs::After::Crash);
                    if (!where)
                        return state.SkipWithError("the call log cannot be copied");
                    state.ResumeTiming();
                    Line line;
                    TAPI_CallTime time = {};
                    int result = 0;
                    {
                        const Counted counted;
                        line = CallLogs::openIn(where);
                        handset::install(line.telephone);
                        result = TAPI_LOG_GetLastCallTime(&time);
                    }
                    state.PauseTiming();
                    handset::install(nullptr);
                    const bool isThere = line.telephone && result == 0 && time.minutes == 1;
                    line = {};
                    if (!isThere)
                        return state.SkipWithError("the figure is not there");
                    state.ResumeTiming();
                }
            }};
}

Comparison reopening(const CallLogs &logs, int calls)
{
    const std::string label = std::to_string(calls) + " calls";
    Comparison row;
    row.name = "Reopening a log of " + label + " after a crash, to the first figure";
    row.ours = side(label, logs, calls);
    row.beside = {{side("100 calls", logs, few), hardlySlower}};
    row.clock = Clock::Wall;
    row.iterations = 1;
    row.counted = 1;            // each opens a copy of its own
    row.countsOneThread = true; // what goes on beside it does not delay the figure
    row.prepare = [logs, calls] {
        const QString error = logs.prepareCrashed(few);
        return error.isEmpty() ? logs.prepareCrashed(calls) : error;
    };
    return row;
}

} // namespace

std::vector<Comparison> reopeningComparisons(const QString &directory, int largest)
{
    const CallLogs logs(directory);
    std::vector<Comparison> comparisons;
    for (const int calls : {1'000'000, 10'000'000}) {
        if (calls <= largest)
            comparisons.push_back(reopening(logs, calls));
    }
    return comparisons;
}

} // namespace bench
