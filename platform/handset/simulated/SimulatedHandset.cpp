#include "simulated/SimulatedHandset.h"

#include "calllog/OpenLedger.h"
#include "calllog/Saturating.h"
#include "handset/DialedNumber.h"
#include "handset/Status.h"
#include "simulated/SimulatedBackend.h"

#include <QtCore/QTimer>

#include <algorithm>

namespace handset::simulated {

using calllog::Ledger;
using calllog::PacketFigures;
using LineState = SimulatedHandset::LineState;

namespace {

constexpr int tickMs = PacketFigures::updateIntervalMs;
// How long nobody records at most when the process that did is gone.
constexpr int takeOverMs = 500;

bool isShownNumber(const QString &number)
{
    return number.isEmpty() || isDialable(number);
}

bool isPlausible(const PastCall &call)
{
    return isKnown(call.kind) && isKnown(call.direction) && call.durationMs >= 0 && isShownNumber(call.number);
}

} // namespace

Opened open(const Settings &settings)
{
    calllog::OpenedLedger opened = calllog::openLedger(settings);
    if (!opened.ledger)
        return {nullptr, opened.error, {}};
    return {std::make_shared<SimulatedHandset>(std::move(opened.ledger), settings.clock), {}, opened.notice};
}

SimulatedHandset::SimulatedHandset(std::unique_ptr<Ledger> opened, std::shared_ptr<Clock> clocks)
    : LedgerHandset(std::move(opened), std::move(clocks))
    , timer(new QTimer(this))
{
    ledger->setChangeListener([this] { figuresChanged(); });
    timer->setInterval(tickMs);
    timer->setTimerType(Qt::PreciseTimer);
    connect(timer, &QTimer::timeout, this, [this] { tick(); });
    runTimer();
}

SimulatedHandset::~SimulatedHandset()
{
    ledger->setChangeListener({});
    if (state != LineState::Idle)
        endCall();
}

int SimulatedHandset::begin(LineState begun, const PastCall &begunCall)
{
    if (!ledger->record())
        return ledger->whyNotRecording();
    if (state != LineState::Idle)
        return WrongState;
    ledger->checkpoint(); // what is owed
    if (begunCall.direction == CallDirection::Dialed) {
        if (const int status = ledger->permits(begunCall))
            return status;
    }
    charges.callBegins();
    call = begunCall;
    call.startWallMs = clock->wallMs();
    state = begun;
    setDataCallStatus(DataCalls::SettingUp);
    tellChange();
    return Success;
}

int SimulatedHandset::connectCall(LineState from)
{
    if (state != from)
        return ledger->isRecorder() ? int{WrongState} : ledger->whyNotRecording();
    if (const int status = ledger->beginCall(call, callId))
        return status;
    state = LineState::Connected;
    setDataCallStatus(DataCalls::Connected);
    tellChange();
    return Success;
}

// The line is idle at once, whether the end can be written now or not.
int SimulatedHandset::endCall()
{
    const int status = state == LineState::Connected ? ledger->endCall(callId) : ledger->addUnconnected(call);
    setDataCallStatus(DataCalls::Released);
    state = LineState::Idle;
    call = {};
    return status;
}

int SimulatedHandset::checkpoint()
{
    writtenAtMs = clock->monotonicMs();
    const int ofSession = ledger->checkpointSession();
    const int ofCall = isTimeUp() ? stopCall() : ledger->checkpoint();
    tellWhatIsOwed();
    const int status = ofCall == Success ? ofSession : ofCall;
    isWriteFailing = status != Success;
    return status;
}

void SimulatedHandset::runTimer()
{
    if (records != ledger->isRecorder()) {
        records = !records;
        timer->stop();
    }
    if (records && state != LineState::Connected && !ledger->isSessionRunning() && !owesRecord()) {
        timer->stop();
    } else if (!timer->isActive()) {
        writtenAtMs = clock->monotonicMs();
        timer->start(records ? tickMs : takeOverMs);
    }
}

bool SimulatedHandset::isUnitDue() const
{
    return state == LineState::Connected && ledger->dueUnits() > 0;
}

// At the tick that is nearest: they come a second after the one before is done, or later.
bool SimulatedHandset::isCheckpointDue() const
{
    const qint64 passed = calllog::elapsed(writtenAtMs, clock->monotonicMs());
    return passed + tickMs / 2 >= Ledger::checkpointIntervalMs;
}

// Every unit is on the disk within a second of falling due, and the time, and what is owed, every few seconds: so is what
// could not be written, as the attempt may hold up whoever uses the screens.
void SimulatedHandset::tick()
{
    if (!records) {
        if (ledger->record())
            tellChange();
        else if (ledger->whyNotRecording() == StorageFailed) // each attempt may hold up the screens
            timer->start(Ledger::checkpointIntervalMs);
        return;
    }
    const bool unitIsDue = isUnitDue();
    const bool isTimeToWrite = isCheckpointDue() || (unitIsDue && !isWriteFailing) || isTimeUp();
    if (isTimeToWrite && checkpoint() == Success && unitIsDue)
        tellHere();
    packetFigures.tick();
    tellWhatIsOwed();
    // A full second from now: a tick that came late would otherwise be followed by one that comes too early for the
    // update listener.
    if (timer->isActive())
        timer->start();
}

// A setting, too, can be what ends a call: a lower limit.
void SimulatedHandset::figuresChanged()
{
    if (isTimeUp())
        stopCall();
    else
        tellChange();
}

// By another process: the same.
void SimulatedHandset::changedElsewhere()
{
    if (isTimeUp())
        stopCall();
    else
        tellHere();
}

void SimulatedHandset::tellChange()
{
    tellHere();
    if (onChange)
        onChange();
}

void SimulatedHandset::tellHere()
{
    runTimer();
    toldOwing = owesRecord();
    emit changed();
}

// To the others, too: when they were told of the end its row said that it runs.
void SimulatedHandset::tellWhatIsOwed()
{
    if (owesRecord() != toldOwing)
        tellChange();
}

// The network ends the call by itself.
int SimulatedHandset::stopCall()
{
    const int status = endCall();
    charges.callStopped();
    tellChange();
    return status;
}

// A voice call leaves the data-call status alone.
void SimulatedHandset::setDataCallStatus(DataCalls::CallStatus status)
{
    if (call.kind == CallKind::Data)
        figures.setCallStatus(status);
}

int SimulatedHandset::dial(const QString &number, CallKind kind)
{
    if (!isDialable(number) || !isKnown(kind))
        return InvalidArgument;
    return begin(LineState::Dialing, {kind, CallDirection::Dialed, number});
}

int SimulatedHandset::ring(const QString &number)
{
    if (!isShownNumber(number))
        return InvalidArgument;
    // A null number is an idle line's.
    const QString shown = number.isNull() ? QStringLiteral("") : number;
    return begin(LineState::Ringing, {CallKind::Voice, CallDirection::Answered, shown});
}

int SimulatedHandset::remoteAnswer()
{
    return connectCall(LineState::Dialing);
}

int SimulatedHandset::answer()
{
    return connectCall(LineState::Ringing);
}

int SimulatedHandset::hangUp()
{
    if (state == LineState::Idle)
        return isRecording() ? int{WrongState} : ledger->whyNotRecording();
    endCall();
    tellChange();
    return Success;
}

int SimulatedHandset::addHistory(const QList<PastCall> &calls)
{
    if (!std::all_of(calls.begin(), calls.end(), isPlausible))
        return InvalidArgument;
    const int status = ledger->addHistory(calls);
    if (status == Success)
        figuresChanged();
    return status;
}

LineState SimulatedHandset::lineState() const
{
    if (isRecording())
        return state;
    return ledger->standing().call() ? LineState::Connected : LineState::Idle;
}

CallKind SimulatedHandset::callKind() const
{
    if (isRecording())
        return call.kind;
    const auto running = ledger->standing().call();
    return running ? running->kind : CallKind::Voice;
}

QString SimulatedHandset::number() const
{
    if (isRecording())
        return call.number;
    const auto running = ledger->standing().call();
    return running ? running->number : QString();
}

qint64 SimulatedHandset::connectedMs() const
{
    const auto running = ledger->standing().call();
    return running ? running->ms : 0;
}

} // namespace handset::simulated
