#include "SimulatedHandset.h"

#include "Finding.h"
#include "OpenCallStore.h"
#include "SimulatedBackend.h"
#include "Status.h"

#include <algorithm>

namespace handset::simulated {

namespace {

constexpr qsizetype longestNumber = 80;
constexpr int tickMs = PacketSessions::updateIntervalMs;
constexpr int ticksPerCheckpoint =
    std::min(calllog::CallRecorder::checkpointIntervalMs, PacketSessions::checkpointIntervalMs) / tickMs;

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

bool isEmergency(const PastCall &call)
{
    const auto isNumber = [&](const char *number) { return call.number == QLatin1String(number); };
    const auto &numbers = SimulatedTelephone::emergencyNumbers;
    return call.direction == CallDirection::Dialed && std::any_of(numbers.begin(), numbers.end(), isNumber);
}

} // namespace

Opened open(const Settings &settings)
{
    calllog::OpenedStore opened = calllog::openCallStore(settings.stateDirectory, settings.progress);
    if (!opened.store)
        return {nullptr, opened.error, {}};
    auto telephone = std::make_shared<SimulatedHandset>(std::move(opened.store), settings.clock);
    QStringList notices(opened.notice.isEmpty() ? QStringList() : QStringList(opened.notice));
    if (telephone->load(notices) != Success)
        return {nullptr, QStringLiteral("What the call log keeps of the SIM card cannot be read."), {}};
    if (!opened.notice.isEmpty())
        telephone->noticeIsTold();
    if (!opened.unread.isEmpty())
        telephone->checkBeside(opened.unread, settings.tell);
    return {telephone, {}, notices.join(QLatin1Char(' '))};
}

SimulatedHandset::SimulatedHandset(std::unique_ptr<calllog::CallStore> store, std::shared_ptr<Clock> clocks)
    : clock(std::move(clocks))
    , recorder(std::move(store), clock, &meter)
    , figures(recorder, meter)
    , charges(recorder, meter)
    , sim(recorder, meter)
    , packetSessions(recorder.connection(), clock)
{
    recorder.setChangeListener([this] { figuresChanged(); });
    packetSessions.setChangeListener([this] { tellChange(); });
    timer.setInterval(tickMs);
    timer.setTimerType(Qt::PreciseTimer);
    connect(&timer, &QTimer::timeout, this, &SimulatedHandset::tick);
}

void SimulatedHandset::checkBeside(const QString &file, const std::function<void(const QString &)> &tell)
{
    check = std::make_unique<calllog::CheckBeside>(recorder.connection(), file, tell);
}

void SimulatedHandset::noticeIsTold()
{
    recorder.keep({{QString::fromLatin1(calllog::keptNotice), {}}});
}

SimulatedHandset::~SimulatedHandset()
{
    if (state != LineState::Idle)
        endCall();
}

int SimulatedHandset::begin(LineState begun, const PastCall &begunCall)
{
    if (state != LineState::Idle)
        return WrongState;
    recorder.checkpoint(); // what is owed
    if (begunCall.direction == CallDirection::Dialed && !charges.permits(tariffOf(begunCall)))
        return NotAllowed;
    charges.callBegins();
    call = begunCall;
    call.startWallMs = clock->wallMs();
    state = begun;
    setDataCallStatus(DataCalls::SettingUp);
    tellChange();
    return Success;
}

int SimulatedHandset::dial(const QString &number, CallKind kind)
{
    if (!isNumber(number) || !isKnown(kind))
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

int SimulatedHandset::connectCall(LineState from)
{
    if (state != from)
        return WrongState;
    const sim::Tariff tariff = tariffOf(call);
    if (!charges.permits(tariff))
        return NotAllowed;
    const int status = recorder.callConnected(call);
    if (status != Success)
        return status;
    meter.begin(tariff);
    state = LineState::Connected;
    setDataCallStatus(DataCalls::Connected);
    tellChange();
    return Success;
}

int SimulatedHandset::remoteAnswer()
{
    return connectCall(LineState::Dialing);
}

int SimulatedHandset::answer()
{
    return connectCall(LineState::Ringing);
}

// The line is idle at once, whether the end can be written now or not.
int SimulatedHandset::endCall()
{
    const int status = state == LineState::Connected ? recorder.callEnded() : recorder.callNotConnected(call);
    meter.end();
    setDataCallStatus(DataCalls::Released);
    state = LineState::Idle;
    call = {};
    return status;
}

int SimulatedHandset::hangUp()
{
    if (state == LineState::Idle)
        return WrongState;
    endCall();
    tellChange();
    return Success;
}

int SimulatedHandset::addHistory(const QList<PastCall> &calls)
{
    if (!std::all_of(calls.begin(), calls.end(), isPlausible))
        return InvalidArgument;
    if (const int status = recorder.checkpoint())
        return status;
    QList<PastCall> charged = calls;
    ChargingState next = meter.state();
    for (PastCall &past : charged) {
        past.units = past.durationMs > 0 ? tariffOf(past).units(sim::CallLeg{past.durationMs, 0}) : 0;
        next.charge(static_cast<quint64>(past.units));
    }
    const auto write = [&](const calllog::KeptValues &values) { return recorder.addHistory(charged, values); };
    const int status = meter.change(next, write);
    if (status == Success)
        figuresChanged();
    return status;
}

int SimulatedHandset::checkpoint()
{
    ticksToCheckpoint = ticksPerCheckpoint;
    const int ofSession = packetSessions.checkpoint();
    const int ofCall = isTimeUp() ? stopCall() : recorder.checkpoint();
    tellWhatIsOwed();
    const int status = ofCall == Success ? ofSession : ofCall;
    isWriteFailing = status != Success;
    return status;
}

bool SimulatedHandset::owesRecord() const
{
    return recorder.owesEnd() || packetSessions.owesEnd();
}

void SimulatedHandset::runTimer()
{
    if (state != LineState::Connected && !packetSessions.isSessionRunning() && !owesRecord()) {
        timer.stop();
    } else if (!timer.isActive()) {
        ticksToCheckpoint = ticksPerCheckpoint;
        timer.start();
    }
}

// Every unit is on the disk within a second of falling due, and the time, and what is owed, every few seconds: so is what
// could not be written, as the attempt may hold up whoever uses the screens.
void SimulatedHandset::tick()
{
    const bool unitIsDue = meter.dueUnits(recorder.connectedMs()) > 0;
    const bool isTimeToWrite = --ticksToCheckpoint <= 0 || (unitIsDue && !isWriteFailing) || isTimeUp();
    if (isTimeToWrite && checkpoint() == Success && unitIsDue)
        tellChange();
    packetSessions.tick();
    tellWhatIsOwed();
    // A full second from now: a tick that came late would otherwise be followed by one that comes too early for the
    // update listener.
    if (timer.isActive())
        timer.start();
}

// A setting, too, can be what ends a call: a lower limit.
void SimulatedHandset::figuresChanged()
{
    if (isTimeUp())
        stopCall();
    else
        tellChange();
}

void SimulatedHandset::tellChange()
{
    runTimer();
    toldOwing = owesRecord();
    emit changed();
}

void SimulatedHandset::tellWhatIsOwed()
{
    if (owesRecord() != toldOwing)
        tellChange();
}

bool SimulatedHandset::isTimeUp() const
{
    return state == LineState::Connected && charges.isTimeUp();
}

// The network ends the call by itself.
int SimulatedHandset::stopCall()
{
    const int status = endCall();
    charges.callStopped();
    tellChange();
    return status;
}

sim::Tariff SimulatedHandset::tariffOf(const PastCall &of) const
{
    return isEmergency(of) ? sim::Tariff{} : meter.state().tariff(of.direction);
}

// A voice call leaves the data-call status alone.
void SimulatedHandset::setDataCallStatus(DataCalls::CallStatus status)
{
    if (call.kind == CallKind::Data)
        recorder.setDataCallStatus(status);
}

} // namespace handset::simulated
