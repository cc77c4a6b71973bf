#include "SimulatedHandset.h"

#include "OpenCallStore.h"
#include "SimulatedBackend.h"
#include "Status.h"

#include <algorithm>

namespace handset::simulated {

namespace {

constexpr qsizetype longestNumber = 80;

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
    return call.durationMs >= 0 && isShownNumber(call.number);
}

} // namespace

Opened open(const Settings &settings)
{
    calllog::OpenedStore opened = calllog::openCallStore(settings.stateDirectory);
    if (!opened.store)
        return {nullptr, opened.error, {}};
    return {std::make_shared<SimulatedHandset>(std::move(opened.store), settings.clock), {}, opened.notice};
}

SimulatedHandset::SimulatedHandset(std::unique_ptr<calllog::CallStore> store, std::shared_ptr<Clock> clocks)
    : clock(clocks)
    , recorder(std::move(store), std::move(clocks))
    , figures(recorder)
{
    recorder.setResetListener([this] { emit changed(); });
    checkpointTimer.setInterval(calllog::CallRecorder::checkpointIntervalMs);
    connect(&checkpointTimer, &QTimer::timeout, this, &SimulatedHandset::checkpoint);
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
    call = begunCall;
    call.startWallMs = clock->wallMs();
    state = begun;
    setDataCallStatus(DataCalls::SettingUp);
    emit changed();
    return Success;
}

int SimulatedHandset::dial(const QString &number, CallKind kind)
{
    if (!isNumber(number))
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
    const int status = recorder.callConnected(call);
    if (status != Success)
        return status;
    state = LineState::Connected;
    setDataCallStatus(DataCalls::Connected);
    checkpointTimer.start();
    emit changed();
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

int SimulatedHandset::endCall()
{
    const int status = state == LineState::Connected ? recorder.callEnded() : recorder.callNotConnected(call);
    if (status != Success)
        return status;
    checkpointTimer.stop();
    setDataCallStatus(DataCalls::Released);
    state = LineState::Idle;
    call = {};
    return Success;
}

int SimulatedHandset::hangUp()
{
    if (state == LineState::Idle)
        return WrongState;
    const int status = endCall();
    if (status == Success)
        emit changed();
    return status;
}

int SimulatedHandset::addHistory(const QList<PastCall> &calls)
{
    if (!std::all_of(calls.begin(), calls.end(), isPlausible))
        return InvalidArgument;
    const int status = recorder.addHistory(calls);
    if (status == Success)
        emit changed();
    return status;
}

int SimulatedHandset::checkpoint()
{
    return recorder.checkpoint();
}

// A voice call leaves the data-call status alone.
void SimulatedHandset::setDataCallStatus(DataCalls::CallStatus status)
{
    if (call.kind == CallKind::Data)
        recorder.setDataCallStatus(status);
}

} // namespace handset::simulated
