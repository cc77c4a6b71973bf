#include "host/Line.h"

#include "host/LeftToRight.h"
#include "host/StatusText.h"
#include "simulated/ReadyMadeHistory.h"

#include <QtCore/QDateTime>

#include <algorithm>
#include <array>
#include <initializer_list>
#include <iterator>
#include <utility>

namespace host {

using handset::CallKind;
using handset::CallPhase;
using handset::LineCall;
using handset::LineReport;
using Card = handset::charging::SimCard;
using Charging = Line::Charging;
using LineState = Line::SimulatedHandset::LineState;

namespace {

constexpr StatusMeaning lineMeaning{
    QT_TRANSLATE_NOOP("host::StatusText", "the number is not one that can be dialed"),
    QT_TRANSLATE_NOOP("host::StatusText", "the line is in another state"),
    QT_TRANSLATE_NOOP("host::StatusText", "not allowed now: nothing more may be charged")};

LineState neededState(Line::Action action)
{
    switch (action) {
    case Line::Action::Dial:
    case Line::Action::DialData:
    case Line::Action::Ring:
        return LineState::Idle;
    case Line::Action::RemoteAnswer:
        return LineState::Dialing;
    case Line::Action::Answer:
        return LineState::Ringing;
    case Line::Action::HangUp:
        break;
    }
    return LineState::Connected;
}

QString phaseText(const LineCall &call)
{
    switch (call.phase) {
    case CallPhase::Dialing:
    case CallPhase::Alerting:
        return Line::tr("Dialing");
    case CallPhase::Incoming:
        return Line::tr("Ringing");
    case CallPhase::Waiting:
        return Line::tr("Waiting");
    case CallPhase::Held:
        return Line::tr("On hold %1").arg(clockText(call.connectedMs / 1000));
    case CallPhase::Active:
    case CallPhase::Over:
        break;
    }
    return Line::tr("Connected %1").arg(clockText(call.connectedMs / 1000));
}

// The first call in the earliest of `phases` that has one; null when none is in any.
const LineCall *callIn(const LineReport &report, std::initializer_list<CallPhase> phases)
{
    for (const CallPhase phase : phases) {
        for (const LineCall &call : report.calls) {
            if (call.phase == phase)
                return &call;
        }
    }
    return nullptr;
}

// What each key is for: null when no call is.
const LineCall *callToAnswer(const LineReport &report)
{
    return callIn(report, {CallPhase::Incoming, CallPhase::Waiting});
}

const LineCall *callToEnd(const LineReport &report)
{
    return callIn(report, {CallPhase::Dialing, CallPhase::Alerting, CallPhase::Incoming, CallPhase::Active,
                           CallPhase::Held, CallPhase::Waiting});
}

bool permitsOnModem(const LineReport &report, Line::Action action)
{
    switch (action) {
    case Line::Action::Dial: // a second one, too: the first is put on hold by the network
        return report.hasModem && report.calls.size() < 2 &&
               !callIn(report, {CallPhase::Dialing, CallPhase::Alerting, CallPhase::Incoming, CallPhase::Waiting});
    case Line::Action::Answer:
        return callToAnswer(report) != nullptr;
    case Line::Action::HangUp:
        return callToEnd(report) != nullptr;
    case Line::Action::DialData:
    case Line::Action::RemoteAnswer:
    case Line::Action::Ring:
        break;
    }
    return false;
}

QString describe(const LineReport &report)
{
    if (!report.hasModem)
        return Line::tr("No modem");
    QStringList calls;
    for (const LineCall &call : report.calls) {
        const QString number = call.number.isEmpty() ? Line::tr("number withheld") : leftToRight(call.number);
        calls << phaseText(call) + QStringLiteral(", ") + number;
    }
    return calls.isEmpty() ? Line::tr("Idle") : calls.join(QLatin1Char('\n'));
}

CallPhase phaseOf(LineState state)
{
    switch (state) {
    case LineState::Dialing:
        return CallPhase::Dialing;
    case LineState::Ringing:
        return CallPhase::Incoming;
    case LineState::Connected:
        return CallPhase::Active;
    case LineState::Idle:
        break;
    }
    return CallPhase::Over;
}

QString stateWord(LineState state, qint64 connectedMs)
{
    switch (state) {
    case LineState::Idle:
        return Line::tr("Idle");
    case LineState::Dialing:
        return Line::tr("Dialing");
    case LineState::Ringing:
        return Line::tr("Ringing");
    case LineState::Connected:
        break;
    }
    return Line::tr("Connected %1").arg(clockText(connectedMs / 1000));
}

QString endOfCharging(const Charging &charging, const Card &card)
{
    const std::optional<quint32> onMeter = card.unitsLeft();
    const auto account = charging.account();
    const bool isLimit = onMeter && !(account && account->credit < *onMeter);
    return isLimit ? Line::tr("The credit limit is reached in %1 s.") : Line::tr("The credit is used up in %1 s.");
}

QString stopText(Charging::StopReason reason)
{
    switch (reason) {
    case Charging::StopReason::LimitReached:
        return Line::tr("The telephone has ended the call: the credit limit is reached.");
    case Charging::StopReason::CreditUsedUp:
        return Line::tr("The telephone has ended the call: the credit is used up.");
    case Charging::StopReason::None:
        break;
    }
    return {};
}

} // namespace

QString clockText(qint64 seconds)
{
    return QStringLiteral("%1:%2:%3")
        .arg(seconds / 3600, 2, 10, QLatin1Char('0'))
        .arg(seconds / 60 % 60, 2, 10, QLatin1Char('0'))
        .arg(seconds % 60, 2, 10, QLatin1Char('0'));
}

Line::Line(std::shared_ptr<handset::Handset> opened)
    : owner(std::move(opened))
    , simulated(dynamic_cast<SimulatedHandset *>(owner.get()))
    , control(owner ? owner->lineControl() : nullptr)
{
    if (auto *const tells = dynamic_cast<QObject *>(owner.get()))
        connect(tells, SIGNAL(changed()), this, SIGNAL(changed()));
    if (control) {
        control->setRefusalListener([this](const QString &why) {
            lastFailure = why;
            emit changed();
        });
    }
}

Line::~Line()
{
    if (control)
        control->setRefusalListener({});
}

Line::Charging *Line::charging() const
{
    const bool isModems = control && control->report().isChargedByModem;
    return isModems ? nullptr : owner->charging();
}

bool Line::isCounting() const
{
    if (control) {
        const LineReport report = control->report();
        return !report.sessions.isEmpty() || callIn(report, {CallPhase::Active, CallPhase::Held});
    }
    return simulated &&
           (simulated->lineState() == LineState::Connected || simulated->packets().isSessionRunning());
}

void Line::setNumber(const QString &number)
{
    if (nextNumber == number)
        return;
    typing = false;
    changeNumber(number);
}

void Line::changeNumber(const QString &number)
{
    nextNumber = number;
    emit changed();
}

void Line::addNotice(const QString &notice)
{
    told << notice;
    emit changed();
}

void Line::typeNumber(QChar digit)
{
    const QString begun = typing ? nextNumber : QString();
    typing = true;
    if (begun.size() < longestNumber)
        changeNumber(begun + digit);
}

void Line::takeBackDigit()
{
    if (typing && !nextNumber.isEmpty())
        changeNumber(nextNumber.chopped(1));
}

QList<LineCall> Line::calls() const
{
    QList<LineCall> there;
    if (control)
        there = control->report().calls;
    else if (simulated)
        there = {{{}, phaseOf(simulated->lineState()), simulated->number(), simulated->connectedMs()}};
    constexpr std::array order{CallPhase::Incoming, CallPhase::Waiting, CallPhase::Dialing,
                               CallPhase::Alerting, CallPhase::Active,  CallPhase::Held};
    QList<LineCall> ordered;
    for (const CallPhase phase : order) {
        std::copy_if(there.cbegin(), there.cend(), std::back_inserter(ordered),
                     [phase](const LineCall &call) { return call.phase == phase; });
    }
    return ordered;
}

bool Line::permits(Action action) const
{
    const bool needsNumber = action == Action::Dial || action == Action::DialData;
    if (needsNumber && nextNumber.isEmpty())
        return false;
    if (control)
        return permitsOnModem(control->report(), action);
    if (!simulated)
        return false;
    if (action == Action::HangUp)
        return simulated->lineState() != LineState::Idle;
    return simulated->lineState() == neededState(action);
}

void Line::perform(Action action)
{
    if (!permits(action))
        return;
    typing = false;
    finish(control ? runOnModem(action) : run(action));
}

int Line::run(Action action)
{
    switch (action) {
    case Action::Dial:
        return simulated->dial(nextNumber, CallKind::Voice);
    case Action::DialData:
        return simulated->dial(nextNumber, CallKind::Data);
    case Action::RemoteAnswer:
        return simulated->remoteAnswer();
    case Action::Ring:
        return simulated->ring(nextNumber);
    case Action::Answer:
        return simulated->answer();
    case Action::HangUp:
        break;
    }
    return simulated->hangUp();
}

// Only of what permits() allows.
int Line::runOnModem(Action action)
{
    const LineReport report = control->report();
    switch (action) {
    case Action::Dial:
        return control->dial(nextNumber);
    case Action::Answer:
        return control->answer(callToAnswer(report)->id);
    case Action::HangUp:
        return control->hangUp(callToEnd(report)->id);
    case Action::DialData:
    case Action::RemoteAnswer:
    case Action::Ring:
        break;
    }
    return handset::NotAvailable;
}

void Line::pressCallKey()
{
    perform(permits(Action::Answer) ? Action::Answer : Action::Dial);
}

void Line::pressHangUpKey()
{
    if (permits(Action::HangUp)) {
        perform(Action::HangUp);
    } else if (std::exchange(typing, false)) {
        emit changed();
    }
}

void Line::addReadyMadeHistory()
{
    if (simulated)
        finish(simulated->addHistory(handset::simulated::readyMadeHistory(QDateTime::currentMSecsSinceEpoch())));
}

void Line::finish(int status)
{
    lastFailure = refusalText(status, lineMeaning);
    emit changed();
}

QString Line::describeState() const
{
    if (control)
        return describe(control->report());
    if (!simulated)
        return tr("This telephone cannot be driven from here.");
    const LineState state = simulated->lineState();
    QStringList parts{stateWord(state, simulated->connectedMs())};
    if (state != LineState::Idle) {
        parts << (simulated->callKind() == CallKind::Data ? tr("data call") : tr("voice call"));
        parts << (simulated->number().isEmpty() ? tr("number withheld") : leftToRight(simulated->number()));
    }
    return parts.join(QStringLiteral(", "));
}

QString Line::recordNotice() const
{
    if (!owner || !owner->owesRecord())
        return {};
    return tr("The call log cannot be written. The end of a call or a packet-data session is kept in memory, and "
              "written as soon as it can be.");
}

QString Line::chargeNotice() const
{
    if (!simulated)
        return {};
    const Charging &charging = *simulated->charging();
    const std::optional<qint64> msLeft = charging.msLeft();
    if (!msLeft || *msLeft > Charging::warningMs)
        return stopText(charging.stopReason());
    return endOfCharging(charging, simulated->simCard().card()).arg((*msLeft + 999) / 1000);
}

} // namespace host
