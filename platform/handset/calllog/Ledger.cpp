#include "calllog/Ledger.h"

#include "calllog/Finding.h"
#include "calllog/Saturating.h"
#include "handset/Status.h"

#include <algorithm>
#include <array>

namespace handset::calllog {

/// What tells that a kept value was written once, whatever stands there now.
struct Traces {
    bool costs = false;  ///< something was charged
    bool checks = false; ///< a start has written the charging record with its check
};

namespace {

// Whatever else could never be written.
bool isRecordable(const PastCall &call)
{
    return isKnown(call.kind) && isKnown(call.direction);
}

struct Advance {
    qint64 ms = 0;
    quint32 units = 0;
};

// Brings the running call to a moment, with what is charged for it.
Advance advance(Standing &standing, const Moment &to)
{
    if (!standing.call)
        return {};
    RunningCall &call = *standing.call;
    const qint64 passed = call.passedUntil(to);
    const quint32 due = call.dueAfter(passed);
    call.ms = saturatingSum(call.ms, passed);
    call.units += due;
    call.written.goOnUntil(to);
    standing.state.charge(due);
    return {passed, due};
}

/// A kept value that is looked at before anything else is done.
struct KeptPart {
    const char *name;
    bool (*read)(const QByteArray &kept, charging::ChargingState &state);
    QByteArray (*fresh)(const charging::ChargingState &state);
    const char *whatIsNew;
    bool Traces::*isWrittenAfter;
};

constexpr std::array keptParts{
    KeptPart{keptCardName, &charging::readCard,
             [](const charging::ChargingState &state) { return charging::cardRecord(state.card); }, "The SIM card",
             &Traces::costs},
    KeptPart{keptChargingName, &charging::readCharging, &charging::chargingRecord,
             "The record of tariffs and account", &Traces::checks},
};

// Also where it says that nothing was ever written there.
bool isMissing(const KeptPart &part, const QByteArray &content, const Traces &traces)
{
    return content.isNull() || (charging::isNeverWritten(content) && traces.*part.isWrittenAfter);
}

// What had a check is not read without one.
bool read(const KeptPart &part, const QByteArray &content, const Traces &traces, charging::ChargingState &state)
{
    return !(traces.checks && charging::isUnchecked(content)) && part.read(content, state);
}

// The first of "card-kept-1", "card-kept-2", ... that is not in use.
bool findUnusedName(LedgerTables &tables, const QString &name, QString &unused)
{
    QByteArray content("");
    for (int number = 1; !content.isNull(); ++number) {
        unused = QStringLiteral("%1-kept-%2").arg(name).arg(number);
        if (!tables.kept(unused, content))
            return false;
    }
    return true;
}

} // namespace

/// What a transaction writes.
struct Ledger::Entry {
    charging::ChargingState before;
    Standing now;
    Advance passed;
    bool begins = false; ///< the call
    bool isOver = false;
    bool isRowGone = false;
    std::initializer_list<Total> zeroed = {};
};

Ledger::Ledger(std::unique_ptr<Database> opened, std::unique_ptr<StateDirectory> stateDirectory,
               std::shared_ptr<Clock> clocks)
    : directory(std::move(stateDirectory))
    , database(std::move(opened))
    , tables(*database)
    , clock(std::make_unique<SteadyClock>(std::move(clocks)))
{}

Ledger::~Ledger()
{
    callEnd = sessionEnd = {}; // what cannot be written now is lost, and that is told
    if (isConnected())
        endCall();
    else
        writeOwedCall();
    if (isSessionRunning())
        endSession();
    else
        writeOwedSession();
}

int Ledger::changed(int status) const
{
    if (status == Success && onChange)
        onChange();
    return status;
}

// --- opening

int Ledger::find(Traces &traces)
{
    for (const TotalPlace &place : costPlaces) {
        qint64 units = 0;
        if (!tables.totalAt(place.total, callsNow(), units))
            return database->status(false);
        traces.costs = traces.costs || units > 0;
    }
    QByteArray checked;
    if (!tables.kept(QString::fromLatin1(keptChecked), checked))
        return database->status(false);
    traces.checks = !checked.isNull();
    return Success;
}

int Ledger::load(QStringList &notices)
{
    Traces traces;
    if (const int status = find(traces))
        return status;
    charging::ChargingState state;
    bool isRight = true;
    for (const KeptPart &part : keptParts) {
        QByteArray content;
        if (!tables.kept(QString::fromLatin1(part.name), content))
            return database->status(false);
        isRight = isRight && !isMissing(part, content, traces) && read(part, content, traces, state);
    }
    if (!isRight && !database->inTransaction([&] { return putNewInPlaceOf(traces, notices); }))
        notices << QStringLiteral("That could not be written.");
    // Where it cannot be written the next start tries again.
    if (isRight && !traces.checks)
        database->inTransaction([&] { return putChecks(); });
    return Success;
}

// From now on a change of the charging record is found. (It is read anew, as another process may have written it.)
bool Ledger::putChecks()
{
    charging::ChargingState state;
    const QString name = QString::fromLatin1(keptChargingName);
    QByteArray content;
    return tables.kept(name, content) && charging::readCharging(content, state) &&
           tables.put(name, charging::chargingRecord(state)) && tables.put(QString::fromLatin1(keptChecked), "1");
}

// The new ones are written, too, so that this is told once; and what is to be told, in case that this opening fails.
bool Ledger::putNewInPlaceOf(const Traces &traces, QStringList &notices)
{
    const QString keptUntold = QString::fromLatin1(keptNotice);
    QByteArray untold;
    if (!tables.kept(keptUntold, untold))
        return false;
    charging::ChargingState state;
    QStringList all{QString::fromUtf8(untold)};
    for (const KeptPart &part : keptParts) {
        const QString name = QString::fromLatin1(part.name);
        QByteArray content;
        if (!tables.kept(name, content))
            return false;
        const bool isGone = isMissing(part, content, traces);
        if (!isGone && read(part, content, traces, state))
            continue;
        const QString what = QLatin1String(part.whatIsNew);
        QString unused;
        if (!isGone && !(findUnusedName(tables, name, unused) && tables.put(unused, content)))
            return false;
        notices << (isGone ? QStringLiteral("%1 is missing from the call log; a new one was begun.").arg(what)
                           : QStringLiteral(
                                 "%1 could not be read; a new one was begun and the old one kept as \"%2\".")
                                 .arg(what, unused));
        all << notices.constLast();
        if (!tables.put(name, part.fresh(state)))
            return false;
    }
    all.removeAll({});
    return tables.put(keptUntold, all.join(QLatin1Char(' ')).toUtf8());
}

// Who does not record what runs cannot know that it still does, unless that has been written lately: the recorder may
// have ended it and not be able to write that, and where there is none nothing runs.
Moment Ledger::nowFor(bool isOwn) const
{
    Moment moment{clock->monotonicMs(), clock->boot()};
    if (!isOwn)
        moment.reachMs = directory && directory->isRecording() ? 0 : 2 * checkpointIntervalMs;
    return moment;
}

int Ledger::whyNotRecording() const
{
    return directory && directory->isRecording() ? StorageFailed : RecordedElsewhere;
}

bool Ledger::record()
{
    if (recording || (directory && !directory->record()))
        return recording;
    recording = database->inTransaction([&] {
        Standing standing;
        if (!tables.closeInterrupted() || !tables.read(standing))
            return false;
        charging::ChargingState after = standing.state;
        if (after.card.isPin2Entered())
            after.card.powerOff();
        return tables.putState(standing.state, after);
    });
    return recording;
}

void Ledger::noticeIsTold()
{
    database->inTransaction([&] { return tables.put(QString::fromLatin1(keptNotice), QByteArray()); });
}

// --- transactions

// With `end` it writes the end of the call.
template <typename Work>
int Ledger::transact(Work work, RepeatedWrite *end)
{
    int refused = Success;
    Entry entry;
    const bool done = database->inTransaction([&] {
        if (!tables.read(entry.now))
            return false;
        entry.isOver = end != nullptr;
        entry.isRowGone = ownCall && (!entry.now.call || entry.now.call->id != ownCall->id);
        if (entry.isRowGone && !entry.isOver)
            return database->missesRow();
        if (entry.isRowGone)
            entry.now.call = ownCall;
        entry.before = entry.now.state;
        entry.passed = advance(entry.now, callsNow());
        refused = work(entry);
        return refused == Success && write(entry);
    });
    if (refused != Success)
        return refused;
    if (done && (ownCall || entry.begins))
        ownCall = entry.now.call;
    if (done && entry.isRowGone)
        Database::warnOfMissingRow("call");
    return end ? database->status(done, *end) : database->status(done);
}

bool Ledger::write(Entry &entry)
{
    if (entry.now.call) {
        RunningCall &call = *entry.now.call;
        call.mostMs = entry.now.state.longestMs(call.tariff, call.units);
        const CallState state = entry.isOver ? CallState::Finished : CallState::Running;
        const auto &[ms, units] = entry.passed;
        const bool done =
            call.id == 0 ? tables.insert(call) && tables.put(Total::LastTime, 0) && tables.put(Total::LastCost, 0)
                         : (entry.isRowGone || tables.update(call, state)) &&
                               tables.addTime(call.kind, call.direction, ms, true) &&
                               tables.addCost(call.kind, call.direction, units, true);
        if (!done)
            return false;
    }
    return tables.putState(entry.before, entry.now.state) &&
           std::all_of(entry.zeroed.begin(), entry.zeroed.end(),
                       [&](Total total) { return tables.put(total, 0); });
}

// In the order of the calls. What has been written is no longer owed, whatever becomes of the rest.
int Ledger::writeOwedCall()
{
    if (callEnded) {
        if (const int status = transact([](Entry &) { return int{Success}; }, &callEnd))
            return status;
        callEnded.reset();
        ownCall.reset();
    }
    if (unconnected.isEmpty())
        return Success;
    const bool done = database->inTransaction([&] {
        return std::all_of(unconnected.begin(), unconnected.end(), [&](PastCall call) {
            call.durationMs = 0;
            call.units = 0;
            return tables.insert(call, CallState::NotConnected);
        });
    });
    if (done)
        unconnected.clear();
    return database->status(done, callEnd);
}

// --- the call

int Ledger::permits(const PastCall &call)
{
    return ask(
        [&](const Standing &now) { return now.state.permits(now.state.tariffOf(call)) ? Success : NotAllowed; });
}

int Ledger::beginCall(const PastCall &begun)
{
    if (!isRecordable(begun))
        return InvalidArgument;
    if (!record())
        return whyNotRecording();
    if (isConnected())
        return WrongState;
    if (const int status = writeOwedCall())
        return status;
    return transact([&](Entry &entry) {
        const charging::Tariff tariff = entry.now.state.tariffOf(begun);
        if (!entry.now.state.permits(tariff))
            return int{NotAllowed};
        entry.begins = true;
        entry.now.call = RunningCall{0, begun.kind, begun.direction, begun.number, begun.startWallMs,
                                     0, 0,          {nowFor(true)},  {},           tariff};
        return int{Success};
    });
}

int Ledger::endCall()
{
    if (!isConnected())
        return WrongState;
    callEnded = callsNow();
    return writeOwedCall();
}

int Ledger::addUnconnected(const PastCall &call)
{
    if (!isRecordable(call))
        return InvalidArgument;
    unconnected.append(call);
    return writeOwedCall();
}

bool Ledger::putHistory(const QList<PastCall> &calls, Entry &entry)
{
    struct Sum {
        CallKind kind;
        CallDirection direction;
        qint64 ms = 0;
        qint64 units = 0;
    };
    std::array sums{Sum{CallKind::Voice, CallDirection::Dialed}, Sum{CallKind::Voice, CallDirection::Answered},
                    Sum{CallKind::Data, CallDirection::Dialed}};
    PastCall last;
    for (PastCall past : calls) {
        const bool isConnected = past.durationMs > 0;
        past.units = isConnected ? entry.now.state.tariffOf(past).units(charging::CallLeg{past.durationMs, 0}) : 0;
        entry.now.state.charge(static_cast<quint64>(past.units));
        if (!tables.insert(past, isConnected ? CallState::Finished : CallState::NotConnected))
            return false;
        for (Sum &sum : sums) {
            if (ownTime(sum.kind, sum.direction) != ownTime(past.kind, past.direction))
                continue;
            sum.ms = saturatingSum(sum.ms, past.durationMs);
            sum.units = saturatingSum(sum.units, past.units);
        }
        last = isConnected ? past : last;
    }
    for (const Sum &sum : sums)
        if (!tables.addTime(sum.kind, sum.direction, sum.ms, false) ||
            !tables.addCost(sum.kind, sum.direction, sum.units, false))
            return false;
    return entry.now.call || last.durationMs == 0 ||
           (tables.put(Total::LastTime, last.durationMs) && tables.put(Total::LastCost, last.units));
}

int Ledger::addHistory(const QList<PastCall> &calls)
{
    if (!std::all_of(calls.begin(), calls.end(), isRecordable))
        return InvalidArgument;
    if (const int status = writeOwedCall())
        return status;
    return transact([&](Entry &entry) { return database->status(putHistory(calls, entry)); });
}

// --- the session

int Ledger::beginSession(const QByteArray &apn, quint32 sentPerSecond, quint32 receivedPerSecond)
{
    if (!record())
        return whyNotRecording();
    if (isSessionRunning())
        return WrongState;
    if (const int status = writeOwedSession())
        return status;
    SessionRow session{0, apn, {}, true, {nowFor(true)}, sentPerSecond, receivedPerSecond};
    const bool done = database->inTransaction([&] { return tables.insert(session, clock->wallMs()); });
    if (done)
        ownSession = session;
    return changed(database->status(done));
}

int Ledger::endSession()
{
    if (!isSessionRunning())
        return WrongState;
    sessionEnded = sessionsNow();
    const int status = writeOwedSession();
    changed(Success);
    return status;
}

// Brings the row to now; with `end` it writes the end of the session.
int Ledger::transactSession(std::initializer_list<Total> zeroed, RepeatedWrite *end)
{
    std::optional<SessionRow> session;
    bool isRowGone = false;
    const bool done = database->inTransaction([&] {
        if (!tables.running(session))
            return false;
        isRowGone = ownSession && (!session || session->id != ownSession->id);
        if (isRowGone && !end)
            return database->missesRow();
        if (isRowGone)
            session = ownSession;
        if (session) {
            const SessionAmounts before = session->amounts;
            const Moment to = sessionsNow();
            session->amounts = session->amountsAt(to);
            session->written.goOnUntil(to);
            const auto &[ms, sent, received] = session->amounts;
            if (!(isRowGone || tables.update(*session, end ? CallState::Finished : CallState::Running)) ||
                !tables.addToSessions({ms - before.ms, sent - before.sent, received - before.received}))
                return false;
        }
        return std::all_of(zeroed.begin(), zeroed.end(), [&](Total total) { return tables.put(total, 0); });
    });
    if (done && ownSession)
        ownSession = session;
    if (done && isRowGone)
        Database::warnOfMissingRow("packet-data session");
    return end ? database->status(done, *end) : database->status(done);
}

int Ledger::writeOwedSession()
{
    if (!sessionEnded)
        return Success;
    if (const int status = transactSession({}, &sessionEnd))
        return status;
    sessionEnded.reset();
    ownSession.reset();
    return Success;
}

int Ledger::resetSessions(std::initializer_list<Total> zeroed)
{
    if (const int status = writeOwedSession())
        return status;
    return changed(transactSession(zeroed));
}

int Ledger::checkpointSession()
{
    if (const int status = writeOwedSession())
        return status;
    return isSessionRunning() ? transactSession({}) : int{Success};
}

// --- what is asked

int Ledger::figure(Total total, qint64 &value)
{
    return database->status(tables.totalAt(total, callsNow(), value));
}

int Ledger::card(charging::SimCard &card)
{
    Standing written;
    if (!tables.read(written))
        return database->status(false);
    if (callEnded)
        advance(written, *callEnded);
    card = written.state.card;
    return Success;
}

quint32 Ledger::dueUnits()
{
    Standing standing;
    return tables.read(standing) ? advance(standing, callsNow()).units : 0;
}

int Ledger::sessions(int most, QList<SessionRow> &sessions)
{
    if (!tables.recent(most, sessions))
        return database->status(false);
    for (SessionRow &session : sessions)
        session.amounts = session.amountsAt(sessionsNow());
    return Success;
}

int Ledger::sessionTotals(SessionAmounts &amounts)
{
    return database->status(tables.sessionTotalsAt(sessionsNow(), amounts));
}

int Ledger::ask(const std::function<int(const Standing &now)> &look)
{
    Standing standing;
    if (!tables.read(standing))
        return database->status(false);
    advance(standing, callsNow());
    if (callEnded)
        standing.call.reset();
    return look(standing);
}

Standing Ledger::standing()
{
    Standing copy;
    ask([&](const Standing &now) {
        copy = now;
        return int{Success};
    });
    return copy;
}

// --- what is changed

int Ledger::edit(const Change &change, std::initializer_list<Total> zeroed)
{
    if (const int status = writeOwedCall())
        return status;
    return changed(transact([&](Entry &entry) {
        entry.zeroed = zeroed;
        return change(entry.now.state);
    }));
}

int Ledger::reset(std::initializer_list<Total> zeroed)
{
    return edit([](charging::ChargingState &) { return int{Success}; }, zeroed);
}

int Ledger::editCard(const std::function<int(charging::SimCard &card)> &change)
{
    int refused = Success;
    const bool done = database->inTransaction([&] {
        Standing standing;
        if (!tables.read(standing))
            return false;
        charging::ChargingState after = standing.state;
        refused = change(after.card);
        return refused == Success && tables.putState(standing.state, after);
    });
    return changed(refused == Success ? database->status(done) : refused);
}

int Ledger::checkpoint()
{
    if (const int status = writeOwedCall())
        return status;
    return isConnected() ? transact([](Entry &) { return int{Success}; }) : int{Success};
}

} // namespace handset::calllog
