#include "Report.h"

#include <algorithm>
#include <array>
#include <cstdio>

namespace bench {

namespace {

struct Unit {
    const char *name;
    double ns;
};
constexpr std::array units{Unit{"ms", 1e6}, Unit{"us", 1e3}, Unit{"ns", 1}};

constexpr double nsPerSecond = 1e9;

struct Tally {
    int bars = 0;
    int met = 0;
    int unmeasured = 0; ///< rows

    const char *count(bool isMet)
    {
        ++bars;
        met += isMet ? 1 : 0;
        return isMet ? "met" : "MISSED";
    }
};

std::vector<double> times(const std::vector<Sample> &samples, Clock clock)
{
    std::vector<double> values;
    values.reserve(samples.size());
    for (const Sample &sample : samples)
        values.push_back(clock == Clock::Wall ? sample.wallNs : sample.processorNs);
    std::sort(values.begin(), values.end());
    return values;
}

double median(const std::vector<double> &sorted)
{
    const std::size_t half = sorted.size() / 2;
    return sorted.size() % 2 == 1 ? sorted[half] : (sorted[half - 1] + sorted[half]) / 2;
}

std::string timeText(double ns)
{
    const auto *unit = std::find_if(units.begin(), units.end(), [ns](const Unit &u) { return ns >= u.ns; });
    unit = unit == units.end() ? std::prev(units.end()) : unit;
    std::array<char, 32> text{};
    std::snprintf(text.data(), text.size(), "%.3g %s", ns / unit->ns, unit->name);
    return text.data();
}

std::string withLabel(const Side &side, double ns)
{
    return side.label + ": " + timeText(ns);
}

const char *clockName(Clock clock)
{
    switch (clock) {
    case Clock::Processor:
        return "cpu";
    case Clock::Wall:
        return "wall";
    }
    return "";
}

// Answers the ratio.
double printTimes(const char *name, const Result &result, Clock clock)
{
    const Comparison &row = result.comparison;
    const std::vector<double> ours = times(result.measured.ours, clock);
    const std::vector<double> beside = times(result.measured.beside, clock);
    const double ratio = median(ours) / median(beside);
    std::printf("%-50s  %-26s %-28s %-5s %7.2f %9.2f", name, withLabel(row.ours, median(ours)).c_str(),
                withLabel(row.beside, median(beside)).c_str(), clockName(clock), ratio,
                ours.front() / beside.front());
    return ratio;
}

void printRates(const Result &result)
{
    const Comparison &row = result.comparison;
    const auto rate = [&row](const std::vector<Sample> &samples) {
        return row.operations * nsPerSecond / median(times(samples, row.clock));
    };
    std::printf("  a second: %s %.0f, %s %.0f\n", row.ours.label.c_str(), rate(result.measured.ours),
                row.beside.label.c_str(), rate(result.measured.beside));
}

void printComparison(const Result &result, Tally &tally)
{
    const Comparison &row = result.comparison;
    const std::string &error = result.measured.error;
    if (!error.empty()) {
        ++tally.unmeasured;
        std::printf("%-50s  NOT MEASURED: %s\n", row.name.c_str(), error.c_str());
        return;
    }
    const double ratio = printTimes(row.name.c_str(), result, row.clock);
    if (row.bar)
        std::printf("  <= %.1f  %s", *row.bar, tally.count(ratio <= *row.bar));
    std::printf("\n");
    if (row.clock == Clock::Wall) {
        printTimes("  the processor's part of it", result, Clock::Processor);
        std::printf("\n");
    }
    if (row.operations > 1)
        printRates(result);
}

void printComparisons(const std::vector<Result> &results, Tally &tally)
{
    if (results.empty())
        return;
    std::printf("\n%-50s  %-26s %-28s %-5s %7s %9s  %s\n", "What is measured", "Ours (median)",
                "Beside it (median)", "Clock", "Ratio", "Of fastest", "Bar");
    for (const Result &result : results)
        printComparison(result, tally);
}

double perCycle(long long before, long long after, int cycles)
{
    return static_cast<double>(after - before) / cycles;
}

void printMemory(const char *what, const Endured &row, long long before, long long after, double noise,
                 Tally &tally)
{
    constexpr double kib = 1024;
    if (before <= 0 || after <= 0) {
        ++tally.unmeasured;
        std::printf("%-24s %-10s NOT MEASURED: the system does not tell\n", row.screen.c_str(), what);
        return;
    }
    const double growth = perCycle(before, after, row.cycles);
    const double bar = row.leftBehind + noise;
    std::printf("%-24s %-10s %11.1f KiB %11.1f KiB %12.3f B  <= %3.0f B  %s\n", row.screen.c_str(), what,
                static_cast<double>(before) / kib, static_cast<double>(after) / kib, growth, bar,
                tally.count(growth <= bar));
}

void printEndured(const std::vector<Endured> &endured, Tally &tally)
{
    if (endured.empty())
        return;
    const Endured &first = endured.front();
    std::printf("\n%-24s %-10s %15s %15s %14s  %s\n", "Opened and destroyed", "Memory",
                ("after " + std::to_string(first.warmUp)).c_str(),
                ("after " + std::to_string(first.warmUp + first.cycles)).c_str(), "per cycle", "Bar");
    for (const Endured &row : endured) {
        const double heapNoise = row.leftBehind > 0 ? mostHeapBrokenUp : mostHeap;
        printMemory("heap", row, row.before.heap, row.after.heap, heapNoise, tally);
        printMemory("resident", row, row.before.resident, row.after.resident, mostResident, tally);
        if (row.leftBehind > 0)
            std::printf("  every cycle is meant to leave %.1f B of that behind\n", row.leftBehind);
    }
}

} // namespace

bool report(const std::vector<Result> &results, const std::vector<Endured> &endured)
{
    Tally tally;
    printComparisons(results, tally);
    printEndured(endured, tally);
    std::printf("\n%d of %d bars met.\n", tally.met, tally.bars);
    if (tally.unmeasured > 0)
        std::printf("%d rows could not be measured.\n", tally.unmeasured);
    return tally.met == tally.bars && tally.unmeasured == 0;
}

} // namespace bench
