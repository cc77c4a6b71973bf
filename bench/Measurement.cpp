#include "Measurement.h"

namespace bench {

namespace {

constexpr double leastSeconds = 0.05; // of a repetition

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

// Answers the name that it is run by.
std::string registerSide(const Side &side, const char *role, const Comparison &comparison)
{
    static int count = 0;
    std::string name = std::to_string(++count) + role;
    auto *registered = benchmark::RegisterBenchmark(name.c_str(), side.run);
    if (comparison.iterations > 0)
        registered->Iterations(comparison.iterations);
    else
        registered->MinTime(leastSeconds);
    return name;
}

// False after an error.
bool runOnce(const std::string &name, std::vector<Sample> *samples, std::string &error)
{
    Collector collector;
    benchmark::RunSpecifiedBenchmarks(&collector, '^' + name + "(/|$)");
    error = collector.error;
    if (!error.empty())
        return false;
    if (samples)
        samples->push_back(collector.sample);
    return true;
}

} // namespace

Measured measure(const Comparison &comparison, int repetitions)
{
    const std::string ours = registerSide(comparison.ours, "ours", comparison);
    const std::string beside = registerSide(comparison.beside, "beside", comparison);
    Measured measured;
    for (int repetition = 0; repetition <= repetitions; ++repetition) {
        const bool counts = repetition > 0;
        if (!runOnce(ours, counts ? &measured.ours : nullptr, measured.error) ||
            !runOnce(beside, counts ? &measured.beside : nullptr, measured.error))
            break;
    }
    benchmark::ClearRegisteredBenchmarks();
    return measured;
}

} // namespace bench
