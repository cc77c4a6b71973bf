// kavbench_scale DIRECTORY [CALLS [SESSIONS]]: a call log far beyond what anybody has, ten million calls and a hundred
// thousand data sessions unless it is told otherwise, and how long it is waited for. Prints a table, a row for each work.
#include "bench/CallLogs.h"
#include "calllog/CallFigures.h"
#include "calllog/Listing.h"
#include "calllog/OpenLedger.h"
#include "calllog/PacketFigures.h"
#include "handset/Status.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QDate>
#include <QtCore/QDateTime>
#include <QtCore/QDir>
#include <QtCore/QFileInfo>
#include <QtCore/QMap>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <functional>
#include <limits>
#include <vector>

using namespace handset;

namespace bench {

namespace {

constexpr int pageRows = 50;

using Work = std::function<bool(int i)>;

void tell(const char *what, const QString &result)
{
    std::printf("| %s | %s |\n", what, qUtf8Printable(result));
    std::fflush(stdout);
}

QString inWords(double seconds)
{
    constexpr double perMs = 1e3;
    constexpr double perUs = 1e6;
    if (seconds >= 1)
        return QStringLiteral("%1 s").arg(seconds, 0, 'f', 1);
    return seconds * perMs >= 1 ? QStringLiteral("%1 ms").arg(seconds * perMs, 0, 'f', 2)
                                : QStringLiteral("%1 us").arg(seconds * perUs, 0, 'f', 1);
}

// The median of so many times, on the wall; ends the program where it does not succeed.
void measure(const char *what, int times, const Work &work)
{
    std::vector<double> seconds;
    for (int i = 0; i < times; ++i) {
        const auto begun = std::chrono::steady_clock::now();
        if (!work(i)) {
            std::fprintf(stderr, "%s: failed\n", what);
            std::exit(EXIT_FAILURE);
        }
        seconds.push_back(std::chrono::duration<double>(std::chrono::steady_clock::now() - begun).count());
    }
    std::sort(seconds.begin(), seconds.end());
    const QString slowest = QStringLiteral(", the slowest of %1 %2").arg(times).arg(inWords(seconds.back()));
    tell(what, inWords(seconds[seconds.size() / 2]) + (times > 1 ? slowest : QString()));
}

calllog::Period monthOf(QDate first)
{
    return {first.startOfDay(Qt::UTC).toMSecsSinceEpoch(),
            first.addMonths(1).startOfDay(Qt::UTC).toMSecsSinceEpoch()};
}

// Durations of a month's calls, dialed and answered; true where there are some.
bool sumOf(calllog::Ledger &ledger, QDate first)
{
    QList<calllog::ListedCall> calls;
    if (calllog::listCalls(ledger, monthOf(first), calls) != Success)
        return false;
    qint64 ms[2] = {};
    for (const calllog::ListedCall &listed : calls)
        ms[listed.call.direction == CallDirection::Dialed ? 0 : 1] += listed.call.durationMs;
    return ms[0] > 0 && ms[1] > 0;
}

bool sumOfEveryMonth(calllog::Ledger &ledger, qint64 least)
{
    constexpr int rows = 10'000;
    QMap<int, qint64> ms; // by the number of the month
    qint64 before = std::numeric_limits<qint64>::max();
    qint64 count = 0;
    QList<calllog::ListedCall> calls;
    do {
        if (calllog::newestCalls(ledger, before, rows, calls) != Success)
            return false;
        for (const calllog::ListedCall &listed : calls) {
            const QDateTime start = QDateTime::fromMSecsSinceEpoch(listed.call.startWallMs, Qt::UTC);
            ms[start.date().year() * 12 + start.date().month()] += listed.call.durationMs;
            before = listed.id;
        }
        count += calls.size();
    } while (!calls.isEmpty());
    return count >= least && ms.size() > 1;
}

bool askAll(calllog::Ledger &ledger)
{
    calllog::CallFigures figures(ledger);
    CallTime time;
    QByteArray text;
    quint32 seconds = 0;
    return figures.lastCallTime(time) + figures.dialedCallsTime(time) + figures.answeredCallsTime(time) +
               figures.lifetimeCallsTime(time) + figures.totalCallTime(time) + figures.totalDuration(seconds) +
               figures.lastCallCost(text) + figures.dialedCallsCost(text) + figures.answeredCallsCost(text) ==
           Success;
}

bool recordCall(calllog::Ledger &ledger, ManualClock &clock)
{
    qint64 id = 0;
    PastCall call{CallKind::Voice, CallDirection::Dialed, QStringLiteral("+4930555010")};
    call.startWallMs = clock.wallMs();
    if (ledger.beginCall(call, id) != Success)
        return false;
    clock.advance(60'000);
    return ledger.endCall(id) == Success;
}

bool readPage(calllog::Ledger &ledger, qint64 before)
{
    QList<calllog::ListedCall> calls;
    return calllog::newestCalls(ledger, before, pageRows, calls) == Success && calls.size() == pageRows;
}

std::shared_ptr<ManualClock> laterClock()
{
    return std::make_shared<ManualClock>(QDate(2300, 1, 1).startOfDay(Qt::UTC).toMSecsSinceEpoch());
}

void measureCalls(const QString &directory, int calls)
{
    const CallLogs logs(directory);
    measure("Writing the log", 1, [&](int) { return logs.prepare(calls).isEmpty(); });
    const auto where = logs.copy(calls);
    const auto clock = laterClock();
    calllog::OpenedLedger opened;
    measure("Opening it", 5, [&](int) {
        opened = {};
        opened = calllog::openLedger(where->path(), clock);
        return opened.ledger && opened.notice.isEmpty();
    });
    calllog::Ledger &ledger = *opened.ledger;
    tell("Its size",
         QStringLiteral("%1 MB").arg(QFileInfo(where->filePath(QLatin1StringView(logName))).size() >> 20));
    measure("Asking for nine figures", 1000, [&](int) { return askAll(ledger); });
    measure("Recording a call, on the disk", 200, [&](int) { return recordCall(ledger, *clock); });
    measure("The newest 50 calls", 1000,
            [&](int) { return readPage(ledger, std::numeric_limits<qint64>::max()); });
    measure("50 calls from the middle", 1000, [&](int i) { return readPage(ledger, calls / 2 + i); });
    // 96 calls are made a day.
    const QDate middle = QDate(2006, 1, 1).addDays(calls / 2 / 96);
    const QDate first(middle.year(), middle.month(), 1);
    measure("The totals of a month", 5, [&](int i) { return sumOf(ledger, first.addMonths(i)); });
    measure("The totals of every month, page by page", 1, [&](int) { return sumOfEveryMonth(ledger, calls); });
}

void measureSessions(const QString &directory, int sessions)
{
    const QTemporaryDir where(directory + QStringLiteral("/sessions-XXXXXX"));
    const auto clock = laterClock();
    calllog::OpenedLedger opened = calllog::openLedger(where.path(), clock);
    const Work session = [&](int) {
        qint64 id = 0;
        if (opened.ledger->beginSession(QByteArrayLiteral("internet"), 1000, 10'000, id) != Success)
            return false;
        clock->advance(5'000);
        return opened.ledger->endSession(id) == Success;
    };
    measure("A data session, on the disk", sessions, session);
    measure("Opening the log of them", 5, [&](int) {
        opened = {};
        opened = calllog::openLedger(where.path(), clock);
        return opened.ledger && opened.notice.isEmpty();
    });
    measure("The three records and the totals of them", 1000, [&](int) {
        calllog::PacketFigures packets(*opened.ledger);
        DataSessions records;
        CallTime duration;
        quint32 bytes[3] = {};
        return packets.sessions(records) + packets.totalDuration(duration) +
                       packets.totalBytes(bytes[0], bytes[1], bytes[2]) ==
                   Success &&
               records.count == 3;
    });
    measure("A data session more, on the disk", 200, session);
    QList<calllog::ListedSession> listed;
    measure("All of them as a list", 1, [&](int) {
        return calllog::listSessions(*opened.ledger, {}, listed) == Success && listed.size() == sessions + 200;
    });
}

} // namespace

} // namespace bench

int main(int argc, char **argv)
{
    const QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.size() < 2 || !QDir().mkpath(arguments[1])) {
        std::fprintf(stderr, "usage: kavbench_scale DIRECTORY [CALLS [SESSIONS]]\n");
        return 2;
    }
    const int calls = arguments.value(2, QString::number(bench::largeLog)).toInt();
    const int sessions = arguments.value(3, QStringLiteral("100000")).toInt();
    std::printf("| %d calls, %d data sessions | Time |\n|---|---|\n", calls, sessions);
    bench::measureCalls(arguments[1], calls);
    bench::measureSessions(arguments[1], sessions);
    if (calls == bench::largeLog)
        bench::CallLogs(arguments[1]).remove(calls);
}
