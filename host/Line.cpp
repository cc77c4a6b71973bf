#include "Line.h"

#include "ReadyMadeHistory.h"
#include "Status.h"

#include <QtCore/QDateTime>
#include <QtCore/QStringList>

namespace host {

using handset::CallKind;
using LineState = Line::Telephone::LineState;

namespace {

// 0 for a telephone that answers a number of its own.
const char *statusText(int status)
{
    switch (status) {
    case handset::InvalidArgument:
        return "the number is not one that can be dialed";
    case handset::NotAvailable:
        return "the telephone cannot do this";
    case handset::StorageFailed:
        return "the call log cannot be written";
    case handset::WrongState:
        return "the line is in another state";
    }
    return nullptr;
}

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

QString stateWord(LineState state, qint64 connectedMs)
{
    switch (state) {
    case LineState::Idle:
        return QStringLiteral("Idle");
    case LineState::Dialing:
        return QStringLiteral("Dialing");
    case LineState::Ringing:
        return QStringLiteral("Ringing");
    case LineState::Connected:
        break;
    }
    return QStringLiteral("Connected %1").arg(clockText(connectedMs / 1000));
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
    , simulated(dynamic_cast<Telephone *>(owner.get()))
{
    if (simulated)
        connect(simulated, &Telephone::changed, this, &Line::changed);
}

void Line::setNumber(const QString &number)
{
    if (nextNumber == number)
        return;
    nextNumber = number;
    emit changed();
}

void Line::typeNumber(QChar digit)
{
    const QString begun = typing ? nextNumber : QString();
    typing = true;
    if (begun.size() < longestNumber)
        setNumber(begun + digit);
}

bool Line::permits(Action action) const
{
    if (!simulated)
        return false;
    if (action == Action::HangUp)
        return simulated->lineState() != LineState::Idle;
    const bool needsNumber = action == Action::Dial || action == Action::DialData;
    return simulated->lineState() == neededState(action) && !(needsNumber && nextNumber.isEmpty());
}

void Line::perform(Action action)
{
    if (!permits(action))
        return;
    typing = false;
    finish(run(action));
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

void Line::pressCallKey()
{
    perform(permits(Action::Answer) ? Action::Answer : Action::Dial);
}

void Line::pressHangUpKey()
{
    perform(Action::HangUp);
}

void Line::addReadyMadeHistory()
{
    if (simulated)
        finish(simulated->addHistory(handset::simulated::readyMadeHistory(QDateTime::currentMSecsSinceEpoch())));
}

void Line::finish(int status)
{
    lastFailure.clear();
    if (status != handset::Success) {
        const char *text = statusText(status);
        lastFailure = text ? QStringLiteral("Not done: %1.").arg(QLatin1StringView(text))
                           : QStringLiteral("Not done: the telephone answers %1.").arg(status);
    }
    emit changed();
}

QString Line::describeState() const
{
    if (!simulated)
        return QStringLiteral("This telephone cannot be driven from here.");
    const LineState state = simulated->lineState();
    QStringList parts{stateWord(state, simulated->connectedMs())};
    if (state != LineState::Idle) {
        parts << (simulated->callKind() == CallKind::Data ? QStringLiteral("data call")
                                                          : QStringLiteral("voice call"));
        parts << (simulated->number().isEmpty() ? QStringLiteral("number withheld") : simulated->number());
    }
    return parts.join(QStringLiteral(", "));
}

} // namespace host
