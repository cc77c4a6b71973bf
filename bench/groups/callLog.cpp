// A call log of a million calls beside one of a hundred: asking for a figure, and recording a call.
#include "bench/CallLogs.h"
#include "bench/Counted.h"
#include "bench/Groups.h"
#include "bench/LeanLog.h"
#include "handset/Handset.h"
#include "telephony/tapi.h"
#include "telephony/util.h"

#include <QtCore/QDir>
#include <QtCore/QThread>

#include <array>

namespace bench {

namespace {

using handset::PastCall;

constexpr int few = 100;
constexpr int many = usualLog;
constexpr Bar hardlySlower{1.2, 1.05};

// A batch: so many that SQLite moves its write-ahead log into the database a few times in each, on all sides.
constexpr int recordedCalls = 200;
constexpr int warmUpCalls = 10;
constexpr qint64 callMs = 60'000;
constexpr qint64 callUnits = 6;
constexpr auto number = "+4930555010";

struct Figure {
    const char *name;
    int (*ask)();
};

template <int (*query)(TAPI_CallTime *)>
int askTime()
{
    TAPI_CallTime time = {};
    const int result = query(&time);
    benchmark::DoNotOptimize(time);
    return result;
}

int askDataTotal()
{
    quint32 seconds = 0;
    const int result = UTIL_GetTotalDuration(&seconds);
    benchmark::DoNotOptimize(seconds);
    return result;
}

template <int (*query)(char *)>
int askCost()
{
    std::array<char, TAPI_AMOUNT_TEXT_SIZE> text = {};
    const int result = query(text.data());
    benchmark::DoNotOptimize(text);
    return result;
}

constexpr std::array figures{
    Figure{"last call", &askTime<&TAPI_LOG_GetLastCallTime>},
    Figure{"dialed calls", &askTime<&TAPI_LOG_GetDialedCallsTime>},
    Figure{"answered calls", &askTime<&TAPI_LOG_GetAnsweredCallsTime>},
    Figure{"data calls", &askDataTotal},
    Figure{"all calls", &askTime<&TAPI_CS_GetTotalCallTime>},
    Figure{"lifetime calls", &askTime<&TAPI_LOG_GetLifetimeCallsTime>},
    Figure{"cost of the last call", &askCost<&TAPI_CS_GetLastCallCost>},
    Figure{"cost of dialed calls", &askCost<&TAPI_LOG_GetDialedCallsCost>},
};
static_assert(figures.size() == 8);

// A call as it is made: two transactions, both on the disk when they are over.
int recordCall(const BenchedHandset &benched)
{
    int result = benched.handset->dial(QLatin1StringView(number), handset::CallKind::Voice);
    if (result == 0)
        result = benched.handset->remoteAnswer();
    benched.clock->advance(callMs);
    return result == 0 ? benched.handset->hangUp() : result;
}

void query(benchmark::State &state, const BenchedHandset &benched, int (*ask)())
{
    handset::install(benched.handset);
    int failures = ask();
    for (auto _ : state) {
        const Counted counted;
        failures += ask();
    }
    handset::install(nullptr);
    if (failures != 0)
        state.SkipWithError("a query failed");
}

void record(benchmark::State &state, const BenchedHandset &benched)
{
    int failures = 0;
    for (int i = 0; i < warmUpCalls; ++i)
        failures += recordCall(benched);
    for (auto _ : state) {
        const Counted counted;
        for (int i = 0; i < recordedCalls; ++i)
            failures += recordCall(benched);
    }
    if (failures != 0)
        state.SkipWithError("a call was not recorded");
}

PastCall leanCall(qint64 startWallMs)
{
    return {handset::CallKind::Voice,
            handset::CallDirection::Dialed,
            QLatin1StringView(number),
            startWallMs,
            callMs,
            callUnits};
}

// Records the same calls in both logs. Returns what is not the same then.
QString compare(LeanLog &lean, BenchedHandset &benched)
{
    for (int i = 0; i < warmUpCalls; ++i) {
        if (recordCall(benched) != 0 || !lean.record(leanCall(benched.clock->wallMs() - callMs)))
            return QStringLiteral("a call was not recorded");
    }
    benched.handset.reset();
    return lean.difference(benched.file());
}

void recordLean(benchmark::State &state, CallLogs &logs)
{
    BenchedHandset benched = logs.open(few, false);
    if (!benched.handset)
        return state.SkipWithError(qUtf8Printable(benched.error));
    LeanLog lean(benched.directory->filePath(QStringLiteral("lean.db")), benched.file());
    const QString fault = lean.error().isEmpty() ? compare(lean, benched) : lean.error();
    if (!fault.isEmpty())
        return state.SkipWithError(qUtf8Printable(fault));
    bool isRecorded = true;
    for (auto _ : state) {
        const Counted counted;
        for (int i = 0; i < recordedCalls; ++i) {
            isRecorded = lean.record(leanCall(benched.clock->wallMs())) && isRecorded;
            benched.clock->advance(callMs);
        }
    }
    if (!isRecorded)
        state.SkipWithError("a call was not recorded");
}

using Logs = std::shared_ptr<CallLogs>;

qsizetype threads()
{
    return QDir(QStringLiteral("/proc/self/task")).entryList(QDir::Dirs | QDir::NoDotAndDotDot).size();
}

template <typename Work>
Side side(const Logs &logs, int calls, Work work)
{
    return {calls == many ? "1,000,000 calls" : "100 calls", [logs, calls, work](benchmark::State &state) {
                const qsizetype before = threads();
                // What is recorded makes the small log another one, and nothing of the large one.
                const BenchedHandset benched = logs->open(calls, calls == many);
                if (!benched.handset)
                    return state.SkipWithError(qUtf8Printable(benched.error));
                // The large log is read through beside. As long as that goes on the write-ahead log cannot be emptied,
                // and every write looks for the end of it: how long that is depends on how busy the machine is.
                while (threads() > before)
                    QThread::msleep(1);
                work(state, benched);
            }};
}

QString prepareLogs(const CallLogs &logs)
{
    const QString error = logs.prepare(few);
    return error.isEmpty() ? logs.prepare(many) : error;
}

template <typename Work>
Comparison manyBesideFew(const std::string &name, const Logs &logs, Work work)
{
    Comparison row;
    row.name = name;
    row.ours = side(logs, many, work);
    row.beside = {{side(logs, few, work), hardlySlower}};
    row.prepare = [logs] { return prepareLogs(*logs); };
    return row;
}

Comparison recordingBesideLean(const Logs &logs)
{
    Comparison row;
    row.name = "Recording a call, beside lean SQLite";
    row.ours = side(logs, few, &record);
    row.ours.label = "handset";
    row.beside = {
        {{"C functions of SQLite", [logs](benchmark::State &state) { recordLean(state, *logs); }}, Bar{3, 2}}};
    row.iterations = 1;
    row.operations = recordedCalls;
    row.prepare = [logs] { return logs->prepare(few); };
    return row;
}

} // namespace

std::vector<Comparison> callLogComparisons(const QString &directory)
{
    const auto logs = std::make_shared<CallLogs>(directory);
    std::vector<Comparison> comparisons;
    for (const Figure &figure : figures) {
        const auto work = [&figure](benchmark::State &state, const BenchedHandset &benched) {
            query(state, benched, figure.ask);
        };
        comparisons.push_back(manyBesideFew(std::string("Asking for a figure: ") + figure.name, logs, work));
    }
    Comparison recording = manyBesideFew("Recording a call, on the disk", logs, &record);
    recording.clock = Clock::Wall;
    recording.iterations = 1;
    recording.operations = recordedCalls;
    comparisons.push_back(recording);
    comparisons.push_back(recordingBesideLean(logs));
    return comparisons;
}

} // namespace bench
