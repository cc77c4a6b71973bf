// The process that records a state directory is killed: how long until another one does.
#include "bench/CallLogs.h"
#include "bench/Groups.h"
#include "handset/Handset.h"

#include <QtCore/QDeadlineTimer>
#include <QtCore/QEventLoop>
#include <QtCore/QProcess>

namespace bench {

namespace {

constexpr Bar withinASecond{1000, 600};
constexpr int callsBefore = 100;
constexpr int takeOverPatienceMs = 60'000;

// The other one does nothing for it but wait, as a window does that nobody touches.
bool waitToRecord(const handset::simulated::SimulatedHandset &other)
{
    QEventLoop events;
    const QDeadlineTimer end(takeOverPatienceMs);
    while (!other.isRecording() && !end.hasExpired())
        events.processEvents(QEventLoop::WaitForMoreEvents);
    return other.isRecording();
}

void takeOver(benchmark::State &state, const CallLogs &logs)
{
    for (auto _ : state) {
        state.PauseTiming();
        const auto where = logs.copy(callsBefore);
        QProcess recorder;
        if (where)
            startCrashing(recorder, where->path());
        BenchedHandset other;
        if (recorder.waitForReadyRead(takeOverPatienceMs))
            other = CallLogs::openIn(where);
        const bool isReady = other.handset && !other.handset->isRecording();
        state.ResumeTiming();
        recorder.kill();
        const bool isTaken = isReady && waitToRecord(*other.handset);
        state.PauseTiming();
        recorder.waitForFinished(takeOverPatienceMs);
        if (!isTaken)
            return state.SkipWithError("nobody records");
        other = {};
        state.ResumeTiming();
    }
}

} // namespace

std::vector<Comparison> takeOverComparisons(const QString &directory)
{
    const CallLogs logs(directory);
    Comparison row;
    row.name = "Who records is killed in a call: until another process does";
    row.ours = {"killed", [logs](benchmark::State &state) { takeOver(state, logs); }};
    row.milliseconds = withinASecond;
    row.clock = Clock::Wall;
    row.iterations = 1;
    row.countsInstructions = false; // nothing is done but waiting
    row.prepare = [logs] { return logs.prepare(callsBefore); };
    return {row};
}

} // namespace bench
