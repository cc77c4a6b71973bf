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

std::string printed(const char *format, double value)
{
    std::array<char, 48> text{};
    std::snprintf(text.data(), text.size(), format, value);
    return text.data();
}

constexpr double million = 1e6;

std::string countText(double instructions)
{
    return instructions >= million / 10 ? printed("%.3f M", instructions / million)
                                        : printed("%.0f", instructions);
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

/// What is printed of one side.
struct Line {
    std::string instructions = "-";
    std::string ratio;
    std::string bar;
    std::string met;
    std::string time;
    std::string timeRatio;
};

void print(const std::string &label, const Line &line)
{
    std::printf("  %-34s %12s %7s  %-22s %-8s %9s  %s\n", label.c_str(), line.instructions.c_str(),
                line.ratio.c_str(), line.bar.c_str(), line.met.c_str(), line.time.c_str(), line.timeRatio.c_str());
}

void hold(Line &line, double value, const Bar &bar, const char *format, Tally &tally)
{
    line.bar = "<= " + printed(format, bar.most) + ", aim " + printed(format, bar.aim);
    line.met = tally.count(value <= bar.most);
    if (value <= bar.aim)
        line.met += ", aim";
}

void fillTimes(Line &line, const Result &result, std::size_t side)
{
    if (result.measured.sides.empty() || result.measured.sides[side].empty())
        return;
    const Clock clock = result.comparison.clock;
    const std::vector<double> ours = times(result.measured.sides.front(), clock);
    const std::vector<double> its = times(result.measured.sides[side], clock);
    line.time = timeText(median(its));
    line.timeRatio = side == 0 ? clockName(clock)
                               : printed("%.2f", median(ours) / median(its)) +
                                     printed(" (%.2f of fastest)", ours.front() / its.front());
}

void printOurs(const Result &result, Tally &tally)
{
    const Comparison &row = result.comparison;
    Line line;
    if (!result.counts.empty()) {
        const double instructions = result.counts.front().median;
        line.instructions = countText(instructions);
        if (row.millions)
            hold(line, instructions / million, *row.millions, "%.2f M", tally);
    }
    fillTimes(line, result, 0);
    print(row.ours.label, line);
}

void printBeside(const Result &result, std::size_t which, Tally &tally)
{
    const Alternative &alternative = result.comparison.beside[which];
    Line line;
    if (!result.counts.empty()) {
        const double instructions = result.counts[which + 1].median;
        const double ratio = result.counts.front().median / instructions;
        line.instructions = countText(instructions);
        line.ratio = printed("%.2f", ratio);
        if (alternative.bar)
            hold(line, ratio, *alternative.bar, "%.2f", tally);
    }
    fillTimes(line, result, which + 1);
    print(alternative.side.label, line);
}

// Where the iterations of a side differ, its count is worth less.
void printSpread(const Count &count, const std::string &label)
{
    constexpr double noticeable = 0.02;
    if (count.most - count.least > noticeable * count.median)
        std::printf("    %s: from %s to %s\n", label.c_str(), countText(count.least).c_str(),
                    countText(count.most).c_str());
}

void printRates(const Result &result)
{
    if (result.comparison.operations == 1)
        return;
    for (std::size_t i = 0; i < result.measured.sides.size(); ++i) {
        const std::vector<double> all = times(result.measured.sides[i], result.comparison.clock);
        if (!all.empty())
            std::printf("    %s: %.0f a second\n", sidesOf(result.comparison)[i].label.c_str(),
                        nsPerSecond / median(all));
    }
}

std::string errorOf(const Result &result)
{
    for (const Count &count : result.counts) {
        if (!count.error.empty())
            return count.error;
    }
    return result.measured.error;
}

void printComparison(const Result &result, Tally &tally)
{
    const Comparison &row = result.comparison;
    std::printf("%s\n", row.name.c_str());
    if (const std::string error = errorOf(result); !error.empty()) {
        ++tally.unmeasured;
        std::printf("  NOT MEASURED: %s\n", error.c_str());
        return;
    }
    printOurs(result, tally);
    for (std::size_t i = 0; i < row.beside.size(); ++i)
        printBeside(result, i, tally);
    for (std::size_t i = 0; i < result.counts.size(); ++i)
        printSpread(result.counts[i], sidesOf(row)[i].label);
    printRates(result);
}

void printComparisons(const std::vector<Result> &results, Tally &tally)
{
    if (results.empty())
        return;
    Line heading{"Instructions", "Ratio", "Bar", "", "Time", "Ratio"};
    std::printf("\n");
    print("", heading);
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
