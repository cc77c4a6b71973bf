#include "calllog/Ledger.h"

#include "calllog/CheckBeside.h"
#include "calllog/Finding.h"
#include "calllog/Saturating.h"
#include "handset/Status.h"

#include <QtCore/QMetaObject>

#include <algorithm>
#include <array>
#include <cerrno>
#include <utility>

namespace handset::calllog {

/// What tells that a kept value was written once, whatever stands there now.
struct Traces {
    bool card = false;   ///< a start has written the card, or something was charged
    bool checks = false; ///< a start has written the charging record with its check
    bool both = false;   ///< the card and the charging record
};

namespace {

// Whatever else could never be written.
bool isRecordable(const PastCall &call)
{
    return isKnown(call.kind) && isKnown(call.direction);
}

template <typename Rows>
auto rowOf(Rows &rows, qint64 id)
{
    return std::find_if(rows.begin(), rows.end(), [id](const auto &row) { return row.id == id; });
}

template <typename Owns>
auto ownOf(Owns &own, qint64 id)
{
    return std::find_if(own.begin(), own.end(), [id](const auto &one) { return one.row.id == id; });
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
             &Traces::card},
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
    QList<qint64> gone; ///< calls whose rows somebody has removed
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
    check.reset();
    forgetNotice();
    callEnd = sessionEnd = {}; // what cannot be written now is lost, and that is told
    const auto endAll = [this](auto &own) {
        for (auto &one : own)
            if (!one.ended)
                end(own, one.row.id);
    };
    endAll(ownCalls);
    writeOwedCall();
    const bool endsSession = isSessionRunning();
    endAll(ownSessions);
    writeOwedSession();
    if (endsSession)
        changed(Success);
}

void Ledger::readThrough(const QString &file, const std::function<void(const QString &)> &tell)
{
    check = std::make_unique<CheckBeside>(*database, file, tell);
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
    // As written: what is due on a running call comes to the costs and to the card together, and is on neither yet.
    const std::optional<qint64> units = database->number(QStringLiteral("SELECT max(units) FROM costs"));
    if (!units)
        return database->status(false);
    QByteArray checked;
    if (!tables.kept(QString::fromLatin1(keptChecked), checked))
        return database->status(false);
    traces.checks = !checked.isNull();
    traces.both = checked == bothChecked;
    traces.card = traces.both || *units > 0;
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
    // Where it cannot be written the next start tries again; of what is in memory only there is none. (A new card's codes
    // take their time.)
    if (isRight && !traces.both && directory)
        database->inTransaction([&] { return putChecks(); });
    return Success;
}

// From now on each is there whole, and a change of it is found. (They are read anew, as another process may have written
// them.)
bool Ledger::putChecks()
{
    charging::ChargingState state;
    for (const KeptPart &part : keptParts) {
        const QString name = QString::fromLatin1(part.name);
        QByteArray content;
        if (!tables.kept(name, content) || !part.read(content, state) || !tables.put(name, part.fresh(state)))
            return false;
    }
    return tables.put(QString::fromLatin1(keptChecked), bothChecked);
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

// A reader trusts a running row for 10 s after the recorder's last write: that may have ended it and be unable to write that.
// Where there is no recorder nothing runs.
template <typename Row>
Moments Ledger::momentsOf(const QList<Own<Row>> &own) const
{
    Moments moments{{clock->monotonicMs(), clock->boot()}, {}};
    if (!recording)
        moments.now.reachMs = directory && directory->isRecording() ? 0 : trustedMs;
    for (const Own<Row> &one : own)
        if (one.ended)
            moments.ends.append({one.row.id, *one.ended});
    return moments;
}

// Now; false where none runs with that id.
template <typename Row>
bool Ledger::end(QList<Own<Row>> &own, qint64 id)
{
    const auto ends = ownOf(own, id);
    if (ends == own.end() || ends->ended)
        return false;
    ends->ended = momentsOf(own).now;
    return true;
}

// Adds own rows that somebody has deleted: ended ones are counted without a row; at an end others wait for their own.
template <typename Row>
bool Ledger::takeOwn(const QList<Own<Row>> &own, QList<Row> &rows, QList<qint64> &gone, bool isEnd)
{
    for (const Own<Row> &one : own) {
        if (rowOf(rows, one.row.id) != rows.end())
            continue;
        if (!one.ended && !isEnd)
            return database->missesRow();
        if (one.ended) {
            rows.append(one.row);
            gone.append(one.row.id);
        }
    }
    return true;
}

template <typename Row>
void Ledger::refresh(QList<Own<Row>> &own, const QList<Row> &written)
{
    for (Own<Row> &one : own)
        if (const auto row = rowOf(written, one.row.id); row != written.end())
            one.row = *row;
}

int Ledger::whyNotRecording() const
{
    return isRecordedElsewhere ? RecordedElsewhere : StorageFailed;
}

bool Ledger::record()
{
    if (recording)
        return true;
    const int error = directory ? directory->record() : 0;
    isRecordedElsewhere = error == EWOULDBLOCK;
    if (error != 0)
        return database->fail(inFile(directory->filePath({}), blocked(error).reason));
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

// A process that is killed before anybody could read it has told nobody.
void Ledger::noticeIsTold()
{
    isNoticeTold = true;
    QMetaObject::invokeMethod(
        &here, [this] { forgetNotice(); }, Qt::QueuedConnection);
}

void Ledger::forgetNotice()
{
    if (std::exchange(isNoticeTold, false))
        database->inTransaction([&] { return tables.put(QString::fromLatin1(keptNotice), QByteArray()); });
}

// --- transactions

template <typename Work>
int Ledger::transact(Work work, RepeatedWrite *end)
{
    Entry entry;
    return transact(entry, work, end);
}

// With `end` it writes the ends that are owed.
template <typename Work>
int Ledger::transact(Entry &entry, Work work, RepeatedWrite *end)
{
    int refused = Success;
    const bool done = database->inTransaction([&] {
        if (!tables.read(entry.now) || !takeOwn(ownCalls, entry.now.calls, entry.gone, end != nullptr))
            return false;
        entry.before = entry.now.state;
        const Moments moments = momentsOf(ownCalls);
        for (RunningCall &call : entry.now.calls)
            call.advance(moments.of(call.id), entry.now.state);
        refused = work(entry);
        return refused == Success && write(entry);
    });
    if (refused != Success)
        return refused;
    if (done)
        refresh(ownCalls, entry.now.calls);
    if (done && !entry.gone.isEmpty())
        Database::warnOfMissingRow("call");
    return end ? database->status(done, *end) : database->status(done);
}

bool Ledger::write(Entry &entry)
{
    for (RunningCall &call : entry.now.calls)
        if (!writeCall(call, entry))
            return false;
    return tables.putState(entry.before, entry.now.state) &&
           std::all_of(entry.zeroed.begin(), entry.zeroed.end(),
                       [&](Total total) { return tables.put(total, 0); });
}

bool Ledger::writeCall(RunningCall &call, const Entry &entry)
{
    call.mostMs =
        call.charge == Charge::Limited ? entry.now.state.longestMs(call.tariff, call.units) : std::nullopt;
    const auto own = ownOf(ownCalls, call.id);
    const CallState state = own != ownCalls.end() && own->ended ? CallState::Finished : CallState::Running;
    if (call.id == 0)
        return tables.insert(call) && tables.put(Total::LastTime, 0) && tables.put(Total::LastCost, 0) &&
               (call.newMs == 0 || tables.addTime(call.kind, call.direction, call.newMs, true));
    return (entry.gone.contains(call.id) || tables.update(call, state)) &&
           tables.addTime(call.kind, call.direction, call.newMs, call.isLast) &&
           tables.addCost(call.kind, call.direction, call.newUnits, call.isLast);
}

// In the order of the calls. What has been written is no longer owed, whatever becomes of the rest.
int Ledger::writeOwedCall()
{
    if (isAnyOver(ownCalls)) {
        if (const int status = transact([](Entry &) { return int{Success}; }, &callEnd))
            return status;
        ownCalls.removeIf([](const Own<RunningCall> &one) { return one.ended.has_value(); });
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

int Ledger::beginCall(const PastCall &begun, qint64 &id, Charge charge)
{
    if (!isRecordable(begun) || begun.durationMs < 0)
        return InvalidArgument;
    if (!record())
        return whyNotRecording();
    if (const int status = writeOwedCall())
        return status;
    RunningCall call;
    call.kind = begun.kind;
    call.direction = begun.direction;
    call.number = begun.number;
    call.startWallMs = begun.startWallMs;
    call.ms = call.newMs = begun.durationMs;
    call.charge = charge;
    call.isLate = begun.isLate;
    Entry entry;
    const int status = transact(
        entry,
        [&](Entry &) {
            call.tariff = entry.now.state.tariffOf(begun);
            if (charge == Charge::Limited && !entry.now.state.permits(call.tariff))
                return int{NotAllowed};
            for (RunningCall &other : entry.now.calls)
                other.isLast = false;
            call.written.goOnUntil(momentsOf(ownCalls).now);
            entry.now.calls.append(call);
            return int{Success};
        },
        nullptr);
    if (status == Success) {
        ownCalls.append({entry.now.calls.constLast()});
        id = entry.now.calls.constLast().id;
    }
    return status;
}

int Ledger::endCall(qint64 id)
{
    return end(ownCalls, id) ? writeOwedCall() : int{WrongState};
}

int Ledger::setUnits(qint64 id, quint32 units)
{
    if (const int status = writeOwedCall())
        return status;
    return transact([&](Entry &entry) {
        const auto call = rowOf(entry.now.calls, id);
        if (call == entry.now.calls.end()) {
            bool isFound = false;
            const bool done = tables.raiseUnits(id, units, isFound);
            return done && !isFound ? int{WrongState} : database->status(done);
        }
        if (call->charge != Charge::Measured)
            return int{WrongState};
        call->newUnits = std::max(units, call->units) - call->units;
        call->units += call->newUnits;
        return int{Success};
    });
}

int Ledger::counted(const PastCall &call, qint64 sinceWallMs, Counted &counted)
{
    return database->status(tables.counted(call, sinceWallMs, counted));
}

int Ledger::addUnconnected(const PastCall &call)
{
    if (!isRecordable(call))
        return InvalidArgument;
    unconnected.append(call);
    return writeOwedCall();
}

bool Ledger::putHistory(const QList<PastCall> &calls, Charge charge, Entry &entry, qint64 &lastRow)
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
        if (!isConnected)
            past.units = 0;
        else if (charge != Charge::Measured)
            past.units = entry.now.state.tariffOf(past).units(charging::CallLeg{past.durationMs, 0});
        if (charge != Charge::Measured)
            entry.now.state.charge(static_cast<quint64>(past.units));
        if (!tables.insert(past, isConnected ? CallState::Finished : CallState::NotConnected))
            return false;
        lastRow = database->lastInsertId();
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
    return !entry.now.calls.isEmpty() || last.durationMs == 0 ||
           (tables.put(Total::LastTime, last.durationMs) && tables.put(Total::LastCost, last.units));
}

int Ledger::addHistory(const QList<PastCall> &calls, Charge charge, qint64 *lastRow)
{
    if (!std::all_of(calls.begin(), calls.end(), isRecordable))
        return InvalidArgument;
    if (const int status = writeOwedCall())
        return status;
    qint64 row = 0;
    const int status =
        transact([&](Entry &entry) { return database->status(putHistory(calls, charge, entry, row)); });
    if (lastRow && status == Success)
        *lastRow = row;
    return status;
}

// --- sessions

int Ledger::beginSession(const QByteArray &apn, quint32 sentPerSecond, quint32 receivedPerSecond, qint64 &id,
                         const SessionAmounts &before)
{
    if (before.ms < 0 || before.sent < 0 || before.received < 0)
        return InvalidArgument;
    if (!record())
        return whyNotRecording();
    if (const int status = writeOwedSession())
        return status;
    SessionRow session{0, apn, before, true, {}, sentPerSecond, receivedPerSecond};
    session.written.goOnUntil(momentsOf(ownSessions).now);
    const bool done = database->inTransaction([&] {
        const bool isNew = before.ms == 0 && before.sent == 0 && before.received == 0;
        return tables.insert(session, clock->wallMs() - before.ms) && (isNew || tables.addToSessions(before));
    });
    if (done) {
        ownSessions.append({session});
        id = session.id;
    }
    return changed(database->status(done));
}

int Ledger::endSession(qint64 id, qint64 sent, qint64 received)
{
    if (!end(ownSessions, id))
        return WrongState;
    ownOf(ownSessions, id)->more = {0, std::max<qint64>(sent, 0), std::max<qint64>(received, 0)};
    const int status = writeOwedSession();
    changed(Success);
    return status;
}

int Ledger::addBytes(qint64 id, qint64 sent, qint64 received)
{
    const auto session = ownOf(ownSessions, id);
    if (session == ownSessions.end() || session->ended)
        return WrongState;
    if (const int status = writeOwedSession())
        return status;
    ownOf(ownSessions, id)->more = {0, std::max<qint64>(sent, 0), std::max<qint64>(received, 0)};
    const int status = transactSessions({});
    ownOf(ownSessions, id)->more = {};
    return status;
}

int Ledger::counted(const QByteArray &apn, qint64 sinceWallMs, qint64 startWallMs, SessionAmounts &amounts)
{
    return database->status(tables.counted(apn, sinceWallMs, startWallMs, amounts));
}

// Brings the rows to now, own ones by what they have come to beside; with `end` it writes the ends that are owed.
int Ledger::transactSessions(std::initializer_list<Total> zeroed, RepeatedWrite *end)
{
    QList<SessionRow> sessions;
    QList<qint64> gone;
    const bool done = database->inTransaction([&] {
        if (!tables.running(sessions) || !takeOwn(ownSessions, sessions, gone, end != nullptr))
            return false;
        const Moments moments = momentsOf(ownSessions);
        for (SessionRow &session : sessions) {
            const SessionAmounts before = session.amounts;
            session.amounts = session.amountsAt(moments.of(session.id));
            session.written.goOnUntil(moments.of(session.id));
            const auto own = ownOf(ownSessions, session.id);
            const bool isOwn = own != ownSessions.end();
            auto &[ms, sent, received] = session.amounts;
            sent = saturatingSum(sent, isOwn ? own->more.sent : 0);
            received = saturatingSum(received, isOwn ? own->more.received : 0);
            const CallState state = isOwn && own->ended ? CallState::Finished : CallState::Running;
            if (!(gone.contains(session.id) || tables.update(session, state)) ||
                !tables.addToSessions({ms - before.ms, sent - before.sent, received - before.received}))
                return false;
        }
        return std::all_of(zeroed.begin(), zeroed.end(), [&](Total total) { return tables.put(total, 0); });
    });
    if (done)
        refresh(ownSessions, sessions);
    if (done && !gone.isEmpty())
        Database::warnOfMissingRow("packet-data session");
    return end ? database->status(done, *end) : database->status(done);
}

int Ledger::writeOwedSession()
{
    if (!owesSession())
        return Success;
    if (const int status = transactSessions({}, &sessionEnd))
        return status;
    ownSessions.removeIf([](const Own<SessionRow> &one) { return one.ended.has_value(); });
    return Success;
}

int Ledger::resetSessions(std::initializer_list<Total> zeroed)
{
    if (const int status = writeOwedSession())
        return status;
    return changed(transactSessions(zeroed));
}

int Ledger::checkpointSession()
{
    if (const int status = writeOwedSession())
        return status;
    return isSessionRunning() ? transactSessions({}) : int{Success};
}

bool Ledger::seesSession()
{
    if (recording)
        return isSessionRunning();
    QList<SessionRow> running;
    return tables.running(running) && !running.isEmpty();
}

void Ledger::letGo()
{
    checkpoint();
    checkpointSession();
    ownCalls.removeIf([](const Own<RunningCall> &one) { return !one.ended; });
    ownSessions.removeIf([](const Own<SessionRow> &one) { return !one.ended; });
}

// --- what is asked

int Ledger::figure(Total total, qint64 &value)
{
    return database->status(tables.totalAt(total, momentsOf(ownCalls), value));
}

int Ledger::card(charging::SimCard &card)
{
    Standing written;
    if (!tables.read(written))
        return database->status(false);
    for (const auto &[id, end] : momentsOf(ownCalls).ends)
        if (const auto call = rowOf(written.calls, id); call != written.calls.end())
            call->advance(end, written.state);
    card = written.state.card;
    return Success;
}

quint32 Ledger::dueUnits()
{
    quint32 due = 0;
    ask([&](const Standing &now) {
        for (const RunningCall &call : now.calls)
            due += call.newUnits;
        return int{Success};
    });
    return due;
}

int Ledger::sessions(int most, QList<SessionRow> &sessions)
{
    if (!tables.recent(most, sessions))
        return database->status(false);
    const Moments moments = momentsOf(ownSessions);
    for (SessionRow &session : sessions)
        session.amounts = session.amountsAt(moments.of(session.id));
    return Success;
}

int Ledger::sessionTotals(SessionAmounts &amounts)
{
    return database->status(tables.sessionTotalsAt(momentsOf(ownSessions), amounts));
}

int Ledger::ask(const std::function<int(const Standing &now)> &look)
{
    Standing standing;
    if (!tables.read(standing))
        return database->status(false);
    const Moments moments = momentsOf(ownCalls);
    for (RunningCall &call : standing.calls)
        call.advance(moments.of(call.id), standing.state);
    for (const auto &ended : moments.ends)
        standing.calls.removeIf([&](const RunningCall &call) { return call.id == ended.first; });
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
