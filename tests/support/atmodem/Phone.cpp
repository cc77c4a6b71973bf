#include "support/atmodem/Phone.h"

#include <algorithm>
#include <ctime>

namespace atmodem {

namespace {

constexpr int ringIntervalMs = 4000;

qint64 bootMs()
{
    timespec now{};
    clock_gettime(CLOCK_BOOTTIME, &now);
    return static_cast<qint64>(now.tv_sec) * 1000 + now.tv_nsec / 1'000'000;
}

bool isOneOf(CallState state, std::initializer_list<CallState> states)
{
    return std::find(states.begin(), states.end(), state) != states.end();
}

} // namespace

qint64 CallRecord::durationMs() const
{
    if (connectedMs < 0)
        return 0;
    return (endedMs < 0 ? bootMs() : endedMs) - connectedMs;
}

Phone::Phone()
{
    contexts[1] = {};
    ringing.setInterval(ringIntervalMs);
    QObject::connect(&ringing, &QTimer::timeout, [this] { ringAgain(); });
}

// The newest of them.
PhoneCall *Phone::find(std::initializer_list<CallState> states)
{
    const auto found = std::find_if(callList.rbegin(), callList.rend(),
                                    [&](const PhoneCall &call) { return isOneOf(call.state, states); });
    return found == callList.rend() ? nullptr : &*found;
}

PhoneCall &Phone::add(Direction direction, const QByteArray &number, CallState state)
{
    int index = 1;
    while (
        std::any_of(callList.begin(), callList.end(), [&](const PhoneCall &call) { return call.index == index; }))
        ++index;
    CallRecord record;
    record.direction = direction;
    record.number = number;
    record.begunMs = bootMs();
    recordList.append(record);
    callList.append({index, state, false, recordList.size() - 1});
    return callList.last();
}

void Phone::connect(PhoneCall &call)
{
    call.state = CallState::Active;
    CallRecord &record = recordList[call.record];
    if (record.connectedMs < 0) {
        record.connectedMs = bootMs();
        currentUnits = 0;
    }
    ringing.stop();
}

void Phone::endSilently(int index, End end)
{
    const auto call =
        std::find_if(callList.begin(), callList.end(), [&](const PhoneCall &each) { return each.index == index; });
    CallRecord &record = recordList[call->record];
    record.endedMs = bootMs();
    record.end = end;
    callList.erase(call);
    if (!find({CallState::Incoming}))
        ringing.stop();
}

void Phone::finish(int index, End end)
{
    endSilently(index, end);
    if (end != End::HungUpHere) {
        for (PhoneListener *listener : listeners)
            listener->callEnded(end);
    }
}

bool Phone::finishAll(std::initializer_list<CallState> states, End end)
{
    bool isAny = false;
    while (PhoneCall *call = find(states)) {
        finish(call->index, end);
        isAny = true;
    }
    return isAny;
}

void Phone::ring(const QByteArray &number)
{
    const bool isFirst = callList.isEmpty();
    add(Direction::Received, number, isFirst ? CallState::Incoming : CallState::Waiting);
    if (isFirst) {
        ringAgain();
        ringing.start();
        return;
    }
    for (PhoneListener *listener : listeners)
        listener->callWaits(number);
}

void Phone::ringAgain()
{
    const PhoneCall *call = find({CallState::Incoming});
    if (!call)
        return;
    for (PhoneListener *listener : listeners)
        listener->rang(recordOf(*call).number);
}

bool Phone::answer()
{
    PhoneCall *call = find({CallState::Dialing, CallState::Alerting});
    if (call)
        connect(*call);
    return call != nullptr;
}

bool Phone::hangUpThere()
{
    const PhoneCall *call = find(
        {CallState::Active, CallState::Dialing, CallState::Alerting, CallState::Incoming, CallState::Waiting});
    if (call)
        finish(call->index, End::HungUpThere);
    return call != nullptr;
}

void Phone::hangUpAllThere()
{
    while (!callList.isEmpty())
        finish(callList.last().index, End::HungUpThere);
}

bool Phone::hangUpThere(const QByteArray &number)
{
    for (const PhoneCall &call : std::as_const(callList)) {
        if (recordOf(call).number == number) {
            finish(call.index, End::HungUpThere);
            return true;
        }
    }
    return false;
}

bool Phone::refuse(End how)
{
    const PhoneCall *call = find({CallState::Dialing, CallState::Alerting});
    if (call)
        finish(call->index, how);
    return call != nullptr;
}

bool Phone::tick(unsigned units)
{
    const PhoneCall *call = find({CallState::Active, CallState::Held});
    if (!call)
        return false;
    const auto upTo = [](unsigned meter, unsigned by) { return meter + std::min(by, Sim::largestMeter - meter); };
    unsigned &ofCall = recordList[call->record].units;
    ofCall = upTo(ofCall, units);
    currentUnits = ofCall;
    sim.addUnits(units);
    const int index = call->index;
    for (PhoneListener *listener : listeners) {
        if (isMeterPushed)
            listener->meterChanged(currentUnits);
    }
    const bool isNear = sim.acmMax != 0 && sim.acm + warningUnits >= sim.acmMax;
    if (isNear && !hasWarned) {
        for (PhoneListener *listener : listeners)
            listener->maximumIsNear();
    }
    hasWarned = isNear;
    if (sim.isAtMaximum())
        finish(index, End::MaximumReached);
    return true;
}

void Phone::setRegistration(Registration state)
{
    registrationState = state;
    for (PhoneListener *listener : listeners)
        listener->registrationChanged();
}

void Phone::endData()
{
    for (auto &[number, context] : contexts) {
        if (!context.isActive)
            continue;
        context.isActive = false;
        for (PhoneListener *listener : listeners)
            listener->dataEnded(number);
    }
}

void Phone::losePower()
{
    while (!callList.isEmpty())
        finish(callList.last().index, End::NoCarrier);
    endData();
    isOn = false;
}

bool Phone::dial(const QByteArray &number)
{
    const bool isEmergency = number == "112";
    const bool isRegistered =
        registrationState == Registration::Home || registrationState == Registration::Roaming;
    if (!isEmergency && (!isRegistered || sim.isAtMaximum()))
        return false;
    if (find({CallState::Active}) && !holdActive())
        return false;
    const int index = add(Direction::Dialed, number, CallState::Dialing).index;
    if (dialed == Dialed::Busy || dialed == Dialed::NoCarrier) {
        endSilently(index, dialed == Dialed::Busy ? End::Busy : End::NoCarrier);
        return true;
    }
    // What becomes of the call follows the answer to the command that dials it.
    QTimer::singleShot(0, &ringing, [this] { goOnDialing(); });
    return true;
}

void Phone::goOnDialing()
{
    PhoneCall *call = find({CallState::Dialing});
    if (call && dialed == Dialed::Answered)
        connect(*call);
    else if (call)
        call->state = CallState::Alerting;
}

bool Phone::accept()
{
    PhoneCall *call = find({CallState::Incoming});
    if (call)
        connect(*call);
    return call != nullptr;
}

bool Phone::hangUpHere()
{
    return finishAll({CallState::Active, CallState::Dialing, CallState::Alerting, CallState::Incoming},
                     End::HungUpHere);
}

// One call at most is held, or one conference.
bool Phone::holdActive()
{
    if (find({CallState::Held}))
        return false;
    for (PhoneCall &call : callList) {
        if (call.state == CallState::Active)
            call.state = CallState::Held;
    }
    return true;
}

bool Phone::swapOrAccept()
{
    PhoneCall *waiting = find({CallState::Waiting, CallState::Incoming});
    if (waiting) {
        if (find({CallState::Active}) && !holdActive())
            return false;
        connect(*waiting);
        return true;
    }
    bool isAny = false;
    for (PhoneCall &call : callList) {
        if (!isOneOf(call.state, {CallState::Active, CallState::Held}))
            continue;
        call.state = call.state == CallState::Active ? CallState::Held : CallState::Active;
        isAny = true;
    }
    return isAny;
}

// All but one of the conference are held.
bool Phone::separate(int index)
{
    const auto isIt = [&](const PhoneCall &call) { return call.index == index; };
    if (std::none_of(callList.begin(), callList.end(), isIt) || find({CallState::Held}))
        return false;
    for (PhoneCall &call : callList) {
        if (isIt(call))
            call.isInConference = false;
        else if (call.state == CallState::Active)
            call.state = CallState::Held;
    }
    return true;
}

bool Phone::hold(const QByteArray &how)
{
    const int index = how.mid(1).toInt();
    const bool isKnown =
        std::any_of(callList.begin(), callList.end(), [&](const PhoneCall &call) { return call.index == index; });
    if (how.size() > 1 && !isKnown)
        return false;
    if (how == "0")
        return finishAll({CallState::Waiting, CallState::Incoming}, End::HungUpHere) ||
               finishAll({CallState::Held}, End::HungUpHere);
    if (how == "1") {
        finishAll({CallState::Active}, End::HungUpHere);
        PhoneCall *next = find({CallState::Waiting, CallState::Incoming});
        if (!next)
            next = find({CallState::Held});
        if (next)
            connect(*next);
        return true;
    }
    if (how == "2")
        return swapOrAccept();
    if (how == "3") {
        for (PhoneCall &call : callList) {
            call.isInConference = isOneOf(call.state, {CallState::Active, CallState::Held});
            if (call.isInConference)
                call.state = CallState::Active;
        }
        return true;
    }
    if (how.startsWith('1')) {
        finish(index, End::HungUpHere);
        return true;
    }
    return how.startsWith('2') && separate(index);
}

bool Phone::setDataActive(int context, bool isActive)
{
    const auto found = contexts.find(context);
    if (found == contexts.end() || (isActive && !isAttached))
        return false;
    const bool wasActive = found->second.isActive;
    found->second.isActive = isActive;
    if (wasActive && !isActive) {
        for (PhoneListener *listener : listeners)
            listener->dataEnded(context);
    }
    return true;
}

} // namespace atmodem
