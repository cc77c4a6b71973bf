#include "bench/Summary.h"

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
constexpr double nsPerMs = 1e6;
constexpr double million = 1e6;
constexpr double kib = 1024;

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

std::string printed(const char *format, double value)
{
    std::array<char, 48> text{};
    std::snprintf(text.data(), text.size(), format, value);
    return text.data();
}

std::string timeText(double ns)
{
    const auto *unit = std::find_if(units.begin(), units.end(), [ns](const Unit &u) { return ns >= u.ns; });
    unit = unit == units.end() ? std::prev(units.end()) : unit;
    return printed("%.3g ", ns / unit->ns) + unit->name;
}

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

bool isTimed(const Result &result, std::size_t side)
{
    return !result.measured.sides.empty() && !result.measured.sides[side].empty();
}

const char *judge(Summary &summary, bool isMet)
{
    ++summary.bars;
    summary.met += isMet ? 1 : 0;
    return isMet ? "met" : "MISSED";
}

void hold(SideLine &line, double value, const Bar &bar, const char *format, Summary &summary)
{
    line.bar = "<= " + printed(format, bar.most) + ", aim " + printed(format, bar.aim);
    line.met = judge(summary, value <= bar.most);
    if (value <= bar.aim)
        line.met += ", aim";
}

void fillTimes(SideLine &line, const Result &result, std::size_t side)
{
    if (!isTimed(result, side))
        return;
    const Clock clock = result.comparison.clock;
    const std::vector<double> ours = times(result.measured.sides.front(), clock);
    const std::vector<double> its = times(result.measured.sides[side], clock);
    line.time = timeText(median(its));
    line.timeRatio = side == 0 ? clockName(clock)
                               : printed("%.2f", median(ours) / median(its)) +
                                     printed(" (%.2f of fastest)", ours.front() / its.front());
}

SideLine lineOfOurs(const Result &result, Summary &summary)
{
    const Comparison &row = result.comparison;
    SideLine line;
    line.label = row.ours.label;
    if (!result.counts.empty()) {
        const double instructions = result.counts.front().median;
        line.instructions = countText(instructions);
        if (row.millions)
            hold(line, instructions / million, *row.millions, "%.2f M", summary);
    }
    if (row.milliseconds && isTimed(result, 0)) {
        const double ms = median(times(result.measured.sides.front(), Clock::Wall)) / nsPerMs;
        hold(line, ms, *row.milliseconds, "%.0f ms", summary);
    } else if (row.milliseconds) {
        ++summary.unjudged;
    }
    fillTimes(line, result, 0);
    return line;
}

SideLine lineBeside(const Result &result, std::size_t which, Summary &summary)
{
    const Alternative &alternative = result.comparison.beside[which];
    SideLine line;
    line.label = alternative.side.label;
    if (!result.counts.empty()) {
        const double instructions = result.counts[which + 1].median;
        const double ratio = result.counts.front().median / instructions;
        line.instructions = countText(instructions);
        line.ratio = printed("%.2f", ratio);
        if (alternative.bar)
            hold(line, ratio, *alternative.bar, "%.2f", summary);
    }
    fillTimes(line, result, which + 1);
    return line;
}

// Where the iterations of a side differ, its count is worth less.
void noteSpreads(RowLines &lines, const Result &result)
{
    constexpr double noticeable = 0.02;
    for (std::size_t i = 0; i < result.counts.size(); ++i) {
        const Count &count = result.counts[i];
        if (count.most - count.least > noticeable * count.median)
            lines.notes.push_back(lines.sides[i].label + ": from " + countText(count.least) + " to " +
                                  countText(count.most));
    }
}

void noteRates(RowLines &lines, const Result &result)
{
    if (result.comparison.operations == 1)
        return;
    for (std::size_t i = 0; i < result.measured.sides.size(); ++i) {
        const std::vector<double> all = times(result.measured.sides[i], result.comparison.clock);
        if (!all.empty())
            lines.notes.push_back(lines.sides[i].label + ": " + printed("%.0f", nsPerSecond / median(all)) +
                                  " a second");
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

RowLines linesOf(const Result &result, Summary &summary)
{
    RowLines lines{result.comparison.name, errorOf(result), {}, {}};
    if (!lines.error.empty()) {
        ++summary.unmeasured;
        return lines;
    }
    lines.sides.push_back(lineOfOurs(result, summary));
    for (std::size_t i = 0; i < result.comparison.beside.size(); ++i)
        lines.sides.push_back(lineBeside(result, i, summary));
    noteSpreads(lines, result);
    noteRates(lines, result);
    return lines;
}

MemoryLine memoryLine(const char *memory, const Endured &row, long long before, long long after, Summary &summary)
{
    MemoryLine line;
    line.screen = row.screen;
    line.memory = memory;
    if (before <= 0 || after <= 0) {
        ++summary.unmeasured;
        line.met = "NOT MEASURED: the system does not tell";
        return line;
    }
    const double growth = static_cast<double>(after - before) / row.cycles;
    const double bar = row.leftBehind + mostGrowth + (row.leftBehind > 0 ? mostBrokenUp : 0);
    line.before = printed("%.1f KiB", static_cast<double>(before) / kib);
    line.after = printed("%.1f KiB", static_cast<double>(after) / kib);
    line.growth = printed("%.3f B", growth);
    line.bar = printed("<= %.0f B", bar);
    line.met = judge(summary, growth <= bar);
    if (row.leftBehind > 0)
        line.note = printed("every cycle is meant to leave %.1f B behind", row.leftBehind);
    return line;
}

} // namespace

Summary summarize(const std::vector<Result> &results, const std::vector<Endured> &endured)
{
    Summary summary;
    for (const Result &result : results)
        summary.rows.push_back(linesOf(result, summary));
    for (const Endured &row : endured) {
        summary.warmUp = row.warmUp;
        summary.cycles = row.cycles;
        summary.memory.push_back(memoryLine("heap", row, row.before.heap, row.after.heap, summary));
        summary.memory.push_back(memoryLine("resident", row, row.before.resident, row.after.resident, summary));
    }
    return summary;
}

} // namespace bench
