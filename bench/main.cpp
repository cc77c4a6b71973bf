// Measures everything and prints one table. The exit code says whether every bar is met.
#include "bench/CallLogs.h"
#include "bench/Counted.h"
#include "bench/Groups.h"
#include "bench/Instructions.h"
#include "bench/Options.h"
#include "bench/Report.h"
#include "bench/SessionBus.h"

#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtCore/QTemporaryDir>
#include <QtWidgets/QApplication>

#include <cstdio>
#include <cstdlib>

namespace {

// The same picture on every machine, and nobody's settings in it. `home` is a directory for this run alone.
void ownSurroundings(const char *home)
{
    for (const char *name : {"HOME", "XDG_RUNTIME_DIR", "XDG_CONFIG_HOME", "XDG_DATA_HOME"})
        ::setenv(name, home, 1);
    ::setenv("QT_QPA_PLATFORM", "offscreen", 1);
    ::setenv("QT_STYLE_OVERRIDE", "fusion", 1);
    ::setenv("QT_FONT_DPI", "96", 1);
    ::setenv("QT_SCALE_FACTOR", "1", 1);
    ::setenv("LC_ALL", "C.UTF-8", 1);
    ::setenv("LANGUAGE", "C", 1);
    ::setenv("DBUS_SESSION_BUS_ADDRESS", "disabled:", 1);
}

std::vector<bench::Comparison> allComparisons(const bench::Options &options)
{
    std::vector<bench::Comparison> all;
    for (const auto &group : {bench::getterComparisons(), bench::screenComparisons(),
                              bench::overModemComparisons(options.directory), bench::currencyListComparisons(),
                              bench::broadcastComparisons(), bench::coldStartComparisons(options.directory),
                              bench::fanOutComparisons(), bench::callLogComparisons(options.directory),
                              bench::reopeningComparisons(options.directory, options.largestLog),
                              bench::takeOverComparisons(options.directory)})
        all.insert(all.end(), group.begin(), group.end());
    return all;
}

std::vector<bench::Comparison> chosenComparisons(const bench::Options &options)
{
    std::vector<bench::Comparison> chosen;
    for (const bench::Comparison &comparison : allComparisons(options)) {
        if (comparison.name.find(options.only.toStdString()) != std::string::npos)
            chosen.push_back(comparison);
    }
    return chosen;
}

// This process under callgrind, for one side of one row.
int countOneSide(const bench::Options &options)
{
    std::string error = "There is no such row.";
    for (const bench::Comparison &comparison : allComparisons(options)) {
        if (comparison.name != options.countedRow.toStdString())
            continue;
        bench::countsOneThread = comparison.countsOneThread;
        const std::vector<bench::Side> sides = bench::sidesOf(comparison);
        error = bench::runCounted(sides.at(static_cast<std::size_t>(options.countedSide)), comparison.counted);
    }
    if (!error.empty())
        std::fprintf(stderr, "%s\n", error.c_str());
    return error.empty() ? EXIT_SUCCESS : EXIT_FAILURE;
}

// What a row needs is made before anything is measured. Returns what went wrong.
QString prepare(const std::vector<bench::Comparison> &comparisons)
{
    for (const bench::Comparison &comparison : comparisons) {
        const QString error = comparison.prepare ? comparison.prepare() : QString();
        if (!error.isEmpty())
            return error;
    }
    return {};
}

std::vector<bench::Result> measureAll(const std::vector<bench::Comparison> &comparisons,
                                      const bench::CountingPlace &place, int repetitions)
{
    const std::vector<std::vector<bench::Count>> counts = bench::countInstructions(comparisons, place);
    std::vector<bench::Result> results;
    for (const bench::Comparison &comparison : comparisons) {
        bench::Result result{comparison, counts[results.size()], {}};
        if (repetitions > 0) {
            std::fprintf(stderr, "[%zu/%zu] timing: %s\n", results.size() + 1, comparisons.size(),
                         comparison.name.c_str());
            result.measured = bench::measure(comparison, repetitions);
        }
        results.push_back(result);
    }
    return results;
}

int measureEverything(const bench::Options &options, const QString &home)
{
    const std::vector<bench::Comparison> comparisons = chosenComparisons(options);
    if (const QString error = prepare(comparisons); !error.isEmpty()) {
        std::fprintf(stderr, "%s\n", qUtf8Printable(error));
        return EXIT_FAILURE;
    }
    const QString profiles = options.profiles.isEmpty() ? home : options.profiles;
    QDir().mkpath(profiles);
    const std::vector<bench::Result> results =
        measureAll(comparisons, {profiles, options.directory}, options.repetitions);
    std::vector<bench::Endured> endured;
    if (options.cycles > 0)
        endured = bench::endure(options.only.toStdString(), options.cycles);
    if (results.empty() && endured.empty()) {
        std::fprintf(stderr, "Nothing has \"%s\" in its name.\n", qUtf8Printable(options.only));
        return 2;
    }
    const bench::Summary summary = bench::summarize(results, endured);
    bench::print(summary, options.repetitions);
    if (!options.markdown.isEmpty() && !bench::writePage(options.markdown, summary, options.repetitions)) {
        std::fprintf(stderr, "%s cannot be written.\n", qUtf8Printable(options.markdown));
        return EXIT_FAILURE;
    }
    return summary.isGood() ? EXIT_SUCCESS : EXIT_FAILURE;
}

// As above. What is too large to be kept goes with the run.
int measureInRun(const bench::Options &options, const QString &home)
{
    const int result = measureEverything(options, home);
    if (options.largestLog > bench::usualLog)
        bench::CallLogs(options.directory).remove(options.largestLog);
    return result;
}

} // namespace

int main(int argc, char **argv)
{
    const QTemporaryDir home;
    ownSurroundings(QFile::encodeName(home.path()).constData());
    const bench::SessionBus bus(home.path());
    QApplication application(argc, argv);
    QCoreApplication::setApplicationName(QStringLiteral("kavbench"));
    QCoreApplication::setApplicationVersion(QStringLiteral(KAV_VERSION));
    const bench::Options options = bench::readOptions();
    if (!options.crashIn.isEmpty())
        return bench::recordAndCrash(options.crashIn);
    return options.countedRow.isEmpty() ? measureInRun(options, home.path()) : countOneSide(options);
}
