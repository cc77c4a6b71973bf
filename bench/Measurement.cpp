#include "bench/Measurement.h"

#include <valgrind/callgrind.h>

#include <algorithm>

namespace bench {

namespace {

constexpr double leastSeconds = 0.05; // of a repetition
constexpr int mostWarmUp = 3;         // iterations of a counted side

class Collector final : public benchmark::BenchmarkReporter
{
public:
    bool ReportContext(const Context &) override { return true; }

    void ReportRuns(const std::vector<Run> &runs) override
    {
        for (const Run &run : runs) {
            if (run.error_occurred)
                error = run.error_message;
            const double iterations = static_cast<double>(run.iterations);
            constexpr double nanoseconds = 1e9;
            sample = {run.cpu_accumulated_time * nanoseconds / iterations,
                      run.real_accumulated_time * nanoseconds / iterations};
        }
    }

    Sample sample;
    std::string error;
};

// Returns the name that it is run by.
std::string registerSide(const Side &side, benchmark::IterationCount iterations)
{
    static int count = 0;
    std::string name = std::to_string(++count) + "side";
    auto *registered = benchmark::RegisterBenchmark(name.c_str(), side.run);
    if (iterations > 0)
        registered->Iterations(iterations);
    else
        registered->MinTime(leastSeconds);
    return name;
}

// False after an error.
bool runOnce(const std::string &name, Sample &sample, std::string &error)
{
    Collector collector;
    benchmark::RunSpecifiedBenchmarks(&collector, '^' + name + "(/|$)");
    sample = collector.sample;
    error = collector.error;
    return error.empty();
}

Sample ofOneOperation(const Sample &sample, int operations)
{
    return {sample.processorNs / operations, sample.wallNs / operations};
}

} // namespace

std::vector<Side> sidesOf(const Comparison &comparison)
{
    std::vector<Side> sides{comparison.ours};
    for (const Alternative &alternative : comparison.beside)
        sides.push_back(alternative.side);
    return sides;
}

Measured measure(const Comparison &comparison, int repetitions)
{
    std::vector<std::string> names;
    for (const Side &side : sidesOf(comparison))
        names.push_back(registerSide(side, comparison.iterations));
    Measured measured;
    measured.sides.resize(names.size());
    for (int repetition = 0; repetition <= repetitions && measured.error.empty(); ++repetition) {
        for (std::size_t i = 0; i < names.size(); ++i) {
            Sample sample;
            if (!runOnce(names[i], sample, measured.error))
                break;
            if (repetition > 0)
                measured.sides[i].push_back(ofOneOperation(sample, comparison.operations));
        }
    }
    benchmark::ClearRegisteredBenchmarks();
    return measured;
}

std::string runCounted(const Side &side, int iterations)
{
    Sample sample;
    std::string error;
    if (!runOnce(registerSide(side, std::min(iterations, mostWarmUp)), sample, error))
        return error;
    CALLGRIND_START_INSTRUMENTATION;
    // The first pays for what the instrumentation itself sets off, and is not counted.
    runOnce(registerSide(side, iterations + 1), sample, error);
    CALLGRIND_STOP_INSTRUMENTATION;
    return error;
}

} // namespace bench
