#include "simulated/SimulatedHandset.h"

#include "calllog/CallFigures.h"
#include "calllog/CheckBeside.h"
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
    auto handset = std::make_shared<SimulatedHandset>(std::move(opened.ledger), settings.clock);
    if (!opened.unread.isEmpty())
        handset->checkBeside(opened.unread, settings.tell);
    return {handset, {}, opened.notice};
}

/// What the handset is made of.
class SimulatedHandset::Innards
{
public:
    Innards(SimulatedHandset &handset, std::unique_ptr<Ledger> opened, std::shared_ptr<Clock> clocks);
    ~Innards();

    int begin(LineState begun, const PastCall &begunCall);
    int connectCall(LineState from);
    int endCall();
    int checkpoint();
    void figuresChanged();
    void changedElsewhere();
    /// Here, and to the other processes.
    void tellChange();
    bool owesRecord() const { return ledger->owesCall() || ledger->owesSession(); }

    std::unique_ptr<Ledger> ledger;
    calllog::CallFigures figures{*ledger};
    Charging charges{*ledger};
    SimAccess sim{*ledger};
    PacketFigures packets{*ledger};
    LineState state = LineState::Idle;
    PastCall call;     ///< on the line
    qint64 callId = 0; ///< once it is connected
    std::function<void()> onChange;
    std::unique_ptr<calllog::CheckBeside> check; ///< goes before the connection that it stands beside

private:
    void tick();
    void tellHere();
    void tellWhatIsOwed();
    void runTimer();
    bool isTimeUp() const { return state == LineState::Connected && charges.isTimeUp(); }
    bool isUnitDue() const;
    bool isCheckpointDue() const;
    int stopCall();
    void setDataCallStatus(DataCalls::CallStatus status);

    SimulatedHandset &owner;
    std::shared_ptr<Clock> clock;
    QTimer
        *timer; ///< runs while a call is connected, a session runs, something is owed, or another process records
    qint64 writtenAtMs = 0;      ///< or when that was tried last, or there was nothing to write
    bool records = true;         ///< as of the last runTimer()
    bool isWriteFailing = false; ///< the last checkpoint
    bool toldOwing = false;      ///< with the last changed()
};

SimulatedHandset::Innards::Innards(SimulatedHandset &handset, std::unique_ptr<Ledger> opened,
                                   std::shared_ptr<Clock> clocks)
    : ledger(std::move(opened))
    , owner(handset)
    , clock(std::move(clocks))
    , timer(new QTimer(&handset))
{
    ledger->record();
    ledger->setChangeListener([this] { figuresChanged(); });
    timer->setInterval(tickMs);
    timer->setTimerType(Qt::PreciseTimer);
    QObject::connect(timer, &QTimer::timeout, &handset, [this] { tick(); });
    runTimer();
}

SimulatedHandset::Innards::~Innards()
{
    ledger->setChangeListener({});
    check.reset();
    if (state != LineState::Idle)
        endCall();
}

int SimulatedHandset::Innards::begin(LineState begun, const PastCall &begunCall)
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

int SimulatedHandset::Innards::connectCall(LineState from)
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
int SimulatedHandset::Innards::endCall()
{
    const int status = state == LineState::Connected ? ledger->endCall(callId) : ledger->addUnconnected(call);
    setDataCallStatus(DataCalls::Released);
    state = LineState::Idle;
    call = {};
    return status;
}

int SimulatedHandset::Innards::checkpoint()
{
    writtenAtMs = clock->monotonicMs();
    const int ofSession = ledger->checkpointSession();
    const int ofCall = isTimeUp() ? stopCall() : ledger->checkpoint();
    tellWhatIsOwed();
    const int status = ofCall == Success ? ofSession : ofCall;
    isWriteFailing = status != Success;
    return status;
}

void SimulatedHandset::Innards::runTimer()
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

bool SimulatedHandset::Innards::isUnitDue() const
{
    return state == LineState::Connected && ledger->dueUnits() > 0;
}

// At the tick that is nearest: they come a second after the one before is done, or later.
bool SimulatedHandset::Innards::isCheckpointDue() const
{
    const qint64 passed = calllog::elapsed(writtenAtMs, clock->monotonicMs());
    return passed + tickMs / 2 >= Ledger::checkpointIntervalMs;
}

// Every unit is on the disk within a second of falling due, and the time, and what is owed, every few seconds: so is what
// could not be written, as the attempt may hold up whoever uses the screens.
void SimulatedHandset::Innards::tick()
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
    packets.tick();
    tellWhatIsOwed();
    // A full second from now: a tick that came late would otherwise be followed by one that comes too early for the
    // update listener.
    if (timer->isActive())
        timer->start();
}

// A setting, too, can be what ends a call: a lower limit.
void SimulatedHandset::Innards::figuresChanged()
{
    if (isTimeUp())
        stopCall();
    else
        tellChange();
}

