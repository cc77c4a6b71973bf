// A call log of a million calls beside one of a hundred: asking for a figure, and recording a call.
#include "CallLogs.h"
#include "Counted.h"
#include "Groups.h"
#include "Handset.h"
#include "tapi.h"
#include "util.h"

#include <array>

namespace bench {

namespace {

constexpr int few = 100;
constexpr int many = 1'000'000;
constexpr Bar hardlySlower{1.2, 1.05};

// So many that SQLite moves its write-ahead log into the database about once in a repetition, on both sides.
constexpr int recordedCalls = 200;
constexpr int warmUpCalls = 10;

struct Figure {
    const char *name;
    int (*ask)();
};

template <int (*query)(TAPI_CallTime *)>
int askTime()
{
    TAPI_CallTime time = {};
    const int result = query(&time);
    benchmark::DoNotOptimize(time);
    return result;
}

int askDataTotal()
{
    quint32 seconds = 0;
    const int result = UTIL_GetTotalDuration(&seconds);
    benchmark::DoNotOptimize(seconds);
    return result;
}

constexpr std::array figures{
    Figure{"last call", &askTime<&TAPI_LOG_GetLastCallTime>},
    Figure{"dialed calls", &askTime<&TAPI_LOG_GetDialedCallsTime>},
    Figure{"answered calls", &askTime<&TAPI_LOG_GetAnsweredCallsTime>},
    Figure{"data calls", &askDataTotal},
    Figure{"all calls", &askTime<&TAPI_CS_GetTotalCallTime>},
    Figure{"lifetime calls", &askTime<&TAPI_LOG_GetLifetimeCallsTime>},
};
static_assert(figures.size() == 6);

// A call as it is made: two transactions, both on the disk when they are over.
int recordCall(const Line &line)
{
    int result = line.telephone->dial(QStringLiteral("+4930555010"), handset::CallKind::Voice);
    if (result == 0)
        result = line.telephone->remoteAnswer();
    line.clock->advance(60'000);
    return result == 0 ? line.telephone->hangUp() : result;
}

void query(benchmark::State &state, const Line &line, int (*ask)())
{
    handset::install(line.telephone);
    int failures = ask();
    for (auto _ : state) {
        const Counted counted;
        failures += ask();
    }
    handset::install(nullptr);
    if (failures != 0)
        state.SkipWithError("a query failed");
}

void record(benchmark::State &state, const Line &line)
{
    int failures = 0;
    for (int i = 0; i < warmUpCalls; ++i)
        failures += recordCall(line);
    for (auto _ : state) {
        const Counted counted;
        failures += recordCall(line);
    }
    if (failures != 0)
        state.SkipWithError("a call was not recorded");
}

template <typename Work>
Side side(const std::shared_ptr<CallLogs> &logs, int calls, Work work)
{
    return {calls == many ? "1,000,000 calls" : "100 calls", [logs, calls, work](benchmark::State &state) {
                // What is recorded makes the small log another one, and nothing of the large one.
                const Line line = logs->open(calls, calls == many);
                if (line.telephone)
                    work(state, line);
                else
                    state.SkipWithError(qUtf8Printable(line.error));
            }};
}

} // namespace

std::vector<Comparison> callLogComparisons(const QString &directory)
{
    const auto logs = std::make_shared<CallLogs>(directory);
    std::vector<Comparison> comparisons;
    for (const Figure &figure : figures) {
        const auto work = [&figure](benchmark::State &state, const Line &line) { query(state, line, figure.ask); };
        Comparison row;
        row.name = std::string("Asking for a figure: ") + figure.name;
        row.ours = side(logs, many, work);
        row.beside = {{side(logs, few, work), hardlySlower}};
        comparisons.push_back(row);
    }
    Comparison row;
    row.name = "Recording a call, on the disk";
    row.ours = side(logs, many, &record);
    row.beside = {{side(logs, few, &record), hardlySlower}};
    row.clock = Clock::Wall;
    row.iterations = recordedCalls;
    comparisons.push_back(row);
    return comparisons;
}

} // namespace bench
