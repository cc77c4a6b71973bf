#include "simulated/SimulatedTelephone.h"

#include "calllog/CallFigures.h"
#include "calllog/CheckBeside.h"
#include "calllog/OpenLedger.h"
#include "handset/Status.h"
#include "simulated/SimulatedBackend.h"

#include <QtCore/QTimer>

#include <algorithm>

namespace handset::simulated {

using calllog::Ledger;
using calllog::PacketFigures;
using LineState = SimulatedTelephone::LineState;

namespace {

constexpr qsizetype longestNumber = 80;
constexpr int tickMs = PacketFigures::updateIntervalMs;
constexpr int ticksPerCheckpoint = Ledger::checkpointIntervalMs / tickMs;
// How long nobody records at most when the process that did is gone.
constexpr int takeOverMs = 500;

// As a SIM can hold it and a keypad can dial it.
bool isNumber(const QString &number)
{
    const auto dialable = [](QChar c) { return (c >= u'0' && c <= u'9') || c == u'+' || c == u'*' || c == u'#'; };
    return !number.isEmpty() && number.size() <= longestNumber &&
           std::all_of(number.begin(), number.end(), dialable);
}

bool isShownNumber(const QString &number)
{
    return number.isEmpty() || isNumber(number);
}

bool isPlausible(const PastCall &call)
{
    return isKnown(call.kind) && isKnown(call.direction) && call.durationMs >= 0 && isShownNumber(call.number);
}

// Thrown out of a long step, all of which leave what is kept as it is until they are done.
struct GivenUp {
};

calllog::ProgressListener progressListener(const Settings &settings)
{
    if (!settings.isGivenUp)
        return settings.progress;
    return [&settings](const QString &step, int percent) {
        if (settings.progress)
            settings.progress(step, percent);
        if (settings.isGivenUp())
            throw GivenUp{};
    };
}

calllog::OpenedLedger openLedger(const Settings &settings)
{
    try {
        return calllog::openLedger(settings.stateDirectory, settings.clock, progressListener(settings));
    } catch (const GivenUp &) {
        return {nullptr, QStringLiteral("The opening of the call log was given up; it is as it was."), {}, {}};
    }
}

} // namespace

Opened open(const Settings &settings)
{
    calllog::OpenedLedger opened = openLedger(settings);
    if (!opened.ledger)
        return {nullptr, opened.error, {}};
    auto telephone = std::make_shared<SimulatedTelephone>(std::move(opened.ledger), settings.clock);
    if (!opened.unread.isEmpty())
        telephone->checkBeside(opened.unread, settings.tell);
    return {telephone, {}, opened.notice};
}

/// What the telephone is made of.
class SimulatedTelephone::Innards
{
public:
    Innards(SimulatedTelephone &telephone, std::unique_ptr<Ledger> opened, std::shared_ptr<Clock> clocks);
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
    PastCall call; ///< on the line
    std::function<void()> onChange;
    std::unique_ptr<calllog::CheckBeside> check; ///< goes before the connection that it stands beside

private:
    void tick();
    void tellHere();
    void tellWhatIsOwed();
    void runTimer();
    bool isTimeUp() const { return state == LineState::Connected && charges.isTimeUp(); }
    bool isUnitDue() const;
    int stopCall();
    void setDataCallStatus(DataCalls::CallStatus status);