// The same, made by another process.
void SimulatedHandset::Innards::changedElsewhere()
{
    if (isTimeUp())
        stopCall();
    else
        tellHere();
}

void SimulatedHandset::Innards::tellChange()
{
    tellHere();
    if (onChange)
        onChange();
}

void SimulatedHandset::Innards::tellHere()
{
    runTimer();
    toldOwing = owesRecord();
    emit owner.changed();
}

// To the others, too: when they were told of the end its row said that it runs.
void SimulatedHandset::Innards::tellWhatIsOwed()
{
    if (owesRecord() != toldOwing)
        tellChange();
}

// The network ends the call by itself.
int SimulatedHandset::Innards::stopCall()
{
    const int status = endCall();
    charges.callStopped();
    tellChange();
    return status;
}

// A voice call leaves the data-call status alone.
void SimulatedHandset::Innards::setDataCallStatus(DataCalls::CallStatus status)
{
    if (call.kind == CallKind::Data)
        figures.setCallStatus(status);
}

SimulatedHandset::SimulatedHandset(std::unique_ptr<Ledger> opened, std::shared_ptr<Clock> clock)
    : innards(std::make_unique<Innards>(*this, std::move(opened), std::move(clock)))
{}

SimulatedHandset::~SimulatedHandset() = default;

CallService *SimulatedHandset::callService()
{
    return &innards->figures;
}

CallLog *SimulatedHandset::callLog()
{
    return &innards->figures;
}

DataCalls *SimulatedHandset::dataCalls()
{
    return &innards->figures;
}

AdviceOfCharge *SimulatedHandset::adviceOfCharge()
{
    return &innards->sim;
}

PacketData *SimulatedHandset::packetData()
{
    return &innards->packets;
}

SimSecurity *SimulatedHandset::simSecurity()
{
    return &innards->sim;
}

void SimulatedHandset::setChangeListener(const std::function<void()> &listener)
{
    innards->onChange = listener;
}

void SimulatedHandset::changedElsewhere()
{
    innards->changedElsewhere();
}

int SimulatedHandset::dial(const QString &number, CallKind kind)
{
    if (!isDialable(number) || !isKnown(kind))
        return InvalidArgument;
    return innards->begin(LineState::Dialing, {kind, CallDirection::Dialed, number});
}

int SimulatedHandset::ring(const QString &number)
{
    if (!isShownNumber(number))
        return InvalidArgument;
    // A null number is an idle line's.
    const QString shown = number.isNull() ? QStringLiteral("") : number;
    return innards->begin(LineState::Ringing, {CallKind::Voice, CallDirection::Answered, shown});
}

int SimulatedHandset::remoteAnswer()
{
    return innards->connectCall(LineState::Dialing);
}

int SimulatedHandset::answer()
{
    return innards->connectCall(LineState::Ringing);
}

int SimulatedHandset::hangUp()
{
    if (innards->state == LineState::Idle)
        return isRecording() ? int{WrongState} : innards->ledger->whyNotRecording();
    innards->endCall();
    innards->tellChange();
    return Success;
}

int SimulatedHandset::addHistory(const QList<PastCall> &calls)
{
    if (!std::all_of(calls.begin(), calls.end(), isPlausible))
        return InvalidArgument;
    const int status = innards->ledger->addHistory(calls);
    if (status == Success)
        innards->figuresChanged();
    return status;
}

int SimulatedHandset::checkpoint()
{
    return innards->checkpoint();
}

bool SimulatedHandset::owesRecord() const
{
    return innards->owesRecord();
}

bool SimulatedHandset::isRecording() const
{
    return innards->ledger->isRecorder();
}

LineState SimulatedHandset::lineState() const
{
    if (isRecording())
        return innards->state;
    return innards->ledger->standing().call() ? LineState::Connected : LineState::Idle;
}

CallKind SimulatedHandset::callKind() const
{
    if (isRecording())
        return innards->call.kind;
    const auto call = innards->ledger->standing().call();
    return call ? call->kind : CallKind::Voice;
}

QString SimulatedHandset::number() const
{
    if (isRecording())
        return innards->call.number;
    const auto call = innards->ledger->standing().call();
    return call ? call->number : QString();
}

qint64 SimulatedHandset::connectedMs() const
{
    const auto call = innards->ledger->standing().call();
    return call ? call->ms : 0;
}

Charging &SimulatedHandset::charging()
{
    return innards->charges;
}

SimAccess &SimulatedHandset::simCard()
{
    return innards->sim;
}

PacketFigures &SimulatedHandset::packets()
{
    return innards->packets;
}

void SimulatedHandset::checkBeside(const QString &file, const std::function<void(const QString &)> &tell)
{
    innards->check = std::make_unique<calllog::CheckBeside>(innards->ledger->connection(), file, tell);
}

} // namespace handset::simulated
