// A row of the table: something of ours beside what a competent developer would write instead.
#pragma once

#include <benchmark/benchmark.h>

#include <QtCore/QMap>
#include <QtCore/QProcessEnvironment>
#include <QtCore/QStringList>

#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace bench {

/// Which time of a row is told. Processor time leaves out what else the machine does meanwhile; wall time takes in the
/// disk and other processes.
enum class Clock { Processor, Wall };

/// A program whose instructions are counted from its start to its end.
struct Program {
    QString path;
    QStringList arguments;
    QMap<QString, QString> environment; ///< beside what this process has
};

QProcessEnvironment environmentOf(const Program &program);

struct Side {
    std::string label;
    /// A benchmark as Google Benchmark has them. What comes before its loop is not timed and may be run several times;
    /// a side that cannot be measured says why with SkipWithError(). In its loop, Counted marks what counts.
    std::function<void(benchmark::State &)> run;
    /// Where `run` only starts another program: that one, for the instructions.
    std::optional<Program> program = {};
};

/// What decides whether a row is good: a ratio of instructions, millions of them, or milliseconds.
struct Bar {
    double most; ///< is allowed
    double aim;  ///< is wanted; for information
};

struct Alternative {
    Side side;
    std::optional<Bar> bar = {}; ///< for the ratio of ours to it; nothing is for information only
};

struct Comparison {
    std::string name; ///< one of its kind
    Side ours;
    std::vector<Alternative> beside = {};
    std::optional<Bar> millions = {}; ///< of ours alone, in an iteration
    /// Of ours alone, on the wall: where what the kernel and the disk do decides, and a bar far off the usual.
    std::optional<Bar> milliseconds = {};
    Clock clock = Clock::Processor;
    benchmark::IterationCount iterations = 0; ///< of a timed repetition; 0 is as many as it takes to be timed well
    int operations = 1;             ///< of an iteration; where there are many, figures are of one of them
    int counted = 9;                ///< iterations that are counted in instructions
    bool countsInstructions = true; ///< false where another process does the work
    bool countsOneThread = false;   ///< leaves out what other threads of the process do meanwhile
    /// Makes what the row needs and is kept from run to run. Returns what went wrong.
    std::function<QString()> prepare = {};
};

} // namespace bench
