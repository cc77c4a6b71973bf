#include "live/LiveHandset.h"

#include "calllog/OpenLedger.h"
#include "calllog/Saturating.h"

#include <QtCore/QTimer>

#include <algorithm>
#include <utility>

namespace handset::live {

int OwnCharging::chargeType(quint8 &type)
{
    return ledger.ask([&](const calllog::Standing &now) {
        type = now.state.chargeType;
        return int{Success};
    });
}

int OwnCharging::setChargeType(quint8 type)
{
    // Without a price of the SIM there is no currency to count in.
    if (type != InUnits)
        return type == InCurrency ? NotAvailable : InvalidArgument;
    return ledger.edit([&](charging::ChargingState &state) {
        state.chargeType = type;
        return int{Success};
    });
}

LiveHandset::LiveHandset(std::unique_ptr<calllog::Ledger> opened, std::shared_ptr<Clock> clocks,
                         std::unique_ptr<Modem> behind, InterfaceCounters interfaces)
    : LedgerHandset(std::move(opened), std::move(clocks))
    , source(std::move(behind))
    , callRecorder(*ledger, *clock, calllog::Charge::Unlimited)
    , sessionRecorder(*ledger, *clock, std::move(interfaces))
    , timer(new QTimer(this))
{
    ledger->setChangeListener([this] {
        tellHere();
        tellElsewhere();
    });
    timer->setTimerType(Qt::PreciseTimer);
    connect(timer, &QTimer::timeout, this, [this] { tick(); });
    connect(source.get(), &Modem::callReported, this,
            [this](const ReportedCall &call) { callsMoved(callRecorder.report(call)); });
    connect(source.get(), &Modem::callGone, this,
            [this](const QString &id) { callsMoved(callRecorder.gone(id)); });
    connect(source.get(), &Modem::sessionReported, this,
            [this](const ReportedSession &session) { sessionsMoved(sessionRecorder.report(session)); });
    connect(source.get(), &Modem::sessionGone, this,
            [this](const QString &id) { sessionsMoved(sessionRecorder.gone(id)); });
    connect(source.get(), &Modem::lost, this, [this] {
        callsMoved(callRecorder.allGone());
        sessionsMoved(sessionRecorder.allGone());
    });
    connect(source.get(), &Modem::stateChanged, this, [this] { tellHere(); });
    connect(source.get(), &Modem::refused, this, [this](const QString &why) {
        if (onRefusal)
            onRefusal(why);
    });
    source->start();
    runTimer();
}

LiveHandset::~LiveHandset()
{
    ledger->setChangeListener({});
    callRecorder.retry();
    sessionRecorder.count();
    ledger->letGo();
}

bool LiveHandset::owesRecord() const
{
    return LedgerHandset::owesRecord() || callRecorder.owes() || sessionRecorder.owes();
}

LineReport LiveHandset::report() const
{
    const ModemState modem = source->state();
    LineReport now;
    now.daemon = source->daemon();
    now.hasModem = modem.isThere;
    now.modem = modem.name;
    now.network = modem.network;
    now.status = modem.status;
    now.isRecorder = ledger->isRecorder();
    now.isRecordedElsewhere = !now.isRecorder && ledger->whyNotRecording() == RecordedElsewhere;
    now.isChargedByModem = isChargedByModem();
    for (const ReportedCall &call : callRecorder.reported())
        now.calls.append({call.id, call.phase, call.number, callRecorder.connectedMs(call.id).value_or(0)});
    std::sort(now.calls.begin(), now.calls.end(), [](const LineCall &one, const LineCall &other) {
        return std::pair(-one.connectedMs, one.id) < std::pair(-other.connectedMs, other.id);
    });
    for (const ReportedSession &session : sessionRecorder.reported()) {
        const std::optional<Bytes> bytes = sessionRecorder.bytesOf(session.id);
        now.sessions.append({session.apn, session.interface, bytes ? std::optional(bytes->sent) : std::nullopt,
                             bytes ? std::optional(bytes->received) : std::nullopt});
    }
    std::sort(now.sessions.begin(), now.sessions.end(), [](const LineSession &one, const LineSession &other) {
        return std::pair(one.apn, one.interface) < std::pair(other.apn, other.interface);
    });
    return now;
}

void LiveHandset::changedElsewhere()
{
    tellHere();
}

// The ledger tells of resets and sessions by itself, and not of calls. Of those, every process hears from the daemon, and
// the one that records tells.
void LiveHandset::callsMoved(bool begunOrEnded)
{
    tellHere();
    if (begunOrEnded && ledger->record())
        tellElsewhere();
}

void LiveHandset::sessionsMoved(bool begunOrEnded)
{
    tellHere();
    if (begunOrEnded && ledger->record())
        packetFigures.tellUpdate();
}

void LiveHandset::tellElsewhere()
{
    if (onChange)
        onChange();
    else
        hasKept = keepsChanges;
}

void LiveHandset::setChangeListener(const std::function<void()> &listener)
{
    onChange = listener;
    if (!onChange)
        return;
    keepsChanges = false;
    if (std::exchange(hasKept, false))
        onChange();
}

void LiveHandset::tellHere()
{
    runTimer();
    emit changed();
}

// While nothing runs, nothing wakes up.
void LiveHandset::runTimer()
{
    const bool recorded = records;
    records = ledger->record();
    if (records && !callRecorder.isBusy() && !sessionRecorder.isBusy() && !owesRecord()) {
        timer->stop();
    } else if (!timer->isActive() || recorded != records) {
        writtenAtMs = clock->monotonicMs();
        const bool isShown = packetFigures.isListenedTo() || receivers(SIGNAL(changed())) > 0;
        timer->start(isShown || !records ? shownIntervalMs : calllog::Ledger::checkpointIntervalMs);
    }
}

void LiveHandset::tick()
{
    const bool recorded = records;
    const bool owed = owesRecord();
    runTimer();
    // The timer goes by another clock, and may be a moment early by this one.
    const bool isTimeToWrite = calllog::elapsed(writtenAtMs, clock->monotonicMs()) + shownIntervalMs / 2 >=
                               calllog::Ledger::checkpointIntervalMs;
    bool isLate = recorded != records || owed != owesRecord();
    if (records && (!recorded || isTimeToWrite)) {
        writtenAtMs = clock->monotonicMs();
        isLate = callRecorder.retry() || isLate;
        sessionRecorder.count();
        ledger->checkpoint();
        ledger->checkpointSession();
    }
    if (records && sessionRecorder.isBusy())
        packetFigures.tellUpdate();
    if (!isLate && owed == owesRecord())
        return;
    tellHere();
    if (records)
        tellElsewhere();
}

void LiveHandset::charge(const std::shared_ptr<CallRecorder::Cost> &cost, quint32 more)
{
    if (callRecorder.charge(cost, more))
        emit changed();
    runTimer();
}

// Queued: whoever is called may end the wait.
Awaited await(std::unique_ptr<Modem> modem, const std::function<void()> &here)
{
    const QString error = modem->connectToBus();
    const std::shared_ptr<Modem> awaited = std::move(modem);
    const auto tell = [modem = awaited.get(), here] {
        if (modem->state().isThere)
            here();
    };
    QObject::connect(awaited.get(), &Modem::stateChanged, awaited.get(), tell, Qt::QueuedConnection);
    awaited->start();
    return {error.isEmpty() || awaited->isBusSilent() ? awaited : nullptr, error};
}

Opened open(const Settings &settings, std::unique_ptr<Modem> modem)
{
    return open(settings, [&](std::unique_ptr<calllog::Ledger> ledger) {
        return std::make_shared<LiveHandset>(std::move(ledger), settings.clock, std::move(modem));
    });
}

Opened open(const Settings &settings, const Make &make)
{
    calllog::OpenedLedger opened = calllog::openLedger(settings);
    if (!opened.ledger)
        return {nullptr, opened.error, {}};
    return {make(std::move(opened.ledger)), {}, opened.notice};
}

} // namespace handset::live