    SimulatedTelephone &owner;
    std::shared_ptr<Clock> clock;
    QTimer
        *timer; ///< runs while a call is connected, a session runs, something is owed, or another process records
    int ticksToCheckpoint = 0;
    bool records = true;         ///< as of the last runTimer()
    bool isWriteFailing = false; ///< the last checkpoint
    bool toldOwing = false;      ///< with the last changed()
};

SimulatedTelephone::Innards::Innards(SimulatedTelephone &telephone, std::unique_ptr<Ledger> opened,
                                     std::shared_ptr<Clock> clocks)
    : ledger(std::move(opened))
    , owner(telephone)
    , clock(std::move(clocks))
    , timer(new QTimer(&telephone))
{
    ledger->setChangeListener([this] { figuresChanged(); });
    timer->setInterval(tickMs);
    timer->setTimerType(Qt::PreciseTimer);
    QObject::connect(timer, &QTimer::timeout, &telephone, [this] { tick(); });
    runTimer();
}

SimulatedTelephone::Innards::~Innards()
{
    ledger->setChangeListener({});
    check.reset();
    if (state != LineState::Idle)
        endCall();
}

int SimulatedTelephone::Innards::begin(LineState begun, const PastCall &begunCall)
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

int SimulatedTelephone::Innards::connectCall(LineState from)
{
    if (state != from)
        return ledger->record() ? int{WrongState} : ledger->whyNotRecording();
    if (const int status = ledger->beginCall(call))
        return status;
    state = LineState::Connected;
    setDataCallStatus(DataCalls::Connected);
    tellChange();
    return Success;
}

// The line is idle at once, whether the end can be written now or not.
int SimulatedTelephone::Innards::endCall()
{
    const int status = state == LineState::Connected ? ledger->endCall() : ledger->addUnconnected(call);
    setDataCallStatus(DataCalls::Released);
    state = LineState::Idle;
    call = {};
    return status;
}

int SimulatedTelephone::Innards::checkpoint()
{
    ticksToCheckpoint = ticksPerCheckpoint;
    const int ofSession = ledger->checkpointSession();
    const int ofCall = isTimeUp() ? stopCall() : ledger->checkpoint();
    tellWhatIsOwed();
    const int status = ofCall == Success ? ofSession : ofCall;
    isWriteFailing = status != Success;
    return status;
}

void SimulatedTelephone::Innards::runTimer()
{
    if (records != ledger->record()) {
        records = !records;
        timer->stop();
    }
    if (records && state != LineState::Connected && !ledger->isSessionRunning() && !owesRecord()) {
        timer->stop();
    } else if (!timer->isActive()) {
        ticksToCheckpoint = ticksPerCheckpoint;
        timer->start(records ? tickMs : takeOverMs);
    }
}

bool SimulatedTelephone::Innards::isUnitDue() const
{
    return state == LineState::Connected && ledger->dueUnits() > 0;
}

// Every unit is on the disk within a second of falling due, and the time, and what is owed, every few seconds: so is what
// could not be written, as the attempt may hold up whoever uses the screens.
void SimulatedTelephone::Innards::tick()
{
    if (!records) {
        if (ledger->record())
            tellHere();
        return;
    }
    const bool unitIsDue = isUnitDue();
    const bool isTimeToWrite = --ticksToCheckpoint <= 0 || (unitIsDue && !isWriteFailing) || isTimeUp();
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
void SimulatedTelephone::Innards::figuresChanged()
{
    if (isTimeUp())
        stopCall();
    else
        tellChange();
}

// The same, made by another process.
void SimulatedTelephone::Innards::changedElsewhere()
{
    if (isTimeUp())
        stopCall();
    else
        tellHere();
}

void SimulatedTelephone::Innards::tellChange()
{
    tellHere();
    if (onChange)
        onChange();
}

void SimulatedTelephone::Innards::tellHere()
{
    runTimer();
    toldOwing = owesRecord();
    emit owner.changed();
}

void SimulatedTelephone::Innards::tellWhatIsOwed()
{
    if (owesRecord() != toldOwing)
        tellHere();
}

// The network ends the call by itself.
int SimulatedTelephone::Innards::stopCall()
{
    const int status = endCall();
    charges.callStopped();
    tellChange();
    return status;
}

// A voice call leaves the data-call status alone.
void SimulatedTelephone::Innards::setDataCallStatus(DataCalls::CallStatus status)
{
    if (call.kind == CallKind::Data)
        figures.setCallStatus(status);
}

SimulatedTelephone::SimulatedTelephone(std::unique_ptr<Ledger> opened, std::shared_ptr<Clock> clock)
    : innards(std::make_unique<Innards>(*this, std::move(opened), std::move(clock)))
{}

SimulatedTelephone::~SimulatedTelephone() = default;

CallService *SimulatedTelephone::callService()
{
    return &innards->figures;
}

CallLog *SimulatedTelephone::callLog()
{
    return &innards->figures;
}

DataCalls *SimulatedTelephone::dataCalls()
{
    return &innards->figures;
}

AdviceOfCharge *SimulatedTelephone::adviceOfCharge()
{
    return &innards->sim;
}

PacketData *SimulatedTelephone::packetData()
{
    return &innards->packets;
}

SimSecurity *SimulatedTelephone::simSecurity()
{
    return &innards->sim;
}

void SimulatedTelephone::setChangeListener(const std::function<void()> &listener)
{
    innards->onChange = listener;
}

void SimulatedTelephone::changedElsewhere()
{
    innards->changedElsewhere();
}

int SimulatedTelephone::dial(const QString &number, CallKind kind)
{
    if (!isNumber(number) || !isKnown(kind))
        return InvalidArgument;
    return innards->begin(LineState::Dialing, {kind, CallDirection::Dialed, number});
}

int SimulatedTelephone::ring(const QString &number)
{
    if (!isShownNumber(number))
        return InvalidArgument;
    // A null number is an idle line's.
    const QString shown = number.isNull() ? QStringLiteral("") : number;
    return innards->begin(LineState::Ringing, {CallKind::Voice, CallDirection::Answered, shown});
}

int SimulatedTelephone::remoteAnswer()
{
    return innards->connectCall(LineState::Dialing);
}

int SimulatedTelephone::answer()
{
    return innards->connectCall(LineState::Ringing);
}

int SimulatedTelephone::hangUp()
{
    if (innards->state == LineState::Idle)
        return isRecording() ? int{WrongState} : innards->ledger->whyNotRecording();
    innards->endCall();
    innards->tellChange();
    return Success;
}

int SimulatedTelephone::addHistory(const QList<PastCall> &calls)
{
    if (!std::all_of(calls.begin(), calls.end(), isPlausible))
        return InvalidArgument;
    const int status = innards->ledger->addHistory(calls);
    if (status == Success)
        innards->figuresChanged();
    return status;
}

int SimulatedTelephone::checkpoint()
{
    return innards->checkpoint();
}

bool SimulatedTelephone::owesRecord() const
{
    return innards->owesRecord();
}

bool SimulatedTelephone::isRecording() const
{
    return innards->ledger->record();
}

LineState SimulatedTelephone::lineState() const
{
    if (isRecording())
        return innards->state;
    return innards->ledger->standing().call ? LineState::Connected : LineState::Idle;
}

CallKind SimulatedTelephone::callKind() const
{
    if (isRecording())
        return innards->call.kind;
    const auto call = innards->ledger->standing().call;
    return call ? call->kind : CallKind::Voice;
}

QString SimulatedTelephone::number() const
{
    if (isRecording())
        return innards->call.number;
    const auto call = innards->ledger->standing().call;
    return call ? call->number : QString();
}

qint64 SimulatedTelephone::connectedMs() const
{
    const auto call = innards->ledger->standing().call;
    return call ? call->ms : 0;
}

Charging &SimulatedTelephone::charging()
{
    return innards->charges;
}

SimAccess &SimulatedTelephone::simCard()
{
    return innards->sim;
}

PacketFigures &SimulatedTelephone::packets()
{
    return innards->packets;
}

void SimulatedTelephone::checkBeside(const QString &file, const std::function<void(const QString &)> &tell)
{
    innards->check = std::make_unique<calllog::CheckBeside>(innards->ledger->connection(), file, tell);
}

} // namespace handset::simulated
