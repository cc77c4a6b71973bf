// A file in the place of the call log, of whatever kind: it is used, or replaced, or an error is told; and what is in use
// then can be read and written.
#include "fuzz/Fuzz.h"

#include "calllog/CallFigures.h"
#include "calllog/OpenLedger.h"
#include "calllog/PacketFigures.h"
#include "handset/Status.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QFile>
#include <QtCore/QTemporaryDir>

using namespace handset;

namespace {

class StandingClock final : public Clock
{
public:
    qint64 monotonicMs() const override { return 1'000; }
    qint64 wallMs() const override { return 1'700'000'000'000; }
    QByteArray boot() const override { return QByteArrayLiteral("fuzz"); }
};

void use(calllog::Ledger &ledger)
{
    calllog::CallFigures figures(ledger);
    CallTime time;
    QByteArray text;
    figures.lastCallTime(time);
    figures.lifetimeCallsTime(time);
    figures.allCallsCost(text);
    figures.remainingCredit(text);
    DataSessions sessions;
    calllog::PacketFigures packets(ledger);
    packets.sessions(sessions);
    REQUIRE(sessions.count <= sessions.records.size());
    qint64 before = 0;
    qint64 after = 0;
    if (ledger.figure(calllog::Total::LifetimeTime, before) != Success)
        return;
    PastCall call{CallKind::Voice, CallDirection::Dialed, QStringLiteral("1")};
    call.durationMs = 1'000;
    if (ledger.addHistory({call}, calllog::Charge::Measured) != Success)
        return;
    REQUIRE(ledger.figure(calllog::Total::LifetimeTime, after) == Success);
    REQUIRE(after > before || after == std::numeric_limits<qint64>::max());
}

QByteArray soundLog()
{
    const QTemporaryDir place;
    const QString folder = place.path() + QStringLiteral("/sound");
    {
        const auto opened = calllog::openLedger(folder, std::make_shared<StandingClock>());
        REQUIRE(opened.ledger);
        use(*opened.ledger);
    }
    QFile file(folder + QStringLiteral("/calllog.db"));
    REQUIRE(file.open(QIODevice::ReadOnly));
    return file.readAll();
}

// The bytes say what is changed in a sound log: where, and what stands there then. A whole log in the corpus would be
// what a fuzzer changes most of to no effect.
QByteArray changed(QByteArrayView bytes)
{
    static const QByteArray sound = soundLog();
    QByteArray log = sound;
    Taker taker(bytes);
    while (!taker.isAtEnd()) {
        const qsizetype page = taker.byte() % 16 * qsizetype{4096};
        const qsizetype at = page + taker.number<quint16>() % 4096;
        const QByteArray put = taker.text(64);
        if (at + put.size() <= log.size())
            log.replace(at, put.size(), put);
        else if (put.isEmpty())
            log.truncate(at);
    }
    return log;
}

} // namespace

void tryBytes(QByteArrayView bytes)
{
    static int count = 1;
    static char program[] = "database";
    static char *names[] = {program, nullptr};
    static const QCoreApplication application(count, names);
    const QTemporaryDir place(QStringLiteral("/dev/shm/kav-fuzz-XXXXXX"));
    REQUIRE(place.isValid());
    {
        QFile file(place.filePath(QStringLiteral("calllog.db")));
        REQUIRE(file.open(QIODevice::WriteOnly));
        const bool isWhole = !bytes.isEmpty() && bytes.front() == 'S';
        file.write(isWhole ? bytes.toByteArray() : changed(bytes));
    }
    const auto opened = calllog::openLedger(place.path(), std::make_shared<StandingClock>());
    REQUIRE(opened.ledger || !opened.error.isEmpty());
    if (opened.ledger)
        use(*opened.ledger);
}
