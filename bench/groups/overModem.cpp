// The telephones over a modem: opening a screen beside the simulated one, and a call from the daemon's signals to the disk.
#include "bench/FixedHandset.h"
#include "bench/Groups.h"
#include "bench/PluginScreen.h"
#include "bench/Telephone.h"

namespace bench {

namespace {

constexpr Bar barBesideSimulation{1.1, 1.02};
constexpr qint64 secondMs = 1'000;
constexpr qint64 wholeCallMs = 60'000;

const char *labelOf(Telephone::Kind kind)
{
    switch (kind) {
    case Telephone::Kind::Simulated:
        return "simulated";
    case Telephone::Kind::Ofono:
        return "oFono";
    case Telephone::Kind::ModemManager:
        return "ModemManager";
    }
    return "";
}

// A call is on, whose time is another at each opening.
Side openingOver(Telephone::Kind kind, const ScreenEntry &entry, const QString &directory)
{
    return {labelOf(kind), [=, &entry](benchmark::State &state) {
                const std::unique_ptr<Telephone> telephone = Telephone::make(kind, directory);
                if (!telephone || !telephone->connectCall())
                    return state.SkipWithError("there is no telephone with a call");
                const Figures figures{
                    [&] { handset::install(telephone->handset()); },
                    [&] { telephone->clock().advance(secondMs); },
                };
                // Without advice of charge there are no figures of the set-up.
                const bool hasTexts = kind != Telephone::Kind::ModemManager;
                const auto make = [&, hasTexts](QWidget *display) {
                    return std::make_unique<PluginScreen>(entry, display, hasTexts);
                };
                openingSide(make, figures)(state);
                handset::install(nullptr);
            }};
}

Comparison openingRow(Telephone::Kind kind, const ScreenEntry &entry, const QString &directory)
{
    Comparison row;
    row.name = std::string("Opening ") + entry.name + " over " + labelOf(kind) + ", to the first whole paint";
    row.ours = openingOver(kind, entry, directory);
    row.beside = {{openingOver(Telephone::Kind::Simulated, entry, directory), barBesideSimulation}};
    row.countsOneThread = true; // that of the bus has nothing to do
    row.prepare = [directory] { return Telephone::prepare(directory); };
    return row;
}

Side recordingOver(Telephone::Kind kind, const QString &directory)
{
    return {labelOf(kind), [=](benchmark::State &state) {
                const std::unique_ptr<Telephone> telephone = Telephone::make(kind, directory);
                bool isRecorded = telephone && telephone->connectCall() && telephone->endCall();
                for (auto _ : state) {
                    isRecorded = isRecorded && telephone->connectCall();
                    if (telephone)
                        telephone->clock().advance(wholeCallMs);
                    isRecorded = isRecorded && telephone->endCall();
                }
                if (!isRecorded)
                    state.SkipWithError("a call was not recorded");
            }};
}

Comparison recordingRow(Telephone::Kind kind, const QString &directory)
{
    Comparison row;
    row.name = std::string("Recording a call, from the signals of ") + labelOf(kind) + " to the rows on the disk";
    row.ours = recordingOver(kind, directory);
    row.beside = {{recordingOver(Telephone::Kind::Simulated, directory)}};
    row.countsInstructions = false; // the bus does much of it
    row.clock = Clock::Wall;
    row.prepare = [directory] { return Telephone::prepare(directory); };
    return row;
}

} // namespace

std::vector<Comparison> overModemComparisons(const QString &directory)
{
    std::vector<Comparison> comparisons;
    for (const auto kind : {Telephone::Kind::Ofono, Telephone::Kind::ModemManager}) {
        for (const ScreenEntry &entry : screenTable())
            comparisons.push_back(openingRow(kind, entry, directory));
        comparisons.push_back(recordingRow(kind, directory));
    }
    return comparisons;
}

} // namespace bench
