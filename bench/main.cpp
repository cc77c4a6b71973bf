// Measures everything and prints one table. The exit code says whether every bar is met.
#include "Groups.h"
#include "Options.h"
#include "Report.h"
#include "SessionBus.h"

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

std::vector<bench::Comparison> chosenComparisons(const bench::Options &options)
{
    std::vector<bench::Comparison> chosen;
    for (const auto &group : {bench::getterComparisons(), bench::currencyComparisons(), bench::screenComparisons(),
                              bench::currencyListComparisons(), bench::broadcastComparisons(),
                              bench::callLogComparisons(options.directory)})
        for (const bench::Comparison &comparison : group)
            if (comparison.name.find(options.only.toStdString()) != std::string::npos)
                chosen.push_back(comparison);
    return chosen;
}

std::vector<bench::Result> measureAll(const bench::Options &options)
{
    const std::vector<bench::Comparison> comparisons = chosenComparisons(options);
    std::vector<bench::Result> results;
    for (const bench::Comparison &comparison : comparisons) {
        std::fprintf(stderr, "[%zu/%zu] %s\n", results.size() + 1, comparisons.size(), comparison.name.c_str());
        results.push_back({comparison, bench::measure(comparison, options.repetitions)});
    }
    return results;
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
    const std::vector<bench::Result> results = measureAll(options);
    std::vector<bench::Endured> endured;
    if (options.cycles > 0)
        endured = bench::endure(options.only.toStdString(), options.cycles);
    if (results.empty() && endured.empty()) {
        std::fprintf(stderr, "Nothing has \"%s\" in its name.\n", qUtf8Printable(options.only));
        return 2;
    }
    std::printf("Each side %d times, taking turns.\n", options.repetitions);
    return bench::report(results, endured) ? EXIT_SUCCESS : EXIT_FAILURE;
}
